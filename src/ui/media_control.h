#pragma once

#include <QObject>
#include <QString>

#include <memory>

class QAudioOutput;
class QMediaPlayer;

namespace torvik {

/// A media device that is driven by commands. It plays without being waited for; without an audio device, or
/// with a file that is missing, damaged or of another kind, or on a drive that is not there, it stays silent.
class MediaControl : public QObject {
public:
    explicit MediaControl(const QString& name);
    ~MediaControl() override;

    /// "WaveAudio" for sounds.
    void SetDeviceType(const QString& type) { deviceType_ = type; }
    /// A drive path; the next "open" takes it.
    void SetFileName(const QString& path) { fileName_ = path; }
    const QString& FileName() const { return fileName_; }

    /// "open", "play", "close", in any order and letter case. A command that finds nothing to act on does
    /// nothing; an unknown word is failure 380.
    void Command(const QString& word);

    /// True between "open" and "close".
    bool IsOpen() const { return player_ != nullptr; }

private:
    void Open();
    void Play();
    void Close();

    QString deviceType_;
    QString fileName_;
    std::unique_ptr<QAudioOutput> output_;
    std::unique_ptr<QMediaPlayer> player_;
};

} // namespace torvik
