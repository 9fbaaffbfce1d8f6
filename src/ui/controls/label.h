#pragma once

#include "ui/forms/control.h"
#include "ui/look/look.h"

class QLabel;

namespace torvik {

/// A line or a few of plain text.
class Label : public Control {
public:
    Label(Container& container, const QString& name, const Twips& design, const QString& caption = {});

    QString Caption() const;
    void SetCaption(const QString& caption);
    /// Size of the letters in pixels, and whether they are bold.
    void SetCaptionFont(int pixels, bool bold, const QColor& colour = look::text);

protected:
    QString AccessibleText() const override;

private:
    QLabel* label_;
};

} // namespace torvik
