#include "player_core/source/pcm_codec.h"

#include "player_core/source/endian.h"
#include "player_core/source/wav_head.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <iterator>
#include <string_view>

namespace kelp_core {
namespace {

struct Codec
{
    AVCodecID id;
    const char *word; ///< empty for plain PCM, which is called after its container
    const char *name;
};

constexpr std::array codecs{
    Codec{AV_CODEC_ID_FLAC, "flac", "FLAC"},
    Codec{AV_CODEC_ID_ALAC, "alac", "ALAC"},
    Codec{AV_CODEC_ID_TTA, "tta", "TTA"},
    Codec{AV_CODEC_ID_WAVPACK, "wavpack", "WavPack"},
    Codec{AV_CODEC_ID_APE, "ape", "Monkey's Audio"},
    Codec{AV_CODEC_ID_DTS, "dts", "DTS"},
    Codec{AV_CODEC_ID_PCM_U8, "", ""},
    Codec{AV_CODEC_ID_PCM_S8, "", ""},
    Codec{AV_CODEC_ID_PCM_S16LE, "", ""},
    Codec{AV_CODEC_ID_PCM_S16BE, "", ""},
    Codec{AV_CODEC_ID_PCM_S24LE, "", ""},
    Codec{AV_CODEC_ID_PCM_S24BE, "", ""},
    Codec{AV_CODEC_ID_PCM_S32LE, "", ""},
    Codec{AV_CODEC_ID_PCM_S32BE, "", ""},
    Codec{AV_CODEC_ID_PCM_F32LE, "", ""},
    Codec{AV_CODEC_ID_PCM_F32BE, "", ""},
    Codec{AV_CODEC_ID_PCM_F64LE, "", ""},
    Codec{AV_CODEC_ID_PCM_F64BE, "", ""},
    Codec{AV_CODEC_ID_PCM_F24LE, "", ""},
};

const Codec *findCodec(AVCodecID id)
{
    const auto found =
        std::find_if(codecs.begin(), codecs.end(), [id](const Codec &c) { return c.id == id; });
    return found == codecs.end() ? nullptr : &*found;
}

/// What a WavPack stream holds, from the flags of its first block.
struct WavPackFlags
{
    bool hybrid = false; ///< the lossy half of a hybrid pair; FFmpeg does not read the correction file
    bool dsd = false;
};

WavPackFlags wavPackFlags(FileInput &file, int64_t offset)
{
    constexpr uint32_t hybridBit = 0x8, dsdBit = 0x80000000;
    uint8_t head[32];
    if (!file.readFully(offset, head, sizeof head) || std::memcmp(head, "wvpk", 4) != 0)
        return {};
    const uint32_t flags = littleU32(head + 24);
    return {(flags & hybridBit) != 0, (flags & dsdBit) != 0};
}

/// Whether a WAV file's format chunk is of the form that states what its samples are.
bool isExtensible(FileInput &file)
{
    const auto head = readWavHead(file);
    return head && head->extensible;
}

int validBits(const AVCodecParameters &parameters, const AVCodecContext &decoder)
{
    const int container = av_get_bytes_per_sample(decoder.sample_fmt) * 8;
    if (const int coded = av_get_bits_per_sample(parameters.codec_id); coded > 0) {
        // Uncompressed: the container's head may say that fewer bits than stored are valid.
        const int valid = parameters.bits_per_coded_sample;
        return valid > 0 && valid < coded ? valid : coded;
    }
    for (const int bits : {decoder.bits_per_raw_sample, parameters.bits_per_raw_sample}) {
        if (bits > 0 && bits <= container)
            return bits;
    }
    return container;
}

/// The places of more than two channels. A WAV file that does not tell them has the usual ones.
uint32_t speakersOf(const AVChannelLayout &layout, const ContentKind &kind)
{
    constexpr uint64_t waveBits = (uint64_t{1} << 18) - 1;
    constexpr uint32_t usual[] = {0, 0, 0, 0x07, 0x33, 0x37, 0x3F, 0, 0x63F};
    const int channels = layout.nb_channels;
    if (channels <= 2)
        return 0;
    if (layout.order == AV_CHANNEL_ORDER_NATIVE)
        return (layout.u.mask & ~waveBits) == 0 ? static_cast<uint32_t>(layout.u.mask) : 0;
    const bool wave = std::string_view(kind.word) == "wav";
    return wave && channels < static_cast<int>(std::size(usual)) ? usual[channels] : 0;
}

std::string describe(const SourceFacts &facts, const std::string &name)
{
    const StreamFormat &format = facts.format;
    std::string text = name + ", " + std::to_string(format.depthBits) + " bit";
    if (format.isFloat)
        text += " float";
    text += ", " + std::to_string(format.rateHz) + " Hz, " + std::to_string(format.channels);
    return text + (format.channels == 1 ? " channel" : " channels");
}

} // namespace

std::string codecRefusal(AVCodecID codec)
{
    if (findCodec(codec))
        return {};
    const AVCodecDescriptor *descriptor = avcodec_descriptor_get(codec);
    const char *name =
        descriptor ? (descriptor->long_name ? descriptor->long_name : descriptor->name) : nullptr;
    return std::string(name ? name : "the coding inside this file") + " is not a format this player decodes";
}

SourceFacts pcmFacts(const ContentKind &kind, const AVCodecParameters &parameters,
                     const AVCodecContext &decoder, FileInput &file)
{
    SourceFacts facts;
    const AVSampleFormat packed = av_get_packed_sample_fmt(decoder.sample_fmt);
    facts.format.kind = SignalKind::pcm;
    facts.format.rateHz = decoder.sample_rate;
    facts.format.channels = decoder.ch_layout.nb_channels;
    facts.format.speakers = speakersOf(decoder.ch_layout, kind);
    facts.format.isFloat = packed == AV_SAMPLE_FMT_FLT || packed == AV_SAMPLE_FMT_DBL;
    facts.format.depthBits =
        facts.format.isFloat ? av_get_bytes_per_sample(packed) * 8 : validBits(parameters, decoder);
    const Codec *codec = findCodec(parameters.codec_id);
    std::string name = codec && *codec->name ? codec->name : kind.name;
    facts.formatWord = codec && *codec->word ? codec->word : kind.word;
    if (parameters.codec_id == AV_CODEC_ID_DTS) {
        // Only the extension of the Master Audio profile gives back what was coded.
        facts.lossless = decoder.profile == FF_PROFILE_DTS_HD_MA;
        name = facts.lossless ? "DTS-HD Master Audio" : "DTS (lossy)";
    }
    if (parameters.codec_id == AV_CODEC_ID_WAVPACK) {
        const WavPackFlags flags = wavPackFlags(file, kind.contentOffset);
        facts.lossless = !flags.hybrid && !flags.dsd;
        if (flags.dsd)
            name = "WavPack with DSD inside, converted to PCM by its decoder";
        else if (flags.hybrid)
            name = "WavPack hybrid (lossy half)";
    }
    facts.description = describe(facts, name);
    return facts;
}

void correctSampleWidth(AVCodecParameters &parameters, FileInput &file)
{
    const int channels = parameters.ch_layout.nb_channels;
    if (channels <= 0 || parameters.block_align <= 0 || parameters.block_align % channels != 0)
        return;
    const int bytes = parameters.block_align / channels;
    switch (parameters.codec_id) {
    case AV_CODEC_ID_PCM_F24LE:
        if (bytes == 4 && isExtensible(file))
            parameters.codec_id = AV_CODEC_ID_PCM_S32LE;
        return;
    case AV_CODEC_ID_PCM_S16LE:
    case AV_CODEC_ID_PCM_S24LE:
    case AV_CODEC_ID_PCM_S32LE:
        if (bytes == 2)
            parameters.codec_id = AV_CODEC_ID_PCM_S16LE;
        else if (bytes == 3)
            parameters.codec_id = AV_CODEC_ID_PCM_S24LE;
        else if (bytes == 4)
            parameters.codec_id = AV_CODEC_ID_PCM_S32LE;
        return;
    default:
        return;
    }
}

} // namespace kelp_core
