#include "engine/delay_queue.h"

#include <gtest/gtest.h>

namespace {

LevelLine level(double db)
{
    return {db, db};
}

TEST(DelayQueue, ReleasesWhatIsDueInOrder)
{
    LevelQueue queue(mostDelayedLevels);
    queue.push(100., level(1.));
    queue.push(150., level(2.));
    EXPECT_FALSE(queue.takeDue(99.9));
    EXPECT_EQ(queue.takeDue(100.), level(1.));
    EXPECT_FALSE(queue.takeDue(100.));
    EXPECT_EQ(queue.takeDue(1000.), level(2.));
    EXPECT_TRUE(queue.isEmpty());
    EXPECT_FALSE(queue.takeDue(1000.));
}

TEST(DelayQueue, AnEntryDoesNotOvertakeWhenTheLatencyShrinks)
{
    LevelQueue queue(mostDelayedLevels);
    queue.push(500., level(1.));
    queue.push(60., level(2.));
    EXPECT_FALSE(queue.takeDue(60.));
    EXPECT_EQ(queue.takeDue(500.), level(1.));
    EXPECT_EQ(queue.takeDue(500.), level(2.));
}

TEST(DelayQueue, FullQueuesDropTheOldest)
{
    LevelQueue levels(mostDelayedLevels);
    for (int at = 0; at < 300; ++at)
        levels.push(at, level(at));
    EXPECT_EQ(levels.size(), 256U);
    EXPECT_EQ(levels.takeDue(1000.), level(44.));

    SpectrumQueue spectra(mostDelayedSpectra);
    for (int at = 0; at < 513; ++at)
        spectra.push(at, {static_cast<double>(at), 1, {0.}, {}});
    EXPECT_EQ(spectra.size(), 512U);
    EXPECT_EQ(spectra.takeDue(1000.)->rateHz, 1.);
}

TEST(DelayQueue, ClearForgetsAll)
{
    LevelQueue queue(mostDelayedLevels);
    queue.push(1., level(1.));
    queue.clear();
    EXPECT_TRUE(queue.isEmpty());
    EXPECT_FALSE(queue.takeDue(10.));
}

} // namespace
