#include "app/stall_sampler.h"

#include "tests/support/sanitizers.h"
#include "tests/support/standing_thread.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

LoadedModule moduleNamed(std::uintptr_t base, const QString &name, bool own)
{
    return {base, base + 0x1000, name, u"/x/"_s + name, own};
}

TEST(StallCount, IsDueAtTwoHundredStepsAndEachMultiple)
{
    StallCount count(7);
    QList<int> due;
    for (int step = 1; step <= 650; ++step)
        if (const int stallMs = count.step(7))
            due += stallMs;
    EXPECT_EQ(due, (QList<int>{4000, 8000, 12000}));
}

TEST(StallCount, BeginsAgainWithEveryBeat)
{
    StallCount count(0);
    for (int step = 0; step < 199; ++step)
        EXPECT_EQ(count.step(0), 0);
    EXPECT_EQ(count.step(1), 0);
    for (int step = 0; step < 199; ++step)
        EXPECT_EQ(count.step(1), 0);
    EXPECT_EQ(count.step(1), 4000);
}

TEST(StallBlock, HasTheFormsThatToolsLookFor)
{
    StackSample sample;
    sample.addresses = {0x7010, 0x5020, 0x9000, 0x5fff};
    sample.count = 4;
    const std::vector<LoadedModule> modules{moduleNamed(0x5000, u"KelpPlayer"_s, true),
                                            moduleNamed(0x7000, u"libc.so.6"_s, false)};
    QList<std::uintptr_t> asked;
    const QStringList lines = stallBlock(4000, sample, modules, [&](const LoadedModule &, std::uintptr_t at) {
        asked += at;
        return at == 0x501f ? u"PlayerGuiWindow::playCurrent()"_s : QString();
    });
    EXPECT_EQ(lines, (QStringList{u"STALLSAMPLE stall_ms=4000"_s, u" ip=libc.so.6+0x10"_s,
                                  u" ret0=KelpPlayer+0x20 PlayerGuiWindow::playCurrent()"_s,
                                  u" ret1=?+0x9000"_s, u" ret2=KelpPlayer+0xfff"_s,
                                  u" ours0=+0x20 PlayerGuiWindow::playCurrent()"_s, u" ours1=+0xfff"_s}));
    // A return address stands behind its call, which may be the function's last instruction.
    EXPECT_EQ(asked, (QList<std::uintptr_t>{0x7010, 0x501f, 0x5ffe}));
}

TEST(StallBlock, WithoutASampleIsItsFirstLine)
{
    EXPECT_EQ(stallBlock(8000, {}, {}, {}), QStringList{u"STALLSAMPLE stall_ms=8000"_s});
}

TEST(StallLogPath, IsTheStatedOneOrStandsInTheTemporaryFolder)
{
    EXPECT_EQ(stallLogPath({}, u"/tmp"_s), u"/tmp/kelp-stall-sample.log"_s);
    EXPECT_EQ(stallLogPath(u"/var/x.log"_s, u"/tmp"_s), u"/var/x.log"_s);
}

TEST(StallSampler, SamplesAtEachMultipleAndEndsWithTheFlag)
{
    int steps = 0;
    QStringList written;
    StallSamplerHooks hooks;
    hooks.heartbeat = [&] { return steps < 100 ? static_cast<unsigned long>(steps) : 100ul; };
    hooks.ended = [&] { return steps >= 550; };
    hooks.waitStep = [&] { ++steps; };
    hooks.sample = [](int stallMs) { return QStringList{QString::number(stallMs)}; };
    hooks.write = [&](const QStringList &lines) { written += lines; };
    runStallSampler(hooks);
    EXPECT_EQ(steps, 550);
    EXPECT_EQ(written, (QStringList{u"4000"_s, u"8000"_s}));
}

TEST(StallSampler, DoesNotTouchAnythingWhenTheLoopWasLeftBefore)
{
    StallSamplerHooks hooks;
    hooks.heartbeat = [] { return 0ul; };
    hooks.ended = [] { return true; };
    hooks.waitStep = [] { FAIL(); };
    runStallSampler(hooks);
}

TEST(StallSampler, NamesWhatARealThreadStandsIn)
{
    if (KELP_TEST_THREAD_SANITIZER)
        GTEST_SKIP() << "ThreadSanitizer holds signals back until the thread enters a call that it knows.";
    StandingThread thread;
    QStringList lines;
    for (int attempt = 0; attempt < 200; ++attempt) {
        lines = sampleStall(thread.id(), 4000);
        if (!lines.filter(u"kelpTestStandsAsleep"_s).isEmpty())
            break;
    }
    ASSERT_GE(lines.size(), 3);
    EXPECT_EQ(lines[0], u"STALLSAMPLE stall_ms=4000"_s);
    EXPECT_TRUE(lines[1].startsWith(u" ip=lib"_s)) << lines[1].toStdString();
    const QStringList named = lines.filter(u"kelpTestStandsAsleep"_s);
    ASSERT_EQ(named.size(), 2) << lines.join(u'\n').toStdString();
    EXPECT_TRUE(named[0].startsWith(u" ret"_s));
    EXPECT_TRUE(named[0].contains(u"=app_diagnostics_test+0x"_s));
    EXPECT_TRUE(named[1].startsWith(u" ours"_s));
}

TEST(StallSampler, AThreadThatIsGoneGivesTheFirstLineOnly)
{
    StandingThread thread;
    thread.letGo();
    QStringList lines;
    for (int attempt = 0; attempt < 1000 && lines.size() != 1; ++attempt)
        lines = sampleStall(thread.id(), 4000);
    EXPECT_EQ(lines, QStringList{u"STALLSAMPLE stall_ms=4000"_s});
}

TEST(StallSampler, TheThreadWritesToItsFileAndEnds)
{
    if (KELP_TEST_THREAD_SANITIZER)
        GTEST_SKIP() << "ThreadSanitizer holds signals back until the thread enters a call that it knows.";
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"stall.log"_s);
    StandingThread standing;
    std::atomic<bool> ended{false};
    std::thread sampler = startStallSampler(
        standing.id(), [] { return 0UL; }, [&] { return ended.load(); }, path);
    while (!QFile::exists(path))
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    ended.store(true);
    sampler.join();
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    EXPECT_TRUE(text.startsWith(u"STALLSAMPLE stall_ms=4000\n ip="_s));
    EXPECT_TRUE(text.contains(u"kelpTestStandsAsleep"_s));
    EXPECT_TRUE(text.endsWith(u'\n'));
}

TEST(StallSampler, AFileThatCannotBeOpenedIsPassedOver)
{
    appendStallBlock(u"/nowhere/at/all/stall.log"_s, {u"STALLSAMPLE stall_ms=4000"_s});
    EXPECT_FALSE(QFile::exists(u"/nowhere/at/all/stall.log"_s));
}

} // namespace
