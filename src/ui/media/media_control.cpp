#include "ui/media/media_control.h"

#include "av/media_stream.h"
#include "platform/paths/drives.h"
#include "runtime/failure.h"
#include "runtime/logging.h"
#include "ui/forms/clock.h"
#include "ui/forms/control.h"
#include "ui/media/file_source.h"
#include "ui/media/video_pane.h"

#include <QTimer>

#include <algorithm>
#include <chrono>
#include <iterator>
#include <utility>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr int tickLength = 10;      // milliseconds
constexpr qint64 tooLate = 150'000; // microseconds behind the picture at which sound is left out

/// Microseconds from some beginning. A clock that is turned by hand turns movies as well.
qint64 Now()
{
    if (Clock::IsStopped())
        return Clock::Now().toMSecsSinceEpoch() * 1000;
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::microseconds>(now).count();
}

} // namespace

MediaControl::MediaControl(const QString& name) : ticks_(new QTimer(this))
{
    setObjectName(name);
    ticks_->setTimerType(Qt::PreciseTimer);
    ticks_->setInterval(tickLength);
    connect(ticks_, &QTimer::timeout, this, &MediaControl::Tick);
}

MediaControl::~MediaControl()
{
    delete pane_;
}

void MediaControl::Command(const QString& word)
{
    struct Known {
        QLatin1StringView word;
        void (*run)(MediaControl& device);
    };
    static constexpr Known commands[] = {
        {"open"_L1, [](MediaControl& device) { device.Open(); }},
        {"close"_L1, [](MediaControl& device) { device.Close(); }},
        {"play"_L1, [](MediaControl& device) { device.Play(); }},
        {"pause"_L1, [](MediaControl& device) { device.Pause(); }},
        {"stop"_L1, [](MediaControl& device) { device.Halt(Mode::Stopped); }},
        {"prev"_L1, [](MediaControl& device) { device.WhenReady([&device] { device.GoTo(0); }); }},
        {"next"_L1,
         [](MediaControl& device) { device.WhenReady([&device] { device.GoTo(device.length_); }); }},
        {"back"_L1, [](MediaControl& device) { device.WhenReady([&device] { device.Step(-1); }); }},
        {"step"_L1, [](MediaControl& device) { device.WhenReady([&device] { device.Step(1); }); }},
    };
    const auto* known = std::find_if(std::begin(commands), std::end(commands), [&word](const Known& command) {
        return word.compare(command.word, Qt::CaseInsensitive) == 0;
    });
    if (known == std::end(commands))
        Fail(failure::invalidProperty);
    known->run(*this);
}

void MediaControl::Open()
{
    Close();
    Place place; // stays empty for a drive that is not there: a device without a medium
    ResumeNext([&] { place = PlaceOf(fileName_); });
    qCDebug(logMedia, "%s opens %s", qUtf8Printable(objectName()), qUtf8Printable(fileName_));
    format_ = SoundOutput::PreferredFormat();
    stream_ = std::make_unique<MediaStream>([place] { return FileSource::Open(place); }, format_);
    mode_ = Mode::Stopped;
    ticks_->start();
    changed.Fire();
}

void MediaControl::Close()
{
    sound_.Stop();
    stream_.reset();
    ticks_->stop();
    mode_ = Mode::NotOpen;
    ready_ = running_ = wantsPicture_ = false;
    whenReady_ = nullptr;
    position_ = length_ = shownTime_ = 0;
    if (pane_ != nullptr)
        pane_->hide();
    changed.Fire();
}

/// At the end it begins again.
void MediaControl::Play()
{
    if (mode_ == Mode::NotOpen || mode_ == Mode::Playing)
        return;
    if (ready_ && position_ >= length_)
        GoTo(0);
    mode_ = Mode::Playing;
    wantsPicture_ = false;
    ticks_->start();
    changed.Fire();
}

void MediaControl::Pause()
{
    if (mode_ == Mode::Playing)
        Halt(Mode::Paused);
    else if (mode_ == Mode::Paused)
        Play();
}

/// Stands still at the place where it is.
void MediaControl::Halt(Mode mode)
{
    if (mode_ == Mode::NotOpen || mode_ == mode)
        return;
    if (mode_ == Mode::Playing && running_) {
        sound_.Stop();
        running_ = false;
        stream_->Seek(position_); // what was read ahead is sound that is partly heard already
        wantsPicture_ = true;
    }
    mode_ = mode;
    changed.Fire();
}

void MediaControl::WhenReady(std::function<void()> action)
{
    if (mode_ == Mode::NotOpen)
        return;
    Halt(Mode::Stopped);
    if (ready_)
        action();
    else
        whenReady_ = std::move(action);
}

void MediaControl::GoTo(qint64 time)
{
    position_ = std::clamp<qint64>(time, 0, length_);
    running_ = false;
    sound_.Stop();
    // The end itself shows nothing; the last picture does.
    stream_->Seek(std::min(position_, std::max<qint64>(0, length_ - frameDuration_)));
    wantsPicture_ = true;
    ticks_->start();
    changed.Fire();
}

void MediaControl::Step(int pictures)
{
    if (frameDuration_ > 0)
        GoTo(std::min(shownTime_ + pictures * frameDuration_, length_ - frameDuration_));
}

void MediaControl::Seek(qint64 place)
{
    if (mode_ == Mode::NotOpen)
        return;
    if (ready_)
        GoTo(place * 1000);
    else
        whenReady_ = [this, place] { GoTo(place * 1000); };
}

void MediaControl::Tick()
{
    if (!ready_) {
        if (stream_->Progress() == MediaStream::State::Opening)
            return;
        if (stream_->Progress() == MediaStream::State::Failed) {
            qCDebug(logMedia, "%s can play nothing of it", qUtf8Printable(objectName()));
            ticks_->stop();
            mode_ = Mode::NotOpen;
            changed.Fire();
            return;
        }
        ready_ = true;
        length_ = stream_->Info().duration;
        frameDuration_ = stream_->Info().frameDuration;
        if (whenReady_)
            std::exchange(whenReady_, nullptr)();
        changed.Fire();
    }
    if (mode_ == Mode::Playing)
        Advance();
    else if (wantsPicture_) {
        const auto picture = stream_->TakeNextPicture();
        if (picture)
            ShowPicture(*picture);
        if (picture || stream_->AtEnd() || !stream_->Info().hasPictures)
            wantsPicture_ = false;
    } else
        ticks_->stop();
}

void MediaControl::Advance()
{
    if (!running_) {
        const bool waits = stream_->Info().hasPictures && !stream_->HasPicture() && !stream_->AtEnd();
        if (waits)
            return;
        running_ = true;
        startedAt_ = Now();
        startedFrom_ = position_;
        sound_.Start(format_);
    }
    position_ = startedFrom_ + Now() - startedAt_;
    sound_.Write(stream_->TakeSound(sound_.Room(), position_ - tooLate));
    if (const auto picture = stream_->TakePicture(position_))
        ShowPicture(*picture);
    if (stream_->AtEnd() && position_ >= stream_->EndOfRead())
        End();
    changed.Fire();
}

/// The device plays what it still holds by itself.
void MediaControl::End()
{
    ticks_->stop();
    running_ = false;
    mode_ = Mode::Stopped;
    length_ = stream_->EndOfRead(); // a file that ends early is no longer than what came
    position_ = length_;
}

void MediaControl::ShowPicture(const MediaPicture& picture)
{
    shownTime_ = picture.time;
    if (display_ == nullptr || deviceType_.compare(u"AVIVideo"_s, Qt::CaseInsensitive) != 0)
        return;
    if (pane_ == nullptr)
        pane_ = new VideoPane(display_->Widget());
    pane_->ShowPicture(picture.image);
}

void MediaControl::SetDisplay(Control* where)
{
    if (where == display_)
        return;
    const QImage shown = pane_ != nullptr && !pane_->isHidden() ? pane_->Picture() : QImage();
    delete pane_;
    display_ = where;
    if (where == nullptr || shown.isNull())
        return;
    pane_ = new VideoPane(where->Widget());
    pane_->ShowPicture(shown);
}

void PlayWave(MediaControl& device, const QString& path)
{
    device.Command(u"close"_s);
    device.SetDeviceType(u"WaveAudio"_s);
    device.SetFileName(path);
    device.Command(u"open"_s);
    device.Command(u"play"_s);
}

} // namespace torvik
