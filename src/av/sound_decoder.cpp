#include "av/sound_decoder.h"

#include <utility>

namespace torvik {

namespace {

AVSampleFormat FormatOf(const SoundFormat& sound)
{
    return sound.kind == SoundFormat::Sample::Int16 ? AV_SAMPLE_FMT_S16 : AV_SAMPLE_FMT_FLT;
}

} // namespace

std::unique_ptr<SoundDecoder> SoundDecoder::Open(const AVStream& stream, const SoundFormat& wanted,
                                                 qint64 startTime)
{
    auto codec = libav::OpenDecoder(stream, 1);
    if (codec == nullptr)
        return nullptr;
    return std::unique_ptr<SoundDecoder>(new SoundDecoder(std::move(codec), stream, wanted, startTime));
}

SoundDecoder::SoundDecoder(libav::Owned<AVCodecContext> codec, const AVStream& stream,
                           const SoundFormat& wanted, qint64 startTime)
    : codec_(std::move(codec)), frame_(libav::Call().avFrameAlloc()), wanted_(wanted),
      timeBase_(stream.time_base), startTime_(startTime)
{}

void SoundDecoder::Send(const AVPacket* packet)
{
    libav::Call().avcodecSendPacket(codec_.get(), packet);
}

void SoundDecoder::Flush()
{
    libav::Call().avcodecFlushBuffers(codec_.get());
    converter_.reset(); // what it holds belongs to the place before
}

std::optional<MediaSamples> SoundDecoder::Receive()
{
    while (libav::Call().avcodecReceiveFrame(codec_.get(), frame_.get()) >= 0) {
        MediaSamples samples;
        samples.time = next_;
        if (frame_->best_effort_timestamp != AV_NOPTS_VALUE)
            samples.time =
                libav::Call().avRescaleQ(frame_->best_effort_timestamp, timeBase_, libav::microsecond) -
                startTime_;
        samples.bytes = Convert(*frame_);
        next_ = samples.time + samples.bytes.size() * 1'000'000 / wanted_.BytesPerSecond();
        libav::Call().avFrameUnref(frame_.get());
        if (!samples.bytes.isEmpty())
            return samples;
    }
    return std::nullopt;
}

bool SoundDecoder::PrepareFor(const AVFrame& frame)
{
    const int channels = frame.ch_layout.nb_channels;
    if (channels <= 0 || frame.sample_rate <= 0)
        return false;
    if (converter_ != nullptr && frame.sample_rate == rate_ && channels == channels_ &&
        frame.format == format_)
        return true;
    AVChannelLayout from;
    AVChannelLayout to;
    libav::Call().avChannelLayoutDefault(&from, channels);
    libav::Call().avChannelLayoutDefault(&to, wanted_.channels);
    SwrContext* converter = nullptr;
    const int made = libav::Call().swrAllocSetOpts2(&converter, &to, FormatOf(wanted_), wanted_.rate, &from,
                                                    static_cast<AVSampleFormat>(frame.format),
                                                    frame.sample_rate, 0, nullptr);
    libav::Call().avChannelLayoutUninit(&from);
    libav::Call().avChannelLayoutUninit(&to);
    converter_.reset(converter);
    if (made < 0 || libav::Call().swrInit(converter) < 0) {
        converter_.reset();
        return false;
    }
    rate_ = frame.sample_rate;
    channels_ = channels;
    format_ = frame.format;
    return true;
}

QByteArray SoundDecoder::Convert(const AVFrame& frame)
{
    if (!PrepareFor(frame))
        return {};
    const int room = libav::Call().swrGetOutSamples(converter_.get(), frame.nb_samples);
    if (room <= 0)
        return {};
    QByteArray bytes(static_cast<qsizetype>(room) * wanted_.BytesPerFrame(), Qt::Uninitialized);
    auto* target = reinterpret_cast<std::uint8_t*>(bytes.data());
    const int made =
        libav::Call().swrConvert(converter_.get(), &target, room,
                                 const_cast<const std::uint8_t**>(frame.extended_data), frame.nb_samples);
    bytes.truncate(static_cast<qsizetype>(std::max(0, made)) * wanted_.BytesPerFrame());
    return bytes;
}

} // namespace torvik
