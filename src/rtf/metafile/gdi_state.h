#pragma once

#include "rtf/metafile/gdi_numbers.h"

#include <QBrush>
#include <QImage>
#include <QPen>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QTransform>

#include <variant>

namespace torvik::rtf {

/// A font as a drawing asks for it; the height is in the drawing's units, negative for that of the letters
/// alone.
struct GdiFont {
    double height = 12;
    /// Tenths of a degree, counterclockwise.
    int escapement = 0;
    int weight = 400;
    bool italic = false;
    bool underline = false;
    bool strike = false;
    int charset = 0;
    QString family;
};

/// What a drawing can select. Objects that change nothing here still take up a number.
using GdiObject = std::variant<std::monostate, QPen, QBrush, GdiFont>;

/// How the drawing's units become those of its device: first the world, then window to viewport.
struct GdiMapping {
    QPointF windowOrigin;
    QSizeF windowExtent = {1, 1};
    QPointF viewportOrigin;
    QSizeF viewportExtent = {1, 1};
    /// Whether the drawing may set the extents.
    bool scalesFreely = false;
    /// Whether one unit is as long across as it is down, whatever the extents say.
    bool isEven = false;
    QTransform world;

    QTransform ToDevice() const;
};

/// Everything that saving a drawing's state keeps.
struct GdiState {
    QPen pen = QPen(Qt::black);
    QBrush brush = QBrush(Qt::white);
    GdiFont font;
    QColor textColor = Qt::black;
    QColor backColor = Qt::white;
    bool isOpaque = true;
    int textAlign = 0;
    Qt::FillRule fillRule = Qt::OddEvenFill;
    QPointF position;
    GdiMapping mapping;
    /// In pixels of the image; null where nothing is cut.
    QRectF clip;
    bool isClipped = false;
};

/// A colour as drawings write it, red in the lowest byte.
QColor GdiColor(quint32 value);
/// Pens and brushes by the numbers of their styles.
QPen GdiPen(int style, double width, quint32 color);
QBrush GdiBrush(int style, quint32 color, int hatch);
/// A brush that repeats a bitmap, gray without one. `takesColors`: one of two colours is drawn in those of
/// the text and the background.
QBrush GdiPatternBrush(const QImage& pattern, bool takesColors);
/// One of the objects that exist without being made; any other number is an object that changes nothing.
GdiObject GdiStockObject(StockObject object);

} // namespace torvik::rtf
