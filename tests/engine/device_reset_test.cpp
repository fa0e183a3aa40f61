#include "engine/device_reset.h"

#include "engine/session_support.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace session_support;

namespace {

struct Entry
{
    QString text;
    bool isError = false;
};

QList<Entry> reset(const QString &program)
{
    QList<Entry> log;
    resetDeviceAfterKill(program, u"100%1 forced"_s, [&log](const QString &text, bool isError) {
        log.append({text, isError});
    });
    return log;
}

TEST(DeviceReset, WithoutAKnownEngineNothingHappens)
{
    EXPECT_TRUE(reset({}).isEmpty());
}

TEST(DeviceReset, LogsTheReasonAndTheCode)
{
    const auto log = reset(engineProgramPath());
    ASSERT_EQ(log.size(), 1);
    EXPECT_EQ(log[0].text, u"100%1 forced ⇒ -reset-device rc=0 (设备已清)"_s);
    EXPECT_FALSE(log[0].isError);
}

TEST(DeviceReset, AnEngineThatHangsIsKilledAfterFiveSecondsAndTold)
{
    const QTemporaryDir scratch;
    QFile script(scratch.filePath(u"engine"_s));
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\nexec sleep 600\n"); // longer than CTest lets a test run
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    script.close();
    QElapsedTimer clock;
    clock.start();
    const auto log = reset(script.fileName());
    EXPECT_GE(clock.elapsed(), 5000);
    ASSERT_EQ(log.size(), 1);
    EXPECT_TRUE(log[0].isError);
    EXPECT_EQ(log[0].text, u"设备复位 (-reset-device) 超时：100%1 forced"_s);
}

TEST(DeviceReset, AnEngineThatCannotBeStartedIsAnError)
{
    const auto log = reset(u"/nowhere/engine"_s);
    ASSERT_EQ(log.size(), 1);
    EXPECT_TRUE(log[0].isError);
}

} // namespace
