#include "player_core/source/cue_list.h"

#include "player_core/source/cue_files.h"
#include "player_core/source/cue_source.h"
#include "player_core/source/listing_text.h"

#include <algorithm>
#include <exception>
#include <map>

namespace kelp_core {
namespace {

int64_t cueMicroseconds(int64_t cueFrames)
{
    return cueTimeToFrames(cueFrames, 1000000);
}

/// A file's length; a negative number when it cannot be opened, with the reason in error.
int64_t fileMicroseconds(const std::string &folder, const CueFile &file, std::string &error)
{
    const OpenedSource opened = openCueAudio(folder, file, {});
    error = opened.error;
    if (!opened.source)
        return -1;
    const SourceFacts &facts = opened.source->facts();
    const int64_t perSecond = facts.format.framesPerSecond();
    const int64_t total = facts.totalFrames;
    return total < 0 ? 0 : total / perSecond * 1000000 + total % perSecond * 1000000 / perSecond;
}

CueListing listTracks(const std::string &cuePath)
{
    CueListing listing;
    std::string error;
    const auto sheet = loadCueSheet(cuePath, error);
    if (!sheet)
        return {error + "\n", 1};
    const std::string folder = folderOf(cuePath);
    std::map<size_t, int64_t> lengths;
    std::string warnings, tracks;
    for (const CueSpan &span : cueSpans(*sheet)) {
        if (!lengths.contains(span.file)) {
            lengths[span.file] = fileMicroseconds(folder, sheet->files[span.file], error);
            if (lengths[span.file] < 0)
                warnings += "WARN " + listingField(error) + "\n";
        }
        const int64_t length = lengths[span.file];
        const int64_t start = cueMicroseconds(span.startFrames);
        if (length < 0 || start >= length)
            continue; // nothing there to play
        int64_t end = span.endFrames < 0 ? length : cueMicroseconds(span.endFrames);
        end = std::min(end, length);
        const std::string path = findCueAudio(folder, sheet->files[span.file]);
        tracks += "TRACK\t" + std::to_string(span.number) + "\t" + listingSeconds(start) + "\t" +
                  listingSeconds(end) + "\t" + listingField(span.title) + "\t" +
                  listingField(span.performer) + "\t" + listingField(path) + "\n";
    }
    if (tracks.empty())
        return {warnings + "no track of this CUE sheet can be played\n", 1};
    listing.text = "CUE\t" + listingField(sheet->title) + "\t" + listingField(sheet->performer) + "\n" +
                   warnings + tracks;
    return listing;
}

} // namespace

CueListing listCue(const std::string &cuePath)
{
    try {
        return listTracks(cuePath);
    } catch (const std::exception &failure) {
        return {std::string("the CUE sheet cannot be read: ") + failure.what() + "\n", 1};
    }
}

} // namespace kelp_core
