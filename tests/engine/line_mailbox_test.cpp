#include "engine/line_mailbox.h"

#include <QStringList>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Recorder
{
    QStringList posted;
    int drains = 0;
    QStringList delivered;
    LineMailbox box{[this](const QString &line, bool) { posted.append(line); }, [this] { ++drains; }};

    void drain()
    {
        box.drain([this](const QString &line, bool) { delivered.append(line); });
    }
};

} // namespace

TEST(LineMailbox, OnlyTheNewestTelemetryOfAKindSurvives)
{
    Recorder recorder;
    for (const QString &line : {u"PG 1 1 9"_s, u"LVL -3 -3"_s, u"PG 2 2 9"_s, u"SPC none"_s, u"LVL -4 -4"_s})
        recorder.box.put(line, false);
    EXPECT_EQ(recorder.drains, 1) << "one drain for them all";
    EXPECT_TRUE(recorder.posted.isEmpty());
    recorder.drain();
    EXPECT_EQ(recorder.delivered, (QStringList{u"LVL -4 -4"_s, u"SPC none"_s, u"PG 2 2 9"_s}));
    EXPECT_EQ(recorder.box.countOf(2), 2);
    recorder.drain();
    EXPECT_EQ(recorder.delivered.size(), 3) << "an empty box delivers nothing";
}

TEST(LineMailbox, ADrainIsPostedAnewAfterADrain)
{
    Recorder recorder;
    recorder.box.put(u"PG 1 1 9"_s, false);
    recorder.drain();
    recorder.box.put(u"PG 2 2 9"_s, false);
    EXPECT_EQ(recorder.drains, 2);
}

TEST(LineMailbox, OtherLinesAreNeverLost)
{
    Recorder recorder;
    const QStringList lines = {u"OPENED x"_s, u"LVL"_s, u" PG 1 1 1"_s, QString(), u"DONE a"_s};
    for (const QString &line : lines)
        recorder.box.put(line, false);
    recorder.box.put(u"LVL -1 -1"_s, true);
    EXPECT_EQ(recorder.posted, lines + QStringList{u"LVL -1 -1"_s})
        << "telemetry on stderr is an ordinary line";
    EXPECT_EQ(recorder.drains, 0);
}

TEST(LineMailbox, AClosedBoxIsDeaf)
{
    Recorder recorder;
    recorder.box.close();
    recorder.box.put(u"PG 1 1 9"_s, false);
    recorder.box.put(u"OPENED"_s, false);
    EXPECT_TRUE(recorder.posted.isEmpty());
    EXPECT_EQ(recorder.drains, 0);
    recorder.drain();
    EXPECT_TRUE(recorder.delivered.isEmpty());
}
