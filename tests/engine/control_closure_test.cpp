#include "engine/control_closure.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(ControlClosure, NoLogAndSomethingSentIsAnErrorOfItsOwn)
{
    const auto lines = closureVerdict({5, std::nullopt, {}});
    ASSERT_EQ(lines.size(), 1);
    EXPECT_TRUE(lines[0].isError);
    EXPECT_EQ(lines[0].text, u"[控制] 闭合: 已下发 5 条命令, 但本次运行没有引擎会话日志 —— 两端无法对账"_s);
}

TEST(ControlClosure, NoLogAndNothingSentPasses)
{
    const auto lines = closureVerdict({0, std::nullopt, {}});
    ASSERT_EQ(lines.size(), 1);
    EXPECT_FALSE(lines[0].isError);
}

TEST(ControlClosure, PassNamesItsSource)
{
    const auto lines = closureVerdict({10, 12, u"/t/kelp-player.log"_s});
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0].text, u"[控制] 闭合: queued=10 recv=12 diff=2 —— 通过"_s);
    EXPECT_FALSE(lines[0].isError);
    EXPECT_EQ(lines[1].text, u"[控制] 闭合账来源: /t/kelp-player.log"_s);
    EXPECT_FALSE(lines[1].isError);
}

TEST(ControlClosure, ToleranceIsEightForSmallAccounts)
{
    EXPECT_FALSE(closureVerdict({20, 12, u"x"_s})[0].isError);
    const auto over = closureVerdict({20, 11, u"x"_s});
    EXPECT_TRUE(over[0].isError);
    EXPECT_EQ(over[0].text, u"[控制] 闭合: queued=20 recv=11 diff=9 —— 超差(差 9 > 容差 8)"_s);
}

TEST(ControlClosure, ToleranceIsATenthForLargeOnes)
{
    EXPECT_FALSE(closureVerdict({1000, 900, u"x"_s})[0].isError);
    EXPECT_TRUE(closureVerdict({1000, 899, u"x"_s})[0].isError);
    EXPECT_FALSE(closureVerdict({1000, 1100, u"x"_s})[0].isError);
    EXPECT_TRUE(closureVerdict({1000, 1101, u"x"_s})[0].isError);
}

} // namespace
