#include "playback/play_order.h"

#include <gtest/gtest.h>
#include <set>

namespace {

PlayOrderState seeded(OrderAxis order, RepeatAxis repeat, unsigned seed = 1)
{
    return {order, repeat, {}, std::mt19937(seed)};
}

/// The rows that play after row, up to the list's end or to so many.
std::vector<int> rowsAfter(PlayOrderState &state, int row, int count, int most = 100)
{
    std::vector<int> rows;
    for (std::optional<int> next = advanceRow(state, row, count); next && most-- > 0;
         next = advanceRow(state, *next, count))
        rows.push_back(*next);
    return rows;
}

} // namespace

TEST(PlayOrder, SequentialEndsWithTheList)
{
    PlayOrderState state = seeded(OrderAxis::Sequential, RepeatAxis::None);
    EXPECT_EQ(rowsAfter(state, 0, 3), (std::vector{1, 2}));
    EXPECT_EQ(advanceRow(state, 2, 3), std::nullopt);
    EXPECT_EQ(peekNextRow(state, 2, 3), -1);
}

TEST(PlayOrder, SequentialBeginsAgainWhenTheListRepeats)
{
    PlayOrderState state = seeded(OrderAxis::Sequential, RepeatAxis::List);
    EXPECT_EQ(advanceRow(state, 2, 3), 0);
    EXPECT_EQ(advanceRow(state, 0, 1), 0) << "a list of one";
}

TEST(PlayOrder, ARepeatedTrackStaysInEitherOrder)
{
    for (const OrderAxis order : {OrderAxis::Sequential, OrderAxis::Random}) {
        PlayOrderState state = seeded(order, RepeatAxis::Track);
        EXPECT_EQ(advanceRow(state, 1, 3), 1);
        EXPECT_EQ(peekNextRow(state, 1, 3), 1) << "the current row, so that nothing is preloaded";
    }
}

TEST(PlayOrder, NothingFollowsWhereNothingPlays)
{
    for (const OrderAxis order : {OrderAxis::Sequential, OrderAxis::Random}) {
        for (const RepeatAxis repeat : {RepeatAxis::None, RepeatAxis::List, RepeatAxis::Track}) {
            PlayOrderState state = seeded(order, repeat);
            EXPECT_EQ(advanceRow(state, 0, 0), std::nullopt);
            EXPECT_EQ(advanceRow(state, -1, 3), std::nullopt);
            EXPECT_EQ(peekNextRow(state, -1, 3), -1);
        }
    }
}

TEST(PlayOrder, RandomOfOneRowStays)
{
    PlayOrderState state = seeded(OrderAxis::Random, RepeatAxis::None);
    EXPECT_EQ(advanceRow(state, 0, 1), 0);
    EXPECT_EQ(peekNextRow(state, 0, 1), 0);
}

TEST(PlayOrder, RandomWithoutRepeatEndsWhenAllThreeHavePlayed)
{
    for (unsigned seed = 0; seed < 50; ++seed) {
        PlayOrderState state = seeded(OrderAxis::Random, RepeatAxis::None, seed);
        const std::vector<int> rows = rowsAfter(state, 1, 3);
        EXPECT_EQ(std::set<int>(rows.begin(), rows.end()), (std::set{0, 2})) << "each once";
        EXPECT_EQ(rows.size(), 2U);
        EXPECT_EQ(advanceRow(state, rows.back(), 3), std::nullopt);
    }
}

TEST(PlayOrder, ANewRandomRoundNeverBeginsWithTheRowJustPlayed)
{
    for (const int count : {2, 3, 7}) {
        for (unsigned seed = 0; seed < 50; ++seed) {
            PlayOrderState state = seeded(OrderAxis::Random, RepeatAxis::List, seed);
            int row = 0;
            for (int i = 0; i < 5 * count; ++i) {
                const int next = advanceRow(state, row, count).value_or(-1);
                ASSERT_NE(next, row) << "seed " << seed << ", pick " << i;
                row = next;
            }
        }
    }
}

TEST(PlayOrder, ARandomRoundPlaysEveryRowOnce)
{
    PlayOrderState state = seeded(OrderAxis::Random, RepeatAxis::List, 3);
    std::vector<int> rows = rowsAfter(state, 4, 10, 18);
    EXPECT_EQ(std::set<int>(rows.begin(), rows.begin() + 9).size(), 9U);
    EXPECT_EQ(std::set<int>(rows.begin(), rows.begin() + 9).count(4), 0U);
}

TEST(PlayOrder, RandomPicksAreUniform)
{
    constexpr int draws = 30000;
    std::vector<int> picked(10);
    PlayOrderState state = seeded(OrderAxis::Random, RepeatAxis::None, 7);
    for (int i = 0; i < draws; ++i) {
        state.forgetHistory();
        ++picked.at(static_cast<std::size_t>(advanceRow(state, 4, 10).value_or(4)));
    }
    EXPECT_EQ(picked[4], 0);
    picked.erase(picked.begin() + 4);
    for (const int times : picked)
        EXPECT_NEAR(times, draws / 9, 350);
}

TEST(PlayOrder, PeekingPredictsEveryPickAndDisturbsNothing)
{
    for (const RepeatAxis repeat : {RepeatAxis::None, RepeatAxis::List}) {
        for (unsigned seed = 0; seed < 20; ++seed) {
            PlayOrderState state = seeded(OrderAxis::Random, repeat, seed);
            int row = 0;
            for (int i = 0; i < 40; ++i) {
                const std::vector<bool> bits = state.playedBits;
                const std::mt19937 generator = state.generator;
                const int peeked = peekNextRow(state, row, 9);
                EXPECT_EQ(peekNextRow(state, row, 9), peeked) << "asked again";
                EXPECT_EQ(state.playedBits, bits);
                EXPECT_EQ(state.generator, generator);
                const int next = advanceRow(state, row, 9).value_or(-1);
                ASSERT_EQ(next, peeked) << "seed " << seed << ", pick " << i;
                if (next < 0)
                    break;
                row = next;
            }
        }
    }
}

TEST(PlayOrder, AListThatGrewOrShrankBeginsItsRecordAnew)
{
    PlayOrderState state = seeded(OrderAxis::Random, RepeatAxis::None);
    rowsAfter(state, 0, 3);
    EXPECT_NE(advanceRow(state, 0, 4), std::nullopt);
    EXPECT_EQ(state.playedBits.size(), 4U);
    EXPECT_EQ(advanceRow(state, 0, 2), 1);
}

TEST(PlayOrder, ARowPastTheEndBreaksNothing)
{
    PlayOrderState random = seeded(OrderAxis::Random, RepeatAxis::List);
    const int row = advanceRow(random, 5, 3).value_or(-1);
    EXPECT_TRUE(row >= 0 && row < 3);
    PlayOrderState sequential = seeded(OrderAxis::Sequential, RepeatAxis::None);
    EXPECT_EQ(advanceRow(sequential, 3, 3), std::nullopt);
}

TEST(PlayOrder, ForgottenHistoryMakesEveryRowACandidate)
{
    PlayOrderState state = seeded(OrderAxis::Random, RepeatAxis::None);
    const std::vector<int> rows = rowsAfter(state, 0, 3);
    state.forgetHistory();
    EXPECT_EQ(rowsAfter(state, rows.back(), 3).size(), 2U);
}

TEST(PlayOrder, NumbersThatNameNoAxisAreTheFirst)
{
    EXPECT_EQ(orderAxisOf(1), OrderAxis::Random);
    EXPECT_EQ(repeatAxisOf(2), RepeatAxis::Track);
    for (const int bad : {-1, 3, 99}) {
        EXPECT_EQ(orderAxisOf(bad), OrderAxis::Sequential);
        EXPECT_EQ(repeatAxisOf(bad), RepeatAxis::None);
    }
}

TEST(PlayOrder, TheTextNamesBothAxes)
{
    using namespace Qt::StringLiterals;
    EXPECT_EQ(orderText(OrderAxis::Sequential, RepeatAxis::None), u"顺序 · 不循环"_s);
    EXPECT_EQ(orderText(OrderAxis::Sequential, RepeatAxis::List), u"顺序 · 列表循环"_s);
    EXPECT_EQ(orderText(OrderAxis::Random, RepeatAxis::Track), u"随机 · 单曲循环"_s);
}

TEST(PlayOrder, BehindARowThatHasGoneComesWhatTookItsPlace)
{
    struct Case
    {
        int before, count, next;
    };
    for (const RepeatAxis repeat : {RepeatAxis::None, RepeatAxis::List, RepeatAxis::Track}) {
        PlayOrderState state = seeded(OrderAxis::Sequential, repeat);
        const int first = repeat == RepeatAxis::List ? 0 : -1;
        for (const Case &each : {Case{-1, 3, 0}, Case{0, 3, 1}, Case{2, 3, first}, Case{-1, 0, -1}}) {
            EXPECT_EQ(peekNextRow(state, each.before, each.count, true), each.next) << each.before;
            EXPECT_EQ(advanceRow(state, each.before, each.count, true).value_or(-1), each.next);
        }
    }
}

TEST(PlayOrder, AtRandomARowThatHasGoneMarksNoOtherAsPlayed)
{
    for (unsigned seed = 0; seed < 50; ++seed) {
        PlayOrderState state = seeded(OrderAxis::Random, RepeatAxis::None, seed);
        const int peeked = peekNextRow(state, 1, 3, true);
        const std::optional<int> first = advanceRow(state, 1, 3, true);
        ASSERT_TRUE(first);
        EXPECT_EQ(*first, peeked);
        std::vector<int> rows = rowsAfter(state, *first, 3);
        rows.push_back(*first);
        EXPECT_EQ(std::set<int>(rows.begin(), rows.end()), (std::set{0, 1, 2}));
        EXPECT_EQ(rows.size(), 3U);
    }
    PlayOrderState one = seeded(OrderAxis::Random, RepeatAxis::None);
    EXPECT_EQ(advanceRow(one, -1, 1, true), 0);
}
