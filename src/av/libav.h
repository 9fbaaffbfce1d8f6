#pragma once

#include "av/libav_functions.h"

#include <QtGlobal>

#include <memory>

namespace torvik::libav {

/// Frees what the decoding library has made.
struct Free {
    void operator()(AVFormatContext* context) const { Call().avformatCloseInput(&context); }
    void operator()(AVCodecContext* context) const { Call().avcodecFreeContext(&context); }
    void operator()(AVFrame* frame) const { Call().avFrameFree(&frame); }
    void operator()(AVPacket* packet) const { Call().avPacketFree(&packet); }
    void operator()(SwrContext* context) const { Call().swrFree(&context); }
    void operator()(SwsContext* context) const { Call().swsFreeContext(context); }
    void operator()(AVIOContext* context) const
    {
        Call().avFreep(&context->buffer);
        Call().avioContextFree(&context);
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
