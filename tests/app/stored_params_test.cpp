#include "app/stored_params.h"

#include "platform/settings_table.h"
#include "tests/support/memory_settings.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(StoredParams, OfAnEmptyStoreAreTheDefaults)
{
    MemorySettings store;
    const StoredParams params = loadParams(store);
    EXPECT_EQ(params.mode, u"standard"_s);
    EXPECT_EQ(params.layout, QString());
    EXPECT_EQ(params.pcmBits, u"24"_s);
    EXPECT_EQ(params.dop, u"auto"_s);
    EXPECT_EQ(params.outputPath, u"auto"_s);
    EXPECT_EQ(params.pcmFilter, u"standard"_s);
    EXPECT_EQ(params.pcmToDsdTargetHz, 2822400);
    EXPECT_TRUE(params.gapless);
    EXPECT_TRUE(params.lyrics);
    EXPECT_FALSE(params.lyricsOnline);
    EXPECT_FALSE(params.peakGuard);
    EXPECT_FALSE(params.volume);
    EXPECT_FALSE(params.crossoverHz);
    EXPECT_TRUE(store.values.isEmpty());
}

TEST(StoredParams, SurviveSavingAndLoading)
{
    StoredParams params;
    params.mode = u"stereo"_s;
    params.peakGuard = true;
    params.denoiseTier = 2;
    params.keepHarmonics = true;
    params.speedRatio = 1.5;
    params.gapless = false;
    params.vizMode = 3;
    params.repeatAxis = 2;
    params.crossoverHz = 90.5;
    params.volume = 42;
    params.streamRead = true;
    params.customRig = u"{}"_s;
    MemorySettings store;
    saveParams(params, store);
    const StoredParams read = loadParams(store);
    EXPECT_EQ(read.mode, u"stereo"_s);
    EXPECT_EQ(read.peakGuard, true);
    EXPECT_EQ(read.denoiseTier, 2);
    EXPECT_TRUE(read.keepHarmonics);
    EXPECT_EQ(read.speedRatio, 1.5);
    EXPECT_FALSE(read.gapless);
    EXPECT_EQ(read.vizMode, 3);
    EXPECT_EQ(read.repeatAxis, 2);
    EXPECT_EQ(read.crossoverHz, 90.5);
    EXPECT_EQ(read.volume, 42);
    EXPECT_EQ(read.streamRead, true);
    EXPECT_FALSE(read.resample);
    EXPECT_EQ(read.customRig, u"{}"_s);
    EXPECT_FALSE(store.values.contains(QString(settings::playOrder.key)));
}

TEST(StoredParams, AreReadInTheOrderOfTheTable)
{
    MemorySettings store;
    loadParams(store);
    // The tier and the harmonics have two places and are read after the plain ones.
    QStringList expected;
    bool inParams = false;
    for (const SettingRow &row : settings::all) {
        const QString key(row.key);
        inParams = inParams || key == QString(settings::mode.key);
        const bool apart = key == QString(settings::denoiseTier.key) ||
                           key == QString(settings::keepHarmonics.key) ||
                           key == QString(settings::playOrder.key);
        if (inParams && !apart)
            expected += key;
        if (key == QString(settings::customRig.key))
            break;
    }
    EXPECT_EQ(store.readKeys.first(expected.size()), expected);
}

TEST(StoredParams, ATierOutOfRangeIsClampedAndHarmonicsFollowIt)
{
    MemorySettings store;
    store.values[u"param/denoise_tier"_s] = 7;
    store.values[u"param/keep_harmonics"_s] = true;
    EXPECT_EQ(loadParams(store).denoiseTier, 3);
    EXPECT_TRUE(loadParams(store).keepHarmonics);
    store.values[u"param/denoise_tier"_s] = 0;
    EXPECT_FALSE(loadParams(store).keepHarmonics);
}

TEST(StoredParams, ThePanelsValueIsTheTruth)
{
    MemorySettings store;
    store.values[u"param/denoise_tier"_s] = 1;
    store.values[u"param/keep_harmonics"_s] = false;
    store.values[u"fx/denoise_tier"_s] = 3;
    store.values[u"fx/keep_harmonics"_s] = true;
    EXPECT_EQ(loadParams(store).denoiseTier, 3);
    EXPECT_TRUE(loadParams(store).keepHarmonics);
    // A value of the panel's that is none counts as absent.
    store.values[u"fx/denoise_tier"_s] = u"much"_s;
    EXPECT_EQ(loadParams(store).denoiseTier, 1);
}

TEST(StoredParams, SavingWritesBothPlaces)
{
    MemorySettings store;
    StoredParams params;
    params.denoiseTier = 2;
    params.keepHarmonics = true;
    saveParams(params, store);
    for (const QString &group : {u"param/"_s, u"fx/"_s}) {
        EXPECT_EQ(store.values.value(group + u"denoise_tier"_s), 2);
        EXPECT_EQ(store.values.value(group + u"keep_harmonics"_s), true);
    }
}

TEST(StoredParams, TheDisplayModeIsNotWrittenBeforeItWasChosen)
{
    MemorySettings store;
    EXPECT_EQ(vizModeAtTrackStart(store), 1);
    StoredParams params = loadParams(store);
    EXPECT_FALSE(params.vizMode);
    saveParams(params, store);
    EXPECT_FALSE(store.values.contains(u"param/viz_mode"_s));
    EXPECT_EQ(vizModeAtTrackStart(store), 1);
    params.vizMode = 0;
    saveParams(params, store);
    EXPECT_EQ(loadParams(store).vizMode, 0);
    EXPECT_EQ(vizModeAtTrackStart(store), 0);
}

TEST(StoredParams, AFormerPlayOrderIsMigratedOnce)
{
    MemorySettings store;
    store.values[u"param/play_order"_s] = 2;
    StoredParams params = loadParams(store);
    EXPECT_EQ(params.orderAxis, 0);
    EXPECT_EQ(params.repeatAxis, 1);
    EXPECT_EQ(store.values.value(u"param/repeat_axis"_s), 1);
    params.repeatAxis = 0;
    saveParams(params, store);
    EXPECT_EQ(loadParams(store).repeatAxis, 0);
}

TEST(StoredParams, MigrationWorksWhereNothingCanBeWritten)
{
    MemorySettings store;
    store.values[u"param/play_order"_s] = 1;
    store.readOnly = true;
    EXPECT_EQ(loadParams(store).orderAxis, 1);
    EXPECT_FALSE(store.values.contains(u"param/order_axis"_s));
}

} // namespace
