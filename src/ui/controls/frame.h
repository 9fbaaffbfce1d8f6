#pragma once

#include "ui/forms/control.h"

namespace torvik {

/// A plain area that groups controls, measured in twips; with a caption it draws an etched line around
/// itself.
class Frame : public Control, public Container {
public:
    Frame(Container& container, const QString& name, const Twips& design, const QString& caption = {});

    QString Caption() const;

    QWidget& Host() override { return Widget(); }
    Scale ScaleMode() const override { return Scale::Twips; }
    Form& OwnerForm() override { return Control::OwnerForm(); }

protected:
    QString AccessibleText() const override;
};

} // namespace torvik
