#include "app/crash_guard.h"

#include <QStringList>
#include <gtest/gtest.h>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

TEST(CrashGuard, LogsWhatCameOutAndGoesOn)
{
    QStringList lines;
    const auto log = [&](const QString &line) { lines += line; };
    EXPECT_TRUE(crashGuarded(u"stop"_s, log, [] {}));
    EXPECT_TRUE(lines.isEmpty());
    EXPECT_FALSE(crashGuarded(u"playCurrent"_s, log, [] { throw std::runtime_error("no row %1"); }));
    EXPECT_FALSE(crashGuarded(u"applyAll"_s, log, [] { throw 7; }));
    EXPECT_EQ(lines, (QStringList{u"[crash-guard] playCurrent: no row %1"_s,
                                  u"[crash-guard] applyAll: 未知异常"_s}));
}

} // namespace
