#pragma once

#include "tests/support/pcm_signal.h"

#include <cstdint>
#include <string>
#include <vector>

namespace kelp_test {

enum class WavForm
{
    plain,      ///< RIFF with a classic format chunk
    extensible, ///< RIFF with WAVE_FORMAT_EXTENSIBLE and its valid bits
    rf64,
    w64,
};

struct WavOptions
{
    WavForm form = WavForm::plain;
    int containerBytes = 0;            ///< bytes a sample; 0: as few as hold the depth
    std::vector<uint8_t> id3 = {};     ///< goes into a chunk "id3 " behind the data
    bool unknownLength = false;        ///< sizes of 0xFFFFFFFF, as a program writes that cannot seek
    std::vector<uint8_t> samples = {}; ///< replaces the signal's own bytes when not empty
};

std::vector<uint8_t> wavBytes(const PcmSignal &signal, const WavOptions &options = {});

/// AIFF, or AIFC where the samples are floats or littleEndian ("sowt") is wanted.
std::vector<uint8_t> aiffBytes(const PcmSignal &signal, bool littleEndian = false,
                               const std::vector<uint8_t> &id3 = {});

} // namespace kelp_test
