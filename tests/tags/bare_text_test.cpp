#include "tests/tags/tags_support.h"

#include <gtest/gtest.h>

using namespace tags_test;

namespace {

AudioFileInfo infoOf(std::string_view text, const AudioFileInfo &before = {})
{
    return tagsIn(scanBareText, bytesOf(text), before);
}

} // namespace

TEST(BareText, KeysOfAnyCaseAndValuesUpToTheLinesEnd)
{
    const AudioFileInfo info = infoOf(
        std::string_view("..title=T 1\nArtist=A\rALBUM=B\0x Genre=G\nDATE=1999\ncomment=to the end", 67));
    EXPECT_EQ(info.title, "T 1");
    EXPECT_EQ(info.artist, "A");
    EXPECT_EQ(info.album, "B");
    EXPECT_EQ(info.genre, "G");
    EXPECT_EQ(info.date, "1999");
    EXPECT_EQ(info.comment, "to the end");
}

TEST(BareText, TheFirstHitCounts)
{
    EXPECT_EQ(infoOf("SUBTITLE=sub\nTITLE=T\n").title, "sub") << "the key is looked for anywhere";
    EXPECT_EQ(infoOf("TITLE=\nTITLE=T\n").title, "");
    EXPECT_EQ(infoOf("TITLE =T\n=x\n").title, "");
}

TEST(BareText, FilledFieldsStay)
{
    AudioFileInfo before;
    before.album = "kept";
    const AudioFileInfo info = infoOf("ALBUM=new\nGENRE=G\n", before);
    EXPECT_EQ(info.album, "kept");
    EXPECT_EQ(info.genre, "G");
}
