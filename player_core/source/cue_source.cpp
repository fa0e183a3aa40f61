#include "player_core/source/cue_source.h"

#include "player_core/source/cue_files.h"
#include "player_core/source/file_input.h"
#include "player_core/source/joined_source.h"
#include "player_core/source/open_file.h"
#include "player_core/source/span_source.h"

#include <algorithm>

namespace kelp_core {
namespace {

/// What the sheet says goes before what its file says, which holds for all of the file's tracks together.
GainTags gainsOf(const CueSheet &sheet, int number, const GainTags &file)
{
    GainTags gains = file;
    const auto take = [](std::optional<double> &to, std::optional<double> &toPeak,
                         const std::optional<double> &from, const std::optional<double> &peak) {
        if (!from)
            return;
        to = from;
        toPeak = peak;
    };
    take(gains.albumGainDb, gains.albumPeak, sheet.gains.albumGainDb, sheet.gains.albumPeak);
    for (const CueTrack &track : sheet.tracks) {
        if (track.number == number)
            take(gains.trackGainDb, gains.trackPeak, track.gains.trackGainDb, track.gains.trackPeak);
    }
    return gains;
}

OpenedSource openTrack(const CueSheet &sheet, const std::string &folder, const SourceRequest &request)
{
    const std::vector<CueSpan> spans = cueSpans(sheet);
    const auto span = std::find_if(spans.begin(), spans.end(),
                                   [&](const CueSpan &one) { return one.number == request.track; });
    if (span == spans.end())
        return {nullptr, "the CUE sheet has no audio track " + std::to_string(request.track)};
    OpenedSource file = openCueAudio(folder, sheet.files[span->file], request);
    if (!file.source)
        return file;
    const GainTags gains = gainsOf(sheet, request.track, file.source->facts().gains);
    const int64_t perSecond = file.source->facts().format.framesPerSecond();
    const int64_t start = cueTimeToFrames(span->startFrames, perSecond);
    const int64_t end = span->endFrames < 0 ? -1 : cueTimeToFrames(span->endFrames, perSecond);
    return makeSpanSource(std::move(file.source), start, end, "track " + std::to_string(request.track),
                          gains);
}

OpenedSource openWhole(const CueSheet &sheet, const std::string &folder, const SourceRequest &request)
{
    const std::vector<CueSpan> spans = cueSpans(sheet);
    JoinedParts parts;
    for (size_t number = 0; number < sheet.files.size(); ++number) {
        const bool used =
            std::any_of(spans.begin(), spans.end(), [&](const CueSpan &span) { return span.file == number; });
        if (!used)
            continue;
        OpenedSource file = openCueAudio(folder, sheet.files[number], request);
        if (!file.source)
            return file;
        const SourceFacts &facts = file.source->facts();
        for (const CueSpan &span : spans) {
            if (span.file == number)
                parts.segments.push_back(
                    {span.number,
                     parts.totalFrames +
                         std::min(cueTimeToFrames(span.startFrames, facts.format.framesPerSecond()),
                                  std::max<int64_t>(facts.totalFrames, 0)),
                     span.title, span.performer});
        }
        if (std::string error = parts.add(facts); !error.empty())
            return {nullptr, error};
        const CueFile audio = sheet.files[number];
        parts.openers.push_back([folder, audio] { return openCueAudio(folder, audio, {}); });
    }
    if (parts.openers.empty())
        return {nullptr, "the CUE sheet has no audio track"};
    std::stable_sort(
        parts.segments.begin(), parts.segments.end(),
        [](const SourceSegment &a, const SourceSegment &b) { return a.startFrame < b.startFrame; });
    return makeJoinedSource(std::move(parts));
}

} // namespace

std::optional<CueSheet> loadCueSheet(const std::string &path, std::string &error)
{
    const auto file = FileInput::open(path, error);
    if (!file)
        return {};
    if (file->sizeBytes() > static_cast<int64_t>(maxCueBytes)) {
        error = "this is not a CUE sheet: it is far too long";
        return {};
    }
    std::string bytes(static_cast<size_t>(file->sizeBytes()), '\0');
    const int64_t got = file->readAt(0, reinterpret_cast<uint8_t *>(bytes.data()), bytes.size());
    if (got < 0) {
        error = "cannot read: " + systemErrorWords(file->lastError());
        return {};
    }
    bytes.resize(static_cast<size_t>(got));
    auto sheet = parseCueSheet(bytes);
    if (!sheet)
        error = bytes.empty() ? "the file is empty" : "this is not a CUE sheet: it names no track";
    return sheet;
}

OpenedSource openCueAudio(const std::string &folder, const CueFile &file, const SourceRequest &request)
{
    const std::string path = findCueAudio(folder, file);
    const RawAudio raw = file.type == "BINARY"     ? RawAudio::littleEndian
                         : file.type == "MOTOROLA" ? RawAudio::bigEndian
                                                   : RawAudio::no;
    OpenedSource opened = openAudioFile(path, request, raw);
    if (!opened.source)
        opened.error = "\"" + path.substr(path.rfind('/') + 1) + "\": " + opened.error;
    return opened;
}

OpenedSource openCue(const SourceRequest &request)
{
    std::string error;
    const auto sheet = loadCueSheet(request.cuePath, error);
    if (!sheet)
        return {nullptr, error};
    const std::string folder = folderOf(request.cuePath);
    return request.track < 1 ? openWhole(*sheet, folder, request) : openTrack(*sheet, folder, request);
}

} // namespace kelp_core
