#include "playback/row_runs.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

const RowRuns set{{1, 2}, {5, 1}}; // 1 2 5 of eight rows

QList<int> rowsOf(const RowRuns &runs)
{
    QList<int> rows;
    for (const RowRun &run : runs) {
        for (int i = 0; i < run.count; ++i)
            rows.append(run.first + i);
    }
    return rows;
}

} // namespace

TEST(RowRuns, NeighboursAreOneRun)
{
    RowRuns runs;
    for (const int row : {1, 2, 5})
        appendRow(runs, row);
    EXPECT_EQ(runs, set);
    EXPECT_EQ(rowsIn(runs), 3);
}

TEST(RowRuns, ASetIsAscendingAndInsideTheList)
{
    EXPECT_TRUE(isRowSet(set, 6));
    EXPECT_TRUE(isRowSet({}, 0));
    EXPECT_FALSE(isRowSet(set, 5));
    EXPECT_FALSE(isRowSet({{5, 1}, {1, 2}}, 8));
    EXPECT_FALSE(isRowSet({{1, 2}, {2, 1}}, 8));
    EXPECT_FALSE(isRowSet({{-1, 2}}, 8));
    EXPECT_FALSE(isRowSet({{1, 0}}, 8));
    EXPECT_FALSE(isRowSet({{1, std::numeric_limits<int>::max()}}, 8));
}

TEST(RowRuns, AnOrderNamesEveryRowOnce)
{
    EXPECT_TRUE(isRowOrder({{3, 2}, {0, 3}}, 5));
    EXPECT_FALSE(isRowOrder({{3, 2}, {0, 2}}, 5));
    EXPECT_FALSE(isRowOrder({{3, 2}, {0, 3}}, 6));
    EXPECT_FALSE(isRowOrder({{3, 2}, {0, 4}}, 5));
    EXPECT_TRUE(isUnchangedOrder({{0, 3}, {3, 2}}));
    EXPECT_FALSE(isUnchangedOrder({{3, 2}, {0, 3}}));
}

TEST(RowRuns, ASumOfHostileRunsDoesNotOverflow)
{
    const RowRuns hostile(3, RowRun{0, std::numeric_limits<int>::max()});
    EXPECT_EQ(rowsIn(hostile), std::numeric_limits<int>::max());
    EXPECT_FALSE(isRowOrder(hostile, rowsIn(hostile)));
}

TEST(RowRuns, ABlockMovesAsItStands)
{
    EXPECT_EQ(rowsOf(blockMove(set, 0, 8)), (QList<int>{1, 2, 5, 0, 3, 4, 6, 7}));
    EXPECT_EQ(rowsOf(blockMove(set, 8, 8)), (QList<int>{0, 3, 4, 6, 7, 1, 2, 5}));
    EXPECT_EQ(rowsOf(blockMove(set, 4, 8)), (QList<int>{0, 3, 1, 2, 5, 4, 6, 7}));
    EXPECT_EQ(rowsOf(blockMove(set, 2, 8)), (QList<int>{0, 1, 2, 5, 3, 4, 6, 7}));
    EXPECT_TRUE(isUnchangedOrder(blockMove({{3, 2}}, 4, 8))) << "into itself";
    EXPECT_TRUE(isUnchangedOrder(blockMove({{3, 2}}, 5, 8))) << "right behind itself";
    EXPECT_TRUE(isUnchangedOrder(blockMove({{0, 8}}, 3, 8))) << "everything";
}

TEST(RowRuns, AnOrderAndItsInverseLeadBack)
{
    const RowRuns order = blockMove(set, 8, 8);
    const RowRuns back = inverseOrder(order);
    ASSERT_TRUE(isRowOrder(back, 8));
    for (int row = 0; row < 8; ++row) {
        EXPECT_EQ(rowsOf(order).at(rowAfterOrder(order, row)), row);
        EXPECT_EQ(rowAfterOrder(back, rowAfterOrder(order, row)), row);
    }
    EXPECT_EQ(rowAfterOrder(order, 8), -1);
}

TEST(RowRuns, RowsFollowWhatIsPutInAndTakenOut)
{
    const QList<int> inserted{0, 3, 4, 6, 7};
    for (int row = 0; row < inserted.size(); ++row) {
        EXPECT_EQ(rowAfterInsert(set, row), inserted.at(row));
        EXPECT_EQ(rowAfterRemove(set, inserted.at(row)), row);
    }
    for (const int gone : {1, 2, 5})
        EXPECT_EQ(rowAfterRemove(set, gone), -1);
    EXPECT_EQ(rowAfterInsert(set, -1), -1);
    EXPECT_EQ(rowAfterRemove(set, -1), -1);
}

TEST(RowRuns, BehindARowThatHasGoneComesTheOneThatFollowedIt)
{
    EXPECT_EQ(survivorBefore(set, 2), 0);
    EXPECT_EQ(survivorBefore(set, 5), 2) << "rows 0, 3 and 4 stay, the last of them is now row 2";
    EXPECT_EQ(survivorBefore({{0, 3}}, 1), -1);
}
