#include "player_core/dsp/effective_bits.h"

#include <array>
#include <cmath>
#include <optional>
#include <string>

#include <gtest/gtest.h>

using namespace kelp_core;

namespace {

/// What the front end finds in a line: the first of these words, in this order.
constexpr std::array<const char *, 8> keys{
    "unity",      "effective bits",        "used up",
    "headroom",   "applied on the DEVICE", "NOT applied on a DoP stream",
    "DSD direct", "SOFTWARE gain"};

std::string recognised(const std::string &line)
{
    for (const char *key : keys) {
        if (line.find(key) != std::string::npos)
            return key;
    }
    return "nothing";
}

/// The number behind the first occurrence of a phrase.
std::optional<int> numberBehind(const std::string &line, const std::string &phrase)
{
    const size_t at = line.find(phrase);
    if (at == std::string::npos)
        return std::nullopt;
    try {
        return std::stoi(line.substr(at + phrase.size()));
    } catch (const std::exception &) {
        return std::nullopt;
    }
}

struct Row
{
    const char *name;
    VolumeFacts facts;
    const char *key;
    std::optional<int> about;
    std::optional<int> device;
};

} // namespace

TEST(EffectiveBits, EachCaseIsReadAsWhatItIs)
{
    const auto software = VolumePlace::software;
    const std::array<Row, 18> rows{{
        {"untouched", {software, 1.0, 16, 24, false}, "unity", {}, 24},
        {"same depth", {software, 1.0, 24, 24, false}, "unity", {}, 24},
        {"device not known", {software, 1.0, 16, 0, false}, "unity", {}, {}},
        {"deeper source", {software, 1.0, 24, 16, true}, "effective bits", 16, 16},
        {"half on its own depth", {software, 0.5, 16, 16, false}, "effective bits", 15, 16},
        {"room to spare", {software, 0.125, 16, 24, false}, "effective bits", 16, 24},
        {"room used", {software, 0.001, 16, 24, true}, "effective bits", 14, 24},
        {"32 bit device", {software, 0.5, 24, 32, false}, "effective bits", 24, 32},
        {"too deep", {software, 0.00002, 16, 16, false}, "used up", {}, 16},
        {"muted", {software, 0.0, 16, 24, false}, "used up", {}, 24},
        {"muted, nothing known", {software, 0.0, 0, 0, false}, "used up", {}, {}},
        {"raised", {software, 1.4, 16, 24, false}, "headroom", {}, 24},
        {"on the device", {VolumePlace::device, 1.0, 16, 24, false}, "applied on the DEVICE", {}, 24},
        {"DoP", {VolumePlace::dop, 1.0, 1, 24, false}, "NOT applied on a DoP stream", {}, 24},
        {"DoP, device not known",
         {VolumePlace::dop, 1.0, 1, 0, false},
         "NOT applied on a DoP stream",
         {},
         {}},
        {"native DSD", {VolumePlace::nativeDsd, 1.0, 1, 1, false}, "DSD direct", {}, {}},
        {"source not known", {software, 0.5, 0, 16, false}, "SOFTWARE gain", {}, 16},
        {"device not known, scaled", {software, 0.5, 16, 0, false}, "SOFTWARE gain", {}, {}},
    }};
    for (const Row &row : rows) {
        const std::string line = volumeLine(row.facts);
        EXPECT_EQ(line.rfind("volume: ", 0), 0u) << row.name;
        EXPECT_EQ(recognised(line), row.key) << row.name << ": " << line;
        EXPECT_EQ(numberBehind(line, "about "), row.about) << row.name << ": " << line;
        EXPECT_EQ(numberBehind(line, "on a "), row.device) << row.name << ": " << line;
    }
}

TEST(EffectiveBits, SourceNotKnownIsNeverClaimedToBeUntouchedByRounding)
{
    // A source of unknown depth at gain 1 is not scaled; that much is true.
    EXPECT_EQ(recognised(volumeLine({VolumePlace::software, 1.0, 0, 16, false})), "unity");
}

TEST(EffectiveBits, TheLineNamesTheGain)
{
    EXPECT_NE(volumeLine({VolumePlace::software, 0.125, 16, 16, false}).find("SOFTWARE gain -18.06 dB"),
              std::string::npos);
    EXPECT_NE(volumeLine({VolumePlace::software, 2.0, 16, 16, false}).find("+6.02 dB"), std::string::npos);
    EXPECT_NE(volumeLine({VolumePlace::software, 0.0, 16, 16, false}).find("muted"), std::string::npos);
    EXPECT_NE(volumeLine({VolumePlace::software, 0.5, 16, 16, true}).find("dithered"), std::string::npos);
}

TEST(EffectiveBits, CountsWhatReachesTheDevice)
{
    EXPECT_DOUBLE_EQ(effectiveBits(1.0, 16, 24), 16.0);
    EXPECT_DOUBLE_EQ(effectiveBits(1.0, 24, 16), 16.0);
    EXPECT_DOUBLE_EQ(effectiveBits(0.25, 16, 16), 14.0);
    EXPECT_DOUBLE_EQ(effectiveBits(0.25, 24, 25), 23.0);
    EXPECT_DOUBLE_EQ(effectiveBits(4.0, 16, 16), 16.0);
    EXPECT_DOUBLE_EQ(effectiveBits(0.0, 16, 16), 0.0);
    EXPECT_DOUBLE_EQ(effectiveBits(1e-9, 16, 16), 0.0);
    EXPECT_DOUBLE_EQ(effectiveBits(std::nan(""), 16, 16), 0.0);
}
