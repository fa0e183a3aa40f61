// The questions on files, asked as a host asks them.

#include "player_core/probe/probe_table.h"

#include "tests/support/byte_writer.h"
#include "tests/support/sacd_maker.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

namespace {

using namespace kelp_test;
using kelp_core::answerProbe;

TEST(ProbeTable, ListsAnImage)
{
    TempDir dir;
    writeFile(dir.file("a.iso"), makeSacd({.areas = {plainArea(SacdForm::plain14, 2, 75)}}).bytes);
    const auto answer = answerProbe({"-iso-list", dir.file("a.iso")});
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->code, 0);
    EXPECT_EQ(answer->text, "ISO\tAlbum\t2\nTRACK\t1\t0.000000\t1.000000\tTrack 1\n"
                            "TRACK\t2\t1.000000\t2.000000\tTrack 2\n");
}

TEST(ProbeTable, AQuestionWithoutItsFileIsTwo)
{
    for (const char *flag : {"-iso-list", "-cue-list", "-analyze", "-cover"}) {
        const auto answer = answerProbe({flag});
        ASSERT_TRUE(answer) << flag;
        EXPECT_EQ(answer->code, 2) << flag;
        EXPECT_EQ(answer->text.rfind(std::string(flag) + " needs the path of ", 0), 0U) << answer->text;
    }
}

TEST(ProbeTable, WhatIsNoImageIsOne)
{
    TempDir dir;
    writeFile(dir.file("a.iso"), "hello");
    const auto answer = answerProbe({"-iso-list", dir.file("a.iso")});
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->code, 1);
    EXPECT_EQ(answer->text, "this is not an SACD image\n");
}

} // namespace
