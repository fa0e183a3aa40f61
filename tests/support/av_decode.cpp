#include "tests/support/av_decode.h"

#include "player_core/source/av_log.h"
#include "player_core/source/pcm_convert.h"

#include <memory>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

namespace kelp_test {

AvDecoded decodeByFfmpeg(const std::string &path)
{
    kelp_core::quietAvLog();
    AvDecoded all;
    AVFormatContext *format = nullptr;
    if (avformat_open_input(&format, ("file:" + path).c_str(), nullptr, nullptr) < 0) {
        all.error = "FFmpeg does not know this file";
        return all;
    }
    const auto closeFormat = [](AVFormatContext *open) { avformat_close_input(&open); };
    const std::unique_ptr<AVFormatContext, decltype(closeFormat)> owner(format, closeFormat);
    avformat_find_stream_info(format, nullptr);
    const int index = av_find_best_stream(format, AVMEDIA_TYPE_AUDIO, -1, -1, nullptr, 0);
    const AVCodec *codec =
        index < 0 ? nullptr : avcodec_find_decoder(format->streams[index]->codecpar->codec_id);
    const auto freeCodec = [](AVCodecContext *open) { avcodec_free_context(&open); };
    const std::unique_ptr<AVCodecContext, decltype(freeCodec)> decoder(
        codec ? avcodec_alloc_context3(codec) : nullptr, freeCodec);
    if (!decoder || avcodec_parameters_to_context(decoder.get(), format->streams[index]->codecpar) < 0 ||
        avcodec_open2(decoder.get(), codec, nullptr) < 0) {
        all.error = "FFmpeg has no decoder for this file";
        return all;
    }
    AVPacket *packet = av_packet_alloc();
    AVFrame *frame = av_frame_alloc();
    bool more = true;
    while (more) {
        more = av_read_frame(format, packet) >= 0;
        if (more && packet->stream_index == index && avcodec_send_packet(decoder.get(), packet) < 0)
            all.error = "FFmpeg cannot decode this file";
        if (!more)
            avcodec_send_packet(decoder.get(), nullptr);
        av_packet_unref(packet);
        while (avcodec_receive_frame(decoder.get(), frame) >= 0) {
            all.channels = frame->ch_layout.nb_channels;
            kelp_core::appendAsDouble(*frame, all.channels, 0, static_cast<size_t>(frame->nb_samples),
                                      all.samples);
        }
    }
    av_frame_free(&frame);
    av_packet_free(&packet);
    return all;
}

} // namespace kelp_test
