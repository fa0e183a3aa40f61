#pragma once

#include "player_core/dsp/fir_design.h"
#include "player_core/dsp/pdm_decimator.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace kelp_core {

/// The band that a filter keeps, for a DSD rate and a PCM rate:
///
/// | filter   | attenuation | pass band at most (DSD64 / faster) | 44.1 k        | 88.2 k      | 176.4 k |
/// |----------|-------------|------------------------------------|---------------|-------------|---------------|
/// | fast     | 100 dB      | 20 kHz / 40 kHz                    | 20 → 24.1 kHz | 20 → 44.1   | 20 → 88.2
/// kHz | | standard | 120 dB      | 30 kHz / 60 kHz                    | 20 → 22.05    | 30 → 44.1   | 30
/// → 88.2     | | best     | 140 dB      | 50 kHz / 100 kHz                   | 20 → 22.05    | 40 → 44.1   |
/// 50 → 88.2     |
///
/// (pass → stop.) The stop band never begins above 100 kHz (200 kHz for faster DSD than DSD64), because there
/// the modulator's noise stands higher than any music. Only `fast` lets something alias, and only onto what
/// lies above its pass band.
LowPassSpec pdmBand(PdmFilter filter, int dsdRateHz, int pcmRateHz);

/// The two stages of a decoding, ready to run; the same object serves all decoders of the same rates.
///
/// The first stage goes from bits to an intermediate rate by a table per byte of the filter: entry [j · 256 +
/// b] is the sum of the eight taps j·8 … j·8+7, each with the sign of b's bit. The second is an ordinary
/// filter of odd length; it is absent (empty, decimation 1) where the intermediate rate is already the wanted
/// one.
struct PdmFilterTables
{
    size_t bytesPerStep = 0; ///< DSD bytes a channel between two intermediate samples
    size_t lengthBytes = 0;  ///< length of the first stage
    std::vector<double> table;
    size_t decimation = 1;
    std::vector<double> second;
};

/// The tables for these rates: from the other decoders that use them, or made now. Any thread.
std::shared_ptr<const PdmFilterTables> pdmFilterTables(PdmFilter filter, int dsdRateHz, int pcmRateHz);

} // namespace kelp_core
