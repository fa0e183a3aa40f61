#include "platform/termination_signals.h"

#include <QCoreApplication>
#include <QTest>
#include <csignal>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace {

/// Puts what the test's process does on signals back.
class TerminationSignals : public testing::Test
{
protected:
    TerminationSignals() { ::sigaction(SIGHUP, nullptr, &m_former); }
    ~TerminationSignals() override { ::sigaction(SIGHUP, &m_former, nullptr); }

    std::unique_ptr<QObject> watch()
    {
        auto context = std::make_unique<QObject>();
        onTerminationSignal(context.get(), [this](int number) { m_heard.push_back(number); });
        return context;
    }
    static bool isDefault(int number)
    {
        struct sigaction now = {};
        ::sigaction(number, nullptr, &now);
        return now.sa_handler == SIG_DFL;
    }

    std::vector<int> m_heard;

private:
    struct sigaction m_former = {};
};

} // namespace

TEST_F(TerminationSignals, EachIsToldInTheEventLoop)
{
    const auto context = watch();
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        ASSERT_EQ(std::raise(number), 0);
    EXPECT_TRUE(m_heard.empty()) << "never inside the handler";
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_heard.size() == 3; }, 30'000));
    EXPECT_EQ(m_heard, (std::vector{SIGTERM, SIGINT, SIGHUP}));
}

TEST_F(TerminationSignals, ASecondOneEndsTheProcess)
{
    const auto context = watch();
    EXPECT_FALSE(isDefault(SIGTERM));
    ASSERT_EQ(std::raise(SIGTERM), 0);
    EXPECT_TRUE(isDefault(SIGTERM));
    EXPECT_FALSE(isDefault(SIGINT)) << "but each kind is asked once";
}

TEST_F(TerminationSignals, WhatWasSwitchedOffStaysOff)
{
    std::signal(SIGHUP, SIG_IGN); // as nohup does
    const auto context = watch();
    ASSERT_EQ(std::raise(SIGHUP), 0);
    ASSERT_EQ(std::raise(SIGINT), 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_heard.empty(); }, 30'000));
    EXPECT_EQ(m_heard, std::vector{SIGINT});
}

TEST_F(TerminationSignals, AfterTheWatchAllIsAsBefore)
{
    watch().reset();
    EXPECT_TRUE(isDefault(SIGTERM));
    EXPECT_TRUE(isDefault(SIGINT));
    EXPECT_TRUE(isDefault(SIGHUP));
}

TEST_F(TerminationSignals, TheyHaveNames)
{
    EXPECT_STREQ(terminationSignalName(SIGTERM), "SIGTERM");
    EXPECT_STREQ(terminationSignalName(SIGINT), "SIGINT");
    EXPECT_STREQ(terminationSignalName(SIGHUP), "SIGHUP");
    EXPECT_STREQ(terminationSignalName(SIGUSR1), "another signal");
}

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
