#include "engine/engine_probe.h"
#include "engine/probe_worker.h"

#include "tests/support/patience.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QStringList>
#include <QTest>
#include <QTimer>
#include <atomic>
#include <condition_variable>
#include <gtest/gtest.h>
#include <memory>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Waits for a condition in the event loop.
template<typename Condition>
bool waitUntil(Condition condition)
{
    return QTest::qWaitFor(condition, kelp_test::patienceMs);
}

/// A probe that stays under way until it is let go.
class Gate
{
public:
    void pass()
    {
        std::unique_lock lock(m_mutex);
        m_entered = true;
        m_changed.notify_all();
        m_changed.wait(lock, [this] { return m_open; });
    }
    void open()
    {
        const std::lock_guard lock(m_mutex);
        m_open = true;
        m_changed.notify_all();
    }
    void waitEntered()
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_entered; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_open = false;    ///< guarded by m_mutex
    bool m_entered = false; ///< guarded by m_mutex
};

TEST(ProbeWorker, AnswersFirstInFirstOutOnThisThread)
{
    ProbeWorker worker;
    QStringList order;
    std::atomic<int> running{0};
    std::atomic<int> most{0};
    for (int number = 0; number < 50; ++number) {
        worker.run(
            [number, &running, &most] {
                most = std::max(most.load(), ++running);
                const PlayerProbeResult result{number, u"text %1"_s.arg(number)};
                --running;
                return result;
            },
            &worker,
            [&order](const PlayerProbeResult &result) {
                EXPECT_EQ(QThread::currentThread(), QCoreApplication::instance()->thread());
                EXPECT_EQ(result.text, u"text %1"_s.arg(result.rc));
                order.append(QString::number(result.rc));
            });
    }
    EXPECT_EQ(worker.pendingCount(), 50);
    ASSERT_TRUE(waitUntil([&] { return order.size() == 50; }));
    for (int number = 0; number < 50; ++number)
        EXPECT_EQ(order[number], QString::number(number));
    EXPECT_EQ(most, 1);
    EXPECT_EQ(worker.pendingCount(), 0);
}

TEST(ProbeWorker, DeliversNothingBeforeTheEventLoopRuns)
{
    ProbeWorker worker;
    const auto gate = std::make_shared<Gate>();
    bool delivered = false;
    worker.run(
        [gate] {
            gate->pass();
            return PlayerProbeResult{};
        },
        &worker, [&](const PlayerProbeResult &) { delivered = true; });
    gate->waitEntered();
    gate->open();
    EXPECT_FALSE(delivered);
    EXPECT_TRUE(waitUntil([&] { return delivered; }));
}

TEST(ProbeWorker, NothingIsDeliveredOnceTheContextHasDied)
{
    ProbeWorker worker;
    auto context = std::make_unique<QObject>();
    bool wrong = false;
    bool right = false;
    const auto gate = std::make_shared<Gate>();
    worker.run(
        [gate] {
            gate->pass();
            return PlayerProbeResult{};
        },
        context.get(), [&](const PlayerProbeResult &) { wrong = true; });
    worker.run([] { return PlayerProbeResult{}; }, &worker, [&](const PlayerProbeResult &) { right = true; });
    gate->waitEntered();
    context.reset();
    gate->open();
    ASSERT_TRUE(waitUntil([&] { return right; }));
    EXPECT_FALSE(wrong);
    EXPECT_EQ(worker.pendingCount(), 0);
}

TEST(ProbeWorker, AProbeThatThrowsIsAnAnswer)
{
    ProbeWorker worker;
    std::vector<PlayerProbeResult> results;
    const auto keep = [&](const PlayerProbeResult &result) { results.push_back(result); };
    worker.run([]() -> PlayerProbeResult { throw std::runtime_error("no luck"); }, &worker, keep);
    worker.run([]() -> PlayerProbeResult { throw 3; }, &worker, keep);
    ASSERT_TRUE(waitUntil([&] { return results.size() == 2; }));
    EXPECT_EQ(results[0].rc, -1);
    EXPECT_EQ(results[0].text, u"no luck"_s);
    EXPECT_EQ(results[1].rc, -1);
}

TEST(ProbeWorker, AnAnswerMayAskAgainAndMayEndTheWorker)
{
    auto worker = std::make_unique<ProbeWorker>();
    QObject context;
    int answers = 0;
    worker->run([] { return PlayerProbeResult{}; }, &context,
                [&](const PlayerProbeResult &) {
                    ++answers;
                    worker->run([] { return PlayerProbeResult{}; }, &context,
                                [&](const PlayerProbeResult &) {
                                    ++answers;
                                    worker.reset();
                                });
                });
    EXPECT_TRUE(waitUntil([&] { return answers == 2 && !worker; }));
}

TEST(ProbeWorker, EndsWithoutWaitingForWhatHasNotBegun)
{
    std::atomic<int> begun{0};
    const auto gate = std::make_shared<Gate>();
    bool delivered = false;
    {
        ProbeWorker worker(kelp_test::patience);
        worker.run(
            [gate, &begun] {
                ++begun;
                gate->pass();
                return PlayerProbeResult{};
            },
            &worker, [&](const PlayerProbeResult &) { delivered = true; });
        for (int number = 0; number < 10; ++number)
            worker.run(
                [&begun] {
                    ++begun;
                    return PlayerProbeResult{};
                },
                &worker, [&](const PlayerProbeResult &) { delivered = true; });
        gate->waitEntered();
        gate->open();
    }
    QCoreApplication::processEvents();
    EXPECT_FALSE(delivered);
    EXPECT_LE(begun.load(), 11);
}

TEST(ProbeWorker, AHangingProbeIsLeftToItself)
{
    const auto gate = std::make_shared<Gate>();
    const auto ended = std::make_shared<std::atomic<bool>>(false);
    bool delivered = false;
    {
        ProbeWorker worker(1ms);
        worker.run(
            [gate, ended] {
                gate->pass();
                *ended = true;
                return PlayerProbeResult{};
            },
            &worker, [&](const PlayerProbeResult &) { delivered = true; });
        gate->waitEntered();
    }
    EXPECT_FALSE(*ended);
    gate->open();
    EXPECT_TRUE(waitUntil([&] { return ended->load(); }));
    EXPECT_FALSE(delivered);
}

TEST(ProbeWorker, TheEventLoopRunsOnWhileAProbeHangs)
{
    ASSERT_TRUE(qputenv("KELP_GUI_PROBE_HANG", "1"));
    ProbeWorker worker;
    std::optional<PlayerProbeResult> result;
    // The probe begins only when the loop has turned some times behind the request for it.
    const auto gate = std::make_shared<Gate>();
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        if (++ticks == 5)
            gate->open();
    });
    timer.start(20);
    worker.run(
        [gate] {
            gate->pass();
            return runEngineProbe(u"/nowhere"_s, {u"-list"_s}, 5000, {});
        },
        &worker, [&](const PlayerProbeResult &answer) { result = answer; });
    EXPECT_TRUE(waitUntil([&] { return result.has_value(); }));
    qunsetenv("KELP_GUI_PROBE_HANG");
    ASSERT_TRUE(result);
    EXPECT_EQ(result->rc, -1000);
    EXPECT_EQ(result->text, u"[probe] timed out after 1200 ms (KELP_GUI_PROBE_HANG self-test) -- killed"_s);
    EXPECT_GT(ticks, 5) << "and turned on while the probe ran into its time-out";
}

TEST(ProbeWorker, AnUnusedWorkerEndsAtOnce)
{
    const ProbeWorker worker(1h);
    EXPECT_EQ(worker.pendingCount(), 0);
}

// Also shows that a thread sanitizer still sees the locks of a thread that has started a process.
TEST(ProbeWorker, AProbeThatStartsAProcessHandsOverWhatItTouched)
{
    ProbeWorker worker;
    auto runs = std::make_shared<std::atomic<int>>(0);
    std::optional<PlayerProbeResult> answer;
    worker.run(
        [runs] {
            const PlayerProbeResult result = runEngineProbe(u"/bin/true"_s, {}, kelp_test::patienceMs, {});
            ++*runs;
            return result;
        },
        &worker, [&answer](const PlayerProbeResult &result) { answer = result; });
    ASSERT_TRUE(waitUntil([&answer] { return answer.has_value(); }));
    EXPECT_EQ(answer->rc, 0) << answer->text.toStdString();
    EXPECT_EQ(*runs, 1);
    ASSERT_EQ(runs.use_count(), 1);
    runs.reset(); // freed here, after the last use by the worker's thread
}

} // namespace
