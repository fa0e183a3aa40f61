// The one door for control lines.
#include "window_fixture.h"

using namespace Qt::StringLiterals;

class SendCmd : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        makeWindow();
    }
    void startSession()
    {
        m_window->ensureSession();
        m_engine.current->start(u"x"_s, {});
    }
    EngineLinkState &link() { return WindowInspector::link(*m_window); }
};

TEST_F(SendCmd, WithoutASessionTheLineIsDroppedAndTheWatchdogArmed)
{
    EXPECT_FALSE(m_window->sendCmd(u"load /a"_s));
    ASSERT_NE(link().noAudioTimer, nullptr);
    EXPECT_TRUE(link().noAudioTimer->isActive());
    EXPECT_EQ(link().noAudioTimer->interval(), 5000);
    EXPECT_TRUE(logHas(u"load /a -> noproc"_s));
    EXPECT_EQ(link().queuedCtlCount, 0);
}

TEST_F(SendCmd, OnlyEffectsWithANameAreRemembered)
{
    m_window->sendCmd(u"fx"_s);
    m_window->sendCmd(u"fx eq on"_s);
    m_window->sendCmd(u"fx eq off"_s);
    EXPECT_EQ(link().fxLast.keys(), QStringList{u"eq"_s});
    EXPECT_EQ(link().fxLast.value(u"eq"_s), u"fx eq off"_s);
    EXPECT_EQ(link().noAudioTimer, nullptr);
}

TEST_F(SendCmd, QueuedLinesAreCounted)
{
    startSession();
    EXPECT_TRUE(m_window->sendCmd(u"vol 3"_s));
    EXPECT_EQ(link().queuedCtlCount, 1);
    EXPECT_TRUE(logHas(u"vol 3 -> queued 6B"_s));
    m_engine.takesLines = false;
    m_engine.lastError = u"full"_s;
    EXPECT_FALSE(m_window->sendCmd(u"vol 4"_s));
    EXPECT_EQ(link().queuedCtlCount, 2) << "a refused line of zero bytes counts";
    EXPECT_TRUE(logHas(u"vol 4 -> queued 0B [full]"_s));
}

TEST_F(SendCmd, AChildProcessHasNoAccount)
{
    m_engine.inProcess = false;
    startSession();
    EXPECT_TRUE(m_window->sendCmd(u"vol 3"_s));
    EXPECT_EQ(link().queuedCtlCount, 0);
    EXPECT_TRUE(logHas(u"vol 3 -> 6B"_s));
}

TEST_F(SendCmd, LevelsStopTheWatchdog)
{
    startSession();
    m_window->sendCmd(u"resume"_s);
    ASSERT_TRUE(link().noAudioTimer->isActive());
    m_window->onEngineLine(u"PG 1 1 9"_s, false);
    EXPECT_TRUE(link().noAudioTimer->isActive());
    m_window->onEngineLine(u"LVL -3 -3"_s, false);
    EXPECT_FALSE(link().noAudioTimer->isActive());
}
