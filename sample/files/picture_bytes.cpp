#include "sample/files/picture_bytes.h"

#include <QBuffer>

#include <stdexcept>

namespace torvik::sample {

namespace {

constexpr int colourCount = 16;

void PutWord(QByteArray& bytes, int value)
{
    bytes += static_cast<char>(value & 0xFF);
    bytes += static_cast<char>((value >> 8) & 0xFF);
}

void PutLong(QByteArray& bytes, qsizetype value)
{
    PutWord(bytes, static_cast<int>(value & 0xFFFF));
    PutWord(bytes, static_cast<int>((value >> 16) & 0xFFFF));
}

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
    QByteArray bytes;
    PutLong(bytes, 40);
    PutLong(bytes, drawing.width());
    PutLong(bytes, drawing.height());
    PutWord(bytes, 1);
    PutWord(bytes, 4);
    PutLong(bytes, 2); // in runs of 4-bit colours
    PutLong(bytes, runs.size());
    PutLong(bytes, 3780); // pixels to the metre
    PutLong(bytes, 3780);
    PutLong(bytes, colourCount);
    PutLong(bytes, 0);
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

    QByteArray records;
    const auto record = [&records](int function, std::initializer_list<int> words) {
        PutLong(records, 3 + static_cast<qsizetype>(words.size()));
        PutWord(records, function);
        for (const int word : words)
            PutWord(records, word);
    };
    record(0x0103, {8});             // units of our own, different in x and y
    record(0x020B, {0, 0});          // origin
    record(0x020C, {height, width}); // extent
    PutLong(records, 3 + 11 + dib.size() / 2);
    PutWord(records, 0x0F43); // stretch a bitmap
    PutLong(records, 0x00CC0020);
    PutWord(records, 0);
    for (const int word : {height, width, 0, 0, height, width, 0, 0})
        PutWord(records, word);
    const qsizetype largest = 3 + 11 + dib.size() / 2;
    records += dib;
    record(0, {});

    QByteArray bytes;
    PutWord(bytes, 1); // kept in memory
    PutWord(bytes, 9); // words of this header
    PutWord(bytes, 0x0300);
    PutLong(bytes, 9 + records.size() / 2);
    PutWord(bytes, 0);
    PutLong(bytes, largest);
    PutWord(bytes, 0);
    return bytes + records;
}

} // namespace torvik::sample
