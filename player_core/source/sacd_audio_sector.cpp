#include "player_core/source/sacd_audio_sector.h"

#include "player_core/source/endian.h"

#include <utility>

namespace kelp_core {

std::optional<int64_t> sacdTime(const uint8_t *bytes)
{
    const int minutes = bytes[0], seconds = bytes[1], frames = bytes[2];
    if (seconds >= 60 || frames >= sacdFramesPerSecond)
        return {};
    return (int64_t{minutes} * 60 + seconds) * sacdFramesPerSecond + frames;
}

std::optional<SacdAudioSector> parseSacdAudioSector(std::span<const uint8_t, sacdSectorBytes> sector)
{
    SacdAudioSector parsed;
    const uint8_t head = sector[0];
    parsed.dst = head & 1;
    parsed.packetCount = head >> 5;
    parsed.frameCount = head >> 2 & 7;
    const size_t infoBytes = parsed.dst ? 4 : 3;
    size_t infoAt = 1 + 2 * parsed.packetCount;
    size_t at = infoAt + infoBytes * parsed.frameCount;
    for (size_t i = 0; i < parsed.packetCount; ++i) {
        const uint32_t word = bigU16(sector.data() + 1 + 2 * i);
        SacdAudioSector::Packet &packet = parsed.packets[i];
        packet.begins = word >> 15 & 1;
        packet.kind = static_cast<int>(word >> 11 & 7);
        packet.offset = at;
        packet.bytes = word & 0x7FF;
        at += packet.bytes;
        if (at > sector.size())
            return {};
    }
    for (size_t i = 0; i < parsed.frameCount; ++i, infoAt += infoBytes)
        parsed.frameNumbers[i] = sacdTime(sector.data() + infoAt).value_or(-1);
    return parsed;
}

void SacdFrameAssembler::reset()
{
    open_ = false;
    current_ = {};
    ready_.clear();
}

void SacdFrameAssembler::begin(int64_t number, bool dst)
{
    complete();
    open_ = true;
    current_.number = number;
    current_.dst = dst;
}

void SacdFrameAssembler::append(std::span<const uint8_t> bytes)
{
    if (!open_)
        return;
    // Packing never makes a frame longer than by its head, so twice its size is damage.
    if (current_.bytes.size() + bytes.size() > 2 * plainBytes_) {
        current_.broken = true;
        return;
    }
    current_.bytes.insert(current_.bytes.end(), bytes.begin(), bytes.end());
    if (!current_.dst && current_.bytes.size() >= plainBytes_)
        complete();
}

void SacdFrameAssembler::complete()
{
    if (!open_)
        return;
    open_ = false;
    if (!current_.dst && current_.bytes.size() != plainBytes_)
        current_.broken = true;
    ready_.push_back(std::exchange(current_, {}));
}

void SacdFrameAssembler::feed(std::span<const uint8_t, sacdSectorBytes> sector)
{
    const auto parsed = parseSacdAudioSector(sector);
    if (!parsed || parsed->packetCount == 0) {
        // Whatever it held, the frame that is open has lost it.
        current_.broken = current_.broken || open_;
        return;
    }
    size_t frame = 0;
    for (size_t i = 0; i < parsed->packetCount; ++i) {
        const SacdAudioSector::Packet &packet = parsed->packets[i];
        if (packet.kind != SacdAudioSector::audioKind)
            continue;
        if (packet.begins) {
            begin(frame < parsed->frameCount ? parsed->frameNumbers[frame] : -1, parsed->dst);
            ++frame;
        }
        append(std::span(sector).subspan(packet.offset, packet.bytes));
    }
}

void SacdFrameAssembler::finish()
{
    complete();
}

bool SacdFrameAssembler::take(SacdFrame &frame)
{
    if (ready_.empty())
        return false;
    frame = std::move(ready_.front());
    ready_.pop_front();
    return true;
}

} // namespace kelp_core
