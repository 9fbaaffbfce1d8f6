#pragma once

#include "saver/photo_round.h"
#include "saver/saver_settings.h"
#include "ui/pictures/picture.h"

#include <QSize>

#include <vector>

namespace torvik {

class Fade;

/// What the show is seen on: a window.
class Stage {
public:
    virtual ~Stage() = default;
    /// Its size in the screen's own pixels.
    virtual QSize Pixels() const = 0;
    /// What it shows; drawn after each change by Refresh.
    virtual Fade& Shown() = 0;
    virtual void Refresh() = 0;
};

/// The show: photo after photo, or the title card where there is none. All stages show the same. Time is
/// given to it, in milliseconds that never go back.
class Show {
public:
    /// `start` as in PhotoRound.
    explicit Show(const SaverSettings& settings, double start = 0);

    /// From now on the show is seen on these; they show at once what is on.
    void SetStages(std::vector<Stage*> stages);
    /// Brings all stages to what they show at this time, and says in how many milliseconds it wants to be
    /// asked again.
    int Advance(qint64 now);
    /// A stage has changed its size.
    void StageResized(Stage& stage);

private:
    void TakeNext();
    bool TakeNextPhoto();
    bool Present(const Picture& photo);
    void PresentCard();
    QImage FrameFor(const Stage& stage) const;

    PhotoRound round_;
    int interval_; ///< milliseconds
    std::vector<Stage*> stages_;
    Picture photo_; ///< none while the title card is on
    int cardTurn_ = -1;
    bool begun_ = false;
    qint64 due_ = 0; ///< when the next photo comes
    qint64 fadeBegin_ = 0;
};

} // namespace torvik
