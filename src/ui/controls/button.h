#pragma once

#include "ui/forms/control.h"

namespace torvik {

class ButtonWidget;

/// A raised 3-D push button. It takes the focus, answers the space bar and Enter, and its own Click.
class Button : public Control {
public:
    Button(Container& container, const QString& name, const Twips& design, const QString& caption = {});

    QString Caption() const;
    void SetCaption(const QString& caption);
    /// Shows a picture of the program's own artwork (a resource path) in place of a caption.
    void SetPicture(const QString& resource, const QString& spokenAs);

protected:
    QString AccessibleText() const override;
    bool ClicksByMouse() const override { return false; }

private:
    ButtonWidget* button_;
    QString spokenAs_;
};

} // namespace torvik
