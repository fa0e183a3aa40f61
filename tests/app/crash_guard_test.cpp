#include "app/crash_guard.h"

#include <gtest/gtest.h>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

TEST(CrashGuard, NamesTheFunctionAndWhatCameOutOfIt)
{
    const std::runtime_error error("no row %1");
    EXPECT_EQ(crashGuardText(u"playCurrent"_s, &error), u"[crash-guard] playCurrent: no row %1"_s);
    EXPECT_EQ(crashGuardText(u"applyAll"_s, nullptr), u"[crash-guard] applyAll: 未知异常"_s);
}

} // namespace
