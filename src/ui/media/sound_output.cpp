#include "ui/media/sound_output.h"

#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QIODevice>
#include <QMediaDevices>

#include <algorithm>

namespace torvik {

namespace {

QAudioFormat ToQt(const SoundFormat& format)
{
    QAudioFormat wanted;
    wanted.setSampleRate(format.rate);
    wanted.setChannelCount(format.channels);
    wanted.setSampleFormat(format.kind == SoundFormat::Sample::Int16 ? QAudioFormat::Int16
                                                                     : QAudioFormat::Float);
    return wanted;
}

} // namespace

SoundOutput::SoundOutput() = default;

SoundOutput::~SoundOutput()
{
    Stop();
}

SoundFormat SoundOutput::PreferredFormat()
{
    SoundFormat format;
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (device.isNull() || device.isFormatSupported(ToQt(format)))
        return format;
    const QAudioFormat own = device.preferredFormat();
    if (own.sampleRate() > 0)
        format.rate = own.sampleRate();
    format.channels = std::clamp(own.channelCount(), 1, 2);
    if (!device.isFormatSupported(ToQt(format)))
        format.kind = SoundFormat::Sample::Float;
    return format;
}

void SoundOutput::Start(const SoundFormat& format)
{
    Stop();
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (device.isNull() || !device.isFormatSupported(ToQt(format)))
        return;
    sink_ = std::make_unique<QAudioSink>(device, ToQt(format));
    sink_->setBufferSize(format.BytesPerSecond() / 4); // what a busy moment of the window may take
    device_ = sink_->start();
    if (device_ == nullptr || sink_->error() != QAudio::NoError)
        Stop();
}

void SoundOutput::Stop()
{
    device_ = nullptr;
    if (sink_ != nullptr)
        sink_->reset(); // what is still on its way is not waited for
    sink_.reset();
}

qsizetype SoundOutput::Room() const
{
    if (device_ == nullptr || sink_->state() == QAudio::StoppedState)
        return 0; // a device that went away stands still
    return std::max<qsizetype>(0, sink_->bytesFree());
}

void SoundOutput::Write(const QByteArray& bytes)
{
    if (device_ != nullptr && !bytes.isEmpty())
        device_->write(bytes);
}

} // namespace torvik
