#include "player_core/source/av_log.h"
#include "player_core/source/content_kind.h"
#include "player_core/source/file_input.h"
#include "player_core/source/open_file.h"
#include "player_core/source/pcm_source.h"

#include <exception>

namespace kelp_core {

OpenedSource openAudioFile(const std::string &path, const SourceRequest &request)
{
    quietAvLog();
    std::string error;
    ContentKind kind;
    {
        const auto file = FileInput::open(path, error);
        if (!file)
            return {nullptr, error};
        kind = detectContent(*file);
    }
    switch (kind.reader) {
    case ContentReader::container:
        return openPcmFile(path, kind, request);
    default:
        return {nullptr, kind.refusal};
    }
}

OpenedSource openSource(const SourceRequest &request)
{
    try {
        if (!request.isoPath.empty())
            return {nullptr, "SACD images are not read by this engine"};
        return openAudioFile(request.path, request);
    } catch (const std::exception &failure) {
        return {nullptr, std::string("cannot open: ") + failure.what()};
    }
}

} // namespace kelp_core
