#include "app/log_batch.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(LogBatch, ABurstNeedsOneFlushAndKeepsItsOrder)
{
    LogBatch batch;
    EXPECT_TRUE(batch.add(u"one"_s, false));
    EXPECT_FALSE(batch.add(u"two"_s, true));
    EXPECT_FALSE(batch.add(u"three"_s, false));
    const QList<LogBatch::Entry> entries = batch.take();
    ASSERT_EQ(entries.size(), 3);
    EXPECT_EQ(entries[0].text, u"one"_s);
    EXPECT_TRUE(entries[1].isError);
    EXPECT_EQ(entries[2].text, u"three"_s);
    EXPECT_TRUE(batch.take().isEmpty());
}

TEST(LogBatch, LinesAfterAFlushNeedANewOne)
{
    LogBatch batch;
    EXPECT_TRUE(batch.add(u"one"_s, false));
    batch.take();
    EXPECT_TRUE(batch.add(u"two"_s, false));
    EXPECT_FALSE(batch.add(u"three"_s, false));
    EXPECT_EQ(batch.take().size(), 2);
}

TEST(LogBatch, AnErrorLineIsColouredAndEscaped)
{
    EXPECT_EQ(errorLineHtml(u"a <b> & \"%1\""_s),
              u"<span style='color:#c0392b'>a &lt;b&gt; &amp; &quot;%1&quot;</span>"_s);
}

} // namespace
