#pragma once

#include "ui/control.h"
#include "ui/picture.h"

class QLabel;

namespace torvik {

/// A pane that takes the size of the picture that it loads and can carry other controls, measured in twips.
class PictureBox : public Control, public Container {
public:
    PictureBox(Container& container, const QString& name, const Twips& design);

    /// Loads a file and takes its natural size, a pixel of the picture for a pixel. On a failure (see
    /// Picture::Load) picture and size stay.
    void Load(const QString& path);
    void Clear();
    const class Picture& Picture() const { return picture_; }

    QWidget& Host() override { return Widget(); }
    Scale ScaleMode() const override { return Scale::Twips; }
    Form& OwnerForm() override { return Control::OwnerForm(); }

protected:
    QString AccessibleText() const override;

private:
    QLabel* label_;
    class Picture picture_;
};

} // namespace torvik
