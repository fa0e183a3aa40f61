#pragma once

#include "tests/support/dsd_signal.h"

#include <cstdint>
#include <vector>

namespace kelp_test {

struct DsfOptions
{
    bool highestBitFirst = false; ///< the rarer order, "8 bits a sample"
    int unusedBits = 0;           ///< 0 … 7 bits by which the sample count ends before its last byte
    std::vector<uint8_t> id3 = {};
};
std::vector<uint8_t> dsfBytes(const DsdSignal &signal, const DsfOptions &options = {});

enum class DstKind
{
    none,   ///< plain DSD
    stored, ///< DST frames that hold the bits as they are
    coded,  ///< DST frames from the small encoder
};
/// With DST the signal is cut to whole frames of 1/75 s.
std::vector<uint8_t> dffBytes(const DsdSignal &signal, DstKind dst = DstKind::none,
                              const std::vector<uint8_t> &id3 = {});

std::vector<uint8_t> wsdBytes(const DsdSignal &signal);

} // namespace kelp_test
