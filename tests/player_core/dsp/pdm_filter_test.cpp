#include "player_core/dsp/pdm_filter.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>
#include <vector>

#include <gtest/gtest.h>

using namespace kelp_core;

namespace {

constexpr int dsd64 = 2822400;
constexpr int outputs = 400; ///< frames that hold the longest filter here on either side of the middle

/// The impulse response of the whole decoding at the bit rate, measured from outside: what the middle output
/// frame changes by when one bit is turned, for every bit.
std::vector<double> impulseResponse(PdmFilter filter, int dsdRateHz, int pcmRateHz)
{
    const int ratio = dsdRateHz / pcmRateHz;
    const size_t bytes = static_cast<size_t>(outputs * ratio / 8);
    PdmDecimator decimator(filter, dsdRateHz, pcmRateHz, 1);
    const auto run = [&](std::vector<uint8_t> dsd) {
        std::vector<double> out;
        decimator.process(dsd.data(), dsd.size(), out);
        decimator.flush(out);
        return out;
    };
    const std::vector<uint8_t> idle(bytes, 0x69);
    const std::vector<double> silent = run(idle);
    const int middle = outputs / 2 * ratio;
    // Output k sees the turned bit p at the distance p − k · ratio.
    std::vector<double> response(static_cast<size_t>(outputs * ratio), 0.0);
    for (int phase = 0; phase < ratio; ++phase) {
        const int place = middle + phase;
        std::vector<uint8_t> turned = idle;
        const auto mask = static_cast<uint8_t>(0x80 >> place % 8);
        turned[static_cast<size_t>(place / 8)] ^= mask;
        const double sign = idle[static_cast<size_t>(place / 8)] & mask ? -1.0 : 1.0;
        const std::vector<double> out = run(turned);
        for (int k = 0; k < outputs; ++k) {
            const int distance = place - k * ratio;
            const int index = distance + middle;
            if (index >= 0 && index < outputs * ratio)
                response[static_cast<size_t>(index)] =
                    sign * (out[static_cast<size_t>(k)] - silent[static_cast<size_t>(k)]) / 2.0;
        }
    }
    return response;
}

double gainDb(const std::vector<double> &response, double hz, double rateHz)
{
    const std::complex<double> step = std::polar(1.0, -2.0 * std::numbers::pi * hz / rateHz);
    std::complex<double> turn = 1.0;
    std::complex<double> sum = 0.0;
    for (size_t i = 0; i < response.size(); ++i) {
        sum += response[i] * turn;
        turn *= step;
        if (i % 1024 == 1023)
            turn /= std::abs(turn);
    }
    return 20.0 * std::log10(std::max(std::abs(sum), 1e-12));
}

struct Case
{
    PdmFilter filter;
    int times;
    int pcmRateHz;
};

} // namespace

class PdmFilterBand : public testing::TestWithParam<Case>
{
};

TEST_P(PdmFilterBand, IsFlatThenClosedAndSymmetric)
{
    const auto [filter, times, pcmRateHz] = GetParam();
    const int dsdRateHz = dsd64 * times;
    const LowPassSpec band = pdmBand(filter, dsdRateHz, pcmRateHz);
    const std::vector<double> response = impulseResponse(filter, dsdRateHz, pcmRateHz);
    const size_t size = response.size();
    // The middle lies between two bits, where the time of the output frame is: no delay, linear phase.
    for (size_t i = 0; i < size / 2; ++i)
        ASSERT_NEAR(response[size / 2 - 1 - i], response[size / 2 + i], 1e-12) << i;
    EXPECT_GE(band.passHz, 20000.0);
    double lowest = 0.0, highest = 0.0;
    for (int i = 0; i <= 60; ++i) {
        const double db = gainDb(response, band.passHz * i / 60.0, dsdRateHz);
        lowest = std::min(lowest, db);
        highest = std::max(highest, db);
    }
    EXPECT_GT(lowest, -0.01);
    EXPECT_LT(highest, 0.01);
    double loudest = -300.0;
    for (int i = 0; i <= 400; ++i) {
        // Close together at the border, then up to half the bit rate.
        const double part = std::pow(i / 400.0, 3.0);
        loudest = std::max(loudest,
                           gainDb(response, band.stopHz + (dsdRateHz / 2.0 - band.stopHz) * part, dsdRateHz));
    }
    EXPECT_LT(loudest, -band.attenuationDb);
}

INSTANTIATE_TEST_SUITE_P(AllRates, PdmFilterBand,
                         testing::Values(Case{PdmFilter::fast, 1, 44100}, Case{PdmFilter::fast, 1, 88200},
                                         Case{PdmFilter::fast, 1, 176400}, Case{PdmFilter::fast, 1, 352800},
                                         Case{PdmFilter::standard, 1, 44100},
                                         Case{PdmFilter::standard, 1, 88200},
                                         Case{PdmFilter::standard, 1, 176400},
                                         Case{PdmFilter::standard, 1, 352800},
                                         Case{PdmFilter::best, 1, 44100}, Case{PdmFilter::best, 1, 88200},
                                         Case{PdmFilter::best, 1, 176400}, Case{PdmFilter::best, 1, 352800},
                                         Case{PdmFilter::standard, 2, 176400},
                                         Case{PdmFilter::best, 4, 88200}, Case{PdmFilter::best, 8, 176400}));

TEST(PdmFilter, NamesGoBothWays)
{
    for (PdmFilter filter : {PdmFilter::fast, PdmFilter::standard, PdmFilter::best})
        EXPECT_EQ(pdmFilterByName(pdmFilterName(filter)), filter);
    EXPECT_STREQ(pdmFilterName(PdmFilter::standard), "standard");
    EXPECT_FALSE(pdmFilterByName("Standard"));
    EXPECT_FALSE(pdmFilterByName(""));
}

TEST(PdmFilter, BandsAreThoseOfTheTable)
{
    struct Row
    {
        PdmFilter filter;
        int times;
        int pcmRateHz;
        double passHz;
        double stopHz;
        double attenuationDb;
    };
    for (const Row &row : {Row{PdmFilter::fast, 1, 44100, 20000, 24100, 100},
                           Row{PdmFilter::fast, 1, 88200, 20000, 44100, 100},
                           Row{PdmFilter::fast, 1, 352800, 20000, 100000, 100},
                           Row{PdmFilter::standard, 1, 44100, 20000, 22050, 120},
                           Row{PdmFilter::standard, 1, 88200, 30000, 44100, 120},
                           Row{PdmFilter::standard, 1, 176400, 30000, 88200, 120},
                           Row{PdmFilter::best, 1, 88200, 40000, 44100, 140},
                           Row{PdmFilter::best, 1, 176400, 50000, 88200, 140},
                           Row{PdmFilter::best, 2, 352800, 100000, 176400, 140}}) {
        const LowPassSpec band = pdmBand(row.filter, dsd64 * row.times, row.pcmRateHz);
        EXPECT_DOUBLE_EQ(band.passHz, row.passHz);
        EXPECT_DOUBLE_EQ(band.stopHz, row.stopHz);
        EXPECT_DOUBLE_EQ(band.attenuationDb, row.attenuationDb);
    }
}

TEST(PdmFilter, TablesAreSharedWhileSomebodyUsesThem)
{
    const auto one = pdmFilterTables(PdmFilter::fast, dsd64, 44100);
    EXPECT_EQ(one, pdmFilterTables(PdmFilter::fast, dsd64, 44100));
    EXPECT_NE(one, pdmFilterTables(PdmFilter::best, dsd64, 44100));
    EXPECT_EQ(one->table.size(), one->lengthBytes * 256);
}
