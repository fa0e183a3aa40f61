#pragma once

#include "player_core/source/dst_frame.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace kelp_core {

/// Decoder of Direct Stream Transfer (ISO/IEC 14496-3 subpart 10), the lossless packing of DSD. Frames
/// stand for themselves: any of them may be decoded first. Not for two threads at a time.
class DstDecoder
{
public:
    /// frameBytes: bytes of one channel in a frame, a multiple of 1/75 s of a DSD rate.
    DstDecoder(int channels, int frameBytes);
    ~DstDecoder();

    /// Whether such streams exist; a decoder of others must not be made.
    static bool supports(int channels, int frameBytes);

    /// Decodes one frame to bytes interleaved by channel, the oldest bit in bit 7. out gets channels *
    /// frameBytes bytes. Returns "" or a few words on what is wrong with the frame.
    std::string decode(std::span<const uint8_t> frame, std::vector<uint8_t> &out);

private:
    struct Tables;
    std::string decodeCoded(std::span<const uint8_t> frame, std::vector<uint8_t> &out);
    void buildTables();

    int channels_;
    int frameBytes_;
    std::unique_ptr<DstFrameHead> head_;
    std::unique_ptr<Tables> tables_;
};

} // namespace kelp_core
