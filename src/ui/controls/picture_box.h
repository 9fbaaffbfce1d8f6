#pragma once

#include "ui/forms/control.h"
#include "ui/pictures/picture.h"

class QLabel;

namespace torvik {

/// A pane without a border that takes the size of the picture that it loads. It hides what lies behind it and
/// can carry other controls, which it clips.
class PictureBox : public Control, public Container {
public:
    /// `scale` is the unit for what lies on the pane.
    PictureBox(Container& container, const QString& name, const Twips& design, Scale scale = Scale::Twips);

    /// Loads a file and takes its natural size, a pixel of the picture for a pixel. On a failure (see
    /// Picture::Load) picture and size stay.
    void Load(const QString& path);
    void Clear();
    const class Picture& Picture() const { return picture_; }
    /// The picture on show as it was decoded; no copy is made.
    QImage Pixels() const;

    QWidget& Host() override { return Widget(); }
    Scale ScaleMode() const override { return scale_; }
    Form& OwnerForm() override { return Control::OwnerForm(); }

protected:
    QString AccessibleText() const override;
    bool IsPicture() const override { return true; }

private:
    QLabel* label_;
    Scale scale_;
    class Picture picture_;
};

} // namespace torvik
