#include "ui/media/mm_control.h"

#include "ui/media/media_track.h"

#include <QWidget>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr int trackHeight = 22; // pixels

struct ButtonCommand {
    MediaButton button;
    const char* word;
};

constexpr ButtonCommand commands[] = {
    {MediaButton::Prev, "prev"},   {MediaButton::Next, "next"}, {MediaButton::Play, "play"},
    {MediaButton::Pause, "pause"}, {MediaButton::Back, "back"}, {MediaButton::Step, "step"},
    {MediaButton::Stop, "stop"},
};

} // namespace

MMControl::MMControl(Container& container, const QString& name, const Twips& design)
    : MediaBar(container, name, design), device(name), track_(new MediaTrack(&Widget()))
{
    SetButtonVisible(MediaButton::Record, false);
    SetButtonVisible(MediaButton::Eject, false);
    for (const ButtonCommand& command : commands) {
        const QString word = QString::fromLatin1(command.word);
        ButtonClick(command.button) = [this, word] { device.Command(word); };
    }
    track_->setObjectName(name + u"(Position)"_s);
    track_->setAccessibleName(u"Position"_s);
    track_->sought = [this](int place) { device.Seek(place); };
    track_->show();
    device.changed = [this] { FollowDevice(); };
    SetFoot(trackHeight);
    MMControl::SizeChanged();
    FollowDevice();
}

void MMControl::SizeChanged()
{
    MediaBar::SizeChanged();
    const QSize size = Widget().size();
    track_->setGeometry(0, size.height() - trackHeight, size.width(), trackHeight);
}

void MMControl::FollowDevice()
{
    using Mode = MediaControl::Mode;
    const Mode mode = device.State();
    const bool open = mode != Mode::NotOpen;
    const bool playing = mode == Mode::Playing;
    const bool paused = mode == Mode::Paused;
    // What comes next is enabled before the button with the focus goes off, so that the focus finds it.
    SetButtonEnabled(MediaButton::Prev, open);
    SetButtonEnabled(MediaButton::Next, open);
    SetButtonEnabled(MediaButton::Pause, playing || paused);
    SetButtonEnabled(MediaButton::Stop, playing || paused);
    SetButtonEnabled(MediaButton::Play, open && !playing);
    SetButtonEnabled(MediaButton::Back, open && !playing);
    SetButtonEnabled(MediaButton::Step, open && !playing);
    track_->setEnabled(open);
    track_->ShowPlace(static_cast<int>(device.Position()), static_cast<int>(device.Length()));
}

} // namespace torvik
