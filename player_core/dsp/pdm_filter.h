#pragma once

#include "player_core/dsp/fir_design.h"
#include "player_core/dsp/pdm_decimator.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace kelp_core {

/// The band that a filter keeps, for a DSD rate and a PCM rate. For DSD64 (pass → stop in kHz):
///
///     filter    attenuation  44.1 kHz    88.2 kHz   176.4 kHz  352.8 kHz
///     fast      100 dB       20 → 24.1   20 → 44.1  20 → 88.2  20 → 100
///     standard  120 dB       20 → 22.05  30 → 44.1  30 → 88.2  30 → 100
///     best      140 dB       20 → 22.05  40 → 44.1  50 → 88.2  50 → 100
///
/// From DSD128 on the widest pass bands (20, 30, 50) and the stop at 100 kHz double, where the PCM rate has
/// room for it: there the modulator's noise begins an octave higher. Only `fast` lets something alias,
/// and only onto what lies above its pass band. At the rates of the 48 kHz family
/// the limits in kHz are the same, and those by the PCM rate go with it.
LowPassSpec pdmBand(PdmFilter filter, int dsdRateHz, int pcmRateHz);

/// The stages of a decoding, ready to run; the same object serves all decoders of the same rates.
///
/// The first stage goes from bits to an intermediate rate by a table per byte of the filter: entry [j · 256 +
/// b] is the sum of the eight taps j·8 … j·8+7, each with the sign of b's bit. Then each filter of
/// `halvings`, all of odd length, halves the rate, until it is the wanted one; there may be none.
struct PdmFilterTables
{
    size_t bytesPerStep = 0; ///< DSD bytes a channel between two intermediate samples
    size_t lengthBytes = 0;  ///< length of the first stage
    std::vector<double> table;
    std::vector<std::vector<double>> halvings;

    /// DSD bytes a channel that all stages together look back.
    size_t lookBackBytes() const;
};

/// The tables for these rates: from the other decoders that use them, or made now. Any thread.
std::shared_ptr<const PdmFilterTables> pdmFilterTables(PdmFilter filter, int dsdRateHz, int pcmRateHz);

} // namespace kelp_core
