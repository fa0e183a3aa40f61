#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace kelp_test {

using Bytes = std::vector<uint8_t>;

// ── tags ──

/// The payload of a Vorbis comment; entries are "KEY=value", or whatever a damaged file may hold.
Bytes vorbisPayload(const std::string &vendor, const std::vector<std::string> &entries);

/// An ID3v2 frame's payload: the encoding and the bytes behind it.
std::string id3Text(int encoding, const std::string &bytes);
/// An ID3v2 tag of frames with payloads as they are, without padding.
Bytes id3Tag(int version, const std::vector<std::pair<std::string, std::string>> &frames);
/// Four bytes of seven bits.
Bytes syncSafeBytes(uint32_t value);

/// An APEv2 tag with header and footer. By the format's own rule its size leaves out the header.
Bytes apeTag(const std::vector<std::pair<std::string, std::string>> &items, bool sizeCountsHeader = true);

// ── containers ──

struct FlacPart
{
    int type = 0;
    Bytes payload;
};
/// 34 bytes of STREAMINFO.
Bytes flacStreamInfo(uint32_t rateHz, uint32_t channels, uint32_t depthBits, uint64_t samples);
Bytes flacBytes(const std::vector<FlacPart> &parts, const Bytes &audio = {});

struct Chunk
{
    std::string id;
    Bytes payload;
};
/// "RIFF" … "WAVE" with little-endian sizes.
Bytes wavOfChunks(const std::vector<Chunk> &chunks);
/// "FORM" … "AIFF" with big-endian sizes.
Bytes aiffOfChunks(const std::vector<Chunk> &chunks);
/// A format chunk of 16 bytes.
Chunk wavFormat(int tag, uint32_t rateHz, int channels, int depthBits);
Chunk aiffCommon(int channels, uint32_t frames, int depthBits);

/// An Ogg page with one packet, its check sum left at zero.
Bytes oggPage(const Bytes &packet, uint32_t number, int flags);

/// A DSF file: header, format and data chunks, and a tag at its end with the pointer to it.
Bytes dsfWithTag(const Bytes &tag, const Bytes &audio);

// ── whole files ──

struct TagWords
{
    std::string title;
    std::string artist;
    std::string album;
};

/// "flac", "flac-cover" (a picture of 40 KB before the comment), "wav", "wav-untagged", "aiff", "mp3", "dsf",
/// "ape", "wavpack", "tta", "ogg" or "m4a": a file that tag readers understand, its tags where programs
/// commonly put them, around audio bytes that nothing decodes.
Bytes taggedFile(const std::string &kind, const TagWords &words, const Bytes &audio);

} // namespace kelp_test
