#include "rtf/read/plain_text.h"

#include "rtf/charset/code_page.h"
#include "rtf/write/flow_writer.h"

#include <QStringDecoder>
#include <QTextDocument>

#include <algorithm>

namespace torvik::rtf {

namespace {

QString DecodedText(const QByteArray& bytes)
{
    // A byte-order mark at the start says what the text is.
    const auto marked = QStringConverter::encodingForData(bytes);
    QStringDecoder decoder(marked.value_or(QStringConverter::Utf8));
    QString text = decoder.decode(bytes);
    if (marked || !decoder.hasError())
        return text;
    text.clear();
    CodePage::Of(1252).Decode({bytes.constData(), static_cast<std::size_t>(bytes.size())}, text);
    return text;
}

bool IsUnprintable(QChar c)
{
    const bool isLineOrTab = c == u'\n' || c == u'\t';
    return (c.unicode() < 0x20 && !isLineOrTab) || c.unicode() == QChar::ObjectReplacementCharacter ||
           c.unicode() == 0xfdd0 || c.unicode() == 0xfdd1;
}

/// With one kind of line end and without what cannot be shown.
QString ShownText(const QString& text)
{
    QString shown;
    shown.reserve(text.size());
    QChar previous;
    for (const QChar c : text) {
        const bool isSecondHalfOfLineEnd = previous == u'\r' && c == u'\n';
        previous = c;
        if (isSecondHalfOfLineEnd)
            continue;
        if (c == u'\r' || c == QChar::ParagraphSeparator)
            shown += u'\n';
        else if (!IsUnprintable(c))
            shown += c;
    }
    return shown;
}

} // namespace

ReadResult ReadPlainText(const QByteArray& bytes, QTextDocument& into, const std::stop_token& stop)
{
    ReadResult result;
    result.wasEmpty = bytes.isEmpty();
    const QString text = ShownText(DecodedText(bytes));
    Budget budget(bytes.size());
    QTextCursor cursor(&into);
    cursor.beginEditBlock();
    qsizetype at = 0;
    while (at < text.size() || result.paragraphs == 0) {
        const qsizetype found = text.indexOf(u'\n', at);
        const qsizetype end = found < 0 ? text.size() : found;
        if (stop.stop_requested() || !budget.Take(FlowWriter::CostOf(end - at, 1))) {
            result.wasCut = true;
            break;
        }
        if (result.paragraphs++ > 0)
            cursor.insertBlock();
        cursor.insertText(QString::fromRawData(text.constData() + at, end - at));
        at = end + 1;
    }
    cursor.endEditBlock();
    return result;
}

} // namespace torvik::rtf
