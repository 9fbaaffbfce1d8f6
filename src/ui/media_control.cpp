#include "ui/media_control.h"

#include "platform/drives.h"
#include "platform/failure.h"

#include <QAudioDevice>
#include <QAudioOutput>
#include <QMediaDevices>
#include <QMediaPlayer>
#include <QUrl>

namespace torvik {

MediaControl::MediaControl(const QString& name)
{
    setObjectName(name);
}

MediaControl::~MediaControl() = default;

void MediaControl::Command(const QString& word)
{
    const QString command = word.toLower();
    if (command == QStringLiteral("open"))
        Open();
    else if (command == QStringLiteral("play"))
        Play();
    else if (command == QStringLiteral("close"))
        Close();
    else
        Fail(failure::invalidProperty);
}

void MediaControl::Open()
{
    Close();
    QString hostPath;
    if (ResumeNext([&] { hostPath = HostPath(fileName_); }) != 0)
        hostPath.clear(); // a drive that is not there is a device without a medium
    player_ = std::make_unique<QMediaPlayer>();
    connect(player_.get(), &QMediaPlayer::errorOccurred, this, [player = player_.get()] { player->stop(); });
    player_->setSource(hostPath.isEmpty() ? QUrl() : QUrl::fromLocalFile(hostPath));
}

/// Without a device a sound would be "playing" for ever, so it is not begun.
void MediaControl::Play()
{
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (player_ == nullptr || device.isNull())
        return;
    if (output_ == nullptr) {
        output_ = std::make_unique<QAudioOutput>(device);
        player_->setAudioOutput(output_.get());
    }
    player_->play();
}

void MediaControl::Close()
{
    player_.reset();
    output_.reset();
}

} // namespace torvik
