#pragma once

#include "ui/forms/control.h"
#include "ui/pictures/picture.h"

#include <QImage>
#include <QSize>

class QLabel;

namespace torvik {

/// Shows a picture inside its own rectangle, sharp at any scale factor of the screen: as large as fits with
/// its proportions kept, centred, or drawn out to the whole rectangle.
class Image : public Control {
public:
    enum class Fit { Proportions, Stretch };

    Image(Container& container, const QString& name, const Twips& design, Fit fit = Fit::Proportions);

    /// Shows a file, or nothing for an empty path. On a failure (see Picture::Load) the earlier picture
    /// stays.
    void Load(const QString& path);
    /// Has files read ahead that will probably be loaded next, the first first
    /// (ui/pictures/pictures_ahead.h); what is on show stays ready where it was read ahead. For images that
    /// keep proportions.
    void ReadAhead(const QStringList& paths);
    /// Whether Load would show a file at once.
    bool HasReadAhead(const QString& path) const;
    void Show(const Picture& picture);
    /// Shows a picture of which the whole data is known to be sound: it is drawn when it is first seen, and
    /// not at all while something covers it. Where somebody holds its `pixels` in natural size anyway, it is
    /// drawn from these and not decoded again. Never fails.
    void ShowWhenSeen(const Picture& picture, const QImage& pixels = {});
    using Control::Show;
    void Clear();
    const class Picture& Picture() const { return picture_; }

    /// Images and labels lie in a layer of their own below all other controls: brings the image to the front
    /// of that layer.
    void ZOrder() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    QString AccessibleText() const override;
    void SizeChanged() override;
    bool IsPicture() const override { return true; }

private:
    QSize Area() const;
    QImage DrawnFor(const QSize& area, const class Picture& picture) const;
    QImage DrawnFor(const QSize& area, const QImage& pixels) const;
    void Put(const QImage& drawn);
    void Take(const class Picture& picture);

    QLabel* label_;
    Fit fit_;
    class Picture picture_;
    QImage pixels_;  // of the whole picture, where somebody holds them anyway
    QString path_;   // of the file on show, where it is one of the disc
    QSize aheadFor_; // the area for which files were read ahead; empty for none
    QSize drawnFor_; // the area for which the label's picture was drawn; empty for none
};

} // namespace torvik
