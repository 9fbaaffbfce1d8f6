#include "av/libav_functions.h"

#include "runtime/logging.h"

#include <QLibrary>
#include <QString>

#include <optional>

using namespace Qt::StringLiterals;

namespace torvik::libav {

namespace {

/// The five libraries, once loaded for good.
class Libraries {
public:
    /// Nothing when a library or a function is missing.
    std::optional<Functions> Load()
    {
        Functions functions{};
        Take(functions.avChannelLayoutDefault, util_, "av_channel_layout_default");
        Take(functions.avChannelLayoutUninit, util_, "av_channel_layout_uninit");
        Take(functions.avDictFree, util_, "av_dict_free");
        Take(functions.avDictSet, util_, "av_dict_set");
        Take(functions.avFrameAlloc, util_, "av_frame_alloc");
        Take(functions.avFrameFree, util_, "av_frame_free");
        Take(functions.avFrameUnref, util_, "av_frame_unref");
        Take(functions.avFreep, util_, "av_freep");
        Take(functions.avLogSetLevel, util_, "av_log_set_level");
        Take(functions.avMalloc, util_, "av_malloc");
        Take(functions.avRescale, util_, "av_rescale");
        Take(functions.avRescaleQ, util_, "av_rescale_q");

        Take(functions.avPacketAlloc, codec_, "av_packet_alloc");
        Take(functions.avPacketFree, codec_, "av_packet_free");
        Take(functions.avPacketUnref, codec_, "av_packet_unref");
        Take(functions.avcodecAllocContext3, codec_, "avcodec_alloc_context3");
        Take(functions.avcodecFindDecoder, codec_, "avcodec_find_decoder");
        Take(functions.avcodecFlushBuffers, codec_, "avcodec_flush_buffers");
        Take(functions.avcodecFreeContext, codec_, "avcodec_free_context");
        Take(functions.avcodecGetName, codec_, "avcodec_get_name");
        Take(functions.avcodecOpen2, codec_, "avcodec_open2");
        Take(functions.avcodecParametersToContext, codec_, "avcodec_parameters_to_context");
        Take(functions.avcodecReceiveFrame, codec_, "avcodec_receive_frame");
        Take(functions.avcodecSendPacket, codec_, "avcodec_send_packet");

        Take(functions.avFindBestStream, format_, "av_find_best_stream");
        Take(functions.avReadFrame, format_, "av_read_frame");
        Take(functions.avSeekFrame, format_, "av_seek_frame");
        Take(functions.avformatAllocContext, format_, "avformat_alloc_context");
        Take(functions.avformatCloseInput, format_, "avformat_close_input");
        Take(functions.avformatFindStreamInfo, format_, "avformat_find_stream_info");
        Take(functions.avformatOpenInput, format_, "avformat_open_input");
        Take(functions.avformatSeekFile, format_, "avformat_seek_file");
        Take(functions.avioAllocContext, format_, "avio_alloc_context");
        Take(functions.avioContextFree, format_, "avio_context_free");

        Take(functions.swrAllocSetOpts2, resample_, "swr_alloc_set_opts2");
        Take(functions.swrConvert, resample_, "swr_convert");
        Take(functions.swrFree, resample_, "swr_free");
        Take(functions.swrGetOutSamples, resample_, "swr_get_out_samples");
        Take(functions.swrInit, resample_, "swr_init");

        Take(functions.swsFreeContext, scale_, "sws_freeContext");
        Take(functions.swsGetCachedContext, scale_, "sws_getCachedContext");
        Take(functions.swsScale, scale_, "sws_scale");
        if (!isWhole_)
            return std::nullopt;
        functions.avLogSetLevel(AV_LOG_QUIET);
        return functions;
    }

private:
    template <typename Function>
    void Take(Function& function, QLibrary& library, const char* name)
    {
        function = isWhole_ ? reinterpret_cast<Function>(library.resolve(name)) : nullptr;
        if (isWhole_ && function == nullptr)
            qCDebug(logMedia, "no movie and no sound can be decoded: %s",
                    qUtf8Printable(library.errorString()));
        isWhole_ = function != nullptr;
    }

    QLibrary util_{u"avutil"_s, LIBAVUTIL_VERSION_MAJOR};
    QLibrary codec_{u"avcodec"_s, LIBAVCODEC_VERSION_MAJOR};
    QLibrary format_{u"avformat"_s, LIBAVFORMAT_VERSION_MAJOR};
    QLibrary resample_{u"swresample"_s, LIBSWRESAMPLE_VERSION_MAJOR};
    QLibrary scale_{u"swscale"_s, LIBSWSCALE_VERSION_MAJOR};
    bool isWhole_ = true;
};

const std::optional<Functions>& Loaded()
{
    static const std::optional<Functions> functions = Libraries().Load();
    return functions;
}

} // namespace

bool IsThere()
{
    return Loaded().has_value();
}

const Functions& Call()
{
    return *Loaded();
}

} // namespace torvik::libav
