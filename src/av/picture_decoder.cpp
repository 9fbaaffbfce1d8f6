#include "av/picture_decoder.h"

#include <utility>

namespace torvik {

namespace {

constexpr qint64 maxPixels = 4096LL * 4096;

qint64 FrameDurationOf(const AVStream& stream)
{
    constexpr qint64 usual = 1'000'000 / 15;
    constexpr qint64 longest = 10'000'000;
    const AVRational rate = stream.avg_frame_rate.num > 0 ? stream.avg_frame_rate : stream.r_frame_rate;
    if (rate.num <= 0 || rate.den <= 0)
        return usual;
    const qint64 duration = libav::Call().avRescale(1'000'000, rate.den, rate.num);
    return duration < 1 || duration > longest ? usual : duration;
}

} // namespace

std::unique_ptr<PictureDecoder> PictureDecoder::Open(const AVStream& stream, qint64 startTime)
{
    auto codec = libav::OpenDecoder(stream, maxPixels);
    if (codec == nullptr)
        return nullptr;
    return std::unique_ptr<PictureDecoder>(new PictureDecoder(std::move(codec), stream, startTime));
}

PictureDecoder::PictureDecoder(libav::Owned<AVCodecContext> codec, const AVStream& stream, qint64 startTime)
    : codec_(std::move(codec)), frame_(libav::Call().avFrameAlloc()), timeBase_(stream.time_base),
      startTime_(startTime), frameDuration_(FrameDurationOf(stream))
{}

void PictureDecoder::Send(const AVPacket* packet)
{
    libav::Call().avcodecSendPacket(codec_.get(), packet);
}

void PictureDecoder::Flush()
{
    libav::Call().avcodecFlushBuffers(codec_.get());
}

std::optional<MediaPicture> PictureDecoder::Receive()
{
    while (libav::Call().avcodecReceiveFrame(codec_.get(), frame_.get()) >= 0) {
        MediaPicture picture{TimeOf(*frame_), Convert(*frame_)};
        next_ = picture.time + frameDuration_;
        libav::Call().avFrameUnref(frame_.get());
        if (!picture.image.isNull())
            return picture;
    }
    return std::nullopt;
}

qint64 PictureDecoder::TimeOf(const AVFrame& frame)
{
    if (frame.best_effort_timestamp == AV_NOPTS_VALUE)
        return next_;
    return libav::Call().avRescaleQ(frame.best_effort_timestamp, timeBase_, libav::microsecond) - startTime_;
}

/// The scaler writes whole blocks, so the image gets rows that hold them; the surplus is cut off afterwards.
QImage PictureDecoder::Convert(const AVFrame& frame)
{
    constexpr int block = 32;
    const int width = frame.width;
    const int height = frame.height;
    if (width <= 0 || height <= 0 || width > maxPixels / height)
        return {};
    scaler_.reset(libav::Call().swsGetCachedContext(
        scaler_.release(), width, height, static_cast<AVPixelFormat>(frame.format), width, height,
        AV_PIX_FMT_RGB32, SWS_BILINEAR | SWS_ACCURATE_RND, nullptr, nullptr, nullptr));
    QImage image((width + block - 1) / block * block, height, QImage::Format_RGB32);
    if (scaler_ == nullptr || image.isNull())
        return {};
    std::uint8_t* rows[4] = {image.bits(), nullptr, nullptr, nullptr};
    const int pitches[4] = {static_cast<int>(image.bytesPerLine()), 0, 0, 0};
    if (libav::Call().swsScale(scaler_.get(), frame.data, frame.linesize, 0, height, rows, pitches) <= 0)
        return {};
    return image.width() == width ? image : image.copy(0, 0, width, height);
}

} // namespace torvik
