#pragma once

#include "ui/forms/control.h"
#include "ui/look/look.h"

namespace torvik {

class PanelWidget;

/// A 3-D panel: a caption on a bevelled face, a container for other controls (measured in twips), and, where
/// it is told so, a gauge that fills from the left.
class Panel : public Control, public Container {
public:
    Panel(Container& container, const QString& name, const Twips& design, const QString& caption = {},
          Bevel bevel = Bevel::Raised);

    QString Caption() const;
    void SetCaption(const QString& caption);
    /// The number as decimal text.
    void SetCaption(int number);

    /// How much of a gauge is filled, 0 to 100. Setting it makes the panel a gauge; a value outside is
    /// failure 380.
    int FloodPercent() const { return floodPercent_; }
    void SetFloodPercent(double percent);

    /// Grows to the right with a caption that is wider than the panel's design, and shrinks back with it.
    void SetAutoSize(bool autoSize);

    void SetAlignment(Qt::Alignment alignment);
    /// Size of the caption's letters in pixels, and whether they are bold.
    void SetCaptionFont(int pixels, bool bold, const QColor& colour = look::text);

    QWidget& Host() override { return Widget(); }
    Scale ScaleMode() const override { return Scale::Twips; }
    Form& OwnerForm() override { return Control::OwnerForm(); }

protected:
    QString AccessibleText() const override;

private:
    void FitCaption();

    PanelWidget* panel_;
    double designWidth_;
    bool autoSize_ = false;
    int floodPercent_ = 0;
    bool gauge_ = false;
};

} // namespace torvik
