#include "engine/telemetry_mailbox.h"

#include <QStringList>
#include <atomic>
#include <gtest/gtest.h>
#include <mutex>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// A mailbox on one thread, with what it posts.
struct Fixture
{
    QStringList posted;
    int drains = 0;
    TelemetryMailbox mailbox{
        [this](const QString &line, bool isStderr) { posted.append(isStderr ? u"err:"_s + line : line); },
        [this] { ++drains; }};

    QStringList drained()
    {
        QStringList lines;
        mailbox.drain([&](const QString &line, bool isStderr) {
            EXPECT_FALSE(isStderr);
            lines.append(line);
        });
        return lines;
    }
};

TEST(TelemetryMailbox, LatestOfEachKindSurvivesInTheOrderOfTheSlots)
{
    Fixture f;
    for (const QString &line :
         {u"PG 1 1 1"_s, u"SPC none"_s, u"LVL -1 -1"_s, u"PG 2 2 2"_s, u"LVL -2 -2"_s, u"SPC cfg"_s})
        f.mailbox.put(line, false);
    EXPECT_EQ(f.drains, 1);
    EXPECT_TRUE(f.posted.isEmpty());
    EXPECT_EQ(f.drained(), (QStringList{u"LVL -2 -2"_s, u"SPC cfg"_s, u"PG 2 2 2"_s}));
    EXPECT_EQ(f.drained(), QStringList());
    for (std::size_t slot = 0; slot < TelemetryMailbox::slotCount; ++slot)
        EXPECT_EQ(f.mailbox.countOf(slot), 2);
}

TEST(TelemetryMailbox, ADrainIsPostedAgainAfterTheLastOne)
{
    Fixture f;
    f.mailbox.put(u"LVL -1 -1"_s, false);
    f.drained();
    f.mailbox.put(u"LVL -2 -2"_s, false);
    EXPECT_EQ(f.drains, 2);
    EXPECT_EQ(f.drained(), QStringList{u"LVL -2 -2"_s});
}

TEST(TelemetryMailbox, ALineDuringTheDrainIsNotLeftBehind)
{
    Fixture f;
    f.mailbox.put(u"LVL -1 -1"_s, false);
    f.mailbox.drain([&](const QString &, bool) { f.mailbox.put(u"LVL -2 -2"_s, false); });
    EXPECT_EQ(f.drains, 2);
    EXPECT_EQ(f.drained(), QStringList{u"LVL -2 -2"_s});
}

TEST(TelemetryMailbox, AllOtherLinesArePostedOneByOne)
{
    Fixture f;
    const QStringList others{u"SRC 1"_s, u"WVF none"_s, u"lvl 1"_s, u"[player] PG 1 1 1"_s,
                             u"LVL"_s,   u"PG\t1"_s,    u""_s};
    for (const QString &line : others)
        f.mailbox.put(line, false);
    EXPECT_EQ(f.posted, others);
    EXPECT_EQ(f.drains, 0);
}

TEST(TelemetryMailbox, ShortTelemetryPrefixCountsFromFourCharactersOn)
{
    Fixture f;
    f.mailbox.put(u"PG "_s, false);
    EXPECT_EQ(f.posted, QStringList{u"PG "_s});
    f.mailbox.put(u"PG x"_s, false);
    EXPECT_EQ(f.mailbox.countOf(2), 1);
}

TEST(TelemetryMailbox, AClosedBoxIsDeaf)
{
    Fixture f;
    f.mailbox.close();
    f.mailbox.put(u"PG 1 1 9"_s, false);
    f.mailbox.put(u"OPENED"_s, false);
    EXPECT_TRUE(f.posted.isEmpty());
    EXPECT_EQ(f.drains, 0);
    EXPECT_EQ(f.drained(), QStringList());
}

TEST(TelemetryMailbox, ErrorLinesAreNeverTelemetry)
{
    Fixture f;
    f.mailbox.put(u"LVL -1 -1"_s, true);
    EXPECT_EQ(f.posted, QStringList{u"err:LVL -1 -1"_s});
    EXPECT_EQ(f.drains, 0);
}

/// What several engines' threads post to one GUI thread.
struct Crowd
{
    std::mutex mutex;
    std::vector<QString> lines; ///< guarded by mutex
    std::atomic<int> drainsPosted{0};
    TelemetryMailbox mailbox{[this](const QString &line, bool) {
                                 const std::lock_guard lock(mutex);
                                 lines.push_back(line);
                             },
                             [this] { ++drainsPosted; }};
};

TEST(TelemetryMailbox, SeveralWritersLoseNoLineAndNoLastTelemetry)
{
    constexpr int writers = 4;
    constexpr int rounds = 2000;
    Crowd crowd;
    std::atomic<bool> done{false};
    QString lastLevels;
    qint64 delivered = 0;
    // The GUI thread: it drains when a drain has been posted, and only then.
    std::thread gui([&] {
        int drainsSeen = 0;
        for (;;) {
            const bool last = done.load();
            if (const int posted = crowd.drainsPosted.load(); posted > drainsSeen) {
                ++drainsSeen;
                crowd.mailbox.drain([&](const QString &line, bool) {
                    ++delivered;
                    if (line.startsWith("LVL"_L1))
                        lastLevels = QString(line);
                });
            } else if (last) {
                return;
            } else {
                std::this_thread::yield();
            }
        }
    });
    std::vector<std::thread> threads;
    for (int writer = 0; writer < writers; ++writer) {
        threads.emplace_back([&crowd, writer] {
            for (int round = 0; round < rounds; ++round) {
                crowd.mailbox.put(u"LVL %1 0"_s.arg(round), false);
                crowd.mailbox.put(u"PG %1 0"_s.arg(round), false);
                crowd.mailbox.put(u"%1 %2"_s.arg(writer).arg(round), false);
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    crowd.mailbox.put(u"LVL last 0"_s, false);
    done = true;
    gui.join();

    EXPECT_EQ(lastLevels, u"LVL last 0"_s);
    EXPECT_EQ(crowd.mailbox.countOf(0), writers * rounds + 1);
    EXPECT_EQ(crowd.mailbox.countOf(2), writers * rounds);
    EXPECT_LE(delivered, 2 * writers * rounds + 1);
    // Each writer's own lines are all there, and in their order.
    ASSERT_EQ(crowd.lines.size(), static_cast<std::size_t>(writers * rounds));
    std::vector<int> next(writers, 0);
    for (const QString &line : crowd.lines) {
        const int writer = line.section(u' ', 0, 0).toInt();
        EXPECT_EQ(line.section(u' ', 1, 1).toInt(), next.at(static_cast<std::size_t>(writer))++);
    }
}

} // namespace
