#pragma once

#include "player_core/source/sacd_toc.h"

#include <string>

namespace kelp_core {

/// Finds frames of an area by their number. One thread at a time.
class SacdFrameReader
{
public:
    /// sectors must outlive the reader.
    SacdFrameReader(SacdSectors &sectors, const SacdArea &area);

    /// What became of a frame.
    enum class Result
    {
        found,
        ended,   ///< the image is over before it
        damaged, ///< it is missing or incomplete
    };

    /// Reads the frame of a number, at once when it is the next one. hintSector: where the disc says that it
    /// begins, −1 when it does not. broken frames count as damaged.
    Result read(int64_t number, int64_t hintSector, SacdFrame &frame);

private:
    void standAt(int64_t sector);
    Result pull(SacdFrame &frame);
    Result pullUpTo(int64_t number, int64_t mostFrames, SacdFrame &frame);
    bool firstFrameAt(int64_t sector, int64_t last, int64_t &foundSector, int64_t &number);
    int64_t searchSector(int64_t number);

    SacdSectors &sectors_;
    SacdArea area_;
    SacdFrameAssembler assembler_;
    int64_t nextSector_ = 0;
    int64_t nextNumber_ = -1; ///< of the frame that a pull would give; −1: we stand nowhere
    bool finished_ = false;
    std::vector<uint8_t> buffer_;
};

} // namespace kelp_core
