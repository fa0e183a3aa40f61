#include "app/debug_hooks.h"

#include <QHash>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

HookPlan planFor(const QHash<QString, QString> &variables)
{
    return parseHooks([&](const char *name) -> std::optional<QString> {
        const auto found = variables.constFind(QString::fromLatin1(name));
        return found == variables.cend() ? std::nullopt : std::optional(*found);
    });
}

} // namespace

TEST(DebugHooks, NothingSetArmsNothing)
{
    const HookPlan plan = planFor({});
    EXPECT_FALSE(plan.autoplay || plan.jumpAt || plan.nextEvery || plan.moveRow);
    EXPECT_FALSE(plan.rigDump || plan.autoClose || plan.smoke || plan.endsProgram());
    EXPECT_EQ(plan.nextAfterSec + plan.quitAfterSec + plan.stopAfterSec + plan.autostopMs, 0.);
}

TEST(DebugHooks, AutoplayTakesADevice)
{
    EXPECT_EQ(planFor({{u"KELP_GUI_AUTOPLAY"_s, u"/a"_s}}).autoplay, (HookPlan::Autoplay{u"/a"_s, {}}));
    EXPECT_EQ(planFor({{u"KELP_GUI_AUTOPLAY"_s, u"/a"_s}, {u"KELP_GUI_DEV"_s, u"hw:1"_s}}).autoplay,
              (HookPlan::Autoplay{u"/a"_s, u"hw:1"_s}));
    EXPECT_FALSE(planFor({{u"KELP_GUI_AUTOPLAY"_s, {}}}).autoplay);
}

TEST(DebugHooks, ACheckHasItsTime)
{
    EXPECT_EQ(planFor({{u"KELP_GUI_CHECK_AFTER"_s, u"1.5"_s}}).checkAfterSec, 1.5);
    EXPECT_EQ(planFor({{u"KELP_GUI_CHECK_AFTER"_s, u"soon"_s}}).checkAfterSec, 0.);
}

TEST(DebugHooks, AJumpNeedsExactlyTwoParts)
{
    EXPECT_EQ(planFor({{u"KELP_GUI_JUMP_AT"_s, u"3:7"_s}}).jumpAt, (HookPlan::JumpAt{3., 7}));
    for (const QString &bad : {u"3"_s, u"3:7:1"_s, u"a:1"_s, u"1:b"_s, u""_s, u"-1:2"_s})
        EXPECT_FALSE(planFor({{u"KELP_GUI_JUMP_AT"_s, bad}}).jumpAt) << qPrintable(bad);
}

TEST(DebugHooks, NextEveryNeedsOneOfEach)
{
    EXPECT_EQ(planFor({{u"KELP_GUI_NEXT_EVERY"_s, u"2:3"_s}}).nextEvery, (HookPlan::NextEvery{2., 3}));
    for (const QString &bad : {u"0:3"_s, u"2:0"_s, u"2"_s, u"nan:3"_s, u"9999999:9999"_s})
        EXPECT_FALSE(planFor({{u"KELP_GUI_NEXT_EVERY"_s, bad}}).nextEvery) << qPrintable(bad);
}

TEST(DebugHooks, TimesMustBeAboveZero)
{
    EXPECT_EQ(planFor({{u"KELP_GUI_QUIT_AFTER"_s, u"5"_s}}).quitAfterSec, 5.);
    EXPECT_EQ(planFor({{u"KELP_GUI_NEXT_AFTER"_s, u"0"_s}}).nextAfterSec, 0.);
    EXPECT_EQ(planFor({{u"KELP_GUI_STOP_AFTER"_s, u"-3"_s}}).stopAfterSec, 0.);
    EXPECT_EQ(planFor({{u"KELP_GUI_AUTOSTOP"_s, u"soon"_s}}).autostopMs, 0.);
}

TEST(DebugHooks, ABadRowMoveIsReported)
{
    EXPECT_EQ(planFor({{u"KELP_GUI_MOVEROW"_s, u"4:0"_s}}).moveRow, (HookPlan::MoveRow{4, 0}));
    EXPECT_EQ(planFor({{u"KELP_GUI_MOVEROW"_s, u"4"_s}}).badMoveRow, u"4"_s);
    EXPECT_EQ(planFor({{u"KELP_GUI_MOVEROW"_s, u"1:2:3"_s}}).badMoveRow, u"1:2:3"_s);
}

TEST(DebugHooks, SetButEmptyCountsForSwitches)
{
    EXPECT_TRUE(planFor({{u"KELP_GUI_SMOKE"_s, {}}}).smoke);
    EXPECT_TRUE(planFor({{u"KELP_GUI_AUTOCLOSE"_s, {}}}).autoClose);
}

TEST(DebugHooks, HooksThatEndTheProgramAreKnown)
{
    for (const QString &name :
         {u"KELP_GUI_QUIT_AFTER"_s, u"KELP_GUI_AUTOCLOSE"_s, u"KELP_GUI_SMOKE"_s, u"KELP_GUI_RIGDUMP"_s})
        EXPECT_TRUE(planFor({{name, u"1"_s}}).endsProgram()) << qPrintable(name);
    EXPECT_FALSE(planFor({{u"KELP_GUI_STOP_AFTER"_s, u"1"_s}}).endsProgram());
}
