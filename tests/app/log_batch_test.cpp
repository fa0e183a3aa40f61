#include "app/log_batch.h"

#include <QString>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Line
{
    QString text;
    bool isError = false;
};

TEST(LogBatch, ABurstNeedsOneFlushAndKeepsItsOrder)
{
    LogBatch<Line> batch;
    EXPECT_TRUE(batch.add({u"one"_s, false}));
    EXPECT_FALSE(batch.add({u"two"_s, true}));
    EXPECT_FALSE(batch.add({u"three"_s, false}));
    const QList<Line> entries = batch.take();
    ASSERT_EQ(entries.size(), 3);
    EXPECT_EQ(entries[0].text, u"one"_s);
    EXPECT_TRUE(entries[1].isError);
    EXPECT_EQ(entries[2].text, u"three"_s);
    EXPECT_TRUE(batch.take().isEmpty());
}

TEST(LogBatch, LinesAfterAFlushNeedANewOne)
{
    LogBatch<Line> batch;
    EXPECT_TRUE(batch.add({u"one"_s, false}));
    EXPECT_EQ(batch.take().size(), 1);
    EXPECT_TRUE(batch.add({u"two"_s, false}));
    EXPECT_FALSE(batch.add({u"three"_s, false}));
    EXPECT_EQ(batch.take().size(), 2);
}

} // namespace
