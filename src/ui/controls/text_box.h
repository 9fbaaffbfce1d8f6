#pragma once

#include "ui/forms/control.h"

class QLineEdit;

namespace torvik {

/// A box with one line of text. It is locked until told otherwise: the program fills it, and the user can
/// select and copy.
class TextBox : public Control {
public:
    TextBox(Container& container, const QString& name, const Twips& design, const QString& text = {});

    QString Text() const;
    void SetText(const QString& text);
    /// What the user has selected of it.
    QString SelText() const;
    void SelectAll();

    /// Whether the user can write in it.
    void SetLocked(bool locked);
    /// What is to be written in the box: shown while it is empty, and what a screen reader calls it.
    void SetHint(const QString& hint);

    Event<> Change; ///< the text became another one, by the user or the program

protected:
    QString AccessibleText() const override;

private:
    QLineEdit* edit_;
};

} // namespace torvik
