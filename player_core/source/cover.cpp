#include "player_core/source/cover.h"

#include "player_core/source/atomic_file.h"
#include "player_core/source/av_reader.h"
#include "player_core/source/content_kind.h"
#include "player_core/source/cue_files.h"
#include "player_core/source/cue_source.h"
#include "player_core/source/dsd_layout.h"
#include "player_core/source/id3_picture.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <exception>
#include <string_view>

using namespace std::string_view_literals;

namespace kelp_core {
namespace {

using Bytes = std::vector<uint8_t>;

/// What a picture is by its first bytes; "" when it is none that anyone shows.
const char *mimeOf(const Bytes &bytes)
{
    struct Magic
    {
        std::string_view first;
        size_t secondAt;
        std::string_view second;
        const char *mime;
    };
    static constexpr std::array magics{
        Magic{"\xFF\xD8\xFF"sv, 0, ""sv, "image/jpeg"},
        Magic{"\x89PNG\r\n"sv, 0, ""sv, "image/png"},
        Magic{"RIFF"sv, 8, "WEBP"sv, "image/webp"},
        Magic{"GIF8"sv, 0, ""sv, "image/gif"},
        Magic{"BM"sv, 0, ""sv, "image/bmp"},
    };
    const std::string_view view(reinterpret_cast<const char *>(bytes.data()), bytes.size());
    for (const Magic &magic : magics) {
        if (view.starts_with(magic.first) &&
            view.substr(std::min(magic.secondAt, view.size())).starts_with(magic.second))
            return magic.mime;
    }
    return "";
}

bool isPicture(const Bytes &bytes)
{
    return static_cast<int64_t>(bytes.size()) <= maxPictureBytes && *mimeOf(bytes) != '\0';
}

/// The picture streams that FFmpeg makes of FLAC blocks, MP4 atoms and tags of other kinds.
Bytes pictureOfContainer(const std::string &path, const ContentKind &kind)
{
    std::string error;
    const auto reader = AvReader::open(path, {kind.demuxer, kind.options, nullptr}, error);
    if (!reader)
        return {};
    Bytes found;
    for (unsigned i = 0; i < reader->context()->nb_streams; ++i) {
        const AVStream *stream = reader->context()->streams[i];
        if (!(stream->disposition & AV_DISPOSITION_ATTACHED_PIC) || stream->attached_pic.size <= 0)
            continue;
        const Bytes bytes(stream->attached_pic.data, stream->attached_pic.data + stream->attached_pic.size);
        const AVDictionaryEntry *comment = av_dict_get(stream->metadata, "comment", nullptr, 0);
        const bool front = comment && std::strcmp(comment->value, "Cover (front)") == 0;
        if (isPicture(bytes) && (found.empty() || front))
            found = bytes;
        if (front && !found.empty())
            break;
    }
    return found;
}

Bytes embeddedPicture(const std::string &path)
{
    std::string error;
    const auto file = FileInput::open(path, error);
    if (!file)
        return {};
    const ContentKind kind = detectContent(*file);
    if (kind.reader == ContentReader::container)
        return pictureOfContainer(path, kind);
    const DsdLayoutOutcome outcome = kind.reader == ContentReader::dsf   ? parseDsf(*file)
                                     : kind.reader == ContentReader::dff ? parseDff(*file)
                                                                         : DsdLayoutOutcome{};
    if (!outcome.layout || outcome.layout->tagOffset == 0)
        return {};
    auto picture = readId3Picture(*file, outcome.layout->tagOffset);
    return picture && isPicture(*picture) ? *picture : Bytes();
}

Bytes pictureFile(const std::string &path)
{
    std::string error;
    const auto file = FileInput::open(path, error);
    if (!file || file->sizeBytes() > maxPictureBytes)
        return {};
    Bytes bytes(static_cast<size_t>(file->sizeBytes()));
    const int64_t got = file->readAt(0, bytes.data(), bytes.size());
    bytes.resize(static_cast<size_t>(std::max<int64_t>(got, 0)));
    return isPicture(bytes) ? bytes : Bytes();
}

Bytes pictureBeside(const std::string &folder)
{
    static constexpr std::array stems{"cover", "folder", "front"};
    static constexpr std::array suffixes{".jpg", ".jpeg", ".png", ".webp"};
    const std::vector<std::string> names = namesIn(folder);
    for (const char *stem : stems) {
        for (const char *suffix : suffixes) {
            for (const std::string &name : names) {
                if (!sameButCase(name, std::string(stem) + suffix))
                    continue;
                if (Bytes bytes = pictureFile(folder + "/" + name); !bytes.empty())
                    return bytes;
            }
        }
    }
    return {};
}

bool isCuePath(const std::string &path)
{
    return path.size() >= 4 && sameButCase(path.substr(path.size() - 4), ".cue");
}

/// The audio file of a sheet's track, or of its first.
std::string audioOfSheet(const CoverRequest &request)
{
    std::string error;
    const auto sheet = loadCueSheet(request.path, error);
    if (!sheet)
        return {};
    size_t file = sheet->tracks.front().file;
    for (const CueTrack &track : sheet->tracks) {
        if (track.number == request.track)
            file = track.file;
    }
    return findCueAudio(folderOf(request.path), sheet->files[file]);
}

Bytes findCover(const CoverRequest &request)
{
    const std::string audio = isCuePath(request.path) ? audioOfSheet(request) : request.path;
    Bytes bytes = audio.empty() ? Bytes() : embeddedPicture(audio);
    if (bytes.empty())
        bytes = pictureBeside(folderOf(request.path));
    if (bytes.empty() && !audio.empty() && folderOf(audio) != folderOf(request.path))
        bytes = pictureBeside(folderOf(audio));
    return bytes;
}

} // namespace

CoverAnswer extractCover(const CoverRequest &request)
{
    try {
        const Bytes bytes = findCover(request);
        if (bytes.empty())
            return {"COVER none", 1};
        if (std::string error = writeAtomically(request.outPath, bytes); !error.empty())
            return {error, 1};
        return {"COVER " + std::to_string(bytes.size()) + " " + mimeOf(bytes), 0};
    } catch (const std::exception &failure) {
        return {std::string("the cover cannot be read: ") + failure.what(), 1};
    }
}

} // namespace kelp_core
