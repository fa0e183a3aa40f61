#include "app/stall_report.h"
#include "app/startup_metrics.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(Lateness, Of499MillisecondsIsReportedAndOf399IsNot)
{
    EXPECT_EQ(stallReport(stallTickMs + 399, u"playCurrent"_s), QString());
    EXPECT_EQ(stallReport(stallTickMs + 400, u"playCurrent"_s), QString());
    EXPECT_EQ(stallReport(stallTickMs + 401, u"playCurrent"_s),
              u"[stall] 界面线程卡住了 401 ms —— 当时正在：playCurrent"_s);
    EXPECT_EQ(stallReport(stallTickMs + 499, u"50% of %1"_s),
              u"[stall] 界面线程卡住了 499 ms —— 当时正在：50% of %1"_s);
}

TEST(Lateness, ATickInTimeOrEarlySaysNothing)
{
    for (const qint64 sinceMs : {0, 20, stallTickMs, stallTickMs + 1})
        EXPECT_EQ(stallReport(sinceMs, {}), QString());
}

TEST(Lateness, WithoutAStageItSaysSo)
{
    EXPECT_TRUE(stallReport(stallTickMs + 600, {}).endsWith(u"(未标记)"_s));
}

TEST(StartupMetrics, SecondsFromAThousandMillisecondsUp)
{
    EXPECT_TRUE(startupMetrics(999, std::nullopt).contains(u"999 ms"_s));
    EXPECT_TRUE(startupMetrics(1000, std::nullopt).contains(u"1.00 s"_s));
    EXPECT_TRUE(startupMetrics(1234, std::nullopt).contains(u"1.23 s"_s));
}

TEST(StartupMetrics, WhatCouldNotBeMeasuredIsUnknown)
{
    EXPECT_EQ(startupMetrics(std::nullopt, std::nullopt),
              u"启动指标：界面就绪 未知，内存 未知（只列实测值）"_s);
    EXPECT_TRUE(startupMetrics(std::nullopt, 50 * 1024 * 1024).contains(u"50.0 MiB"_s));
}

} // namespace
