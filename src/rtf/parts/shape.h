#pragma once

#include "rtf/model/content.h"
#include "rtf/picture/shape_picture.h"

#include <QPointF>
#include <QString>

#include <vector>

namespace torvik::rtf {

/// A drawn object as the document describes it. Lengths are twips.
struct Shape {
    ShapeKind kind = ShapeKind::None;
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    /// Left and top count from the edge of the page and not from the text.
    bool fromPage = false;
    bool isBehindText = false;
    bool isHidden = false;
    bool flipX = false;
    bool flipY = false;

    bool hasLine = true;
    int lineWidth = 15;
    BorderLine line = BorderLine::Solid;
    QColor lineColor = Qt::black;
    bool hasFill = true;
    /// Invalid until the document names one.
    QColor fill;
    int padding[SideCount] = {72, 144, 72, 144};

    /// Corners of a polygon in the units of `cornerSpace`.
    std::vector<QPointF> corners;
    QRectF cornerSpace;
    /// For a group: the space in which its members have their places.
    QRectF memberSpace;
    bool isMember = false;
    bool isGroup = false;

    /// Letters that are drawn as a picture.
    QString artText;
    std::vector<Block> text;
    bool hasText = false;
    bool hasPicture = false;
    bool hasInstructions = false;
};

/// Takes a property of the newer generation of drawn objects by its name; others are passed over.
void SetShapeProperty(Shape& shape, const QString& name, const QString& value);

/// The outline as it is drawn; kind None where there is nothing to draw.
DrawnShape DrawnFrom(const Shape& shape);
BoxStyle BoxStyleOf(const Shape& shape, int textWidth, int leftMargin);

} // namespace torvik::rtf
