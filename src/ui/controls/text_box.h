#pragma once

#include "ui/forms/control.h"

class QLineEdit;

namespace torvik {

/// A box with one line of text that the program fills; the user can select and copy it.
class TextBox : public Control {
public:
    TextBox(Container& container, const QString& name, const Twips& design, const QString& text = {});

    QString Text() const;
    void SetText(const QString& text);
    /// What the user has selected of it.
    QString SelText() const;

protected:
    QString AccessibleText() const override;

private:
    QLineEdit* edit_;
};

} // namespace torvik
