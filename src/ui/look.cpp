#include "ui/look.h"

#include <QApplication>
#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPalette>
#include <QStyleFactory>

namespace torvik {

namespace {

QFont ProgramFont()
{
    QFont font;
    font.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("Arial"), QStringLiteral("Helvetica"),
                      QStringLiteral("DejaVu Sans")});
    font.setPixelSize(12);
    return font;
}

QPalette ProgramPalette()
{
    QPalette palette(look::text, look::face, look::light, look::darkShadow, look::shadow, look::text, look::light,
                     look::paper, look::face);
    palette.setColor(QPalette::Midlight, look::halfLight);
    palette.setColor(QPalette::Shadow, look::darkShadow);
    palette.setColor(QPalette::ButtonText, look::text);
    palette.setColor(QPalette::AlternateBase, look::halfLight);
    palette.setColor(QPalette::Highlight, look::accent);
    palette.setColor(QPalette::HighlightedText, look::accentText);
    palette.setColor(QPalette::ToolTipBase, QColor(0xff, 0xfb, 0xe6));
    palette.setColor(QPalette::ToolTipText, look::text);
    palette.setColor(QPalette::Link, QColor(0x1b, 0x3f, 0x8e));
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, look::faded);
    return palette;
}

void DrawEdges(QPainter& painter, const QRectF& area, const QColor& upperLeft, const QColor& lowerRight)
{
    painter.fillRect(QRectF(area.left(), area.top(), area.width(), 1), upperLeft);
    painter.fillRect(QRectF(area.left(), area.top(), 1, area.height()), upperLeft);
    painter.fillRect(QRectF(area.left(), area.bottom() - 1, area.width(), 1), lowerRight);
    painter.fillRect(QRectF(area.right() - 1, area.top(), 1, area.height()), lowerRight);
}

} // namespace

void ApplyLook(QApplication& application)
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Windows")));
    application.setPalette(ProgramPalette());
    application.setFont(ProgramFont());
}

void DrawBevel(QPainter& painter, const QRectF& area, Bevel bevel, int depth)
{
    QRectF ring = area;
    for (int step = 0; step < depth; ++step, ring.adjust(1, 1, -1, -1)) {
        const bool outer = step == 0;
        switch (bevel) {
        case Bevel::None:
            return;
        case Bevel::Raised:
            DrawEdges(painter, ring, outer ? look::light : look::halfLight,
                      outer ? look::darkShadow : look::shadow);
            break;
        case Bevel::Sunken:
            DrawEdges(painter, ring, outer ? look::shadow : look::darkShadow, outer ? look::light : look::halfLight);
            break;
        case Bevel::Frame:
            DrawEdges(painter, ring, outer ? look::shadow : look::light, outer ? look::light : look::shadow);
            break;
        }
    }
}

void DrawCaption(QPainter& painter, const QRectF& area, const QString& caption, int alignment, bool enabled,
                 const QColor& colour)
{
    constexpr int smallest = 9; // pixels
    QFont font = painter.font();
    while (font.pixelSize() > smallest &&
           QFontMetricsF(font).boundingRect(QRectF(), Qt::TextIncludeTrailingSpaces, caption.trimmed()).width() >
               area.width())
        font.setPixelSize(font.pixelSize() - 1);
    painter.setFont(font);
    const int flags = alignment | Qt::TextDontClip;
    if (!enabled) {
        painter.setPen(look::light);
        painter.drawText(area.translated(1, 1), flags, caption);
    }
    painter.setPen(enabled ? colour : look::shadow);
    painter.drawText(area, flags, caption);
}

} // namespace torvik
