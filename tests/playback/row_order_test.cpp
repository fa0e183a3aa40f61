#include "playback/row_order.h"

#include <gtest/gtest.h>

TEST(RowOrder, StepsStayInTheList)
{
    EXPECT_EQ(steppedRow(0, -1, 3), std::nullopt);
    EXPECT_EQ(steppedRow(-1, 1, 3), 0);
    EXPECT_EQ(steppedRow(2, 1, 3), std::nullopt);
}

TEST(RowOrder, AnAskedRowIsTaken)
{
    EXPECT_EQ(settleStartRow({2, false, 0, 1, -1, 3}), 2);
}

TEST(RowOrder, WithoutOneTheSelectionCountsUnlessSomethingPlays)
{
    EXPECT_EQ(settleStartRow({-1, false, 2, 1, -1, 3}), 2);
    EXPECT_EQ(settleStartRow({-1, true, 2, 1, -1, 3}), 1);
    EXPECT_EQ(settleStartRow({-1, false, -1, 1, -1, 3}), 1);
}

TEST(RowOrder, TheMiniCoverLeadsToWhatPlaysElseToTheChosenRow)
{
    struct Case
    {
        ShownRowFacts facts;
        int row;
    };
    for (const Case &c : {Case{{true, 3, 1}, 3}, Case{{false, 3, 1}, 1}, Case{{false, 3, -1}, 3},
                          Case{{true, -1, 1}, -1}, Case{{false, -1, -1}, -1}})
        EXPECT_EQ(rowToShow(c.facts), c.row);
}

TEST(RowOrder, ARowOutsideTheListFallsBack)
{
    EXPECT_EQ(settleStartRow({7, false, -1, -1, 1, 3}), 1);
    EXPECT_EQ(settleStartRow({7, false, -1, -1, 9, 3}), 0);
    EXPECT_EQ(settleStartRow({-1, false, -1, 3, -1, 3}), 0) << "past the end after a finished list";
}
