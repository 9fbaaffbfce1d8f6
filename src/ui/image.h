#pragma once

#include "ui/control.h"
#include "ui/picture.h"

class QLabel;

namespace torvik {

/// Shows a picture inside its own rectangle, as large as fits, proportions kept, centred, and sharp at any
/// scale factor of the screen.
class Image : public Control {
public:
    Image(Container& container, const QString& name, const Twips& design);

    /// Shows a file. On a failure (see Picture::Load) the earlier picture stays.
    void Load(const QString& path);
    void Show(const Picture& picture);
    using Control::Show;
    void Clear();
    const class Picture& Picture() const { return picture_; }

protected:
    QString AccessibleText() const override;
    void SizeChanged() override;

private:
    void Fit(const class Picture& picture);

    QLabel* label_;
    class Picture picture_;
};

} // namespace torvik
