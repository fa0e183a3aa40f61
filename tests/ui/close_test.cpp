// The end of the window.
#include "window_fixture.h"

#include "app/settings_store.h"
#include "platform/settings_table.h"
#include "tests/support/settings_on_disk.h"

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

using namespace Qt::StringLiterals;

class Close : public WindowTest
{
protected:
    /// Answers the question box as soon as it is there; counts whether it came.
    void answerWith(QMessageBox::StandardButton button)
    {
        QTimer::singleShot(0, qApp, [this, button] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                ++m_asked;
                m_question = box->windowTitle() + u'|' + box->text();
                box->button(button)->click();
            }
        });
    }
    int m_asked = 0;
    QString m_question; ///< title and text of the last one
};

TEST_F(Close, WhileIdleNobodyIsAsked)
{
    m_asksBeforeClosing = true;
    makeWindow();
    m_window->show();
    EXPECT_TRUE(m_window->close());
    EXPECT_TRUE(logHas(u"[gui] closeEvent: 播放中=0"_s));
}

TEST_F(Close, DuringPlaybackANoKeepsTheWindow)
{
    m_asksBeforeClosing = true;
    makeWindow();
    m_window->show();
    addFiles(1);
    m_window->startPlayback(0);
    answerWith(QMessageBox::No);
    EXPECT_FALSE(m_window->close());
    EXPECT_EQ(m_asked, 1);
    EXPECT_EQ(m_question, u"播放进行中|播放尚未结束, 关闭窗口将停止播放。\n\n确定要退出吗?"_s);
    EXPECT_TRUE(logHas(u"[gui] closeEvent: 播放中=1"_s));
    EXPECT_TRUE(m_engine.current->isRunning());
    answerWith(QMessageBox::Yes);
    EXPECT_TRUE(m_window->close());
    EXPECT_EQ(m_asked, 2);
    EXPECT_TRUE(m_engine.did(u"write stop"_s));
    EXPECT_TRUE(m_engine.did(u"wait 5000"_s));
}

TEST_F(Close, WhenTheSystemEndsTheProgramNobodyIsAskedAndAllIsSaved)
{
    m_asksBeforeClosing = true;
    makeWindow();
    m_window->show();
    addFiles(1);
    m_window->startPlayback(0);
    writeUserSetting(settings::geometry, QByteArray());
    QTimer::singleShot(0, m_window.get(), [this] { m_window->endOnDemand(u"SIGTERM"_s); });
    QApplication::exec();
    EXPECT_TRUE(logHas(u"[gui] SIGTERM: 系统要求退出"_s));
    EXPECT_TRUE(logHas(u"[gui] closeEvent: 播放中=1"_s));
    EXPECT_FALSE(m_window->isVisible());
    EXPECT_TRUE(m_engine.did(u"write stop"_s));
    EXPECT_FALSE(m_engine.current->isRunning());
    EXPECT_FALSE(readUserSetting(settings::geometry).isEmpty());
}

TEST_F(Close, AnEndingHookIsNeverAsked)
{
    makeWindow();
    m_window->show();
    addFiles(1);
    m_window->startPlayback(0);
    EXPECT_TRUE(m_window->close());
    EXPECT_FALSE(m_engine.current->isRunning());
}

TEST_F(Close, AHangingChildIsEndedByForce)
{
    m_engine.inProcess = false;
    m_engine.endsOnStop = false;
    makeWindow();
    addFiles(1);
    m_window->startPlayback(0);
    m_engine.calls.clear();
    m_window->killProc(false);
    const QStringList expected = {u"write stop"_s, u"wait 5000"_s, u"terminate"_s,
                                  u"wait 1000"_s,  u"kill"_s,      u"wait 2000"_s};
    EXPECT_EQ(m_engine.calls, expected);
    EXPECT_TRUE(logHas(u"关窗时强杀"_s));
}

TEST_F(Close, AHangingEngineInsideThisProcessCanOnlyBeWaitedFor)
{
    m_engine.endsOnStop = false;
    makeWindow();
    addFiles(1);
    m_window->startPlayback(0);
    m_window->killProc(false);
    EXPECT_TRUE(logHas(u"KELP_GUI_INPROC=0"_s));
    m_engine.endsOnStop = true;
}

TEST_F(Close, ATrackStartedAMomentAgoIsTheLastPlayed)
{
    makeWindow();
    m_window->show();
    addFiles(2);
    m_window->startPlayback(1);
    const QString path = fileAt(1);
    EXPECT_TRUE(m_window->close());
    EXPECT_EQ(SettingsOnDisk().value(QString(settings::lastPlayed.key)).toString(), path);
}
