#include "check/examine_picture.h"

#include "ui/pictures/picture_end.h"

#include <QBuffer>
#include <QImageReader>
#include <QLoggingCategory>

#include <cstring>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr qint64 mostPixels = 300'000'000; ///< as the program shows them
/// A JPEG at an eighth of its size is decoded from all of its data, but with little arithmetic.
constexpr int reduction = 8;

thread_local int complaints = 0;
QtMessageHandler handlerBefore = nullptr;

/// Bytes that make no sense in the middle of a JPEG are only told in words, and the rest is guessed.
void CountComplaints(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (context.category != nullptr && std::strncmp(context.category, "qt.gui.imageio", 14) == 0)
        ++complaints;
    else if (handlerBefore != nullptr)
        handlerBefore(type, context, text);
}

} // namespace

void ListenToDecoders()
{
    if (handlerBefore == nullptr)
        handlerBefore = qInstallMessageHandler(CountComplaints);
}

Examination ExaminePicture(const QByteArray& bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (!size.isValid() || size.isEmpty())
        return Damaged(u"is no picture"_s);
    if (qint64{size.width()} * size.height() > mostPixels)
        return Damaged(u"has more than 300 million pixels, which are not shown"_s);
    if (!HasItsEnd(bytes))
        return Damaged(u"ends early"_s);
    if (reader.format() == "jpeg")
        reader.setScaledSize({size.width() / reduction + 1, size.height() / reduction + 1});
    complaints = 0;
    if (reader.read().isNull())
        return Damaged(u"cannot be decoded: "_s + reader.errorString());
    if (complaints != 0)
        return Damaged(u"has damaged bytes inside"_s);
    Examination whole;
    whole.pixels = size;
    return whole;
}

} // namespace torvik
