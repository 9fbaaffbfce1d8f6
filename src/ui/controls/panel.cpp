#include "ui/controls/panel.h"

#include "runtime/failure.h"
#include "ui/look/panel_widget.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace torvik {

Panel::Panel(Container& container, const QString& name, const Twips& design, const QString& caption,
             Bevel bevel)
    : Control(container, name, new PanelWidget(bevel), design), panel_(static_cast<PanelWidget*>(&Widget())),
      designWidth_(design.width)
{
    SetCaption(caption);
}

QString Panel::Caption() const
{
    return panel_->text();
}

void Panel::SetCaption(const QString& caption)
{
    if (caption == Caption())
        return; // a clock says the same a hundred times a second
    panel_->setText(caption);
    FitCaption();
    UpdateAccessibleText();
}

void Panel::SetCaption(int number)
{
    SetCaption(QString::number(number));
}

void Panel::SetFloodPercent(double percent)
{
    const double whole = std::nearbyint(percent);
    if (!(whole >= 0 && whole <= 100))
        Fail(failure::invalidProperty);
    gauge_ = true;
    floodPercent_ = static_cast<int>(whole);
    panel_->SetFlood(floodPercent_);
    UpdateAccessibleText();
}

void Panel::SetAutoSize(bool autoSize)
{
    autoSize_ = autoSize;
    FitCaption();
}

void Panel::FitCaption()
{
    if (!autoSize_)
        return;
    constexpr int margins = 14; // pixels, the bevels among them
    const double wanted = panel_->fontMetrics().horizontalAdvance(Caption()) + margins;
    TakePixelSize(std::max(designWidth_ / twipsPerPixel, wanted), panel_->height());
}

void Panel::SetAlignment(Qt::Alignment alignment)
{
    panel_->setAlignment(alignment);
}

void Panel::SetCaptionFont(int pixels, bool bold, const QColor& colour)
{
    QFont font = panel_->font();
    font.setPixelSize(pixels);
    font.setBold(bold);
    panel_->setFont(font);
    panel_->SetCaptionColour(colour);
}

QString Panel::AccessibleText() const
{
    if (gauge_)
        return u"%1%"_s.arg(floodPercent_);
    return Caption().isEmpty() ? Control::AccessibleText() : Caption();
}

} // namespace torvik
