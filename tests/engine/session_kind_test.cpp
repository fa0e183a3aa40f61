#include "engine/session_kind.h"

#include <gtest/gtest.h>

#include <QtGlobal>

using namespace Qt::StringLiterals;

namespace {

struct Row
{
    const char *name;
    bool set;
    const char16_t *value;
    bool setting;
    bool factory;
    bool preferred;
};

void PrintTo(const Row &row, std::ostream *out)
{
    *out << row.name;
}

class SessionKind : public testing::TestWithParam<Row>
{
};

TEST_P(SessionKind, BothRules)
{
    const Row &row = GetParam();
    const SessionKindFacts facts{row.set, QString::fromUtf16(row.value), row.setting};
    EXPECT_EQ(factoryWantsInProcess(facts), row.factory);
    EXPECT_EQ(isInProcessPreferred(facts), row.preferred);
}

const Row rows[] = {
    {"UnsetFollowsSettingOn", false, u"", true, true, true},
    {"UnsetFollowsSettingOff", false, u"", false, false, false},
    {"Zero", true, u"0", true, false, false},
    {"One", true, u"1", false, true, true},
    {"OtherNumber", true, u"-5", false, true, true},
    {"WordIsInProcessForTheFactoryOnly", true, u"abc", true, true, false},
    {"WordAgainstTheSetting", true, u"abc", false, true, false},
    {"SetButEmptyFallsBackForTheFactoryOnly", true, u"", true, true, false},
    {"SetButEmptyWithSettingOff", true, u"", false, false, false},
};

INSTANTIATE_TEST_SUITE_P(Table, SessionKind, testing::ValuesIn(rows),
                         [](const auto &row) { return row.param.name; });

TEST(SessionKindFacts, ComeFromTheEnvironment)
{
    qunsetenv("KELP_GUI_INPROC");
    EXPECT_FALSE(sessionKindFacts(true).environmentSet);
    qputenv("KELP_GUI_INPROC", "");
    EXPECT_TRUE(sessionKindFacts(true).environmentSet);
    qputenv("KELP_GUI_INPROC", "abc");
    EXPECT_EQ(sessionKindFacts(false).environmentValue, u"abc"_s);
    qunsetenv("KELP_GUI_INPROC");
}

} // namespace
