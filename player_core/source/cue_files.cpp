#include "player_core/source/cue_files.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>

namespace kelp_core {
namespace {

namespace fs = std::filesystem;

// Most likely first: what a rip is packed into.
constexpr std::array suffixes{".flac", ".wav",  ".wv",  ".ape", ".m4a", ".tta", ".aiff", ".aif",
                              ".aifc", ".alac", ".w64", ".dsf", ".dff", ".wsd", ".dts",  ".mp4"};

bool isFile(const std::string &path)
{
    std::error_code ignored;
    return fs::is_regular_file(path, ignored);
}

/// A name of the folder that equals the given one but for case; "" when there is none.
std::string nameOfAnyCase(const std::vector<std::string> &names, const std::string &wanted)
{
    const auto found = std::find_if(names.begin(), names.end(),
                                    [&](const std::string &name) { return sameButCase(name, wanted); });
    return found == names.end() ? std::string() : *found;
}

/// Follows a relative path part by part, each in any case. "" when a folder is missing.
std::string folderOfAnyCase(std::string folder, const std::string &relative)
{
    size_t at = 0;
    for (size_t slash = relative.find('/'); slash != std::string::npos; slash = relative.find('/', at)) {
        const std::string part = relative.substr(at, slash - at);
        at = slash + 1;
        if (part.empty() || part == ".")
            continue;
        std::error_code ignored;
        if (fs::is_directory(folder + "/" + part, ignored)) {
            folder += "/" + part;
            continue;
        }
        const std::string name = nameOfAnyCase(namesIn(folder), part);
        if (name.empty())
            return {};
        folder += "/" + name;
    }
    return folder;
}

std::string lookFor(const std::string &folder, const std::string &relative)
{
    const std::string inFolder = folderOfAnyCase(folder, relative);
    if (inFolder.empty())
        return {};
    const std::string base = relative.substr(relative.rfind('/') + 1);
    const std::vector<std::string> names = namesIn(inFolder);
    const auto fileOf = [&](const std::string &wanted) -> std::string {
        const std::string name = nameOfAnyCase(names, wanted);
        return !name.empty() && isFile(inFolder + "/" + name) ? inFolder + "/" + name : std::string();
    };
    if (std::string same = fileOf(base); !same.empty())
        return same;
    const std::string stem = base.substr(0, base.rfind('.'));
    for (const char *suffix : suffixes) {
        if (std::string packed = fileOf(stem + suffix); !packed.empty())
            return packed;
    }
    return {};
}

} // namespace

bool sameButCase(const std::string &one, const std::string &other)
{
    return std::equal(one.begin(), one.end(), other.begin(), other.end(), [](char left, char right) {
        return std::tolower(static_cast<unsigned char>(left)) ==
               std::tolower(static_cast<unsigned char>(right));
    });
}

std::string folderOf(const std::string &path)
{
    std::error_code error;
    const fs::path full = fs::absolute(path, error).lexically_normal();
    const std::string folder = (error ? fs::path(path) : full).parent_path().string();
    return folder.empty() ? "." : folder;
}

std::vector<std::string> namesIn(const std::string &folder)
{
    constexpr size_t maxNames = 20000;
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end && names.size() < maxNames;
         entry.increment(error))
        names.push_back(entry->path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

std::string findCueAudio(const std::string &folder, const CueFile &file)
{
    std::string named;
    for (std::string name : {file.name, file.rawName}) {
        if (name.empty() || name.find('\0') != std::string::npos)
            continue;
        if (name[0] == '/' && isFile(name))
            return name;
        if (isFile(folder + "/" + name))
            return (fs::path(folder) / name).lexically_normal().string();
        // Sheets come from systems that part folders by a backslash, and with paths of other machines.
        std::replace(name.begin(), name.end(), '\\', '/');
        if (named.empty())
            named = (fs::path(folder) / name).lexically_normal().string();
        for (const std::string &relative : {name, name.substr(name.rfind('/') + 1)}) {
            if (std::string found = lookFor(folder, relative); !found.empty())
                return fs::path(found).lexically_normal().string();
        }
    }
    return named.empty() ? folder : named;
}

} // namespace kelp_core
