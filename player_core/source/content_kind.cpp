#include "player_core/source/content_kind.h"

#include "player_core/source/sacd_sectors.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>
#include <vector>

extern "C" {
#include <libavformat/avformat.h>
}

using namespace std::string_view_literals;

namespace kelp_core {
namespace {

/// One magic word, and a second one at another place where the first does not tell enough.
struct Magic
{
    std::string_view first;
    size_t secondAt;
    std::string_view second;
    ContentReader reader;
    const char *demuxer;
    const char *word;
    const char *name;
};

constexpr auto container = ContentReader::container;

constexpr std::array magics{
    Magic{"RIFF"sv, 8, "WAVE"sv, container, "wav", "wav", "WAV"},
    Magic{"RF64"sv, 8, "WAVE"sv, container, "wav", "wav", "RF64"},
    Magic{"BW64"sv, 8, "WAVE"sv, container, "wav", "wav", "BW64"},
    Magic{"riff\x2e\x91\xcf\x11\xa5\xd6"sv, 24, "wave\xf3\xac\xd3\x11"sv, container, "w64", "wav", "W64"},
    Magic{"FORM"sv, 8, "AIFF"sv, container, "aiff", "aiff", "AIFF"},
    Magic{"FORM"sv, 8, "AIFC"sv, container, "aiff", "aiff", "AIFC"},
    Magic{"fLaC"sv, 0, ""sv, container, "flac", "flac", "FLAC"},
    Magic{"wvpk"sv, 0, ""sv, container, "wv", "wavpack", "WavPack"},
    Magic{"TTA1"sv, 0, ""sv, container, "tta", "tta", "TTA"},
    Magic{"MAC "sv, 0, ""sv, container, "ape", "ape", "Monkey's Audio"},
    Magic{""sv, 4, "ftyp"sv, container, "mov", "mp4", "MP4"},
    Magic{"DTSHDHDR"sv, 0, ""sv, container, "dtshd", "dts", "DTS-HD"},
    Magic{"\x7f\xfe\x80\x01"sv, 0, ""sv, container, "dts", "dts", "DTS"},
    Magic{"\xfe\x7f\x01\x80"sv, 0, ""sv, container, "dts", "dts", "DTS"},
    Magic{"\x1f\xff\xe8\x00"sv, 0, ""sv, container, "dts", "dts", "DTS"},
    Magic{"\xff\x1f\x00\xe8"sv, 0, ""sv, container, "dts", "dts", "DTS"},
    Magic{"\x64\x58\x20\x25"sv, 0, ""sv, container, "dts", "dts", "DTS-HD"},
    Magic{"DSD "sv, 28, "fmt "sv, ContentReader::dsf, "", "dsd", "DSF"},
    Magic{"FRM8"sv, 12, "DSD "sv, ContentReader::dff, "", "dsd", "DFF"},
    Magic{"1bit"sv, 0, ""sv, ContentReader::wsd, "", "dsd", "WSD"},
};

bool holdsAt(std::string_view head, size_t at, std::string_view word)
{
    return head.size() >= at + word.size() && head.substr(at, word.size()) == word;
}

/// FFmpeg's opinion on what is not ours, so that the refusal can call the thing by its name.
std::string foreignName(const std::vector<uint8_t> &head)
{
    std::vector<uint8_t> padded(head);
    padded.resize(head.size() + AVPROBE_PADDING_SIZE);
    AVProbeData probe = {};
    probe.buf = padded.data();
    probe.buf_size = static_cast<int>(head.size());
    probe.filename = "";
    int score = 0;
    const AVInputFormat *format = av_probe_input_format3(&probe, 1, &score);
    if (!format || score <= AVPROBE_SCORE_RETRY || !format->long_name)
        return {};
    return format->long_name;
}

} // namespace

int64_t id3v2SizeAt(ByteInput &input, int64_t offset)
{
    uint8_t head[10];
    if (!input.readFully(offset, head, sizeof head) || std::memcmp(head, "ID3", 3) != 0 || head[3] == 0xFF ||
        head[4] == 0xFF)
        return 0;
    if ((head[6] | head[7] | head[8] | head[9]) & 0x80)
        return 0;
    const int64_t body = head[6] << 21 | head[7] << 14 | head[8] << 7 | head[9];
    const int64_t footer = head[5] & 0x10 ? 10 : 0;
    return 10 + body + footer;
}

ContentKind detectContent(ByteInput &input)
{
    constexpr int maxTags = 8;
    constexpr size_t headSize = 32768;
    ContentKind kind;
    if (input.sizeBytes() == 0) {
        kind.refusal = "the file is empty";
        return kind;
    }
    for (int tag = 0; tag < maxTags; ++tag) {
        const int64_t size = id3v2SizeAt(input, kind.contentOffset);
        if (size == 0)
            break;
        kind.contentOffset += size;
    }
    std::vector<uint8_t> head(headSize);
    const int64_t got = input.readAt(kind.contentOffset, head.data(), head.size());
    if (got < 0) {
        kind.refusal = "the file cannot be read";
        return kind;
    }
    head.resize(static_cast<size_t>(got));
    const std::string_view view(reinterpret_cast<const char *>(head.data()), head.size());
    for (const Magic &magic : magics) {
        if (holdsAt(view, 0, magic.first) && holdsAt(view, magic.secondAt, magic.second)) {
            kind.reader = magic.reader;
            kind.demuxer = magic.demuxer;
            kind.word = magic.word;
            kind.name = magic.name;
            return kind;
        }
    }
    if (SacdSectors::detect(input) != 0) {
        kind.reader = ContentReader::sacd;
        kind.word = "dsd";
        kind.name = "SACD image";
        return kind;
    }
    const std::string name = foreignName(head);
    kind.refusal = name.empty() ? "this is not a kind of audio file that this player knows"
                                : name + " is not a format this player decodes";
    return kind;
}

} // namespace kelp_core
