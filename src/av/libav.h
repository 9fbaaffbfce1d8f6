#pragma once

#include <QtGlobal>

#include <memory>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/opt.h>
#include <libswresample/swresample.h>
#include <libswscale/swscale.h>
}

namespace torvik::libav {

/// Frees what the decoding library has made.
struct Free {
    void operator()(AVFormatContext* context) const { avformat_close_input(&context); }
    void operator()(AVCodecContext* context) const { avcodec_free_context(&context); }
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
    void operator()(SwrContext* context) const { swr_free(&context); }
    void operator()(SwsContext* context) const { sws_freeContext(context); }
    void operator()(AVIOContext* context) const
    {
        av_freep(&context->buffer);
        avio_context_free(&context);
    }
};

template <typename T>
using Owned = std::unique_ptr<T, Free>;

/// What time is counted in: microseconds.
inline constexpr AVRational microsecond{1, 1'000'000};

/// A decoder for a stream, opened; null when there is none or it refuses the stream. `maxPixels` bounds the
/// pictures that it makes.
Owned<AVCodecContext> OpenDecoder(const AVStream& stream, qint64 maxPixels);

} // namespace torvik::libav
