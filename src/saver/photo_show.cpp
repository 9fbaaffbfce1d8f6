#include "saver/photo_show.h"

#include "runtime/failure.h"
#include "saver/fade.h"
#include "saver/frames.h"

#include <algorithm>
#include <utility>

namespace torvik {

namespace {

// All in milliseconds.
constexpr int longestFade = 800;
constexpr int frameTime = 33;
constexpr int cardTime = 10'000; // the card stays calm even where photos would change each second

/// Of photos in a row that cannot be shown; more wait for the next turn, so that keys are answered meanwhile.
constexpr int mostTries = 16;

} // namespace

Show::Show(const SaverSettings& settings, double start)
    : round_(settings.folder, start), interval_(settings.interval)
{}

void Show::SetStages(std::vector<Stage*> stages)
{
    stages_ = std::move(stages);
    for (Stage* stage : stages_)
        StageResized(*stage);
}

int Show::Advance(qint64 now)
{
    if (!begun_ || now >= due_) {
        TakeNext();
        begun_ = true;
        fadeBegin_ = now;
        due_ = now + (photo_.IsEmpty() ? std::max(interval_, cardTime) : interval_);
    }
    const int fade = std::min(longestFade, interval_ / 2);
    const double progress = std::min(1.0, static_cast<double>(now - fadeBegin_) / fade);
    for (Stage* stage : stages_) {
        stage->Shown().SetProgress(progress);
        stage->Refresh();
    }
    return progress < 1 ? frameTime : static_cast<int>(due_ - now);
}

void Show::StageResized(Stage& stage)
{
    if (!begun_ || stage.Shown().Frame().size() == stage.Pixels())
        return;
    // A photo that was damaged since it was first shown keeps its frame of another size.
    ResumeNext([&] { stage.Shown().Replace(FrameFor(stage)); });
    stage.Refresh();
}

void Show::TakeNext()
{
    if (!TakeNextPhoto())
        PresentCard();
}

/// Damaged photos are passed over.
bool Show::TakeNextPhoto()
{
    for (int tries = 0; tries < mostTries; ++tries) {
        const QString path = round_.Next();
        if (path.isEmpty())
            return false;
        bool isShown = false;
        ResumeNext([&] { isShown = Present(Picture::Load(path)); });
        if (isShown)
            return true;
    }
    return false;
}

bool Show::Present(const Picture& photo)
{
    std::vector<QImage> frames;
    frames.reserve(stages_.size());
    for (const Stage* stage : stages_)
        frames.push_back(PhotoFrame(photo, stage->Pixels()));
    for (std::size_t i = 0; i < stages_.size(); ++i)
        stages_[i]->Shown().To(frames[i]);
    photo_ = photo;
    return true;
}

void Show::PresentCard()
{
    photo_ = Picture();
    ++cardTurn_;
    for (Stage* stage : stages_)
        stage->Shown().To(FrameFor(*stage));
}

QImage Show::FrameFor(const Stage& stage) const
{
    return photo_.IsEmpty() ? CardFrame(stage.Pixels(), cardTurn_) : PhotoFrame(photo_, stage.Pixels());
}

} // namespace torvik
