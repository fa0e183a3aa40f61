#include "playback/container_overlay.h"
#include "playback/row_properties.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const OverlayInput untagged{u"/m/a.cue"_s, 3, u"03. Lied — Wer"_s, {}, {}};

OverlayInput tagged(const ContainerTrackTags &tags)
{
    OverlayInput input = untagged;
    input.stored = tags;
    return input;
}

} // namespace

TEST(ContainerOverlay, WithoutAContainerOrATrackTheRowStays)
{
    OverlayInput input = untagged;
    input.track = 0;
    EXPECT_FALSE(overlayContainerRow(input));
    input = untagged;
    input.container.clear();
    EXPECT_FALSE(overlayContainerRow(input));
}

TEST(ContainerOverlay, AnUntaggedRowKeepsItsText)
{
    const auto row = overlayContainerRow(untagged);
    ASSERT_TRUE(row);
    EXPECT_EQ(row->text, u"03. Lied — Wer"_s);
    EXPECT_EQ(row->toolTip, u"/m/a.cue\n轨 3\n(标签来自容器自带的信息; 本地库里没有额外的标签)"_s);
}

TEST(ContainerOverlay, StoredTagsTakeTheRow)
{
    const auto row = overlayContainerRow(tagged({u"Aria"_s, u"Elsbeth"_s, u"Album"_s, u"1964"_s}));
    EXPECT_EQ(row->text, u"Aria — Elsbeth"_s);
    EXPECT_EQ(row->toolTip,
              u"/m/a.cue\n轨 3\n专辑: Album\n年份: 1964\n(标签来自本地库 —— 没有往 ISO/CUE 里写任何东西)"_s);
}

TEST(ContainerOverlay, AnEmptyFieldFallsBackAndAnUnsetLineIsLeftOut)
{
    OverlayInput input = tagged({{}, u"Elsbeth"_s, {}, {}});
    const auto row = overlayContainerRow(input);
    EXPECT_EQ(row->text, u"03. Lied — Wer — Elsbeth"_s);
    EXPECT_EQ(row->toolTip.count(u'\n'), 2);
    input.fallbackPerformer = u"Fallback"_s;
    input.stored->performer.clear();
    EXPECT_EQ(overlayContainerRow(input)->text, u"03. Lied — Wer — Fallback"_s);
}

TEST(ContainerOverlay, APerformerThatTheTitleNamesIsNotSaidTwice)
{
    EXPECT_EQ(overlayContainerRow(tagged({u"Lied (Wer)"_s, u"Wer"_s, {}, {}}))->text, u"Lied (Wer)"_s);
    EXPECT_EQ(overlayContainerRow(tagged({u"Lied (wer)"_s, u"Wer"_s, {}, {}}))->text, u"Lied (wer) — Wer"_s)
        << "the case of letters counts";
}

TEST(RowProperties, APlainFile)
{
    PlaylistEntry entry;
    entry.text = u"a.flac"_s;
    entry.path = u"/m/a.flac"_s;
    EXPECT_EQ(rowProperties(entry, 1, 7),
              u"显示: a.flac\n位置: 第 2/7 项\n类型: 音频文件\n格式: FLAC\n文件: /m/a.flac"_s);
}

TEST(RowProperties, ATrackOfASheetNamesTheSheetAndItsTimes)
{
    const PlaylistEntry entry{u"03. %1"_s, u"/m/a.wav"_s, u"/m/a.cue"_s, {}, 3, 60.5, 100};
    const QString text = rowProperties(entry, 0, 1);
    EXPECT_TRUE(text.contains(u"显示: 03. %1\n"_s));
    EXPECT_TRUE(text.contains(u"第 3 轨"_s));
    EXPECT_TRUE(text.contains(u"CUE 表: /m/a.cue"_s));
    EXPECT_TRUE(text.endsWith(u"时间: 60.5 s → 100 s (长 39.5 s)"_s));
}

TEST(RowProperties, TheFormatIsTheSuffixCutToFive)
{
    EXPECT_EQ(formatTag(u"/m/a.flac"), u"FLAC"_s);
    EXPECT_EQ(formatTag(u"/m/a.longer1"), u"LONGE"_s);
    EXPECT_EQ(formatTag(u"/m.x/a"), u""_s);
    EXPECT_EQ(formatTag(u""), u""_s);
}
