#pragma once

#include "av/media_pieces.h"
#include "ui/forms/event.h"
#include "ui/media/sound_output.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>
#include <memory>

class QTimer;

namespace torvik {

class Control;
class MediaStream;
class VideoPane;

/// A media device that is driven by commands. It plays without being waited for; with a file that is missing,
/// damaged or of another kind, or on a drive that is not there, it shows nothing and says nothing. Without an
/// audio device, or when it goes away, everything runs on in silence.
class MediaControl : public QObject {
public:
    explicit MediaControl(const QString& name);
    ~MediaControl() override;

    /// "WaveAudio" for sounds, "AVIVideo" for movies: only these have pictures.
    void SetDeviceType(const QString& type) { deviceType_ = type; }
    /// A drive path; the next "open" takes it.
    void SetFileName(const QString& path) { fileName_ = path; }
    const QString& FileName() const { return fileName_; }

    /// Kept as they are set: nothing notifies, and no command waits or shares.
    bool notify = false;
    bool wait = false;
    bool shareable = false;

    /// The control that pictures are shown on, from now on also those of a movie that is open
    /// already; null for none. Pictures fill it as far as their proportions allow.
    void SetDisplay(Control* where);

    /// In any order and letter case:
    /// "open" takes the file and stands at its beginning, "close" lets it go; "play", "stop"; "pause", and
    /// "pause" again to go on; "prev" goes to the beginning, "next" to the last picture; "back" and "step" go
    /// one picture. A command that finds nothing to act on does nothing; an unknown word is failure 380.
    void Command(const QString& word);

    enum class Mode { NotOpen, Stopped, Playing, Paused };
    /// A file that turned out to be nothing that can be played is NotOpen.
    Mode State() const { return mode_; }
    /// For the tests: true between "open" and "close", whatever the file holds.
    bool IsOpen() const { return stream_ != nullptr; }

    /// Where it stands and how long the file is, in milliseconds.
    qint64 Position() const { return position_ / 1000; }
    qint64 Length() const { return length_ / 1000; }
    /// Goes to a place in milliseconds and plays on there, if it was playing.
    void Seek(qint64 place);

    /// The mode, the position or the length has changed.
    Event<> changed;

private:
    void Open();
    void Close();
    void Play();
    void Pause();
    void Halt(Mode mode);
    void GoTo(qint64 time);
    void Step(int pictures);
    void WhenReady(std::function<void()> action);
    void Tick();
    void Advance();
    void End();
    void ShowPicture(const MediaPicture& picture);

    QString deviceType_;
    QString fileName_;
    QPointer<Control> display_;
    QPointer<VideoPane> pane_;
    std::unique_ptr<MediaStream> stream_;
    SoundFormat format_;
    SoundOutput sound_;
    QTimer* ticks_;
    Mode mode_ = Mode::NotOpen;
    bool ready_ = false;        // the file is known
    bool wantsPicture_ = false; // one picture is to be shown although nothing plays
    bool running_ = false;      // time passes
    std::function<void()> whenReady_;
    // Microseconds.
    qint64 position_ = 0;
    qint64 length_ = 0;
    qint64 frameDuration_ = 0;
    qint64 shownTime_ = 0;   // of the picture on show
    qint64 startedFrom_ = 0; // the position at `startedAt_`
    qint64 startedAt_ = 0;
};

/// Cuts off what the device plays and begins with a wave file; does not wait for its end.
void PlayWave(MediaControl& device, const QString& path);

} // namespace torvik
