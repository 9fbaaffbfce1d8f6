#include "ui/look/look_style.h"

#include "ui/look/look.h"
#include "ui/look/message_icons.h"

#include <QDialogButtonBox>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

bool Is(const QStyleOption* option, QStyle::StateFlag flag)
{
    return option->state.testFlag(flag);
}

void DrawPushButton(QPainter& painter, const QStyleOption* option)
{
    const bool down = Is(option, QStyle::State_Sunken);
    const double thin = ThinLine(painter);
    QRectF area = option->rect;
    painter.fillRect(area, look::face);
    if (Is(option, QStyle::State_HasFocus)) {
        DrawOutline(painter, area, look::text);
        area.adjust(thin, thin, -thin, -thin);
    }
    DrawBevel(painter, area, down ? Bevel::Sunken : Bevel::Raised, 2);
}

void DrawCheckBox(QPainter& painter, const QStyleOption* option)
{
    const QRectF box = option->rect;
    const bool enabled = Is(option, QStyle::State_Enabled) && !Is(option, QStyle::State_Sunken);
    painter.fillRect(box, enabled ? look::paper : look::face);
    DrawBevel(painter, box, Bevel::Sunken, 2);
    if (!Is(option, QStyle::State_On))
        return;
    QPainterPath tick;
    tick.moveTo(box.left() + box.width() * 0.26, box.top() + box.height() * 0.50);
    tick.lineTo(box.left() + box.width() * 0.43, box.top() + box.height() * 0.67);
    tick.lineTo(box.left() + box.width() * 0.74, box.top() + box.height() * 0.32);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Is(option, QStyle::State_Enabled) ? look::text : look::faded, 2, Qt::SolidLine,
                        Qt::FlatCap, Qt::MiterJoin));
    painter.drawPath(tick);
    painter.restore();
}

void DrawOption(QPainter& painter, const QStyleOption* option)
{
    constexpr int quarter = 90 * 16; // Qt's arcs count sixteenths of a degree
    const QRectF outer = QRectF(option->rect).adjusted(1, 1, -1, -1);
    const QRectF inner = outer.adjusted(1, 1, -1, -1);
    const bool enabled = Is(option, QStyle::State_Enabled);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(enabled && !Is(option, QStyle::State_Sunken) ? look::paper : look::face);
    painter.drawEllipse(outer);
    painter.setBrush(Qt::NoBrush);
    const auto ring = [&](const QRectF& area, const QColor& upperLeft, const QColor& lowerRight) {
        painter.setPen(QPen(upperLeft, 1));
        painter.drawArc(area, quarter / 2, 2 * quarter);
        painter.setPen(QPen(lowerRight, 1));
        painter.drawArc(area, quarter / 2 + 2 * quarter, 2 * quarter);
    };
    ring(outer, look::shadow, look::light);
    ring(inner, look::darkShadow, look::halfLight);
    if (Is(option, QStyle::State_On)) {
        const double dot = outer.width() / 5;
        painter.setPen(Qt::NoPen);
        painter.setBrush(enabled ? look::text : look::faded);
        painter.drawEllipse(outer.center(), dot, dot);
    }
    painter.restore();
}

void DrawMenuFrame(QPainter& painter, const QRectF& area)
{
    painter.fillRect(area, look::face);
    DrawBevel(painter, area, Bevel::Raised, 2);
}

void DrawScrollArrow(QPainter& painter, const QStyleOption* option, bool adds)
{
    const bool down = Is(option, QStyle::State_Sunken);
    const bool flat = Is(option, QStyle::State_Horizontal);
    QRectF area = option->rect;
    painter.fillRect(area, look::face);
    DrawBevel(painter, area, down ? Bevel::Sunken : Bevel::Raised, 2);
    if (down)
        area.translate(1, 1);
    const int degrees = flat ? (adds ? 90 : 270) : (adds ? 180 : 0);
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    const bool somewhere = slider == nullptr || slider->minimum < slider->maximum;
    DrawArrow(painter, area.adjusted(2, 2, -2, -2), degrees, Is(option, QStyle::State_Enabled) && somewhere);
}

void DrawScrollThumb(QPainter& painter, const QStyleOption* option)
{
    const QRectF area = option->rect;
    painter.fillRect(area, look::face);
    DrawBevel(painter, area, Bevel::Raised, 2);
    if (Is(option, QStyle::State_HasFocus))
        DrawFocus(painter, area.adjusted(3, 3, -3, -3));
}

/// In the colour that the caller has put into the option: the entry of a menu that is chosen has light
/// letters.
void DrawIndicator(QPainter& painter, const QStyleOption* option, int degrees)
{
    DrawArrow(painter, option->rect, degrees, Is(option, QStyle::State_Enabled),
              option->palette.color(QPalette::ButtonText));
}

void DrawMenuBarItem(QPainter& painter, const QStyleOptionMenuItem& item)
{
    const bool open = Is(&item, QStyle::State_Selected) && Is(&item, QStyle::State_Enabled);
    painter.fillRect(item.rect, open ? look::accent : look::face);
    DrawCaption(painter, item.rect, item.text, Qt::AlignCenter | Qt::TextSingleLine | Qt::TextShowMnemonic,
                Is(&item, QStyle::State_Enabled), open ? look::accentText : look::text);
}

} // namespace

LookStyle::LookStyle() : QProxyStyle(u"Windows"_s) {}

void LookStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const
{
    switch (element) {
    case PE_Frame:
    case PE_FrameLineEdit:
        DrawBevel(*painter, option->rect, Is(option, State_Raised) ? Bevel::Raised : Bevel::Sunken, 2);
        break;
    case PE_FrameGroupBox:
        DrawBevel(*painter, option->rect, Bevel::Frame, 2);
        break;
    case PE_FrameFocusRect:
        DrawFocus(*painter, option->rect, Is(option, State_Selected) ? look::accentText : look::text);
        break;
    case PE_FrameDefaultButton:
        break; // the button draws it as its focus
    case PE_PanelButtonCommand:
        DrawPushButton(*painter, option);
        break;
    case PE_IndicatorCheckBox:
        DrawCheckBox(*painter, option);
        break;
    case PE_IndicatorRadioButton:
        DrawOption(*painter, option);
        break;
    case PE_PanelMenu:
        DrawMenuFrame(*painter, option->rect);
        break;
    case PE_FrameMenu:
        DrawBevel(*painter, option->rect, Bevel::Raised, 2);
        break;
    case PE_PanelTipLabel:
        painter->fillRect(option->rect, look::tip);
        DrawOutline(*painter, option->rect, look::text);
        break;
    case PE_IndicatorArrowUp:
        DrawIndicator(*painter, option, 0);
        break;
    case PE_IndicatorArrowRight:
        DrawIndicator(*painter, option, 90);
        break;
    case PE_IndicatorArrowDown:
        DrawIndicator(*painter, option, 180);
        break;
    case PE_IndicatorArrowLeft:
        DrawIndicator(*painter, option, 270);
        break;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        break;
    }
}

void LookStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const
{
    switch (element) {
    case CE_ScrollBarAddLine:
        DrawScrollArrow(*painter, option, true);
        break;
    case CE_ScrollBarSubLine:
        DrawScrollArrow(*painter, option, false);
        break;
    case CE_ScrollBarSlider:
        DrawScrollThumb(*painter, option);
        break;
    case CE_ScrollBarAddPage:
    case CE_ScrollBarSubPage:
        painter->fillRect(option->rect, Is(option, State_Sunken) ? look::shadow : look::halfLight);
        break;
    case CE_MenuBarItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option))
            DrawMenuBarItem(*painter, *item);
        break;
    case CE_MenuBarEmptyArea:
        painter->fillRect(option->rect, look::face);
        break;
    default:
        QProxyStyle::drawControl(element, option, painter, widget);
        break;
    }
}

int LookStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_MenuBarHMargin:
    case PM_MenuBarVMargin:
    case PM_MenuBarPanelWidth:
    case PM_MenuBarItemSpacing:
        return 0; // the bar is as high as one line of its entries
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return 13;
    case PM_ScrollBarExtent:
        return 16;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int LookStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* returned) const
{
    switch (hint) {
    case SH_DialogButtonLayout:
        return QDialogButtonBox::WinLayout; // the first button of a box comes first on every desktop
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
    case SH_MessageBox_CenterButtons:
    case SH_UnderlineShortcut:
        return 1;
    case SH_ToolTipLabel_Opacity:
        return 255;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }
}

/// Qt's own pictures of message boxes are small bitmaps, which a scale factor makes coarse.
QIcon LookStyle::standardIcon(StandardPixmap kind, const QStyleOption* option, const QWidget* widget) const
{
    const QIcon icon = MessageIcon(kind);
    return icon.isNull() ? QProxyStyle::standardIcon(kind, option, widget) : icon;
}

} // namespace torvik
