#include "av/libav.h"

#include "runtime/logging.h"

namespace torvik::libav {

Owned<AVCodecContext> OpenDecoder(const AVStream& stream, qint64 maxPixels)
{
    const char* kind = stream.codecpar->codec_type == AVMEDIA_TYPE_VIDEO ? "pictures" : "sound";
    const AVCodec* codec = Call().avcodecFindDecoder(stream.codecpar->codec_id);
    if (codec == nullptr) {
        qCDebug(logMedia, "%s: there is no decoder for %s", kind,
                Call().avcodecGetName(stream.codecpar->codec_id));
        return nullptr;
    }
    Owned<AVCodecContext> context(Call().avcodecAllocContext3(codec));
    if (context == nullptr || Call().avcodecParametersToContext(context.get(), stream.codecpar) < 0)
        return nullptr;
    context->pkt_timebase = stream.time_base;
    context->thread_count = 1;
    context->max_pixels = maxPixels;
    if (Call().avcodecOpen2(context.get(), codec, nullptr) < 0) {
        qCDebug(logMedia, "%s: the decoder %s refuses the stream", kind, codec->name);
        return nullptr;
    }
    qCDebug(logMedia, "%s: the decoder is %s", kind, codec->name);
    return context;
}

} // namespace torvik::libav
