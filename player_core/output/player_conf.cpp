#include "player_core/output/player_conf.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>

namespace kelp_core {
namespace {

constexpr std::string_view dsdOkKey = "dsd_ok=";
constexpr size_t maxConfBytes = 64 * 1024;

std::string_view trimmed(std::string_view text)
{
    const size_t first = text.find_first_not_of(" \t\r\n");
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

std::string lowered(std::string_view text)
{
    std::string result(text);
    // ASCII only: bytes of UTF-8 names must not be touched whatever the locale.
    std::transform(result.begin(), result.end(), result.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return result;
}

template<typename Take>
void forEachPart(std::string_view text, char separator, Take take)
{
    while (true) {
        const size_t end = text.find(separator);
        take(text.substr(0, end));
        if (end == std::string_view::npos)
            return;
        text.remove_prefix(end + 1);
    }
}

} // namespace

std::string playerConfPath(const EnvironmentLookup &lookup)
{
    if (const char *file = lookup("KELP_PLAYER_CONF"); file && *file)
        return file;
    for (const char *name : {"APPDATA", "USERPROFILE", "HOME"})
        if (const char *folder = lookup(name); folder && *folder)
            return std::string(folder) + "/kelp/player.conf";
    return {};
}

std::string playerConfPath()
{
    return playerConfPath([](const char *name) -> const char * { return std::getenv(name); });
}

std::vector<std::string> parseDsdOk(std::string_view text)
{
    std::vector<std::string> entries;
    forEachPart(text, '\n', [&entries](std::string_view line) {
        if (!line.starts_with(dsdOkKey))
            return;
        forEachPart(line.substr(dsdOkKey.size()), ';', [&entries](std::string_view part) {
            if (const std::string_view name = trimmed(part); !name.empty())
                entries.emplace_back(name);
        });
    });
    return entries;
}

bool isDsdMarked(const std::vector<std::string> &entries, std::string_view name)
{
    const std::string lowerName = lowered(name);
    return std::any_of(entries.begin(), entries.end(), [&lowerName](const std::string &entry) {
        return !entry.empty() && lowerName.find(lowered(entry)) != std::string::npos;
    });
}

std::vector<std::string> readDsdOk()
{
    std::ifstream file(playerConfPath(), std::ios::binary);
    std::string text(maxConfBytes, '\0');
    file.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<size_t>(file.gcount()));
    return parseDsdOk(text);
}

} // namespace kelp_core
