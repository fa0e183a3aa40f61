#include "engine/session_factory.h"

#include "engine/session_support.h"

#include <gtest/gtest.h>

#include <QObject>

using namespace Qt::StringLiterals;
using namespace session_support;

namespace {

TEST(SessionFactory, MakesTheKindThatTheRuleNames)
{
    QObject window;
    SessionOptions options;
    options.library = &engineLibrary();
    EXPECT_TRUE(makeSession(&window, options)->isInProcess());
    options.kind.inprocSetting = false;
    EXPECT_FALSE(makeSession(&window, options)->isInProcess());
    options.kind = {true, u"abc"_s, false};
    EXPECT_TRUE(makeSession(&window, options)->isInProcess());
    EXPECT_FALSE(isInProcessPreferred(options.kind));
}

TEST(SessionFactory, CanBeForcedToAChildProcess)
{
    QObject window;
    SessionOptions options;
    options.kind = {true, u"1"_s, true};
    options.forceChildProcess = true;
    EXPECT_FALSE(makeSession(&window, options)->isInProcess());
}

TEST(SessionFactory, BothKindsRunTheSameEngine)
{
    QObject window;
    for (const bool inProcess : {true, false}) {
        SessionOptions options;
        options.library = &engineLibrary();
        options.kind.inprocSetting = inProcess;
        const auto session = makeSession(&window, options);
        Heard heard(*session);
        ASSERT_EQ(session->start(engineProgramPath(), {u"-test"_s, u"exit"_s, u"11"_s}), 0);
        ASSERT_TRUE(eventuallyPolling(*session, [&] { return !heard.ends.isEmpty(); }));
        EXPECT_EQ(heard.ends[0].code, 11) << inProcess;
    }
}

} // namespace
