#include "tags/byte_scan.h"

#include "tests/tags/naive_scan.h"
#include "tests/tags/tags_support.h"

#include <gtest/gtest.h>

#include <random>

using namespace tags_test;

namespace {

constexpr uint64_t block = pairBlockPlaces;

/// Sizes around the ends of blocks, and some in between.
const std::vector<size_t> sizes{0,
                                1,
                                2,
                                3,
                                15,
                                16,
                                17,
                                block - 1,
                                block,
                                block + 1,
                                block + 2,
                                2 * block,
                                2 * block + 1,
                                3 * block + 7,
                                1000,
                                4096};

struct Texture
{
    const char *name;
    std::string_view letters; ///< the bytes are drawn from these; empty: from all
};

constexpr Texture textures[] = {{"any byte", ""},
                                {"silence", std::string_view("\0", 1)},
                                {"letters of the word", "ID3"},
                                {"nearly the word", "I3D\xC9"},
                                {"letters of a footer", "APETGX"},
                                {"letters of the keys", "TILEtile=ARSTarst"},
                                {"ends of keys", "EMTemt=\n"},
                                {"bytes like ends of keys", "DLU\\]|}=e"},
                                {"signs only", "="}};

Bytes drawn(const Texture &texture, size_t size, std::mt19937 &random)
{
    Bytes bytes(size);
    for (uint8_t &byte : bytes)
        byte = texture.letters.empty()
                   ? static_cast<uint8_t>(random())
                   : static_cast<uint8_t>(texture.letters[random() % texture.letters.size()]);
    return bytes;
}

void plant(Bytes &bytes, size_t place, std::string_view word)
{
    for (size_t i = 0; i < word.size() && place + i < bytes.size(); ++i)
        bytes[place + i] = static_cast<uint8_t>(word[i]);
}

std::string inAnyCase(std::string_view word, std::mt19937 &random)
{
    std::string mixed;
    for (const char c : word)
        mixed += random() % 2 ? asciiLower(c) : c;
    return mixed;
}

void expectSameFinds(const Bytes &bytes, std::string_view word, uint64_t from)
{
    const ByteView view(bytes);
    ASSERT_EQ(findWord(view, word, from), naiveFind(view.text(), word, from)) << word << " from " << from;
    ASSERT_EQ(findLastWord(view, word, from), naiveFindLast(view.text(), word, from))
        << word << " from " << from;
}

void expectSameBareText(const Bytes &bytes, const AudioFileInfo &before = {})
{
    AudioFileInfo plain = before;
    naiveBareText(ByteView(bytes).text(), plain);
    ASSERT_EQ(tagsIn(scanBareText, bytes, before), plain);
}

} // namespace

TEST(ByteScan, FindsAWordAtEveryPlaceOfEverySize)
{
    for (const size_t size : {size_t(3), size_t(20), size_t(block), size_t(block + 2), size_t(2 * block + 5)})
        for (size_t place = 0; place + 3 <= size; ++place) {
            Bytes bytes(size, 'I');
            plant(bytes, place, "ID3");
            ASSERT_EQ(findWord(ByteView(bytes), "ID3"), place) << size;
            ASSERT_EQ(findWord(ByteView(bytes), "ID3", place), place) << size;
            ASSERT_EQ(findWord(ByteView(bytes), "ID3", place + 1), std::nullopt) << size;
            ASSERT_EQ(findLastWord(ByteView(bytes), "ID3"), place) << size;
        }
}

TEST(ByteScan, AWordCutByTheEndIsNone)
{
    for (const size_t size : sizes)
        for (const size_t kept : {1U, 2U}) {
            Bytes bytes(size, 'x');
            if (size >= kept)
                plant(bytes, size - kept, "ID3");
            ASSERT_EQ(findWord(ByteView(bytes), "ID3"), std::nullopt) << size;
        }
    EXPECT_EQ(findWord(ByteView(), "ID3"), std::nullopt);
    EXPECT_EQ(findWord(ByteView(Bytes(9)), "ID3", UINT64_MAX), std::nullopt);
}

TEST(ByteScan, FindsWhatAPlainSearchFinds)
{
    std::mt19937 random(1);
    for (const Texture &texture : textures)
        for (const size_t size : sizes)
            for (int round = 0; round < 6; ++round) {
                SCOPED_TRACE(std::string(texture.name) + ", " + std::to_string(size) + " bytes");
                Bytes bytes = drawn(texture, size, random);
                for (int words = 0; size > 0 && words < round; ++words)
                    plant(bytes, random() % size, words % 2 ? "ID3" : "APETAGEX");
                for (const std::string_view word : {"ID3", "APETAGEX", "==", "II"})
                    for (const uint64_t from :
                         {uint64_t(0), uint64_t(1), uint64_t(size / 2), uint64_t(random() % (size + 2))})
                        ASSERT_NO_FATAL_FAILURE(expectSameFinds(bytes, word, from));
            }
}

TEST(ByteScan, OverlappingWordsCountEach)
{
    for (const size_t size : sizes) {
        const Bytes same(size, '=');
        ASSERT_NO_FATAL_FAILURE(expectSameFinds(same, "==", 0));
        ASSERT_NO_FATAL_FAILURE(expectSameFinds(same, "===", size / 3));
    }
}

TEST(ByteScan, PairsAreOfferedInOrderAndOnce)
{
    std::mt19937 random(2);
    constexpr BytePair pair{0xC6, 0x44, '='};
    for (const Texture &texture : textures)
        for (const size_t size : sizes) {
            const Bytes bytes = drawn(texture, size, random);
            std::vector<uint64_t> expected;
            for (size_t i = 0; i + 1 < size; ++i)
                if (pair.standsAt(bytes.data() + i))
                    expected.push_back(i);
            std::vector<uint64_t> offered;
            EXPECT_EQ(findPair(ByteView(bytes), 0, pair,
                               [&](uint64_t place) {
                                   offered.push_back(place);
                                   return false;
                               }),
                      std::nullopt);
            ASSERT_EQ(offered, expected) << texture.name << ", " << size << " bytes";
        }
}

TEST(ByteScan, NothingBehindTheBytesIsRead)
{
    for (const size_t size : sizes) {
        if (size < 2)
            continue;
        const Bytes bytes(size, 'x');
        Bytes more = bytes;
        more.insert(more.end(), {'I', 'D', '3'});
        more[size - 1] = 'I';
        more[size] = 'D';
        more[size + 1] = '3';
        ASSERT_EQ(findWord(ByteView(more).slice(0, size), "ID3"), std::nullopt) << size;
        ASSERT_EQ(findWord(ByteView(more).slice(0, size + 1), "ID3"), std::nullopt) << size;
        ASSERT_EQ(findWord(ByteView(more), "ID3"), size - 1) << size;
    }
}

TEST(BareText, FindsEachKeyAtEveryPlace)
{
    std::mt19937 random(3);
    for (const std::string_view key : {"TITLE=", "ARTIST=", "ALBUM=", "GENRE=", "DATE=", "COMMENT="})
        for (size_t place = 0; place < block + 20; ++place) {
            Bytes bytes(block + 24, '=');
            plant(bytes, place, inAnyCase(key, random) + "v\n");
            ASSERT_NO_FATAL_FAILURE(expectSameBareText(bytes)) << key << " at " << place;
        }
}

TEST(BareText, FindsWhatAPlainSearchFinds)
{
    constexpr std::string_view words[] = {"TITLE=",
                                          "ARTIST=",
                                          "ALBUM=",
                                          "GENRE=",
                                          "DATE=",
                                          "COMMENT=",
                                          "TITLE",
                                          "ARTISTS=",
                                          "DATE==",
                                          "TITITLE=",
                                          "\n",
                                          "\r",
                                          std::string_view("\0", 1)};
    std::mt19937 random(4);
    for (const Texture &texture : textures)
        for (const size_t size : sizes)
            for (int round = 0; round < 20; ++round) {
                SCOPED_TRACE(std::string(texture.name) + ", " + std::to_string(size) + " bytes");
                Bytes bytes = drawn(texture, size, random);
                for (int planted = 0; size > 0 && planted < round; ++planted)
                    plant(bytes, random() % size, inAnyCase(words[random() % std::size(words)], random));
                AudioFileInfo before;
                if (round % 3 == 1)
                    before.album = before.comment = "kept";
                ASSERT_NO_FATAL_FAILURE(expectSameBareText(bytes, before));
            }
}
