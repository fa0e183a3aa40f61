// The pulse of the thread that runs the event loop.
#include "app/heartbeat.h"

#include <QCoreApplication>
#include <QThread>
#include <gtest/gtest.h>

TEST(Heartbeat, BeatsWhileTheEventLoopTurnsAndStopsWithIt)
{
    heartbeat::start();
    const unsigned long before = heartbeat::count();
    while (heartbeat::count() < before + 3)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const unsigned long stopped = heartbeat::count();
    QThread::msleep(100);
    EXPECT_EQ(heartbeat::count(), stopped) << "a thread that is busy does not beat";
}

TEST(Heartbeat, RemembersThatTheEventLoopWasLeft)
{
    EXPECT_FALSE(heartbeat::eventLoopLeft());
    heartbeat::setEventLoopLeft();
    EXPECT_TRUE(heartbeat::eventLoopLeft());
}
