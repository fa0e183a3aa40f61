#include "playback/time_text.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

TEST(TimeText, PadsSecondsAndKeepsMinutes)
{
    EXPECT_EQ(minutesText(0.), u"0:00"_s);
    EXPECT_EQ(minutesText(65.9), u"1:05"_s);
    EXPECT_EQ(minutesText(3725.), u"62:05"_s);
    EXPECT_EQ(minutesText(-4.), u"0:00"_s);
    EXPECT_FALSE(minutesText(std::numeric_limits<double>::max()).isEmpty());
}

TEST(TimeText, ATotalOfHalfASecondIsNone)
{
    EXPECT_EQ(positionText(5., 0.5, 1.), u"0:05"_s);
    EXPECT_EQ(positionText(5., 60., 1.), u"0:05 / 1:00"_s);
}

TEST(TimeText, ASpeedShowsAsManyDecimalsAsItNeeds)
{
    EXPECT_EQ(speedText(1.5), u"1.5"_s);
    EXPECT_EQ(speedText(1.25), u"1.25"_s);
    EXPECT_TRUE(positionText(5., 60., 1.25).endsWith(u"1.25×"_s));
    EXPECT_EQ(positionText(5., 60., 1.0000001), u"0:05 / 1:00"_s);
}
