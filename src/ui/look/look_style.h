#pragma once

#include <QProxyStyle>

namespace torvik {

/// Draws Qt's own widgets (text boxes, lists, scroll bars, choices, menus, boxes) with the
/// program's bevels and pictures, so that they stand beside its 3-D buttons and panels as one family.
class LookStyle : public QProxyStyle {
public:
    LookStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
    QIcon standardIcon(StandardPixmap kind, const QStyleOption* option, const QWidget* widget) const override;
};

} // namespace torvik
