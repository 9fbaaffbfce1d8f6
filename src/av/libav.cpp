#include "av/libav.h"

namespace torvik::libav {

Owned<AVCodecContext> OpenDecoder(const AVStream& stream, qint64 maxPixels)
{
    const AVCodec* codec = avcodec_find_decoder(stream.codecpar->codec_id);
    if (codec == nullptr)
        return nullptr;
    Owned<AVCodecContext> context(avcodec_alloc_context3(codec));
    if (context == nullptr || avcodec_parameters_to_context(context.get(), stream.codecpar) < 0)
        return nullptr;
    context->pkt_timebase = stream.time_base;
    context->thread_count = 1;
    context->max_pixels = maxPixels;
    if (avcodec_open2(context.get(), codec, nullptr) < 0)
        return nullptr;
    return context;
}

} // namespace torvik::libav
