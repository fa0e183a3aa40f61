// The listing of an SACD image, for the probe and for finding the track that follows.
#include "player_core/source/file_input.h"
#include "player_core/source/listing_text.h"
#include "player_core/source/sacd_source.h"
#include "player_core/source/sacd_toc.h"

#include <exception>

namespace kelp_core {
namespace {

std::string seconds(int64_t frames)
{
    return listingSeconds(frames * 1000000 / sacdFramesPerSecond);
}

/// What the tables say; its error is the file's where that cannot be opened.
SacdOutcome readTables(const std::string &path)
{
    std::string error;
    const auto file = FileInput::open(path, error);
    if (!file)
        return {{}, error};
    SacdOutcome outcome = readSacdImage(*file);
    if (!outcome.image && file->lastError() != 0)
        outcome.error = "cannot read: " + systemErrorWords(file->lastError());
    return outcome;
}

} // namespace

SacdListing listSacd(const std::string &path)
{
    try {
        const SacdOutcome outcome = readTables(path);
        if (!outcome.image)
            return {outcome.error + "\n", 1};
        const SacdArea &area = outcome.image->area;
        SacdListing listing;
        listing.text =
            "ISO\t" + listingField(outcome.image->title) + "\t" + std::to_string(area.tracks.size()) + "\n";
        for (const std::string &warning : outcome.image->warnings)
            listing.text += "WARN " + listingField(warning) + "\n";
        for (const SacdTrack &track : area.tracks)
            listing.text += "TRACK\t" + std::to_string(track.number) + "\t" + seconds(track.startFrame) +
                            "\t" + seconds(track.endFrame()) + "\t" + listingField(track.title) + "\n";
        return listing;
    } catch (const std::exception &failure) {
        return {std::string("the SACD image cannot be read: ") + failure.what() + "\n", 1};
    }
}

std::vector<int> sacdTrackNumbers(const std::string &path)
{
    std::vector<int> numbers;
    try {
        if (const SacdOutcome outcome = readTables(path); outcome.image) {
            for (const SacdTrack &track : outcome.image->area.tracks)
                numbers.push_back(track.number);
        }
    } catch (const std::exception &) {
        numbers.clear();
    }
    return numbers;
}

} // namespace kelp_core
