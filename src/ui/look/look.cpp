#include "ui/look/look.h"

#include "ui/look/look_style.h"

#include <QApplication>
#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QToolTip>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

QFont ProgramFont()
{
    QFont font;
    font.setFamilies({u"Liberation Sans"_s, u"Arial"_s, u"Helvetica"_s, u"DejaVu Sans"_s});
    font.setPixelSize(12);
    return font;
}

QPalette ProgramPalette()
{
    QPalette palette(look::text, look::face, look::light, look::darkShadow, look::shadow, look::text,
                     look::light, look::paper, look::face);
    palette.setColor(QPalette::Midlight, look::halfLight);
    palette.setColor(QPalette::Shadow, look::darkShadow);
    palette.setColor(QPalette::ButtonText, look::text);
    palette.setColor(QPalette::AlternateBase, look::halfLight);
    palette.setColor(QPalette::Highlight, look::accent);
    palette.setColor(QPalette::HighlightedText, look::accentText);
    palette.setColor(QPalette::ToolTipBase, look::tip);
    palette.setColor(QPalette::ToolTipText, look::text);
    palette.setColor(QPalette::PlaceholderText, look::faded);
    palette.setColor(QPalette::Link, QColor(0x1b, 0x3f, 0x8e));
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, look::faded);
    return palette;
}

/// The four sides of a ring of thin lines just inside `area`.
void DrawEdges(QPainter& painter, const QRectF& area, const QColor& upperLeft, const QColor& lowerRight)
{
    const double thin = ThinLine(painter);
    painter.fillRect(QRectF(area.left(), area.top(), area.width(), thin), upperLeft);
    painter.fillRect(QRectF(area.left(), area.top(), thin, area.height()), upperLeft);
    painter.fillRect(QRectF(area.left(), area.bottom() - thin, area.width(), thin), lowerRight);
    painter.fillRect(QRectF(area.right() - thin, area.top(), thin, area.height()), lowerRight);
}

} // namespace

void ApplyLook()
{
    QApplication::setStyle(new LookStyle);
    QApplication::setPalette(ProgramPalette());
    QApplication::setFont(ProgramFont());
    QToolTip::setPalette(ProgramPalette());
    QToolTip::setFont(ProgramFont());
}

QRectF Snapped(const QPainter& painter, const QRectF& area)
{
    const QTransform toDevice = painter.deviceTransform();
    const QRectF device = toDevice.mapRect(area);
    const QRectF whole(QPointF(std::round(device.left()), std::round(device.top())),
                       QPointF(std::round(device.right()), std::round(device.bottom())));
    return toDevice.inverted().mapRect(whole);
}

double ThinLine(const QPainter& painter)
{
    constexpr double towardsThin = 0.25; // a display scaled by 1.5 gets lines of one pixel, not two
    const double scale = painter.deviceTransform().m11();
    return scale > 0 ? std::max(1.0, std::floor(scale + towardsThin)) / scale : 1;
}

void DrawBevel(QPainter& painter, const QRectF& area, Bevel bevel, int depth)
{
    const double thin = ThinLine(painter);
    QRectF ring = Snapped(painter, area);
    for (int step = 0; step < depth; ++step, ring.adjust(thin, thin, -thin, -thin)) {
        const bool outer = step == 0;
        switch (bevel) {
        case Bevel::None:
            return;
        case Bevel::Raised:
            DrawEdges(painter, ring, outer ? look::light : look::halfLight,
                      outer ? look::darkShadow : look::shadow);
            break;
        case Bevel::Sunken:
            DrawEdges(painter, ring, outer ? look::shadow : look::darkShadow,
                      outer ? look::light : look::halfLight);
            break;
        case Bevel::Frame:
            DrawEdges(painter, ring, outer ? look::shadow : look::light, outer ? look::light : look::shadow);
            break;
        }
    }
}

void DrawOutline(QPainter& painter, const QRectF& area, const QColor& colour)
{
    DrawEdges(painter, Snapped(painter, area), colour, colour);
}

void DrawFocus(QPainter& painter, const QRectF& area, const QColor& colour)
{
    const double half = ThinLine(painter) / 2;
    QPen dots(colour, ThinLine(painter));
    dots.setDashPattern({1, 1});
    dots.setCapStyle(Qt::FlatCap);
    const QRectF ring = Snapped(painter, area).adjusted(half, half, -half, -half);
    if (ring.width() < 2 || ring.height() < 2)
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(dots);
    painter.drawLine(ring.topLeft(), ring.topRight());
    painter.drawLine(ring.bottomLeft(), ring.bottomRight());
    painter.drawLine(ring.topLeft(), ring.bottomLeft());
    painter.drawLine(ring.topRight(), ring.bottomRight());
    painter.restore();
}

void DrawArrow(QPainter& painter, const QRectF& area, int degrees, bool enabled, const QColor& colour)
{
    constexpr double smallest = 2;
    constexpr double largest = 8;
    const double half =
        std::clamp(std::min(area.width(), area.height()) / 3, smallest, largest); // of the base
    QPainterPath triangle;
    triangle.moveTo(-half, half / 2);
    triangle.lineTo(half, half / 2);
    triangle.lineTo(0, -half / 2);
    triangle.closeSubpath();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(area.center());
    painter.rotate(degrees);
    painter.fillPath(triangle, enabled ? colour : look::shadow);
    painter.restore();
}

void DrawCaption(QPainter& painter, const QRectF& area, const QString& caption, int flags, bool enabled,
                 const QColor& colour)
{
    constexpr int smallest = 9; // pixels
    painter.save();
    QFont font = painter.font();
    const int measured = flags & Qt::TextShowMnemonic;
    while (font.pixelSize() > smallest &&
           QFontMetricsF(font).boundingRect(QRectF(), measured, caption.trimmed()).width() > area.width())
        font.setPixelSize(font.pixelSize() - 1);
    painter.setFont(font);
    flags |= Qt::TextDontClip;
    if (!enabled) {
        painter.setPen(look::halfLight);
        painter.drawText(area.translated(1, 1), flags, caption);
    }
    painter.setPen(enabled ? colour : look::faded);
    painter.drawText(area, flags, caption);
    painter.restore();
}

} // namespace torvik
