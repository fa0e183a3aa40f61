#include "dsp/effects_worker.h"

#include "tests/support/patience.h"

#include <QStringList>
#include <future>
#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Ample, and never waited for in a test that passes.
constexpr auto ample = kelp_test::patience;

} // namespace

TEST(EffectsWorker, LinesGoOutInTheirOrderOnOneOtherThread)
{
    EffectsWorker worker;
    // Touched on the worker alone, and read here once it is idle: the sanitizer sees a second thread.
    QStringList sent;
    std::vector<std::thread::id> threads;
    QStringList expected;
    for (int i = 0; i < 1000; ++i) {
        expected.append(u"fx eq %1"_s.arg(i));
        worker.push(
            [&](const QString &line) {
                sent.append(line);
                threads.push_back(std::this_thread::get_id());
            },
            expected.last());
    }
    ASSERT_TRUE(worker.waitUntilIdle(ample));
    EXPECT_EQ(sent, expected);
    for (const std::thread::id id : threads) {
        EXPECT_EQ(id, threads.front());
        EXPECT_NE(id, std::this_thread::get_id());
    }
}

TEST(EffectsWorker, SeveralWritersKeepTheirOwnOrder)
{
    constexpr int writers = 4;
    constexpr int rounds = 500;
    EffectsWorker worker;
    std::vector<int> next(writers, 0);
    int misplaced = 0;
    std::vector<std::thread> threads;
    for (int writer = 0; writer < writers; ++writer) {
        threads.emplace_back([&, writer] {
            for (int round = 0; round < rounds; ++round) {
                worker.push(
                    [&, writer](const QString &line) {
                        if (line.toInt() != next[static_cast<std::size_t>(writer)]++)
                            ++misplaced;
                    },
                    QString::number(round));
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    ASSERT_TRUE(worker.waitUntilIdle(ample));
    EXPECT_EQ(misplaced, 0);
    for (const int count : next)
        EXPECT_EQ(count, rounds);
}

TEST(EffectsWorker, ThePusherDoesNotWait)
{
    EffectsWorker worker;
    std::promise<void> gate;
    std::shared_future<void> opened = gate.get_future().share();
    bool second = false;
    worker.push([opened](const QString &) { opened.wait(); }, u"slow"_s);
    worker.push([&second](const QString &) { second = true; }, u"behind it"_s);
    EXPECT_FALSE(worker.waitUntilIdle(0ms)) << "both are still on their way";
    gate.set_value();
    ASSERT_TRUE(worker.waitUntilIdle(ample));
    EXPECT_TRUE(second);
}

TEST(EffectsWorker, AFailingCallbackDoesNotStopTheQueue)
{
    EffectsWorker worker;
    bool after = false;
    worker.push([](const QString &) { throw std::runtime_error("no session"); }, u"a"_s);
    worker.push([&after](const QString &) { after = true; }, u"b"_s);
    ASSERT_TRUE(worker.waitUntilIdle(ample));
    EXPECT_TRUE(after);
}

TEST(EffectsWorker, TheEndFinishesTheRunningLineAndDropsTheRest)
{
    auto worker = std::make_unique<EffectsWorker>();
    std::promise<void> started;
    std::promise<void> gate;
    std::shared_future<void> opened = gate.get_future().share();
    auto token = std::make_shared<int>(0);
    bool finished = false;
    worker->push(
        [&started, &finished, opened](const QString &) {
            started.set_value();
            opened.wait();
            finished = true;
        },
        u"a"_s);
    worker->push([token](const QString &) { ++*token; }, u"b"_s);
    started.get_future().wait();
    std::thread ender([&worker] { worker.reset(); });
    // The waiting line is dropped while the running one still runs.
    while (token.use_count() > 1)
        std::this_thread::yield();
    gate.set_value();
    ender.join();
    EXPECT_TRUE(finished);
    EXPECT_EQ(*token, 0);
}

TEST(EffectsWorker, AnIdleOrUnusedWorkerEnds)
{
    EffectsWorker unused;
    EXPECT_TRUE(unused.waitUntilIdle(0ms));
    EXPECT_EQ(&EffectsWorker::ofProcess(), &EffectsWorker::ofProcess());
    bool sent = false;
    EffectsWorker::ofProcess().push([&sent](const QString &) { sent = true; }, u"report"_s);
    ASSERT_TRUE(EffectsWorker::ofProcess().waitUntilIdle(ample));
    EXPECT_TRUE(sent);
}
