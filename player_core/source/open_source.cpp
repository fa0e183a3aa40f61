#include "player_core/source/av_log.h"
#include "player_core/source/av_reader.h"
#include "player_core/source/content_kind.h"
#include "player_core/source/cue_source.h"
#include "player_core/source/dsd_source.h"
#include "player_core/source/dst_decoder.h"
#include "player_core/source/file_input.h"
#include "player_core/source/gain_tag_text.h"
#include "player_core/source/open_file.h"
#include "player_core/source/pcm_source.h"
#include "player_core/source/sacd_source.h"

#include <exception>

namespace kelp_core {
namespace {

ContentKind rawCdAudio(bool bigEndian)
{
    ContentKind kind;
    kind.reader = ContentReader::container;
    kind.demuxer = bigEndian ? "s16be" : "s16le";
    kind.word = "raw";
    kind.name = "raw CD audio";
    kind.options = "sample_rate=44100:ch_layout=stereo";
    return kind;
}

using LayoutParser = DsdLayoutOutcome (*)(ByteInput &);

/// The tags of a DSF file. One that FFmpeg does not like plays without.
GainTags dsfGains(const std::string &path)
{
    std::string error;
    const auto reader = AvReader::open(path, {"dsf", "", nullptr}, error);
    takeAvError();
    return reader ? gainTagsOf(*reader->context(), reader->audio() ? reader->audio()->index : -1)
                  : GainTags();
}

OpenedSource openDsdFile(const std::string &path, std::unique_ptr<FileInput> file, LayoutParser parse)
{
    DsdLayoutOutcome outcome = parse(*file);
    if (!outcome.layout)
        return {nullptr, outcome.error};
    DsdLayout &layout = *outcome.layout;
    if (layout.tagOffset > 0)
        layout.gains = dsfGains(path);
    if (!layout.dst)
        return {makeDsdSource(std::move(file), layout), {}};
    if (!DstDecoder::supports(layout.channels, static_cast<int>(layout.dstFrameBytes())))
        return {nullptr,
                "DST of this rate or number of channels does not exist: " + dsdFacts(layout).description};
    return {makeDstSource(std::move(file), layout), {}};
}

} // namespace

OpenedSource openAudioFile(const std::string &path, const SourceRequest &request, RawAudio raw)
{
    quietAvLog();
    std::string error;
    auto file = FileInput::open(path, error);
    if (!file)
        return {nullptr, error};
    ContentKind kind = detectContent(*file);
    if (kind.reader == ContentReader::none && raw != RawAudio::no && file->sizeBytes() > 0)
        kind = rawCdAudio(raw == RawAudio::bigEndian);
    switch (kind.reader) {
    case ContentReader::container:
        return openPcmFile(path, kind, request);
    case ContentReader::dsf:
        return openDsdFile(path, std::move(file), parseDsf);
    case ContentReader::dff:
        return openDsdFile(path, std::move(file), parseDff);
    case ContentReader::wsd:
        return openDsdFile(path, std::move(file), parseWsd);
    case ContentReader::sacd: {
        SourceRequest whole = request;
        whole.isoPath = path;
        whole.track = 0;
        return openSacd(whole);
    }
    case ContentReader::none:
        break;
    }
    return {nullptr, kind.refusal};
}

OpenedSource openSource(const SourceRequest &request)
{
    try {
        if (!request.isoPath.empty())
            return openSacd(request);
        if (!request.cuePath.empty())
            return openCue(request);
        return openAudioFile(request.path, request);
    } catch (const std::exception &failure) {
        return {nullptr, std::string("cannot open: ") + failure.what()};
    }
}

} // namespace kelp_core
