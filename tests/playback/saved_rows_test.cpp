#include "playback/saved_rows.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const PlaylistEntry sheetRow{u"03. Lied — Wer"_s, u"/m/a.flac"_s, u"/m/a.cue"_s, {}, 3, 1. / 3., 200.25};

} // namespace

TEST(SavedRows, SevenFieldsJoinedByTheUnitSeparator)
{
    EXPECT_EQ(savedRow(sheetRow), u"03. Lied — Wer\u001f/m/a.flac\u001f/m/a.cue\u001f3\u001f"
                                  "0.33333333333333331\u001f200.25\u001f"_s);
    PlaylistEntry plain;
    plain.text = u"a.flac"_s;
    plain.path = u"/m/a.flac"_s;
    EXPECT_EQ(savedRow(plain), u"a.flac\u001f/m/a.flac\u001f\u001f0\u001f0\u001f0\u001f"_s);
    EXPECT_EQ(savedFileRow(plain.text, plain.path), savedRow(plain));
}

TEST(SavedRows, ARowComesBackAsItWas)
{
    PlaylistEntry image{u"01. x"_s, u"/m/d.iso"_s, {}, u"/m/d.iso"_s, 1, 0.1, 1e-300};
    for (const PlaylistEntry &entry : {sheetRow, image}) {
        const std::optional<PlaylistEntry> back = parseSavedRow(savedRow(entry));
        ASSERT_TRUE(back);
        EXPECT_EQ(back->text, entry.text);
        EXPECT_EQ(rowKey(*back), rowKey(entry));
        EXPECT_EQ(back->startSec, entry.startSec);
        EXPECT_EQ(back->endSec, entry.endSec);
    }
}

TEST(SavedRows, SixFieldsAreNoRow)
{
    EXPECT_FALSE(parseSavedRow(u"a\u001f/a\u001f\u001f0\u001f0\u001f0"_s));
    EXPECT_FALSE(parseSavedRow(u""_s));
    EXPECT_TRUE(parseSavedRow(u"a\u001f/a\u001f\u001f0\u001f0\u001f0\u001f\u001feighth"_s))
        << "at least seven";
}

TEST(SavedRows, ARowNeedsAPath)
{
    EXPECT_FALSE(parseSavedRow(u"a\u001f\u001f\u001f0\u001f0\u001f0\u001f"_s));
}

TEST(SavedRows, ARowWithoutATextTakesTheFilesName)
{
    EXPECT_EQ(parseSavedRow(u"\u001f/m/a.flac\u001f\u001f0\u001f0\u001f0\u001f"_s)->text, u"a.flac"_s);
}

TEST(SavedRows, FieldsThatAreNoNumbersCountAsZero)
{
    const std::optional<PlaylistEntry> entry =
        parseSavedRow(u"a\u001f/a\u001f\u001fx\u001fnan\u001f1e999\u001f"_s);
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->track, 0);
    EXPECT_EQ(entry->startSec, 0.);
    EXPECT_EQ(entry->endSec, 0.);
}

TEST(SavedRows, TheStoredRowIsKeptInsideTheList)
{
    EXPECT_EQ(restoredCurrentRow(9, 3), 2);
    EXPECT_EQ(restoredCurrentRow(-5, 3), 0);
    EXPECT_EQ(restoredCurrentRow(1, 3), 1);
    EXPECT_EQ(restoredCurrentRow(0, 1), 0);
}
