#include "player_core/dsp/pdm_filter.h"

#include <algorithm>
#include <array>
#include <map>
#include <mutex>
#include <tuple>

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
/// Below this rate a single stage would need a very long filter at the full bit rate.
constexpr int intermediateHz = 176400;

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

PdmFilterTables makeTables(PdmFilter filter, int dsdRateHz, int pcmRateHz)
{
    const LowPassSpec whole = pdmBand(filter, dsdRateHz, pcmRateHz);
    PdmFilterTables tables;
    LowPassSpec first = whole;
    int firstRateHz = pcmRateHz;
    while (firstRateHz < intermediateHz && dsdRateHz / (firstRateHz * 2) % 8 == 0) {
        firstRateHz *= 2;
        tables.decimation *= 2;
    }
    if (tables.decimation > 1) {
        // What the second stage passes or has not yet stopped must be free of the first one's aliases.
        first.stopHz = firstRateHz - whole.stopHz;
        LowPassSpec second = whole;
        second.rateHz = firstRateHz;
        tables.second = kaiserLowPass(second, kaiserLength(second) | 1);
    }
    tables.bytesPerStep = static_cast<size_t>(dsdRateHz / firstRateHz / 8);
    // An even number of bytes puts the filter's middle on the border between two of them.
    tables.lengthBytes = std::max((kaiserLength(first) + 15) / 16 * 2, (tables.bytesPerStep + 1) / 2 * 2);
    tables.table = byteTable(kaiserLowPass(first, tables.lengthBytes * 8));
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
