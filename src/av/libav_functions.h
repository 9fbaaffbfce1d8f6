#pragma once

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libswresample/swresample.h>
#include <libswscale/swscale.h>
}

namespace torvik::libav {

/// The functions of libav by their own names, as this code writes names. They are not linked: the libraries
/// bring some eighty others along, a third of the program's memory, and many people never play a movie.
struct Functions {
    decltype(&av_channel_layout_default) avChannelLayoutDefault;
    decltype(&av_channel_layout_uninit) avChannelLayoutUninit;
    decltype(&av_dict_free) avDictFree;
    decltype(&av_dict_set) avDictSet;
    decltype(&av_frame_alloc) avFrameAlloc;
    decltype(&av_frame_free) avFrameFree;
    decltype(&av_frame_unref) avFrameUnref;
    decltype(&av_freep) avFreep;
    decltype(&av_log_set_level) avLogSetLevel;
    decltype(&av_malloc) avMalloc;
    decltype(&av_rescale) avRescale;
    decltype(&av_rescale_q) avRescaleQ;

    decltype(&av_packet_alloc) avPacketAlloc;
    decltype(&av_packet_free) avPacketFree;
    decltype(&av_packet_unref) avPacketUnref;
    decltype(&avcodec_alloc_context3) avcodecAllocContext3;
    decltype(&avcodec_find_decoder) avcodecFindDecoder;
    decltype(&avcodec_flush_buffers) avcodecFlushBuffers;
    decltype(&avcodec_free_context) avcodecFreeContext;
    decltype(&avcodec_get_name) avcodecGetName;
    decltype(&avcodec_open2) avcodecOpen2;
    decltype(&avcodec_parameters_to_context) avcodecParametersToContext;
    decltype(&avcodec_receive_frame) avcodecReceiveFrame;
    decltype(&avcodec_send_packet) avcodecSendPacket;

    decltype(&av_find_best_stream) avFindBestStream;
    decltype(&av_read_frame) avReadFrame;
    decltype(&av_seek_frame) avSeekFrame;
    decltype(&avformat_alloc_context) avformatAllocContext;
    decltype(&avformat_close_input) avformatCloseInput;
    decltype(&avformat_find_stream_info) avformatFindStreamInfo;
    decltype(&avformat_open_input) avformatOpenInput;
    decltype(&avformat_seek_file) avformatSeekFile;
    decltype(&avio_alloc_context) avioAllocContext;
    decltype(&avio_context_free) avioContextFree;

    decltype(&swr_alloc_set_opts2) swrAllocSetOpts2;
    decltype(&swr_convert) swrConvert;
    decltype(&swr_free) swrFree;
    decltype(&swr_get_out_samples) swrGetOutSamples;
    decltype(&swr_init) swrInit;

    decltype(&sws_freeContext) swsFreeContext;
    decltype(&sws_getCachedContext) swsGetCachedContext;
    decltype(&sws_scale) swsScale;
};

/// Whether the libraries are there, in the versions that this was compiled for. They are loaded when this is
/// first asked, from whatever thread.
bool IsThere();

/// The functions, of use only where the libraries are there.
const Functions& Call();

} // namespace torvik::libav
