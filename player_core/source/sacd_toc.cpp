#include "player_core/source/sacd_toc.h"

#include "player_core/source/endian.h"
#include "player_core/source/sacd_area_table.h"
#include "player_core/source/sacd_text.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace kelp_core {
namespace {

/// What the master table says of one area: its table, the copy of it, and their length.
struct AreaPlace
{
    int64_t table = 0;
    int64_t copy = 0;
    int sectors = 0;

    bool present() const { return table > 0 || copy > 0; }
};

struct MasterTable
{
    AreaPlace stereo;
    AreaPlace multichannel;
    std::string title;
};

AreaPlace areaPlace(const uint8_t *master, size_t startsAt, size_t sizeAt, int64_t sectorsInImage)
{
    AreaPlace place{bigU32(master + startsAt), bigU32(master + startsAt + 4),
                    static_cast<int>(bigU16(master + sizeAt))};
    // A table behind the image's end is as good as none, but it is told of, so it stays unless it is absurd.
    constexpr int64_t mostSectorsOfADisc = 1 << 23;
    for (int64_t *start : {&place.table, &place.copy}) {
        if (*start >= mostSectorsOfADisc && *start >= sectorsInImage)
            *start = 0;
    }
    return place;
}

/// The title from the first text channel that has one.
std::string masterTitle(SacdSectors &sectors, int64_t masterSector, const uint8_t *master)
{
    constexpr size_t channelsAt = 128, localesAt = 136, setWithinLocale = 2;
    constexpr int mostChannels = 8;
    std::array<uint8_t, sacdSectorBytes> sector;
    for (int channel = 0; channel < std::clamp<int>(master[channelsAt], 1, mostChannels); ++channel) {
        if (!sectors.read(masterSector + 1 + channel, 1, sector.data()))
            break;
        const int set = master[localesAt + 4 * static_cast<size_t>(channel) + setWithinLocale];
        const SacdDiscText text = readSacdDiscText(sector, set);
        if (const std::string &title = text.albumTitle.empty() ? text.discTitle : text.albumTitle;
            !title.empty())
            return title;
    }
    return {};
}

/// The first copy that makes sense.
std::optional<MasterTable> readMaster(SacdSectors &sectors)
{
    for (const int64_t at : sacdMasterSectors) {
        std::array<uint8_t, sacdSectorBytes> master;
        if (!sectors.read(at, 1, master.data()) || std::memcmp(master.data(), "SACDMTOC", 8) != 0)
            continue;
        MasterTable table;
        table.stereo = areaPlace(master.data(), 64, 84, sectors.count());
        table.multichannel = areaPlace(master.data(), 72, 86, sectors.count());
        if (!table.stereo.present() && !table.multichannel.present())
            continue;
        table.title = masterTitle(sectors, at, master.data());
        return table;
    }
    return {};
}

/// The area's table, or its copy where that is the better one.
SacdAreaOutcome readArea(SacdSectors &sectors, const AreaPlace &place, bool multichannel)
{
    SacdAreaOutcome first;
    for (const int64_t start : {place.table, place.copy}) {
        if (start <= 0)
            continue;
        SacdAreaOutcome outcome = readSacdArea(sectors, start, place.sectors, multichannel);
        if (outcome.area && outcome.complete)
            return outcome;
        if ((outcome.area && !first.area) || (first.error.empty() && !first.area))
            first = std::move(outcome);
    }
    return first;
}

std::string choiceSentence(const SacdAreaOutcome &stereo, const SacdAreaOutcome &multichannel)
{
    const auto channels = [](const SacdAreaOutcome &outcome) {
        return std::to_string(outcome.area->channels) + " channels";
    };
    if (stereo.area && multichannel.area)
        return "The SACD image holds a stereo area and a multichannel area of " + channels(multichannel) +
               ", so the stereo area is played.";
    if (stereo.area)
        return multichannel.error.empty()
                   ? "The SACD image holds a stereo area only, which is played."
                   : "The stereo area of the SACD image is played; " + multichannel.error + ".";
    return (stereo.error.empty()
                ? "The SACD image holds no stereo area"
                : "The stereo area of the SACD image cannot be read (" + stereo.error + ")") +
           ", so its multichannel area of " + channels(multichannel) + " is played.";
}

} // namespace

int64_t SacdArea::startFrame() const
{
    return std::min_element(tracks.begin(), tracks.end(),
                            [](const auto &a, const auto &b) { return a.startFrame < b.startFrame; })
        ->startFrame;
}

int64_t SacdArea::endFrame() const
{
    return std::max_element(tracks.begin(), tracks.end(),
                            [](const auto &a, const auto &b) { return a.endFrame() < b.endFrame(); })
        ->endFrame();
}

const SacdTrack *SacdArea::find(int number) const
{
    const auto found =
        std::find_if(tracks.begin(), tracks.end(), [&](const auto &track) { return track.number == number; });
    return found == tracks.end() ? nullptr : &*found;
}

SacdOutcome readSacdImage(ByteInput &input)
{
    const int storedBytes = SacdSectors::detect(input);
    if (storedBytes == 0)
        return {{}, input.sizeBytes() == 0 ? "the file is empty" : "this is not an SACD image"};
    SacdSectors sectors(input, storedBytes);
    const auto master = readMaster(sectors);
    if (!master)
        return {{}, "the SACD image is damaged: its master table names no area"};
    SacdAreaOutcome stereo, multichannel;
    if (master->stereo.present())
        stereo = readArea(sectors, master->stereo, false);
    if (master->multichannel.present())
        multichannel = readArea(sectors, master->multichannel, true);
    if (!stereo.area && !multichannel.area)
        return {{},
                "the SACD image is damaged: " + (stereo.error.empty() ? multichannel.error : stereo.error)};
    SacdImage image;
    image.storedBytes = storedBytes;
    image.title = master->title;
    image.choice = choiceSentence(stereo, multichannel);
    SacdAreaOutcome &played = stereo.area ? stereo : multichannel;
    image.area = std::move(*played.area);
    image.warnings = std::move(played.warnings);
    return {std::move(image), {}};
}

} // namespace kelp_core
