#include "tests/tags/tags_support.h"

#include <gtest/gtest.h>

using namespace tags_test;
using namespace std::string_literals;

namespace {

AudioFileInfo infoOf(const Bytes &bytes, const AudioFileInfo &before = {})
{
    return tagsIn(readId3, bytes, before);
}

std::string decoded(int encoding, const std::string &bytes)
{
    return decodeId3Text(ByteView(bytesOf(id3Text(encoding, bytes))));
}

/// A tag whose one frame has the four size bytes given and that many bytes as its text.
Bytes tagWithSize(int version, const Bytes &size, size_t length)
{
    const Bytes frame = joined({bytesOf("TIT2"), size, Bytes(2), Bytes{3}, Bytes(length - 1, 'x')});
    return joined({bytesOf("ID3"), Bytes{static_cast<uint8_t>(version), 0, 0},
                   kelp_test::syncSafeBytes(static_cast<uint32_t>(frame.size() + 400)), frame, Bytes(400)});
}

} // namespace

TEST(Id3Head, SizesOfVersion3ArePlainAndOfVersion4SyncSafe)
{
    const Bytes size{0, 0, 1, 0};
    EXPECT_EQ(infoOf(tagWithSize(3, size, 256)).title, std::string(255, 'x'));
    EXPECT_EQ(infoOf(tagWithSize(4, size, 128)).title, std::string(127, 'x'));
}

TEST(Id3Head, EveryFrameHasItsField)
{
    const AudioFileInfo info = infoOf(id3Tag(4, {{"TIT2", id3Text(3, "T")},
                                                 {"TPE1", id3Text(3, "A")},
                                                 {"TALB", id3Text(3, "B")},
                                                 {"TCON", id3Text(3, "G")},
                                                 {"TDRC", id3Text(3, "2001")},
                                                 {"TCOM", id3Text(3, "P")},
                                                 {"TIT1", id3Text(3, "W")},
                                                 {"MVNM", id3Text(3, "M")},
                                                 {"MVIN", id3Text(3, "2")},
                                                 {"XXXX", id3Text(3, "no")}}));
    EXPECT_EQ(info.title + info.artist + info.album + info.genre + info.date + info.composer + info.work +
                  info.movementName + info.movementNumber,
              "TABG2001PWM2");
}

TEST(Id3Head, ATrackOfTwelve)
{
    const AudioFileInfo info = infoOf(id3Tag(3, {{"TRCK", id3Text(0, "3/12")}}));
    EXPECT_EQ(info.track, 3);
    EXPECT_EQ(info.trackTotal, 12);
    EXPECT_EQ(infoOf(id3Tag(3, {{"TRCK", id3Text(0, "A")}})).track, 0);
}

TEST(Id3Head, ALaterFrameOverwritesAnEarlierOne)
{
    EXPECT_EQ(infoOf(id3Tag(4, {{"TDRC", id3Text(3, "2001")}, {"TYER", id3Text(3, "1999")}})).date, "1999");
}

TEST(Id3Head, TheCommentLosesItsLanguageAndKeepsItsDescription)
{
    EXPECT_EQ(infoOf(id3Tag(4, {{"COMM", id3Text(3, "engabout\0words")}})).comment, "about")
        << "a literal ends there";
    EXPECT_EQ(infoOf(id3Tag(4, {{"COMM", id3Text(3, std::string("eng\0words", 9))}})).comment,
              std::string("\0words", 6));
    EXPECT_EQ(infoOf(id3Tag(4, {{"COMM", id3Text(3, "engab")}})).comment, "ab");
    EXPECT_EQ(infoOf(id3Tag(4, {{"COMM", id3Text(3, "enga")}})).comment, "") << "too short";
    EXPECT_EQ(infoOf(id3Tag(4, {{"COMM", id3Text(3, std::string("e\0\0\0\0\0", 6))}})).comment, "");
}

TEST(Id3Head, Latin1ReachesTheScreenUndecoded)
{
    EXPECT_EQ(decoded(0, "Caf\xE9"), "Caf\xE9");
    EXPECT_EQ(decoded(3, std::string("Caf\xC3\xA9\0\0", 7)), "Caf\xC3\xA9") << "trailing NUL bytes go";
    EXPECT_EQ(decoded(3, std::string("a\0b\0", 4)), std::string("a\0b", 3));
}

TEST(Id3Head, Utf16OfEitherOrder)
{
    EXPECT_EQ(decoded(1, std::string("\xFF\xFE\x41\0\xE9\0", 6)), "A\xC3\xA9");
    EXPECT_EQ(decoded(1, std::string("\xFE\xFF\0\x41\x97\xF3", 6)), "A音");
    EXPECT_EQ(decoded(1, std::string("\x41\0", 2)), "A") << "without a mark encoding 1 is little-endian";
    EXPECT_EQ(decoded(2, std::string("\0\x41", 2)), "A");
    EXPECT_EQ(decoded(9, std::string("\0\x41", 2)), "A") << "and all others big-endian";
    EXPECT_EQ(decoded(2, std::string("\xFF\xFE\x41\0", 4)), "A") << "a mark counts in every encoding";
}

TEST(Id3Head, Utf16EndsAtAZeroUnitOrTheLastWholeOne)
{
    EXPECT_EQ(decoded(1, std::string("A\0\0\0B\0", 6)), "A");
    EXPECT_EQ(decoded(1, std::string("A\0B", 3)), "A");
    EXPECT_EQ(decoded(1, ""), "");
}

TEST(Id3Head, AnEmojiInUtf16BecomesTwoThreeByteSequences)
{
    EXPECT_EQ(decoded(1, "\xFF\xFE\x3D\xD8\x00\xDE"s), "\xED\xA0\xBD\xED\xB8\x80");
}

TEST(Id3Head, TheTagMayBeginAnywhere)
{
    const Bytes tag = id3Tag(4, {{"TIT2", id3Text(3, "T")}});
    EXPECT_EQ(infoOf(joined({Bytes(5000, 7), tag})).title, "T");
    EXPECT_EQ(infoOf(joined({bytesOf("ID3"), Bytes(20), tag})).title, "") << "the first one counts";
}

TEST(Id3Head, TooFewBytesAreNoTag)
{
    for (size_t length = 0; length <= 20; ++length) {
        Bytes bytes = joined({bytesOf("ID3"), Bytes{4, 0, 0, 0, 0, 0, 100}, Bytes(10)});
        bytes.resize(length);
        EXPECT_EQ(infoOf(bytes), AudioFileInfo()) << length;
    }
}

TEST(Id3Head, ASizeOfNoughtOrAboveTheTagEndsTheParse)
{
    const Bytes good = joined({bytesOf("TIT2"), Bytes{0, 0, 0, 2, 0, 0, 3, 'T'}});
    const auto behind = [&](const Bytes &bad) {
        const Bytes frames = joined({bad, good});
        return infoOf(joined({bytesOf("ID3"), Bytes{4, 0, 0},
                              kelp_test::syncSafeBytes(static_cast<uint32_t>(frames.size())), frames}))
            .title;
    };
    EXPECT_EQ(behind(joined({bytesOf("TPE1"), Bytes(6)})), "");
    EXPECT_EQ(behind(joined({bytesOf("TPE1"), Bytes{0, 0, 1, 0, 0, 0}})), "");
    EXPECT_EQ(behind(joined({bytesOf("TPE1"), Bytes{0, 0, 0, 1, 0, 0, 3}})), "T") << "a size of 1 is skipped";
}

TEST(Id3Head, AFrameMayPassTheTagsEndButNotTheBytes)
{
    Bytes tag = id3Tag(4, {{"TPE1", id3Text(3, "A")}, {"TIT2", id3Text(3, "Title")}});
    tag[9] = static_cast<uint8_t>(tag[9] - 3);
    EXPECT_EQ(infoOf(tag).title, "Title");
    tag.pop_back();
    EXPECT_EQ(infoOf(tag).title, "");
    EXPECT_EQ(infoOf(tag).artist, "A");
}

TEST(Id3Head, FramesOfVersion2DoNotMatch)
{
    const Bytes frame = joined({bytesOf("TT2"), Bytes{0, 0, 2, 3, 'T'}, Bytes(20)});
    EXPECT_EQ(infoOf(joined({bytesOf("ID3"), Bytes{2, 0, 0, 0, 0, 0, 28}, frame})), AudioFileInfo());
}
