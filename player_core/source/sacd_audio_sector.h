#pragma once

#include "player_core/source/sacd_sectors.h"

#include <array>
#include <cstdint>
#include <deque>
#include <optional>
#include <span>
#include <vector>

namespace kelp_core {

/// Frames of an SACD in a second: the unit of its times. A frame holds 4,704 bytes of every channel.
inline constexpr int sacdFramesPerSecond = 75;
inline constexpr int sacdFrameBytes = 4704;

/// A time of three bytes, minutes, seconds and frames, as a number of frames; nothing when it is no time.
std::optional<int64_t> sacdTime(const uint8_t *bytes);

/// The head of an audio sector, taken apart. Plain value.
struct SacdAudioSector
{
    static constexpr size_t maxPackets = 7;
    static constexpr size_t maxFrames = 7;
    static constexpr int audioKind = 2;

    struct Packet
    {
        bool begins = false; ///< a frame begins with it
        int kind = 0;        ///< 2 audio, 3 supplementary, 7 padding
        size_t offset = 0;   ///< of its bytes, within the sector
        size_t bytes = 0;
    };

    bool dst = false; ///< the frames are packed
    size_t packetCount = 0;
    std::array<Packet, maxPackets> packets;
    size_t frameCount = 0;
    std::array<int64_t, maxFrames> frameNumbers{}; ///< of the frames that begin here; −1: no valid time
};

/// Nothing when the packets do not fit into the sector: it is damaged.
std::optional<SacdAudioSector> parseSacdAudioSector(std::span<const uint8_t, sacdSectorBytes> sector);

/// A frame as it stands on the disc.
struct SacdFrame
{
    int64_t number = -1; ///< from the start of the area; −1 when the disc does not say
    bool dst = false;
    bool broken = false; ///< a part of it is missing
    std::vector<uint8_t> bytes;
};

/// Puts frames together from the sectors of an area, fed one after the other. What stands before the first
/// frame's beginning is passed over.
class SacdFrameAssembler
{
public:
    /// plainBytes: of an unpacked frame of all channels.
    explicit SacdFrameAssembler(size_t plainBytes)
        : plainBytes_(plainBytes)
    {
    }

    /// Forgets all; the next sector need not follow the last one.
    void reset();
    void feed(std::span<const uint8_t, sacdSectorBytes> sector);
    /// The area is over: what was gathered is the last frame.
    void finish();
    /// The next whole frame. False when more sectors are needed.
    bool take(SacdFrame &frame);

private:
    void begin(int64_t number, bool dst);
    void append(std::span<const uint8_t> bytes);
    void complete();

    size_t plainBytes_;
    bool open_ = false;
    SacdFrame current_;
    std::deque<SacdFrame> ready_;
};

} // namespace kelp_core
