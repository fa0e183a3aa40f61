#include "tests/support/packed_maker.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

namespace kelp_test {
namespace {

struct Kind
{
    const char *word;
    const char *muxer;
    AVCodecID codec;
    bool takesCover;
};

constexpr std::array kinds{
    Kind{"flac", "flac", AV_CODEC_ID_FLAC, true}, Kind{"m4a", "ipod", AV_CODEC_ID_ALAC, true},
    Kind{"wv", "wv", AV_CODEC_ID_WAVPACK, false}, Kind{"tta", "tta", AV_CODEC_ID_TTA, false},
    Kind{"dts", "dts", AV_CODEC_ID_DTS, false},
};

struct FormatClose
{
    void operator()(AVFormatContext *format) const
    {
        avio_closep(&format->pb);
        avformat_free_context(format);
    }
};
struct CodecFree
{
    void operator()(AVCodecContext *codec) const { avcodec_free_context(&codec); }
};
struct FrameFree
{
    void operator()(AVFrame *frame) const { av_frame_free(&frame); }
};
struct PacketFree
{
    void operator()(AVPacket *packet) const { av_packet_free(&packet); }
};

using FormatPtr = std::unique_ptr<AVFormatContext, FormatClose>;
using CodecPtr = std::unique_ptr<AVCodecContext, CodecFree>;
using FramePtr = std::unique_ptr<AVFrame, FrameFree>;
using PacketPtr = std::unique_ptr<AVPacket, PacketFree>;

/// The encoder's sample format that holds the depth.
AVSampleFormat chooseFormat(const AVCodec &codec, const PcmSignal &signal)
{
    const AVSampleFormat wanted = signal.isFloat || codec.id == AV_CODEC_ID_DTS ? AV_SAMPLE_FMT_S32
                                  : signal.depthBits <= 8                       ? AV_SAMPLE_FMT_U8
                                  : signal.depthBits <= 16                      ? AV_SAMPLE_FMT_S16
                                                                                : AV_SAMPLE_FMT_S32;
    AVSampleFormat chosen = codec.sample_fmts[0];
    for (const AVSampleFormat *format = codec.sample_fmts; *format != AV_SAMPLE_FMT_NONE; ++format) {
        if (av_get_packed_sample_fmt(*format) == wanted)
            return *format;
        if (av_get_bytes_per_sample(*format) == 4)
            chosen = *format;
    }
    return chosen;
}

/// Where one sample of a frame stands.
uint8_t *sampleAt(AVFrame &frame, int channels, int index, int channel)
{
    const auto format = static_cast<AVSampleFormat>(frame.format);
    const int bytes = av_get_bytes_per_sample(format);
    return av_sample_fmt_is_planar(format) ? frame.extended_data[channel] + index * bytes
                                           : frame.extended_data[0] + (index * channels + channel) * bytes;
}

void fillFrame(AVFrame &frame, const PcmSignal &signal, size_t first)
{
    const int bytes = av_get_bytes_per_sample(static_cast<AVSampleFormat>(frame.format));
    for (int i = 0; i < frame.nb_samples; ++i) {
        for (int channel = 0; channel < signal.channels; ++channel) {
            const double sample =
                signal.samples[(first + static_cast<size_t>(i)) * static_cast<size_t>(signal.channels) +
                               static_cast<size_t>(channel)];
            const int64_t integer = toInteger(sample, 8 * bytes) + (bytes == 1 ? 128 : 0);
            std::memcpy(sampleAt(frame, signal.channels, i, channel), &integer, static_cast<size_t>(bytes));
        }
    }
}

class Packer
{
public:
    std::string open(const Kind &kind, const std::string &path, const PcmSignal &signal,
                     const FileTags &tags);
    std::string write(const PcmSignal &signal);

private:
    std::string openCodec(const Kind &kind, const PcmSignal &signal);
    void addCover(const std::vector<uint8_t> &png);
    std::string encode(const AVFrame *frame);

    FormatPtr format_;
    CodecPtr codec_;
    PacketPtr packet_{av_packet_alloc()};
    std::vector<uint8_t> cover_;
};

std::string Packer::openCodec(const Kind &kind, const PcmSignal &signal)
{
    const AVCodec *codec = avcodec_find_encoder(kind.codec);
    if (!codec)
        return std::string("this FFmpeg has no encoder for ") + kind.word;
    codec_.reset(avcodec_alloc_context3(codec));
    codec_->sample_fmt = chooseFormat(*codec, signal);
    codec_->sample_rate = signal.rateHz;
    av_channel_layout_default(&codec_->ch_layout, signal.channels);
    codec_->bits_per_raw_sample = signal.depthBits;
    codec_->time_base = {1, signal.rateHz};
    codec_->strict_std_compliance = FF_COMPLIANCE_EXPERIMENTAL;
    if (kind.codec == AV_CODEC_ID_DTS)
        codec_->bit_rate = 1411200;
    if (format_->oformat->flags & AVFMT_GLOBALHEADER)
        codec_->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    if (avcodec_open2(codec_.get(), codec, nullptr) < 0)
        return std::string("the encoder refuses this signal for ") + kind.word;
    AVStream *stream = avformat_new_stream(format_.get(), nullptr);
    stream->time_base = codec_->time_base;
    avcodec_parameters_from_context(stream->codecpar, codec_.get());
    return {};
}

void Packer::addCover(const std::vector<uint8_t> &png)
{
    AVStream *stream = avformat_new_stream(format_.get(), nullptr);
    stream->codecpar->codec_type = AVMEDIA_TYPE_VIDEO;
    stream->codecpar->codec_id = AV_CODEC_ID_PNG;
    stream->codecpar->width = 8;
    stream->codecpar->height = 8;
    stream->codecpar->format = AV_PIX_FMT_RGB24;
    stream->disposition = AV_DISPOSITION_ATTACHED_PIC;
    av_dict_set(&stream->metadata, "comment", "Cover (front)", 0);
    cover_ = png;
}

std::string Packer::open(const Kind &kind, const std::string &path, const PcmSignal &signal,
                         const FileTags &tags)
{
    AVFormatContext *format = nullptr;
    if (avformat_alloc_output_context2(&format, nullptr, kind.muxer, path.c_str()) < 0)
        return std::string("this FFmpeg has no writer for ") + kind.word;
    format_.reset(format);
    format_->flags |= AVFMT_FLAG_BITEXACT;
    for (const auto &[key, value] : tags.words)
        av_dict_set(&format_->metadata, key.c_str(), value.c_str(), 0);
    if (std::string error = openCodec(kind, signal); !error.empty())
        return error;
    if (!tags.coverPng.empty() && kind.takesCover)
        addCover(tags.coverPng);
    if (avio_open(&format_->pb, ("file:" + path).c_str(), AVIO_FLAG_WRITE) < 0)
        return "cannot write " + path;
    return avformat_write_header(format_.get(), nullptr) < 0 ? "the file's head cannot be written" : "";
}

std::string Packer::encode(const AVFrame *frame)
{
    if (avcodec_send_frame(codec_.get(), frame) < 0)
        return "the encoder fails";
    while (avcodec_receive_packet(codec_.get(), packet_.get()) == 0) {
        packet_->stream_index = 0;
        av_packet_rescale_ts(packet_.get(), codec_->time_base, format_->streams[0]->time_base);
        if (av_interleaved_write_frame(format_.get(), packet_.get()) < 0)
            return "the file cannot be written";
    }
    return {};
}

std::string Packer::write(const PcmSignal &signal)
{
    if (!cover_.empty()) {
        PacketPtr picture(av_packet_alloc());
        if (av_new_packet(picture.get(), static_cast<int>(cover_.size())) < 0)
            return "not enough memory";
        std::memcpy(picture->data, cover_.data(), cover_.size());
        picture->stream_index = 1;
        picture->flags |= AV_PKT_FLAG_KEY;
        picture->pts = picture->dts = 0;
        if (av_interleaved_write_frame(format_.get(), picture.get()) < 0)
            return "the cover cannot be written";
    }
    const size_t step = codec_->frame_size > 0 ? static_cast<size_t>(codec_->frame_size) : 4096;
    const size_t total = signal.frames();
    for (size_t first = 0; first < total; first += step) {
        FramePtr frame(av_frame_alloc());
        frame->nb_samples = static_cast<int>(std::min(step, total - first));
        frame->format = codec_->sample_fmt;
        frame->sample_rate = signal.rateHz;
        frame->pts = static_cast<int64_t>(first);
        av_channel_layout_copy(&frame->ch_layout, &codec_->ch_layout);
        if (av_frame_get_buffer(frame.get(), 0) < 0)
            return "not enough memory";
        fillFrame(*frame, signal, first);
        if (std::string error = encode(frame.get()); !error.empty())
            return error;
    }
    if (std::string error = encode(nullptr); !error.empty())
        return error;
    return av_write_trailer(format_.get()) < 0 ? "the file's end cannot be written" : "";
}

} // namespace

std::string writePacked(const std::string &kind, const std::string &path, const PcmSignal &signal,
                        const FileTags &tags)
{
    const auto found =
        std::find_if(kinds.begin(), kinds.end(), [&](const Kind &k) { return kind == k.word; });
    if (found == kinds.end())
        return "no kind " + kind;
    Packer packer;
    std::string error = packer.open(*found, path, signal, tags);
    return error.empty() ? packer.write(signal) : error;
}

std::vector<uint8_t> smallPng()
{
    CodecPtr codec(avcodec_alloc_context3(avcodec_find_encoder(AV_CODEC_ID_PNG)));
    FramePtr frame(av_frame_alloc());
    PacketPtr packet(av_packet_alloc());
    codec->width = frame->width = 8;
    codec->height = frame->height = 8;
    codec->pix_fmt = AV_PIX_FMT_RGB24;
    frame->format = AV_PIX_FMT_RGB24;
    codec->time_base = {1, 1};
    if (avcodec_open2(codec.get(), nullptr, nullptr) < 0 || av_frame_get_buffer(frame.get(), 0) < 0)
        return {};
    for (int row = 0; row < 8; ++row)
        std::memset(frame->data[0] + row * frame->linesize[0], 0x5A, 24);
    if (avcodec_send_frame(codec.get(), frame.get()) < 0 ||
        avcodec_receive_packet(codec.get(), packet.get()) < 0)
        return {};
    return {packet->data, packet->data + packet->size};
}

} // namespace kelp_test
