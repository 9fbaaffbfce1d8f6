#pragma once

#include "rtf/metafile/metafile.h"
#include "rtf/picture_bytes.h"

#include <QColor>
#include <QImage>
#include <QList>
#include <QPoint>
#include <QRect>
#include <QString>

namespace torvik::rtf {

inline constexpr qint64 plentyOfBytes = 16 << 20;

// Colours as metafiles write them.
inline constexpr int inRed = 0x0000ff;
inline constexpr int inGreen = 0x00ff00;
inline constexpr int inBlue = 0xff0000;

/// Records as a picture of 100 by 100 units that is seen at 50 by 50 pixels: one unit is one pixel of the
/// image.
inline QImage DrawnWmf(const QByteArray& records)
{
    return DrawWmf(ViewOf(Wmf(100, 100, records)), {50, 50}, plentyOfBytes).image;
}
inline QImage DrawnEmf(const QByteArray& records)
{
    return DrawEmf(ViewOf(Emf(100, 100, records)), {50, 50}, plentyOfBytes).image;
}

/// The smallest rectangle around all pixels that are wholly of one colour; empty when there are none.
inline QRect ExtentOf(const QImage& image, const QColor& color)
{
    QRect extent;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == color)
                extent |= QRect(x, y, 1, 1);
        }
    }
    return extent;
}
/// The smallest rectangle around all pixels that are not left bare.
inline QRect InkOf(const QImage& image)
{
    QRect extent;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).alpha() > 0)
                extent |= QRect(x, y, 1, 1);
        }
    }
    return extent;
}
/// Tells of the first point that is not painted in a colour; empty when all are.
inline QString NotPainted(const QImage& image, const QList<QPoint>& points, const QColor& color)
{
    for (const QPoint& at : points) {
        if (image.pixelColor(at) != color)
            return QString::asprintf("%d, %d is %s", at.x(), at.y(),
                                     qPrintable(image.pixelColor(at).name(QColor::HexArgb)));
    }
    return {};
}
/// Tells of the first point that is not left bare; empty when all are.
inline QString NotBare(const QImage& image, const QList<QPoint>& points)
{
    return NotPainted(image, points, QColor(0, 0, 0, 0));
}

/// The colours at the corners of a part of an image: upper left, upper right, lower left, lower right.
inline QString CornersOf(const QImage& image, const QRect& part)
{
    QString corners;
    for (const QPoint& at : {part.topLeft(), part.topRight(), part.bottomLeft(), part.bottomRight()})
        corners += (corners.isEmpty() ? QString() : QString(QChar(' '))) + image.pixelColor(at).name();
    return corners;
}
inline const QString fourCorners = QStringLiteral("#ff0000 #00ff00 #0000ff #ffffff");
inline const QString cornersAcross = QStringLiteral("#00ff00 #ff0000 #ffffff #0000ff");
inline const QString cornersDown = QStringLiteral("#0000ff #ffffff #ff0000 #00ff00");

/// The bitmap of four colours with its upper line first.
inline QByteArray FourColorsFromTop()
{
    return Dib(2, -2, 24, {}, QByteArray::fromHex("0000ff00ff000000ff0000ffffff0000"));
}

// Records of the older kind. Objects get the lowest free number, the first one 0.

inline QByteArray WmfWords(int function, std::initializer_list<int> words)
{
    return WmfRecord(function, Bytes().Words(words).Data());
}
inline QByteArray WmfPen(int style, int width, int color)
{
    return WmfRecord(0x02fa, Bytes().Words({style, width, 0}).U32(color).Data());
}
inline QByteArray WmfBrush(int style, int color, int hatch = 0)
{
    return WmfRecord(0x02fc, Bytes().U16(style).U32(color).U16(hatch).Data());
}
inline QByteArray WmfSelect(int number)
{
    return WmfWords(0x012d, {number});
}
inline QByteArray WmfDelete(int number)
{
    return WmfWords(0x01f0, {number});
}
inline QByteArray WmfRectangle(int left, int top, int right, int bottom)
{
    return WmfWords(0x041b, {bottom, right, top, left});
}
/// Objects 0 and 1: no outline, and a brush of one colour.
inline QByteArray WmfFilled(int color)
{
    return WmfPen(5, 0, 0) + WmfBrush(0, color) + WmfSelect(0) + WmfSelect(1);
}
/// Objects 0 and 1: a solid pen, and nothing inside.
inline QByteArray WmfOutlined(int width, int color)
{
    return WmfPen(0, width, color) + WmfBrush(1, 0) + WmfSelect(0) + WmfSelect(1);
}

/// A font as both kinds describe it: a negative height is that of the letters.
struct FontLook {
    int height = -40;
    /// Tenths of a degree, against the clock.
    int escapement = 0;
    int weight = 400;
    bool italic = false;
    bool underline = false;
    bool strike = false;
    int charset = 0;
    QByteArray face = "Arial";
};
inline QByteArray WmfFont(const FontLook& look)
{
    Bytes bytes;
    bytes.Words({look.height, 0, look.escapement, look.escapement, look.weight});
    bytes.U8(look.italic).U8(look.underline).U8(look.strike).U8(look.charset).U32(0);
    return WmfRecord(0x02fb, bytes.Raw(look.face.leftJustified(32, '\0')).Data());
}

// Records of the enhanced kind. Objects are numbered from 1; those that need not be made have the high bit.

inline constexpr qint64 stockObject = 0x80000000;
inline constexpr qint64 stockNullBrush = stockObject + 5;
inline constexpr qint64 stockNullPen = stockObject + 8;

inline QByteArray EmfLongs(quint32 type, std::initializer_list<qint64> longs)
{
    return EmfRecord(type, Bytes().Longs(longs).Data());
}
inline QByteArray EmfPen(int number, int style, int width, int color)
{
    return EmfLongs(38, {number, style, width, 0, color});
}
inline QByteArray EmfBrush(int number, int style, int color, int hatch = 0)
{
    return EmfLongs(39, {number, style, color, hatch});
}
inline QByteArray EmfSelect(qint64 number)
{
    return EmfLongs(37, {number});
}
inline QByteArray EmfDelete(qint64 number)
{
    return EmfLongs(40, {number});
}
inline QByteArray EmfFont(int number, const FontLook& look)
{
    Bytes bytes;
    bytes.Longs({number, look.height, 0, look.escapement, look.escapement, look.weight});
    bytes.U8(look.italic).U8(look.underline).U8(look.strike).U8(look.charset).U32(0);
    for (const char letter : look.face.leftJustified(32, '\0'))
        bytes.U16(letter);
    return EmfRecord(82, bytes.Data());
}
inline QByteArray EmfRectangle(int left, int top, int right, int bottom)
{
    return EmfLongs(43, {left, top, right, bottom});
}
/// Object 1: a brush of one colour; no outline.
inline QByteArray EmfFilled(int color)
{
    return EmfSelect(stockNullPen) + EmfBrush(1, 0, color) + EmfSelect(1);
}
/// Object 1: a solid pen; nothing inside.
inline QByteArray EmfOutlined(int width, int color)
{
    return EmfSelect(stockNullBrush) + EmfPen(1, 0, width, color) + EmfSelect(1);
}

} // namespace torvik::rtf
