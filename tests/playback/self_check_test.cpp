#include "playback/self_check_statements.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

VerifyItem item(const QString &name, bool passed, const QString &explanation = u"because"_s)
{
    return {name, explanation, passed};
}

TEST(VerifyLines, AVerdict)
{
    const auto line = parseVerifyLine(u"verify: verdict BITPERFECT=1 | all 16 stages | more"_s);
    ASSERT_TRUE(line && line->verdict);
    EXPECT_FALSE(line->item);
    EXPECT_TRUE(line->verdict->passed);
    EXPECT_EQ(line->verdict->line, u"BITPERFECT=1 | all 16 stages | more"_s);
    EXPECT_EQ(line->verdict->firstSection, u"BITPERFECT=1"_s);
    EXPECT_EQ(line->verdict->reason(), u"all 16 stages | more"_s);
    const auto lost = parseVerifyLine(u"verify: verdict BITPERFECT=0"_s);
    EXPECT_FALSE(lost->verdict->passed);
    EXPECT_EQ(lost->verdict->firstSection, u"BITPERFECT=0"_s);
    EXPECT_TRUE(lost->verdict->reason().isEmpty());
}

TEST(VerifyLines, Items)
{
    EXPECT_EQ(*parseVerifyLine(u"verify: volume ok -- unity FAIL -- x"_s)->item,
              (VerifyItem{u"volume"_s, u"unity FAIL -- x"_s, true}));
    EXPECT_EQ(*parseVerifyLine(u"verify: OS mixer FAIL -- a mixer -- shared"_s)->item,
              (VerifyItem{u"OS mixer"_s, u"a mixer -- shared"_s, false}));
    EXPECT_EQ(*parseVerifyLine(u"verify: just words"_s)->item, (VerifyItem{u"just words"_s, {}, false}));
    EXPECT_EQ(*parseVerifyLine(u"verify: verdictless ok -- x"_s)->item,
              (VerifyItem{u"verdictless"_s, u"x"_s, true}));
    EXPECT_TRUE(parseVerifyLine(u"verify: "_s)->item);
    EXPECT_FALSE(parseVerifyLine(u"verify"_s));
    EXPECT_FALSE(parseVerifyLine(u"[x] verify: a ok -- b"_s));
}

TEST(VerifyLines, WhatIsNotKnownIsNoPassAndNoProofOfTheContrary)
{
    const VerifyItem unknown = *parseVerifyLine(u"verify: delivery FAIL -- not known: no record"_s)->item;
    EXPECT_TRUE(unknown.notKnown());
    EXPECT_FALSE(unknown.passed);
    EXPECT_FALSE(item(u"x"_s, true, u"not known: x"_s).notKnown());
}

TEST(SelfCheck, ThreeStatementsAreNeverMerged)
{
    const QList<VerifyItem> items = {item(u"source"_s, true), item(u"volume"_s, false, u"scaled"_s),
                                     item(u"delivery"_s, false, u"not known: no record"_s)};
    const auto statements = checkStatements(items, true);
    EXPECT_EQ(statements[0].mark, CheckMark::Proved);
    EXPECT_EQ(statements[1].mark, CheckMark::Disproved);
    EXPECT_EQ(statements[2].mark, CheckMark::NotProvable);
    EXPECT_EQ(statements[0].evidence, u"because"_s);
    EXPECT_EQ(statements[1].evidence, u"volume: scaled"_s);
    EXPECT_EQ(statements[2].evidence, u"delivery: not known: no record"_s);
    EXPECT_NE(statements[0].head, statements[1].head);
}

TEST(SelfCheck, TheMarkOfATopic)
{
    struct Case
    {
        const char *name;
        QList<VerifyItem> items;
        bool finished;
        CheckMark path;
    };
    const Case cases[] = {
        {"nothing yet", {}, false, CheckMark::Pending},
        {"nothing at all", {}, true, CheckMark::NotProvable},
        {"half way", {item(u"volume"_s, true)}, false, CheckMark::Pending},
        {"passed", {item(u"volume"_s, true), item(u"speed"_s, true)}, true, CheckMark::Proved},
        {"broken half way", {item(u"volume"_s, false)}, false, CheckMark::Disproved},
        {"broken beats unknown",
         {item(u"a"_s, false, u"not known: x"_s), item(u"b"_s, false)},
         true,
         CheckMark::Disproved},
        {"unknown beats passed",
         {item(u"a"_s, true), item(u"b"_s, false, u"not known: x"_s)},
         true,
         CheckMark::NotProvable},
    };
    for (const Case &c : cases)
        EXPECT_EQ(checkStatements(c.items, c.finished)[1].mark, c.path) << c.name;
}

TEST(SelfCheck, AStageThatIsNotKnownByNameBelongsToThePath)
{
    EXPECT_EQ(checkTopicOf(item(u"source decoding"_s, true)), CheckTopic::Source);
    EXPECT_EQ(checkTopicOf(item(u"mixer"_s, true)), CheckTopic::Delivery);
    EXPECT_EQ(checkTopicOf(item(u"underruns"_s, true)), CheckTopic::Delivery);
    EXPECT_EQ(checkTopicOf(item(u"flux capacitor"_s, true)), CheckTopic::Path);
}

TEST(SelfCheck, TheFirstStageThatBrokeItIsNamedInOneSentence)
{
    const QList<VerifyItem> items = {item(u"source"_s, true), item(u"delivery"_s, false, u"not known: y"_s),
                                     item(u"volume"_s, false, u"scaled"_s), item(u"mixer"_s, false)};
    EXPECT_TRUE(firstBreakSentence(items).contains(u"volume: scaled"_s));
    EXPECT_TRUE(firstBreakSentence(items.first(2)).contains(u"delivery: not known: y"_s));
    EXPECT_TRUE(firstBreakSentence(items.first(1)).isEmpty());
}

} // namespace
