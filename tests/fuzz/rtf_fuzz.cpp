// Feeds any bytes to the reader of rich text, lays out what came of them, and paints the lines that Qt leaves
// out.

#include "rtf/rtf_reader.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTextDocument>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "rtf_fuzz";
    static char* argv[] = {name, nullptr};
    new QGuiApplication(argc, argv); // Lives as long as the process.
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // Most inputs lose their first bytes to the fuzzer; without them there would be only plain text to read.
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    QTextDocument document;
    const torvik::rtf::ReadResult result =
        torvik::rtf::ReadRichText(torvik::rtf::LooksLikeRtf(bytes) ? bytes : "{\\rtf1" + bytes, document);
    if (!result.wasRtf || document.blockCount() < 1)
        std::abort();
    constexpr int smallEnoughToLayOut = 4096;
    if (size < smallEnoughToLayOut) {
        document.setTextWidth(600);
        QImage image(64, 64, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        torvik::rtf::LetterShadows(document).Paint(painter, QRectF(image.rect()), 1);
        torvik::rtf::ExtraLines(document).Paint(painter, QRectF(image.rect()), Qt::black, 1);
    }
    return 0;
}
