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
    : codec_(std::move(codec)), frame_(av_frame_alloc()), wanted_(wanted), timeBase_(stream.time_base),
      startTime_(startTime)
{}

void SoundDecoder::Send(const AVPacket* packet)
{
    avcodec_send_packet(codec_.get(), packet);
}

void SoundDecoder::Flush()
{
    avcodec_flush_buffers(codec_.get());
    converter_.reset(); // what it holds belongs to the place before
}

std::optional<MediaSamples> SoundDecoder::Receive()
{
    while (avcodec_receive_frame(codec_.get(), frame_.get()) >= 0) {
        MediaSamples samples;
        samples.time = next_;
        if (frame_->best_effort_timestamp != AV_NOPTS_VALUE)
            samples.time =
                av_rescale_q(frame_->best_effort_timestamp, timeBase_, libav::microsecond) - startTime_;
        samples.bytes = Convert(*frame_);
        next_ = samples.time + samples.bytes.size() * 1'000'000 / wanted_.BytesPerSecond();
        av_frame_unref(frame_.get());
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
    av_channel_layout_default(&from, channels);
    av_channel_layout_default(&to, wanted_.channels);
    SwrContext* converter = nullptr;
    const int made =
        swr_alloc_set_opts2(&converter, &to, FormatOf(wanted_), wanted_.rate, &from,
                            static_cast<AVSampleFormat>(frame.format), frame.sample_rate, 0, nullptr);
    av_channel_layout_uninit(&from);
    av_channel_layout_uninit(&to);
    converter_.reset(converter);
    if (made < 0 || swr_init(converter) < 0) {
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
    const int room = swr_get_out_samples(converter_.get(), frame.nb_samples);
    if (room <= 0)
        return {};
    QByteArray bytes(static_cast<qsizetype>(room) * wanted_.BytesPerFrame(), Qt::Uninitialized);
    auto* target = reinterpret_cast<std::uint8_t*>(bytes.data());
    const int made = swr_convert(converter_.get(), &target, room,
                                 const_cast<const std::uint8_t**>(frame.extended_data), frame.nb_samples);
    bytes.truncate(static_cast<qsizetype>(std::max(0, made)) * wanted_.BytesPerFrame());
    return bytes;
}

} // namespace torvik
