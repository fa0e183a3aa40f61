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

TEST(StallReport, LatenessOf499MsReportsAnd399MsDoesNot)
{
    struct Case
    {
        qint64 latenessMs;
        bool reported;
    };
    for (const Case &tick : {Case{-100, false}, Case{0, false}, Case{399, false}, Case{400, false},
                             Case{401, true}, Case{499, true}, Case{60000, true}}) {
        const QString report = stallReport(stallTickMs + tick.latenessMs, u"probe"_s);
        EXPECT_EQ(!report.isEmpty(), tick.reported) << tick.latenessMs;
        EXPECT_EQ(report.contains(u" %1 ms"_s.arg(tick.latenessMs)), tick.reported) << tick.latenessMs;
    }
}

TEST(StallReport, AThreadThatNobodyMarkedIsCalledSo)
{
    EXPECT_EQ(stallReport(600, {}), u"[stall] 界面线程卡住了 500 ms —— 当时正在：(未标记)"_s);
    EXPECT_EQ(stallReport(600, u"applyAll"_s), u"[stall] 界面线程卡住了 500 ms —— 当时正在：applyAll"_s);
}

TEST(StartupMetrics, SayUnknownForWhatCannotBeMeasured)
{
    EXPECT_EQ(startupMetrics(std::nullopt, std::nullopt),
              u"启动指标：界面就绪 未知，内存 未知（只列实测值）"_s);
    EXPECT_EQ(startupMetrics(1500, std::nullopt), u"启动指标：界面就绪 1.50 s，内存 未知（只列实测值）"_s);
}

TEST(StartupMetrics, TakeTheirUnits)
{
    EXPECT_TRUE(startupMetrics(999, 1024 * 1024).contains(u"999 ms"_s));
    EXPECT_TRUE(startupMetrics(1000, 1024 * 1024).contains(u"1.00 s"_s));
    EXPECT_TRUE(startupMetrics(1234, 3 * 1024 * 512).contains(u"1.5 MiB"_s));
    EXPECT_FALSE(startupMetrics(std::nullopt, std::nullopt).contains(u"0"_s))
        << "what is unknown is no number";
}
