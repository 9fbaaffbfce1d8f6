#include "sample/files/picture_bytes.h"

#include "sample/files/riff.h"

#include <QBuffer>

#include <stdexcept>

namespace torvik::sample {

namespace {

constexpr int colourCount = 16;

/// The rows from the bottom up, as runs of one colour; each row and the whole have their end marks.
QByteArray RunsOf(const QImage& drawing)
{
    QByteArray runs;
    for (int y = drawing.height() - 1; y >= 0; --y) {
        for (int x = 0; x < drawing.width();) {
            const int colour = drawing.pixelIndex(x, y);
            int length = 1;
            while (x + length < drawing.width() && length < 255 &&
                   drawing.pixelIndex(x + length, y) == colour)
                ++length;
            runs += static_cast<char>(length);
            runs += static_cast<char>(colour << 4 | colour);
            x += length;
        }
        runs.append("\0\0", 2);
    }
    runs.append("\0\1", 2);
    return runs;
}

} // namespace

QByteArray PngOfDrawing(const QImage& drawing)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!drawing.save(&buffer, "PNG"))
        throw std::runtime_error("A drawing cannot be encoded.");
    return bytes;
}

QByteArray DibOfDrawing(const QImage& drawing)
{
    if (drawing.format() != QImage::Format_Indexed8 || drawing.colorCount() > colourCount)
        throw std::runtime_error("A drawing has too many colours.");
    const QByteArray runs = RunsOf(drawing);
    // Runs of 4-bit colours, 3780 pixels to the metre.
    QByteArray bytes = Longs({40, drawing.width(), drawing.height()}) + Words({1, 4}) +
                       Longs({2, runs.size(), 3780, 3780, colourCount, 0});
    for (int i = 0; i < colourCount; ++i) {
        const QRgb colour = i < drawing.colorCount() ? drawing.color(i) : 0;
        bytes += static_cast<char>(qBlue(colour));
        bytes += static_cast<char>(qGreen(colour));
        bytes += static_cast<char>(qRed(colour));
        bytes += '\0';
    }
    return bytes + runs;
}

QByteArray MetafileOfDrawing(const QImage& drawing)
{
    const int width = drawing.width();
    const int height = drawing.height();
    QByteArray dib = DibOfDrawing(drawing);
    if (dib.size() % 2 != 0)
        dib += '\0';

    QByteArray records = Longs({4}) + Words({0x0103, 8});   // units of our own, different in x and y
    records += Longs({5}) + Words({0x020B, 0, 0});          // origin
    records += Longs({5}) + Words({0x020C, height, width}); // extent
    const qsizetype largest = 3 + 11 + dib.size() / 2;
    records += Longs({largest}) + Words({0x0F43}) + Longs({0x00CC0020}) + // stretch a bitmap
               Words({0, height, width, 0, 0, height, width, 0, 0}) + dib;
    records += Longs({3}) + Words({0});
    // Kept in memory; nine words of this header.
    return Words({1, 9, 0x0300}) + Longs({9 + records.size() / 2}) + Words({0}) + Longs({largest}) +
           Words({0}) + records;
}

} // namespace torvik::sample
