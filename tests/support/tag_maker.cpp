#include "tests/support/tag_maker.h"

#include "tests/support/byte_writer.h"

#include <cstdio>
#include <cstdlib>

namespace kelp_test {
namespace {

Bytes chunks(const std::string &outer, const std::string &kind, const std::vector<Chunk> &list, bool little)
{
    ByteWriter body;
    body.text(kind);
    for (const Chunk &chunk : list) {
        body.text(chunk.id);
        little ? body.little(chunk.payload.size(), 4) : body.big(chunk.payload.size(), 4);
        body.append(chunk.payload).zeros(chunk.payload.size() % 2);
    }
    ByteWriter out;
    out.text(outer);
    little ? out.little(body.bytes.size(), 4) : out.big(body.bytes.size(), 4);
    return out.append(body.bytes).bytes;
}

Bytes textBytes(const std::string &text)
{
    return {text.begin(), text.end()};
}

Bytes atom(const std::string &name, const Bytes &body)
{
    return ByteWriter().big(body.size() + 8, 4).text(name).append(body).bytes;
}

Bytes joined(std::initializer_list<Bytes> parts)
{
    ByteWriter out;
    for (const Bytes &part : parts)
        out.append(part);
    return out.bytes;
}

Bytes itunesItem(const std::string &name, const std::string &value)
{
    return atom(name, atom("data", ByteWriter().big(1, 4).zeros(4).text(value).bytes));
}

Bytes m4aFile(const TagWords &words, const Bytes &audio)
{
    const Bytes list = atom("ilst", joined({itunesItem("\xA9"
                                                       "nam",
                                                       words.title),
                                            itunesItem("\xA9"
                                                       "ART",
                                                       words.artist),
                                            itunesItem("\xA9"
                                                       "alb",
                                                       words.album)}));
    const Bytes meta = atom("meta", joined({Bytes(4), list}));
    return joined({atom("ftyp", ByteWriter().text("M4A ").zeros(4).bytes), atom("moov", atom("udta", meta)),
                   atom("mdat", audio)});
}

/// Frames of 128 kbit/s at 44.1 kHz.
Bytes mp3Frames(const Bytes &audio)
{
    constexpr size_t frameBytes = 417;
    ByteWriter out;
    for (size_t at = 0; at + frameBytes <= audio.size(); at += frameBytes) {
        out.big(0xFFFB9064, 4);
        out.bytes.insert(out.bytes.end(), audio.begin() + static_cast<std::ptrdiff_t>(at + 4),
                         audio.begin() + static_cast<std::ptrdiff_t>(at + frameBytes));
    }
    return out.bytes;
}

Bytes oggFile(const std::vector<std::string> &comments, const Bytes &audio)
{
    const Bytes identification = ByteWriter()
                                     .text("\x01vorbis")
                                     .little(0, 4)
                                     .little(2, 1)
                                     .little(44100, 4)
                                     .zeros(12)
                                     .little(0xB8, 1)
                                     .little(1, 1)
                                     .bytes;
    const Bytes comment =
        ByteWriter().text("\x03vorbis").append(vorbisPayload("maker", comments)).little(1, 1).bytes;
    ByteWriter out;
    out.append(oggPage(identification, 0, 2)).append(oggPage(comment, 1, 0));
    uint32_t number = 2;
    constexpr size_t pageBytes = 4000;
    for (size_t at = 0; at < audio.size(); at += pageBytes) {
        const size_t end = std::min(at + pageBytes, audio.size());
        out.append(oggPage({audio.begin() + static_cast<std::ptrdiff_t>(at),
                            audio.begin() + static_cast<std::ptrdiff_t>(end)},
                           number++, end == audio.size() ? 4 : 0));
    }
    return out.bytes;
}

} // namespace

Bytes vorbisPayload(const std::string &vendor, const std::vector<std::string> &entries)
{
    ByteWriter out;
    out.little(vendor.size(), 4).text(vendor).little(entries.size(), 4);
    for (const std::string &entry : entries)
        out.little(entry.size(), 4).text(entry);
    return out.bytes;
}

std::string id3Text(int encoding, const std::string &bytes)
{
    return static_cast<char>(encoding) + bytes;
}

Bytes syncSafeBytes(uint32_t value)
{
    ByteWriter out;
    for (int shift = 21; shift >= 0; shift -= 7)
        out.big(value >> shift & 0x7F, 1);
    return out.bytes;
}

Bytes id3Tag(int version, const std::vector<std::pair<std::string, std::string>> &frames)
{
    ByteWriter body;
    for (const auto &[id, payload] : frames) {
        body.text(id);
        version >= 4 ? body.append(syncSafeBytes(static_cast<uint32_t>(payload.size())))
                     : body.big(payload.size(), 4);
        body.zeros(2).text(payload);
    }
    ByteWriter out;
    out.text("ID3").big(static_cast<uint64_t>(version), 1).zeros(2);
    out.append(syncSafeBytes(static_cast<uint32_t>(body.bytes.size())));
    return out.append(body.bytes).bytes;
}

Bytes apeTag(const std::vector<std::pair<std::string, std::string>> &items, bool sizeCountsHeader)
{
    ByteWriter body;
    for (const auto &[key, value] : items)
        body.little(value.size(), 4).zeros(4).text(key).zeros(1).text(value);
    const uint64_t size = body.bytes.size() + (sizeCountsHeader ? 64 : 32);
    const auto block = [&](uint32_t flags) {
        return ByteWriter()
            .text("APETAGEX")
            .little(2000, 4)
            .little(size, 4)
            .little(items.size(), 4)
            .little(flags, 4)
            .zeros(8)
            .bytes;
    };
    return joined({block(0xA0000000U), body.bytes, block(0x80000000U)});
}

Bytes flacStreamInfo(uint32_t rateHz, uint32_t channels, uint32_t depthBits, uint64_t samples)
{
    const uint64_t packed =
        uint64_t(rateHz) << 44U | uint64_t(channels - 1) << 41U | uint64_t(depthBits - 1) << 36U | samples;
    return ByteWriter().big(4096, 2).big(4096, 2).zeros(6).big(packed, 8).zeros(16).bytes;
}

Bytes flacBytes(const std::vector<FlacPart> &parts, const Bytes &audio)
{
    ByteWriter out;
    out.text("fLaC");
    for (size_t i = 0; i < parts.size(); ++i) {
        const bool last = i + 1 == parts.size();
        out.big(static_cast<uint64_t>(parts[i].type | (last ? 0x80 : 0)), 1).big(parts[i].payload.size(), 3);
        out.append(parts[i].payload);
    }
    return out.append(audio).bytes;
}

Bytes wavOfChunks(const std::vector<Chunk> &list)
{
    return chunks("RIFF", "WAVE", list, true);
}

Bytes aiffOfChunks(const std::vector<Chunk> &list)
{
    return chunks("FORM", "AIFF", list, false);
}

Chunk wavFormat(int tag, uint32_t rateHz, int channels, int depthBits)
{
    const auto frameBytes = static_cast<uint64_t>(channels * depthBits / 8);
    return {"fmt ", ByteWriter()
                        .little(static_cast<uint64_t>(tag), 2)
                        .little(static_cast<uint64_t>(channels), 2)
                        .little(rateHz, 4)
                        .little(rateHz * frameBytes, 4)
                        .little(frameBytes, 2)
                        .little(static_cast<uint64_t>(depthBits), 2)
                        .bytes};
}

Chunk aiffCommon(int channels, uint32_t frames, int depthBits)
{
    // 48,000 Hz as an 80-bit number.
    return {"COMM", ByteWriter()
                        .big(static_cast<uint64_t>(channels), 2)
                        .big(frames, 4)
                        .big(static_cast<uint64_t>(depthBits), 2)
                        .big(0x400E, 2)
                        .big(0xBB80, 2)
                        .zeros(6)
                        .bytes};
}

Bytes oggPage(const Bytes &packet, uint32_t number, int flags)
{
    ByteWriter out;
    out.text("OggS")
        .zeros(1)
        .little(static_cast<uint64_t>(flags), 1)
        .little(number, 8)
        .little(1, 4)
        .little(number, 4)
        .zeros(4);
    const size_t full = packet.size() / 255;
    out.little(full + 1, 1);
    for (size_t i = 0; i < full; ++i)
        out.little(255, 1);
    return out.little(packet.size() % 255, 1).append(packet).bytes;
}

Bytes dsfWithTag(const Bytes &tag, const Bytes &audio)
{
    constexpr uint64_t headBytes = 28 + 52 + 12;
    const uint64_t pointer = headBytes + audio.size();
    ByteWriter out;
    out.text("DSD ").little(28, 8).little(pointer + tag.size(), 8).little(tag.empty() ? 0 : pointer, 8);
    out.text("fmt ")
        .little(52, 8)
        .little(1, 4)
        .zeros(4)
        .little(2, 4)
        .little(2, 4)
        .little(2822400, 4)
        .little(1, 4);
    out.little(audio.size() * 4, 8).little(4096, 4).zeros(4);
    out.text("data").little(12 + audio.size(), 8);
    return out.append(audio).append(tag).bytes;
}

Bytes taggedFile(const std::string &kind, const TagWords &words, const Bytes &audio)
{
    const std::vector<std::string> comments{"TITLE=" + words.title, "ARTIST=" + words.artist,
                                            "ALBUM=" + words.album};
    const Bytes id3 = id3Tag(4, {{"TIT2", id3Text(3, words.title)},
                                 {"TPE1", id3Text(3, words.artist)},
                                 {"TALB", id3Text(3, words.album)}});
    const Bytes ape =
        apeTag({{"Title", words.title}, {"Artist", words.artist}, {"Album", words.album}}, false);
    const FlacPart info{0, flacStreamInfo(44100, 2, 16, 1000000)};
    const FlacPart comment{4, vorbisPayload("maker", comments)};
    if (kind == "flac")
        return flacBytes({info, comment, {1, Bytes(4096)}}, audio);
    if (kind == "flac-cover")
        return flacBytes({info, {6, Bytes(40000, 0x55)}, comment, {1, Bytes(4096)}}, audio);
    if (kind == "wav")
        return wavOfChunks({wavFormat(1, 44100, 2, 16), {"data", audio}, {"ID3 ", id3}});
    if (kind == "wav-untagged")
        return wavOfChunks({wavFormat(1, 44100, 2, 16), {"data", audio}});
    if (kind == "aiff")
        return aiffOfChunks({aiffCommon(2, static_cast<uint32_t>(audio.size() / 4), 16),
                             {"NAME", textBytes(words.title)},
                             {"AUTH", textBytes(words.artist)},
                             {"SSND", joined({Bytes(8), audio})},
                             {"ID3 ", id3}});
    if (kind == "mp3")
        return joined({id3Tag(4, {{"TIT2", id3Text(3, words.title)},
                                  {"TPE1", id3Text(3, words.artist)},
                                  {"TALB", id3Text(3, words.album)},
                                  {"APIC", id3Text(3, "image/png") + std::string(12000, 'p')}}),
                       mp3Frames(audio)});
    if (kind == "dsf")
        return dsfWithTag(id3, audio);
    if (kind == "ape")
        return joined(
            {ByteWriter().text("MAC ").little(3990, 2).zeros(2).little(52, 4).little(24, 4).zeros(36).bytes,
             ByteWriter()
                 .little(2000, 2)
                 .zeros(2)
                 .little(73728, 4)
                 .little(100, 4)
                 .little(10, 4)
                 .little(16, 2)
                 .little(2, 2)
                 .little(44100, 4)
                 .bytes,
             audio, ape});
    if (kind == "wavpack")
        return joined({ByteWriter()
                           .text("wvpk")
                           .little(audio.size() + 24, 4)
                           .little(0x410, 2)
                           .zeros(2)
                           .little(1000000, 4)
                           .zeros(4)
                           .little(22050, 4)
                           .little(0x04800001, 4)
                           .zeros(4)
                           .bytes,
                       audio, ape});
    if (kind == "tta")
        return joined({ByteWriter()
                           .text("TTA1")
                           .little(1, 2)
                           .little(2, 2)
                           .little(16, 2)
                           .little(44100, 4)
                           .little(1000000, 4)
                           .zeros(4)
                           .bytes,
                       audio, ape});
    if (kind == "ogg")
        return oggFile(comments, audio);
    if (kind == "m4a")
        return m4aFile(words, audio);
    std::fprintf(stderr, "no such kind of file: %s\n", kind.c_str());
    std::abort();
}

} // namespace kelp_test
