// The window's memory of what happened, and its watch over itself.
#include "playback_fixture.h"

#include "ui/log_pane.h"

#include "tests/support/patience.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QTextBlock>
#include <QToolButton>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

/// Counts how often a widget is painted.
class PaintCount final : public QObject
{
public:
    explicit PaintCount(QWidget *watched) { watched->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int paints = 0;
};

} // namespace

class WindowLog : public PlaybackTest
{
protected:
    void SetUp() override
    {
        PlaybackTest::SetUp();
        open();
    }
    void openPane()
    {
        m_window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(m_window.get(), kelp_test::patienceMs));
        ui().logSwitch->click();
        ASSERT_TRUE(ui().log);
        // What was said before has to be on its way through first.
        m_window->logLine(u"the pane is open"_s);
        ASSERT_TRUE(eventually([this] { return pane().contains(u"the pane is open"_s); }));
        QTest::qWait(0);
    }
    QString pane() { return ui().log->toPlainText(); }
};

TEST_F(WindowLog, ALineStandsInTheFileAtOnce)
{
    openPane();
    m_window->logLine(u"written first"_s);
    EXPECT_TRUE(logHas(u"written first"_s));
    EXPECT_FALSE(pane().contains(u"written first"_s)) << "the pane waits for the event loop";
    EXPECT_TRUE(eventually([this] { return pane().contains(u"written first"_s); }));
}

TEST_F(WindowLog, WhatIsForTheFileOnlyIsNotShown)
{
    openPane();
    m_window->logFileOnly(u"measured"_s);
    m_window->logLine(u"afterwards"_s);
    EXPECT_TRUE(eventually([this] { return pane().contains(u"afterwards"_s); }));
    EXPECT_TRUE(logHas(u"measured"_s));
    EXPECT_FALSE(pane().contains(u"measured"_s));
}

TEST_F(WindowLog, ABurstOfLinesCostsOneRepaintAndKeepsItsOrder)
{
    openPane();
    PaintCount count(ui().log->viewport());
    QStringList said;
    QElapsedTimer clock;
    clock.start();
    const qsizetype before = ui().log->blockCount();
    for (int i = 0; i < 200; ++i) {
        said.append(u"line %1"_s.arg(i));
        m_window->logLine(said.last(), i % 3 == 0);
        // The event loop turns between them, and could paint each.
        QCoreApplication::processEvents();
    }
    EXPECT_TRUE(eventually([&] { return pane().endsWith(said.last()); }));
    EXPECT_TRUE(pane().endsWith(said.join(u'\n')));
    EXPECT_EQ(ui().log->blockCount(), before + 200) << "each line stands there once";
    EXPECT_TRUE(eventually([&] { return count.paints > 0; }));
    // One for each twentieth of a second, and those of a scroll bar that comes with the lines.
    EXPECT_LE(count.paints, clock.elapsed() / 50 + 3);
}

TEST_F(WindowLog, AnErrorIsRedAndShowsItsMarkupAsText)
{
    openPane();
    m_window->logLine(u"<b>all well</b>"_s);
    m_window->logLine(u"<i>a & b</i>"_s, true);
    m_window->logLine(u"well again"_s);
    EXPECT_TRUE(eventually([this] { return pane().endsWith(u"<i>a & b</i>\nwell again"_s); }));
    EXPECT_TRUE(pane().contains(u"<b>all well</b>"_s));
    const auto colour = [](const QTextBlock &block) {
        return block.begin().fragment().charFormat().foreground().color().name();
    };
    const QTextBlock last = ui().log->document()->lastBlock();
    EXPECT_NE(colour(last), u"#c0392b"_s) << "the red does not run on";
    EXPECT_EQ(colour(last.previous()), u"#c0392b"_s);
    EXPECT_NE(colour(last.previous().previous()), u"#c0392b"_s);
}

TEST_F(WindowLog, AnEmptyTextClearsTheStage)
{
    m_window->markStage(u"busy"_s);
    EXPECT_EQ(m_window->markStage(QString()), u"busy"_s);
    EXPECT_EQ(m_window->markStage(QString()), QString());
}

TEST_F(WindowLog, TheDeliberateStallIsReportedWithItsStage)
{
    qputenv("KELP_GUI_LAG_TEST", "1");
    m_window->ensureSession();
    qunsetenv("KELP_GUI_LAG_TEST");
    m_window->markStage(u"the test"_s);
    // A stall of a busy machine's own making may come before it.
    EXPECT_TRUE(eventually([this] { return logHas(u"当时正在：the test"_s); }));
    EXPECT_TRUE(logHas(u"[stall] 界面线程卡住了"_s));
}

TEST_F(WindowLog, StartMetricsAreToldOnceARun)
{
    m_window->noteShown();
    m_window->startPlayback(0);
    at(1.);
    at(2.);
    m_window->jumpToRow(1);
    at(1.);
    EXPECT_FALSE(logHas(u"启动指标"_s)) << "a second and a half later";
    EXPECT_TRUE(eventually([this] { return logHas(u"启动指标：界面就绪 "_s); }));
    QTest::qWait(300);
    EXPECT_EQ(takeLog().count(u"启动指标"_s), 1);
}

TEST_F(WindowLog, AnExceptionInAStopIsCaughtAndNamed)
{
    m_window->startPlayback(0);
    m_engine.endsOnStop = false;
    m_engine.answer = [](FakeSession &, const QString &) { throw std::runtime_error("no way to stop"); };
    m_window->stopPlayback();
    EXPECT_TRUE(logHas(u"[crash-guard] stopPlayback: no way to stop"_s));
    m_engine.answer = [](FakeSession &, const QString &) { throw 42; };
    m_window->stopPlayback();
    EXPECT_TRUE(logHas(u"[crash-guard] stopPlayback: 未知异常"_s));
    m_engine.answer = {};
    m_engine.endsOnStop = true;
}

TEST_F(WindowLog, AnExceptionInWhatAnEngineLineSetsGoingIsCaughtAndNamed)
{
    m_window->startPlayback(0);
    m_engine.answer = [](FakeSession &, const QString &line) {
        if (line.startsWith(u"load "_s))
            throw std::runtime_error("no next track");
    };
    at(99.);
    EXPECT_TRUE(logHas(u"[crash-guard] drainMailbox: no next track"_s));
    m_engine.answer = {};
    EXPECT_TRUE(m_window->sessionRuns()) << "the program goes on";
}
