#include "player_core/source/sacd_area_table.h"

#include "player_core/source/endian.h"
#include "player_core/source/sacd_text.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace kelp_core {
namespace {

/// A table takes a few dozen sectors; a mebibyte is plenty.
constexpr int64_t maxTableSectors = 512;
constexpr size_t maxTracks = 255;
constexpr size_t textChannels = 8;
constexpr int maxChannels = 6;

using Bytes = std::span<const uint8_t>;

bool named(Bytes sector, const char *name)
{
    return sector.size() >= sacdSectorBytes && std::memcmp(sector.data(), name, 8) == 0;
}

/// All sectors of a table that can be read; empty when not even the first can.
std::vector<uint8_t> loadTable(SacdSectors &sectors, int64_t first, int sizeHint)
{
    std::vector<uint8_t> table(sacdSectorBytes);
    if (!sectors.read(first, 1, table.data()))
        return {};
    int64_t size = bigU16(table.data() + 10);
    if (size < 1)
        size = std::max(sizeHint, 1);
    size = std::min({size, maxTableSectors, sectors.count() - first});
    table.resize(static_cast<size_t>(size) * sacdSectorBytes);
    if (size > 1 && !sectors.read(first, static_cast<size_t>(size), table.data()))
        table.resize(sacdSectorBytes);
    return table;
}

Bytes sectorNamed(Bytes table, const char *name)
{
    for (size_t at = 0; at + sacdSectorBytes <= table.size(); at += sacdSectorBytes) {
        if (named(table.subspan(at), name))
            return table.subspan(at, sacdSectorBytes);
    }
    return {};
}

/// "" or what is wrong with the head of the table.
std::string readHead(Bytes head, SacdArea &area)
{
    constexpr uint8_t rate64fs = 4;
    constexpr int rateHz = 64 * 44100;
    enum Coding
    {
        dst = 0,
        threeIn14 = 2,
        threeIn16 = 3
    };
    if (!named(head, area.multichannel ? "MULCHTOC" : "TWOCHTOC"))
        return "its name is missing";
    if (head[20] != rate64fs)
        return "its sample rate has the unknown code " + std::to_string(head[20]);
    const int coding = head[21] & 15;
    if (coding != dst && coding != threeIn14 && coding != threeIn16)
        return "its frames have the unknown format " + std::to_string(coding);
    area.rateHz = rateHz;
    area.dst = coding == dst;
    area.sectorsOfThree = coding == threeIn16 ? 16 : 14;
    area.channels = head[32];
    if (area.channels < 1 || area.channels > maxChannels)
        return "it has " + std::to_string(area.channels) + " channels";
    if (head[69] == 0)
        return "it has no track";
    return {};
}

std::string trackWord(int number)
{
    return "track " + std::to_string(number);
}

/// The lists of a table as they stand in it, one entry a track.
struct TrackLists
{
    std::vector<int64_t> sectors;             ///< empty without the list; −1: not within the audio
    std::vector<std::optional<int64_t>> from; ///< empty without the list; nothing: no valid time
    std::vector<std::optional<int64_t>> length;
    std::vector<bool> behindEnd; ///< the disc says a sector that the image does not have
};

TrackLists readLists(Bytes table, size_t tracks, const SacdArea &area, int64_t sectorsInImage)
{
    constexpr size_t listAt = 8, entryBytes = 4;
    TrackLists lists;
    lists.behindEnd.resize(tracks, false);
    const Bytes places = sectorNamed(table, "SACDTRL1"), times = sectorNamed(table, "SACDTRL2");
    for (size_t i = 0; i < tracks; ++i) {
        const size_t at = listAt + entryBytes * i;
        if (!places.empty()) {
            const int64_t sector = bigU32(places.data() + at);
            lists.behindEnd[i] = sector >= sectorsInImage;
            lists.sectors.push_back(sector >= area.firstSector && sector <= area.lastSector ? sector : -1);
        }
        if (!times.empty()) {
            lists.from.push_back(sacdTime(times.data() + at));
            lists.length.push_back(sacdTime(times.data() + at + entryBytes * maxTracks));
        }
    }
    return lists;
}

/// The number of the first frame that begins in a sector or soon behind it.
std::optional<int64_t> firstFrameFrom(SacdSectors &sectors, int64_t sector, int64_t last)
{
    constexpr int64_t reach = 64;
    std::array<uint8_t, sacdSectorBytes> bytes;
    for (int64_t at = sector; at <= std::min(last, sector + reach); ++at) {
        if (!sectors.read(at, 1, bytes.data()))
            return {};
        const auto parsed = parseSacdAudioSector(bytes);
        if (parsed && parsed->frameCount > 0 && parsed->frameNumbers[0] >= 0)
            return parsed->frameNumbers[0];
    }
    return {};
}

/// Without the list of times, the times stand beside the audio: each track then lasts until the next one.
void timesFromAudio(SacdSectors &sectors, const SacdArea &area, int64_t totalFrames, TrackLists &lists)
{
    for (const int64_t sector : lists.sectors)
        lists.from.push_back(sector < 0 ? std::nullopt : firstFrameFrom(sectors, sector, area.lastSector));
    for (size_t i = 0; i < lists.from.size(); ++i) {
        const auto end = i + 1 < lists.from.size() ? lists.from[i + 1] : std::optional(totalFrames);
        lists.length.push_back(lists.from[i] && end ? std::optional(*end - *lists.from[i]) : std::nullopt);
    }
}

void addTracks(const TrackLists &lists, int offset, SacdAreaOutcome &outcome)
{
    SacdArea &area = *outcome.area;
    for (size_t i = 0; i < lists.behindEnd.size(); ++i) {
        SacdTrack track;
        track.number = offset + static_cast<int>(i) + 1;
        const bool timed = i < lists.from.size() && lists.from[i] && lists.length[i] && *lists.length[i] > 0;
        if (lists.behindEnd[i]) {
            outcome.warnings.push_back(trackWord(track.number) + " lies behind the end of the image");
        } else if (!timed) {
            outcome.warnings.push_back("the times of " + trackWord(track.number) + " make no sense");
        } else {
            track.startFrame = *lists.from[i];
            track.frames = *lists.length[i];
            track.firstSector = i < lists.sectors.size() ? lists.sectors[i] : -1;
            area.tracks.push_back(track);
        }
    }
}

/// Fills what the text channels say, the first one first.
void addTexts(Bytes table, int offset, SacdArea &area)
{
    constexpr size_t localesAt = 88, setWithinLocale = 2, textsAt = 128;
    const size_t channels = std::clamp<size_t>(table[80], 1, textChannels);
    for (size_t channel = 0; channel < channels; ++channel) {
        size_t at = bigU16(table.data() + textsAt + 2 * channel) * sacdSectorBytes;
        if (at >= table.size() || !named(table.subspan(at), "SACDTTxt")) {
            const Bytes found = channel == 0 ? sectorNamed(table, "SACDTTxt") : Bytes{};
            if (found.empty())
                continue;
            at = static_cast<size_t>(found.data() - table.data());
        }
        const int set = table[localesAt + 4 * channel + setWithinLocale];
        const auto texts = readSacdTrackTexts(table.subspan(at), static_cast<int>(table[69]), set);
        for (SacdTrack &track : area.tracks) {
            const auto index = static_cast<size_t>(track.number - offset - 1);
            if (index >= texts.size())
                continue;
            if (track.title.empty())
                track.title = texts[index].title;
            if (track.performer.empty())
                track.performer = texts[index].performer;
        }
    }
}

} // namespace

SacdAreaOutcome readSacdArea(SacdSectors &sectors, int64_t tableSector, int sizeHint, bool multichannel)
{
    SacdAreaOutcome outcome;
    SacdArea area;
    area.multichannel = multichannel;
    const std::string what = multichannel ? "the multichannel table" : "the stereo table";
    const std::vector<uint8_t> table = loadTable(sectors, tableSector, sizeHint);
    if (table.empty()) {
        outcome.error = what + " lies behind the end of the image";
        return outcome;
    }
    if (std::string wrong = readHead(table, area); !wrong.empty()) {
        outcome.error = what + " is damaged: " + wrong;
        return outcome;
    }
    const int64_t lastInImage = sectors.count() - 1;
    area.firstSector = bigU32(table.data() + 72);
    area.lastSector = bigU32(table.data() + 76);
    if (area.firstSector > lastInImage) {
        outcome.error = "the audio of " + what + " lies behind the end of the image";
        return outcome;
    }
    if (area.lastSector < area.firstSector || area.lastSector > lastInImage)
        area.lastSector = lastInImage;
    TrackLists lists = readLists(table, table[69], area, sectors.count());
    outcome.complete = !lists.sectors.empty() && !lists.from.empty();
    if (lists.from.empty() && !lists.sectors.empty())
        timesFromAudio(sectors, area, sacdTime(table.data() + 64).value_or(0), lists);
    // The number of the first track counts on over the discs of a set.
    const int offset = table[68] + table[69] <= static_cast<int>(maxTracks) ? table[68] : 0;
    outcome.area = std::move(area);
    addTracks(lists, offset, outcome);
    addTexts(table, offset, *outcome.area);
    if (outcome.area->tracks.empty()) {
        outcome.area.reset();
        outcome.error = what + " is damaged: none of its tracks can be found";
    }
    return outcome;
}

} // namespace kelp_core
