#include "app/stall_report.h"
#include "app/startup_metrics.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(StallReport, TellsLatenessAboveItsLimit)
{
    EXPECT_TRUE(stallReport(100, u"x"_s).isEmpty());
    EXPECT_TRUE(stallReport(500, u"x"_s).isEmpty()) << "400 ms late";
    EXPECT_TRUE(stallReport(501, u"applyAll"_s).contains(u"401"_s));
    EXPECT_TRUE(stallReport(501, u"applyAll"_s).contains(u"applyAll"_s));
    EXPECT_NE(stallReport(600, {}), stallReport(600, u" "_s)) << "an unmarked stage is named as such";
}

TEST(StartupMetrics, TakeTheirUnits)
{
    EXPECT_TRUE(startupMetrics(999, 1024 * 1024).contains(u"999 ms"_s));
    EXPECT_TRUE(startupMetrics(1000, 1024 * 1024).contains(u"1.00 s"_s));
    EXPECT_TRUE(startupMetrics(1234, 3 * 1024 * 512).contains(u"1.5 MiB"_s));
    EXPECT_FALSE(startupMetrics(std::nullopt, std::nullopt).contains(u"0"_s))
        << "what is unknown is no number";
}
