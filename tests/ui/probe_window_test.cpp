// What the window asks the engine beside a session.
#include "window_fixture.h"

#include "tests/support/patience.h"

#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <atomic>

using namespace Qt::StringLiterals;

class Probes : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        m_probe = [this](const QStringList &args) {
            m_asked.append(args.join(u' '));
            return m_answer;
        };
        makeWindow();
        m_asked.clear();
        takeLog();
    }
    void TearDown() override
    {
        WindowTest::TearDown();
        qunsetenv("KELP_GUI_PROBE_HANG");
    }
    PlaylistWidget *playlist() { return m_window->widgets().playlist; }

    QStringList m_asked; ///< written by the worker, read when it has answered
    PlayerProbeResult m_answer;
};

TEST_F(Probes, ASheetIsSpreadIntoItsTracks)
{
    m_answer.text = u"CUE\tAlbum\tArtist\nTRACK\t1\t0\t60.5\tEins\tWer\t/m/a.wav\n"
                    "TRACK\t2\t60.5\t100\t\t\t/m/a.wav\n"_s;
    const QString sheet = m_root.filePath(u"a.cue"_s);
    QFile file(sheet);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    m_window->addPaths({sheet, sheet});
    ASSERT_TRUE(QTest::qWaitFor([this] { return playlist()->count() > 0; }, kelp_test::patienceMs));
    settle();
    ASSERT_EQ(playlist()->count(), 2) << "the sheet was asked for twice and listed once";
    EXPECT_EQ(m_asked, QStringList{u"-cue-list "_s + sheet});
    EXPECT_TRUE(logHas(u"CUE: Album — Artist"_s));
    const PlaylistEntry first = playlist()->entryAt(0);
    EXPECT_EQ(first.text, u"01. Eins — Wer"_s);
    EXPECT_EQ(first.path, u"/m/a.wav"_s);
    EXPECT_EQ(first.cuePath, sheet);
    EXPECT_EQ(first.track, 1);
    EXPECT_EQ(first.endSec, 60.5);
    EXPECT_TRUE(playlist()->item(0)->toolTip().startsWith(sheet + u"\n轨 1\n"_s));
    EXPECT_EQ(playlist()->item(1)->text(), u"02. a.wav"_s);
}

TEST_F(Probes, AnOpenedSheetPlaysItsFirstTrack)
{
    addFiles(1);
    const QString audio = fileAt(0);
    m_answer.text = u"TRACK\t1\t0\t60\tEins\t\t%1\nTRACK\t2\t60\t90\tZwei\t\t%1\n"_s.arg(audio);
    m_window->debugAutoplay(u"/m/a.cue"_s, {});
    ASSERT_TRUE(QTest::qWaitFor([this] { return !m_engine.startArgs.isEmpty(); }, kelp_test::patienceMs));
    EXPECT_EQ(WindowInspector::start(*m_window).playingRow, 1);
    const QStringList args = m_engine.startArgs.first();
    EXPECT_TRUE(args.contains(u"/m/a.cue"_s)) << qPrintable(args.join(u' '));
    m_engine.current->say(u"DONE a"_s);
    settle();
    EXPECT_EQ(m_engine.lines().last(), u"write load-cue 2 /m/a.cue"_s);
}

TEST_F(Probes, AFailedListingIsExplained)
{
    m_answer = {session_code::timedOut, u"[probe] timed out"_s};
    int added = -1;
    m_window->expandContainerAsync(u"/m/a.iso"_s, [&added](int count) { added = count; });
    ASSERT_TRUE(QTest::qWaitFor([&added] { return added >= 0; }, kelp_test::patienceMs));
    EXPECT_EQ(added, 0);
    EXPECT_TRUE(logHas(u"/m/a.iso (rc=-1000)"_s));
}

TEST_F(Probes, RefreshedDevicesKeepTheChoice)
{
    m_answer.text = u"[default] One\n[2] Two"_s;
    m_window->populateDevices();
    m_window->populateDevices();
    ASSERT_TRUE(
        QTest::qWaitFor([this] { return m_window->widgets().device->count() == 3; }, kelp_test::patienceMs));
    EXPECT_EQ(m_asked.size(), 1) << "one listing at a time";
    m_window->widgets().device->setCurrentIndex(2);
    m_answer.text = u"[2] Two"_s;
    m_window->populateDevices();
    ASSERT_TRUE(
        QTest::qWaitFor([this] { return m_window->widgets().device->count() == 2; }, kelp_test::patienceMs));
    EXPECT_EQ(m_window->currentDeviceName(), u"Two"_s);
}

TEST_F(Probes, AnAnalysisNeedsARowAndNoSession)
{
    m_window->analyzeTrack();
    EXPECT_TRUE(logHas(u"先选一首再分析"_s));
    addFiles(1);
    playlist()->setCurrentRow(0);
    m_window->startPlayback(0);
    m_window->analyzeTrack();
    EXPECT_TRUE(logHas(u"播放中不能分析, 先按停止再来"_s));
    EXPECT_TRUE(m_asked.isEmpty());
}

TEST_F(Probes, AnAnalysisAnswersInABox)
{
    addFiles(1);
    playlist()->setCurrentRow(0);
    m_answer.text = u"ANALYZE bpm=128.0\nANALYZE key=A minor\n"_s;
    m_window->analyzeTrack();
    m_window->analyzeTrack(); // while one runs another is not begun
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_window->findChild<QMessageBox *>() != nullptr; },
                                kelp_test::patienceMs));
    EXPECT_EQ(m_asked, QStringList{u"-analyze "_s + fileAt(0)});
    const auto *box = m_window->findChild<QMessageBox *>();
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->text(), u"BPM: 128.0\n调性: A minor"_s);
    EXPECT_TRUE(logHas(u"曲目分析: BPM 128.0, 调性 A minor"_s));
}

TEST_F(Probes, AHangingProbeLeavesTheWindowAlive)
{
    m_window.reset();
    m_probe = nullptr;
    makeWindow(); // listing at the start must not hang
    qputenv("KELP_GUI_PROBE_HANG", "1");
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&ticks] { ++ticks; });
    timer.start(20);
    int added = -1;
    m_window->expandContainerAsync(u"/m/a.cue"_s, [&added](int count) { added = count; });
    ASSERT_TRUE(QTest::qWaitFor([&added] { return added >= 0; }, kelp_test::patienceMs));
    // 60 ticks fit into the probe's 1200 ms; a blocked thread would have had one, a busy machine has some.
    EXPECT_GT(ticks, 1);
    EXPECT_EQ(added, 0);
    EXPECT_TRUE(logHas(u"KELP_GUI_PROBE_HANG self-test"_s));
    EXPECT_TRUE(logHas(u"rc=-1000"_s));
}

TEST_F(Probes, ATracedProbeSaysWhatItAnswered)
{
    m_window.reset();
    m_probe = nullptr;
    makeWindow();
    qputenv("KELP_GUI_PROBE_TRACE", "1");
    int added = -1;
    m_window->expandContainerAsync(u"/m/a.cue"_s, [&added](int count) { added = count; });
    ASSERT_TRUE(QTest::qWaitFor([&added] { return added >= 0; }, kelp_test::patienceMs));
    qunsetenv("KELP_GUI_PROBE_TRACE");
    EXPECT_TRUE(logHas(u"[probe] -cue-list /m/a.cue rc=0 bytes=0"_s)) << "of /bin/true";
}
