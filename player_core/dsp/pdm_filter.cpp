#include "player_core/dsp/pdm_filter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <mutex>
#include <tuple>
#include <utility>

namespace kelp_core {

namespace {

constexpr int dsd64At48kHz = 3072000;

struct FilterRow
{
    PdmFilter filter;
    const char *name;
    double attenuationDb;
    double widestPassHz; ///< for DSD64
};

constexpr std::array<FilterRow, 3> filters{{
    {PdmFilter::fast, "fast", 100.0, 20000.0},
    {PdmFilter::standard, "standard", 120.0, 30000.0},
    {PdmFilter::best, "best", 140.0, 50000.0},
}};

/// Where the stop band begins at the latest, for DSD64.
constexpr double widestStopHz = 100000.0;
/// 20 kHz of 44.1 kHz.
constexpr double passPart = 20000.0 / 44100.0;

/// Time of a table look-up in multiplications of a filter, measured. A table that leaves the second-level
/// cache costs several times that.
constexpr double lookUpCost = 3.0;
constexpr double farLookUpCost = 12.0;
constexpr size_t nearTableBytes = 128;
constexpr int mostHalvings = 6;

const FilterRow &rowOf(PdmFilter filter)
{
    return filters[static_cast<size_t>(filter)];
}

std::vector<double> byteTable(const std::vector<double> &taps)
{
    const size_t bytes = taps.size() / 8;
    std::vector<double> table(bytes * 256);
    for (size_t j = 0; j < bytes; ++j) {
        for (size_t value = 0; value < 256; ++value) {
            double sum = 0.0;
            for (size_t bit = 0; bit < 8; ++bit)
                sum += (value >> (7 - bit)) & 1 ? taps[8 * j + bit] : -taps[8 * j + bit];
            table[j * 256 + value] = sum;
        }
    }
    return table;
}

/// The specifications of all stages when the first one leaves a rate of pcmRateHz · 2^(stages − 1).
struct Plan
{
    std::vector<LowPassSpec> stages;
    double cost = 0.0; ///< of a second of one channel, in multiplications
};

/// Whole bytes on either side of the middle, so that it lies on the border between two bytes.
size_t firstLengthBytes(const LowPassSpec &spec)
{
    return (kaiserLength(spec) + 15) / 16 * 2;
}

Plan planWith(int halvings, const LowPassSpec &whole, int pcmRateHz)
{
    Plan plan;
    double rateHz = whole.rateHz;
    for (int left = halvings; left >= 0; --left) {
        const double outHz = std::ldexp(pcmRateHz, left);
        LowPassSpec stage = whole;
        stage.rateHz = rateHz;
        // What a later stage passes or has not yet stopped must be free of this one's aliases.
        if (left > 0)
            stage.stopHz = outHz - whole.stopHz;
        const size_t bytes = firstLengthBytes(stage);
        plan.cost += outHz * (plan.stages.empty() ? static_cast<double>(bytes) *
                                                        (bytes > nearTableBytes ? farLookUpCost : lookUpCost)
                                                  : static_cast<double>(kaiserLength(stage)));
        plan.stages.push_back(stage);
        rateHz = outHz;
    }
    return plan;
}

/// The cheapest split. A single stage would need a filter of thousands of bits for a narrow transition.
Plan cheapestPlan(const LowPassSpec &whole, int dsdRateHz, int pcmRateHz)
{
    Plan best = planWith(0, whole, pcmRateHz);
    for (int halvings = 1; halvings <= mostHalvings && dsdRateHz / (pcmRateHz << halvings) % 8 == 0 &&
                           dsdRateHz / (pcmRateHz << halvings) > 0;
         ++halvings) {
        Plan plan = planWith(halvings, whole, pcmRateHz);
        if (plan.cost < best.cost)
            best = std::move(plan);
    }
    return best;
}

PdmFilterTables makeTables(PdmFilter filter, int dsdRateHz, int pcmRateHz)
{
    const Plan plan = cheapestPlan(pdmBand(filter, dsdRateHz, pcmRateHz), dsdRateHz, pcmRateHz);
    PdmFilterTables tables;
    const size_t halvings = plan.stages.size() - 1;
    tables.bytesPerStep = static_cast<size_t>(dsdRateHz / (pcmRateHz << halvings) / 8);
    tables.lengthBytes = firstLengthBytes(plan.stages.front());
    tables.table = byteTable(kaiserLowPass(plan.stages.front(), tables.lengthBytes * 8));
    for (size_t i = 1; i <= halvings; ++i)
        tables.halvings.push_back(kaiserLowPass(plan.stages[i], kaiserLength(plan.stages[i]) | 1));
    return tables;
}

} // namespace

const char *pdmFilterName(PdmFilter filter)
{
    return rowOf(filter).name;
}

std::optional<PdmFilter> pdmFilterByName(std::string_view name)
{
    for (const FilterRow &row : filters) {
        if (name == row.name)
            return row.filter;
    }
    return std::nullopt;
}

LowPassSpec pdmBand(PdmFilter filter, int dsdRateHz, int pcmRateHz)
{
    const FilterRow &row = rowOf(filter);
    // From DSD128 on the modulator's noise rises an octave higher.
    const double octave = dsdRateHz > dsd64At48kHz ? 2.0 : 1.0;
    LowPassSpec band;
    band.rateHz = dsdRateHz;
    band.attenuationDb = row.attenuationDb;
    band.passHz = std::min(row.widestPassHz * octave, passPart * pcmRateHz);
    band.stopHz = std::min(widestStopHz * octave, pcmRateHz / 2.0);
    // The fast filter at the lowest rates, where it has no room below half the rate.
    if (filter == PdmFilter::fast && band.passHz >= passPart * pcmRateHz)
        band.stopHz = pcmRateHz - band.passHz;
    return band;
}

size_t PdmFilterTables::lookBackBytes() const
{
    size_t bytes = lengthBytes / 2;
    size_t stepBytes = bytesPerStep;
    for (const std::vector<double> &halving : halvings) {
        bytes += halving.size() / 2 * stepBytes;
        stepBytes *= 2;
    }
    return bytes;
}

std::shared_ptr<const PdmFilterTables> pdmFilterTables(PdmFilter filter, int dsdRateHz, int pcmRateHz)
{
    static std::mutex mutex;
    static std::map<std::tuple<PdmFilter, int, int>, std::weak_ptr<const PdmFilterTables>> made;
    const std::lock_guard lock(mutex);
    std::weak_ptr<const PdmFilterTables> &place = made[{filter, dsdRateHz, pcmRateHz}];
    std::shared_ptr<const PdmFilterTables> tables = place.lock();
    if (!tables) {
        tables = std::make_shared<const PdmFilterTables>(makeTables(filter, dsdRateHz, pcmRateHz));
        place = tables;
    }
    return tables;
}

} // namespace kelp_core
