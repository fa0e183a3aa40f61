#include "app/session_log_sweep.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <utime.h>

using namespace Qt::StringLiterals;

namespace {

const QDateTime now = QDateTime::currentDateTime();

SessionLogDir aged(const QString &path, qint64 hours, bool isEmpty = false)
{
    return {path, now.addSecs(-hours * 3600), isEmpty};
}

} // namespace

TEST(SessionLogSweep, LimitsComeFromTheEnvironment)
{
    EXPECT_EQ(sweepLimits({}, {}).keepDays, 7);
    EXPECT_EQ(sweepLimits({}, {}).keepCount, 20);
    EXPECT_EQ(sweepLimits(u"0"_s, u"0"_s).keepDays, 7);
    EXPECT_EQ(sweepLimits(u"0"_s, u"0"_s).keepCount, 1) << "a count of 0 counts as 1";
    EXPECT_EQ(sweepLimits(u"3"_s, u"5"_s).keepDays, 3);
    EXPECT_EQ(sweepLimits(u"x"_s, u"x"_s).keepCount, 1);
}

TEST(SessionLogSweep, AKeepCountOfNoughtCountsAsOne)
{
    struct Case
    {
        QString days, count;
        int keptDays, keptCount;
    };
    for (const Case &limits :
         {Case{{}, u"0"_s, 7, 1}, Case{{}, u"-4"_s, 7, 1}, Case{{}, u"1"_s, 7, 1}, Case{{}, {}, 7, 20},
          Case{u"0"_s, {}, 7, 20}, Case{u"-1"_s, {}, 7, 20}, Case{u"1"_s, u"30"_s, 1, 30}}) {
        const SweepLimits read = sweepLimits(limits.days, limits.count);
        EXPECT_EQ(read.keepDays, limits.keptDays) << qPrintable(limits.days);
        EXPECT_EQ(read.keepCount, limits.keptCount) << qPrintable(limits.count);
    }
}

TEST(SessionLogSweep, YoungDirectoriesCountAmongThoseThatAreKept)
{
    const QList<SessionLogDir> directories = {
        {u"young"_s, now.addSecs(-10), false}, aged(u"first"_s, 2), aged(u"second"_s, 3)};
    EXPECT_EQ(planSessionLogSweep(directories, {7, 2}, now).aged, QStringList{u"second"_s});
    EXPECT_EQ(planSessionLogSweep(directories, {7, 1}, now).aged, (QStringList{u"first"_s, u"second"_s}));
}

TEST(SessionLogSweep, AYoungDirectoryStaysWhateverTheLimitsSay)
{
    const QList<SessionLogDir> directories = {{u"young"_s, now.addSecs(-3599), true},
                                              {u"second"_s, now.addSecs(-3599), false}};
    const SweepPlan plan = planSessionLogSweep(directories, {1, 1}, now);
    EXPECT_TRUE(plan.empty.isEmpty());
    EXPECT_TRUE(plan.aged.isEmpty());
}

TEST(SessionLogSweep, EmptyOldAndSurplusOnesGo)
{
    const QList<SessionLogDir> directories = {aged(u"kept"_s, 2), aged(u"empty"_s, 3, true),
                                              aged(u"surplus"_s, 4), aged(u"old"_s, 24 * 8)};
    const SweepPlan plan = planSessionLogSweep(directories, {7, 2}, now);
    EXPECT_EQ(plan.empty, QStringList{u"empty"_s});
    EXPECT_EQ(plan.aged, (QStringList{u"surplus"_s, u"old"_s}));
}

TEST(SessionLogSweep, AgeAloneIsEnough)
{
    EXPECT_EQ(planSessionLogSweep({aged(u"old"_s, 24 * 7 + 1)}, {7, 20}, now).aged, QStringList{u"old"_s});
    EXPECT_TRUE(planSessionLogSweep({aged(u"old"_s, 24 * 7 - 1)}, {7, 20}, now).aged.isEmpty());
}

TEST(SessionLogSweep, OnlyOwnDirectoriesOfTheTemporaryOneAreTouched)
{
    const QTemporaryDir temp;
    qputenv("TMPDIR", temp.path().toLocal8Bit());
    const QDir root(temp.path());
    const utimbuf old = {now.addDays(-30).toSecsSinceEpoch(), now.addDays(-30).toSecsSinceEpoch()};
    for (const QString &name : {u"kelp-log-empty"_s, u"kelp-log-full"_s, u"other"_s}) {
        ASSERT_TRUE(root.mkdir(name));
        if (name != u"kelp-log-empty"_s) {
            QFile file(root.filePath(name + u"/x.log"_s));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        }
        ASSERT_EQ(utime(QFile::encodeName(root.filePath(name)).constData(), &old), 0);
    }
    ASSERT_TRUE(QFile::link(root.filePath(u"other"_s), root.filePath(u"kelp-log-link"_s)));
    EXPECT_EQ(sweepSessionLogs(), u"swept 1 empty + 1 aged session log dir(s) (keep 7 days / 20 dirs)"_s);
    EXPECT_FALSE(root.exists(u"kelp-log-full"_s));
    EXPECT_TRUE(QFile::exists(root.filePath(u"other/x.log"_s)));
    EXPECT_TRUE(sweepSessionLogs().isEmpty());
    qunsetenv("TMPDIR");
}
