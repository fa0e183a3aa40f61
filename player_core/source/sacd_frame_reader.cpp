#include "player_core/source/sacd_frame_reader.h"

#include <algorithm>
#include <array>

namespace kelp_core {
namespace {

constexpr int64_t sectorsAtOnce = 16;
/// A frame takes 14 sectors at most; more without a frame's end are damage.
constexpr int64_t mostSectorsOfAFrame = 256;

} // namespace

SacdFrameReader::SacdFrameReader(SacdSectors &sectors, const SacdArea &area)
    : sectors_(sectors)
    , area_(area)
    , assembler_(static_cast<size_t>(sacdFrameBytes) * static_cast<size_t>(area.channels))
{
    area_.tracks.clear();
}

void SacdFrameReader::standAt(int64_t sector)
{
    assembler_.reset();
    nextSector_ = std::clamp(sector, area_.firstSector, area_.lastSector);
    nextNumber_ = -1;
    finished_ = false;
}

/// The next frame, whichever it is.
SacdFrameReader::Result SacdFrameReader::pull(SacdFrame &frame)
{
    for (int64_t sectors = 0; !assembler_.take(frame);) {
        if (finished_)
            return Result::ended;
        if (nextSector_ > area_.lastSector) {
            finished_ = true;
            assembler_.finish();
            continue;
        }
        if (sectors > mostSectorsOfAFrame)
            return Result::damaged;
        const int64_t count = std::min(sectorsAtOnce, area_.lastSector - nextSector_ + 1);
        buffer_.resize(static_cast<size_t>(count) * sacdSectorBytes);
        if (!sectors_.read(nextSector_, static_cast<size_t>(count), buffer_.data()))
            return Result::ended;
        for (size_t i = 0; i < static_cast<size_t>(count); ++i)
            assembler_.feed(std::span(buffer_).subspan(i * sacdSectorBytes).first<sacdSectorBytes>());
        nextSector_ += count;
        sectors += count;
    }
    if (frame.number < 0)
        frame.number = nextNumber_;
    nextNumber_ = frame.number < 0 ? -1 : frame.number + 1;
    return Result::found;
}

/// Passes over frames until the number comes.
SacdFrameReader::Result SacdFrameReader::pullUpTo(int64_t number, int64_t mostFrames, SacdFrame &frame)
{
    for (int64_t count = 0; count < mostFrames; ++count) {
        if (const Result result = pull(frame); result != Result::found)
            return result;
        if (frame.number == number)
            return frame.broken ? Result::damaged : Result::found;
        if (frame.number > number)
            return Result::damaged;
    }
    return Result::damaged;
}

/// The first frame that begins in a sector or behind it, by the times beside the audio.
bool SacdFrameReader::firstFrameAt(int64_t sector, int64_t last, int64_t &foundSector, int64_t &number)
{
    std::array<uint8_t, sacdSectorBytes> bytes;
    const int64_t end = std::min(last, sector + mostSectorsOfAFrame);
    for (int64_t at = sector; at <= end; ++at) {
        if (!sectors_.read(at, 1, bytes.data()))
            return false;
        const auto parsed = parseSacdAudioSector(bytes);
        if (parsed && parsed->frameCount > 0 && parsed->frameNumbers[0] >= 0) {
            foundSector = at;
            number = parsed->frameNumbers[0];
            return true;
        }
    }
    return false;
}

/// The last sector in which a frame begins that is not behind the wanted one.
int64_t SacdFrameReader::searchSector(int64_t number)
{
    int64_t low = area_.firstSector, high = area_.lastSector, best = area_.firstSector;
    while (low <= high) {
        const int64_t middle = low + (high - low) / 2;
        int64_t sector = 0, first = 0;
        if (firstFrameAt(middle, high, sector, first) && first <= number) {
            best = sector;
            low = sector + 1;
        } else {
            high = middle - 1;
        }
    }
    return best;
}

SacdFrameReader::Result SacdFrameReader::read(int64_t number, int64_t hintSector, SacdFrame &frame)
{
    // Frames that a search may pass over: a sector has a handful, and the hint may be a little early.
    constexpr int64_t nearby = 64;
    if (nextNumber_ == number)
        return pullUpTo(number, nearby, frame);
    standAt(searchSector(number));
    const Result result = pullUpTo(number, nearby, frame);
    if (result == Result::found || frame.number == number)
        return result;
    // The times are damaged somewhere on the way: try where the disc says, and where plain frames must be.
    std::array<int64_t, 2> candidates{hintSector, -1};
    if (!area_.dst)
        candidates[1] = area_.firstSector + number / 3 * area_.sectorsOfThree;
    for (const int64_t sector : candidates) {
        if (sector < area_.firstSector || sector > area_.lastSector)
            continue;
        standAt(sector);
        if (pullUpTo(number, nearby, frame) == Result::found)
            return Result::found;
    }
    nextNumber_ = -1;
    return result;
}

} // namespace kelp_core
