// A small file of every form, made by hand, with all that is read of its header.
#include "tags/audio_file_info.h"

#include "tests/tags/tags_support.h"

#include <gtest/gtest.h>

using namespace tags_test;

namespace {

AudioFileInfo facts(const char *format, uint32_t rateHz, uint32_t bits, uint32_t channels, uint64_t samples,
                    uint32_t dataOffset)
{
    AudioFileInfo info;
    info.format = format;
    info.sampleRate = rateHz;
    info.bitsPerSample = bits;
    info.channels = channels;
    info.totalSamples = samples;
    info.dataOffset = dataOffset;
    return info;
}

Bytes oldApe(uint64_t flags)
{
    return ByteWriter()
        .text("MAC ")
        .little(3970, 2)
        .zeros(2)
        .little(flags, 2)
        .little(1, 2)
        .little(48000, 4)
        .little(44, 4)
        .zeros(4)
        .little(3, 4)
        .little(7, 4)
        .bytes;
}

/// The descriptor's size and the header's.
Bytes newApe(uint64_t descriptor, uint64_t header, uint64_t frames)
{
    return ByteWriter()
        .text("MAC ")
        .little(3980, 2)
        .zeros(2)
        .little(descriptor, 4)
        .little(header, 4)
        .little(100, 4)
        .little(20, 4)
        .zeros(52 - 24)
        .little(2000, 2)
        .zeros(2)
        .little(73728, 4)
        .little(10, 4)
        .little(frames, 4)
        .little(24, 2)
        .little(2, 2)
        .little(96000, 4)
        .bytes;
}

Bytes wavPack(uint64_t flags)
{
    return ByteWriter().text("wvpk").zeros(8).little(1234, 4).zeros(8).little(flags, 4).zeros(4).bytes;
}

Bytes tta(uint64_t rateHz)
{
    return ByteWriter()
        .text("TTA1")
        .little(1, 2)
        .little(2, 2)
        .little(24, 2)
        .little(rateHz, 4)
        .little(777, 4)
        .zeros(4)
        .bytes;
}

Bytes mp3(uint64_t frameHeader)
{
    return joined(
        {id3Tag(4, {{"TPE1", id3Text(3, "A")}}), Bytes(5), ByteWriter().big(frameHeader, 4).zeros(8).bytes});
}

Bytes flacInfo(size_t claimed)
{
    Bytes bytes = kelp_test::flacBytes({{0, kelp_test::flacStreamInfo(96000, 6, 24, 0xABCDEF123ULL)}});
    bytes[7] = static_cast<uint8_t>(claimed);
    return bytes;
}

struct Case
{
    const char *name;
    Bytes bytes;
    bool understood;
    AudioFileInfo expected; ///< texts and the size of the data are not compared
};

std::vector<Case> cases()
{
    Bytes typedFlac = flacInfo(34);
    typedFlac[4] = 0x81;
    Bytes shortFlac = flacInfo(34);
    shortFlac.pop_back();
    const Bytes vorbisId =
        ByteWriter().text("\x01vorbis").zeros(4).little(6, 1).little(48000, 4).zeros(14).bytes;
    return {
        {"flac", flacInfo(34), true, facts("FLAC", 96000, 24, 6, 0xABCDEF123ULL, 0)},
        {"flac, STREAMINFO of 18 bytes", flacInfo(18), true, facts("FLAC", 96000, 24, 6, 0xABCDEF123ULL, 0)},
        {"flac, STREAMINFO too short", flacInfo(17), false, facts("FLAC", 0, 0, 0, 0, 0)},
        {"flac, STREAMINFO past the end", flacInfo(35), false, facts("FLAC", 0, 0, 0, 0, 0)},
        {"flac, another block first", typedFlac, false, facts("FLAC", 0, 0, 0, 0, 0)},
        {"flac of 41 bytes", shortFlac, false, facts("Unknown", 0, 0, 0, 0, 0)},
        {"old ape", oldApe(0), true, facts("APE", 48000, 16, 1, 3 * 73728 + 7, 76)},
        {"old ape, 8 bit", oldApe(1), true, facts("APE", 48000, 8, 1, 3 * 73728 + 7, 76)},
        {"old ape, 24 bit, seek elements", oldApe(8 | 1 | 16), true,
         facts("APE", 48000, 24, 1, 3 * 73728 + 7, 80)},
        {"new ape", newApe(52, 24, 3), true, facts("APE", 96000, 24, 2, 2 * 73728 + 10, 52 + 24 + 120)},
        {"new ape, one frame", newApe(52, 24, 1), true, facts("APE", 96000, 24, 2, 10, 52 + 24 + 120)},
        {"new ape, header too short", newApe(52, 23, 3), false, facts("APE", 0, 0, 0, 0, 0)},
        {"new ape, descriptor past the end", newApe(53, 24, 3), false, facts("APE", 0, 0, 0, 0, 0)},
        {"wavpack", wavPack(0x04800001), true, facts("WavPack", 44100, 16, 2, 1234, 32)},
        {"wavpack, mono, 20 of 24 bits", wavPack(13ULL << 23 | 4ULL << 13 | 4 | 2), true,
         facts("WavPack", 96000, 20, 1, 1234, 32)},
        {"wavpack, rate not in the table", wavPack(15ULL << 23 | 1), true,
         facts("WavPack", 44100, 16, 2, 1234, 32)},
        {"wavpack, more bits unused than stored", wavPack(31ULL << 13), true,
         facts("WavPack", 6000, 0, 2, 1234, 32)},
        {"tta", tta(88200), true, facts("TTA", 88200, 24, 2, 777, 22)},
        {"tta without a rate", tta(0), false, facts("TTA", 0, 24, 2, 777, 22)},
        {"ogg", joined({kelp_test::oggPage(Bytes(20, 9), 0, 2), kelp_test::oggPage(vorbisId, 1, 0)}), true,
         facts("OGG", 48000, 16, 6, 0, 0)},
        {"ogg, another codec", kelp_test::oggPage(bytesOf("OpusHead........"), 0, 2), false,
         facts("OGG", 0, 16, 0, 0, 0)},
        {"m4a", joined({Bytes{0, 0, 0, 16}, bytesOf("ftypM4A "), Bytes(8)}), false,
         facts("M4A", 0, 0, 0, 0, 0)},
        {"m4a, at the front", joined({bytesOf("ftypM4A "), Bytes(8)}), false, facts("M4A", 0, 0, 0, 0, 0)},
        {"dsf without a tag", kelp_test::dsfWithTag({}, Bytes(64)), true, facts("DSF", 0, 1, 0, 0, 0)},
        {"dsf of 27 bytes", joined({bytesOf("DSD "), Bytes(23)}), false, facts("Unknown", 0, 0, 0, 0, 0)},
        {"dff", joined({bytesOf("FRM8"), Bytes(40)}), false, facts("DFF", 0, 1, 0, 0, 0)},
        {"mp3, 44.1 kHz", mp3(0xFFFB9064), true, facts("MP3", 44100, 16, 2, 0, 0)},
        {"mp3, 48 kHz, mono", mp3(0xFFFB94C4), true, facts("MP3", 48000, 16, 1, 0, 0)},
        {"mp3, 32 kHz", mp3(0xFFFB9864), true, facts("MP3", 32000, 16, 2, 0, 0)},
        {"mp3, MPEG-2", mp3(0xFFF39064), false, facts("MP3", 0, 16, 2, 0, 0)},
        {"mp3 without a frame", mp3(0), false, facts("MP3", 0, 16, 0, 0, 0)},
        {"none of them", Bytes(64, 'q'), false, facts("Unknown", 0, 0, 0, 0, 0)},
        {"mp3 without a tag", joined({Bytes{0xFF, 0xFB, 0x90, 0x64}, Bytes(60)}), false,
         facts("Unknown", 0, 0, 0, 0, 0)},
        {"RIFF that is no WAVE", joined({bytesOf("RIFF....AVI "), Bytes(20)}), false,
         facts("Unknown", 0, 0, 0, 0, 0)},
    };
}

} // namespace

TEST(FileInfoTable, EveryFormOfHeader)
{
    for (const Case &c : cases()) {
        const Read read = readFileOf(c.bytes);
        const AudioFileInfo &info = read.info;
        EXPECT_EQ(read.understood, c.understood) << c.name;
        EXPECT_EQ(info.format, c.expected.format) << c.name;
        EXPECT_EQ(info.sampleRate, c.expected.sampleRate) << c.name;
        EXPECT_EQ(info.bitsPerSample, c.expected.bitsPerSample) << c.name;
        EXPECT_EQ(info.channels, c.expected.channels) << c.name;
        EXPECT_EQ(info.totalSamples, c.expected.totalSamples) << c.name;
        EXPECT_EQ(info.dataOffset, c.expected.dataOffset) << c.name;
        EXPECT_EQ(info.dataSize, c.bytes.size()) << c.name;
    }
}

TEST(FileInfoTable, TheNumbersOfADsfFileAreThoseOfItsPointer)
{
    const Bytes audio(0x1234 - 92);
    const Bytes dsf = kelp_test::dsfWithTag(id3Tag(4, {{"TIT2", id3Text(3, "T")}}), audio);
    const Read read = readFileOf(dsf);
    EXPECT_TRUE(read.understood);
    EXPECT_EQ(read.info.channels, 0x1234U & 0x3FFU);
    EXPECT_EQ(read.info.sampleRate, 0U) << "the pointer's upper half";
    EXPECT_EQ(read.info.title, "T");
}

TEST(FileInfoTable, TagsWhereProgramsPutThem)
{
    struct Found
    {
        const char *kind;
        const char *title;
    };
    // At the end of a long file only an ID3v2 tag is found, and not behind the word "ID3 " of a WAV chunk,
    // which is taken for the tag. The formats' other tags are for the exact readers.
    const Found kinds[] = {{"flac", "Title"}, {"flac-cover", "Title"}, {"wav", ""},
                           {"aiff", "Title"}, {"mp3", "Title"},        {"dsf", "Title"},
                           {"ape", ""},       {"wavpack", ""},         {"tta", ""},
                           {"m4a", ""}};
    for (const Found &kind : kinds)
        EXPECT_EQ(
            readFileOf(kelp_test::taggedFile(kind.kind, {"Title", "Artist", "Album"}, Bytes(150000, 0x69)))
                .info.title,
            kind.title)
            << kind.kind;
}
