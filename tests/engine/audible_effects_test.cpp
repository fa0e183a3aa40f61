#include "engine/audible_effects.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

struct Row
{
    const char *name;
    std::function<void(AudibleEffectsFacts &)> change;
    bool audible;
};

void PrintTo(const Row &row, std::ostream *out)
{
    *out << row.name;
}

class AudibleEffects : public testing::TestWithParam<Row>
{
};

TEST_P(AudibleEffects, Answer)
{
    AudibleEffectsFacts facts;
    GetParam().change(facts);
    EXPECT_EQ(effectsWantPcm(facts), GetParam().audible);
}

const Row rows[] = {
    {"AllNeutral", [](auto &) {}, false},
    {"ReverbOnButDry", [](auto &f) { f.reverbOn = true; }, false},
    {"ReverbWetButOff", [](auto &f) { f.reverbWet = 50; }, false},
    {"ReverbOnAndWet",
     [](auto &f) {
         f.reverbOn = true;
         f.reverbWet = 1;
     },
     true},
    {"ToneAtItsBorder",
     [](auto &f) {
         f.toneOn = true;
         f.bassGainDb = 0.05;
         f.trebleGainDb = -0.05;
     },
     false},
    {"ToneBass",
     [](auto &f) {
         f.toneOn = true;
         f.bassGainDb = -0.5;
     },
     true},
    {"ToneTreble",
     [](auto &f) {
         f.toneOn = true;
         f.trebleGainDb = 0.5;
     },
     true},
    {"ToneOff", [](auto &f) { f.bassGainDb = 12; }, false},
    {"EqualizerFlat",
     [](auto &f) {
         f.equalizerOn = true;
         f.bandGainsDb = {0, 0.05, -0.05};
     },
     false},
    {"EqualizerPreamp",
     [](auto &f) {
         f.equalizerOn = true;
         f.preampDb = -0.06;
     },
     true},
    {"EqualizerLastBand",
     [](auto &f) {
         f.equalizerOn = true;
         f.bandGainsDb = {0, 0, 0.06};
     },
     true},
    {"EqualizerOff", [](auto &f) { f.bandGainsDb = {6}; }, false},
    {"Denoise", [](auto &f) { f.denoiseTier = 1; }, true},
    {"BalanceAtItsBorder", [](auto &f) { f.balance = 50.5; }, false},
    {"Balance", [](auto &f) { f.balance = 49.4; }, true},
    {"WidthAtItsBorder", [](auto &f) { f.width = 99.5; }, false},
    {"Width", [](auto &f) { f.width = 101; }, true},
};

INSTANTIATE_TEST_SUITE_P(Table, AudibleEffects, testing::ValuesIn(rows),
                         [](const auto &row) { return row.param.name; });

} // namespace
