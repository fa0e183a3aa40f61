#include "platform/module_list.h"

#include <QFile>
#include <algorithm>
#include <charconv>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// More than any process has; a longer text is cut.
constexpr qint64 mostMapsBytes = 16 * 1024 * 1024;

struct Mapping
{
    std::uintptr_t base = 0;
    std::uintptr_t end = 0;
    bool executable = false;
    std::string_view path;
};

std::string_view nextWord(std::string_view &line)
{
    const std::size_t start = std::min(line.find_first_not_of(' '), line.size());
    const std::size_t stop = std::min(line.find(' ', start), line.size());
    const std::string_view word = line.substr(start, stop - start);
    line.remove_prefix(stop);
    return word;
}

bool hexNumber(std::string_view text, std::uintptr_t &number)
{
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, 16);
    return error == std::errc() && end == text.data() + text.size();
}

/// "7f00-7f10 r-xp 00000000 08:01 1234   /usr/lib/libx.so"
std::optional<Mapping> mappingOf(std::string_view line)
{
    const std::string_view range = nextWord(line);
    const std::string_view rights = nextWord(line);
    for (int word = 0; word < 3; ++word) // offset, device, inode
        nextWord(line);
    Mapping mapping;
    const std::size_t dash = range.find('-');
    if (dash == std::string_view::npos || rights.size() < 3 ||
        !hexNumber(range.substr(0, dash), mapping.base) || !hexNumber(range.substr(dash + 1), mapping.end) ||
        mapping.end <= mapping.base)
        return std::nullopt;
    mapping.executable = rights[2] == 'x';
    const std::size_t path = line.find_first_not_of(' ');
    if (path == std::string_view::npos)
        return std::nullopt;
    mapping.path = line.substr(path);
    return mapping;
}

LoadedModule moduleOf(const Mapping &mapping, const QString &ownPath)
{
    LoadedModule module;
    module.base = mapping.base;
    module.end = mapping.end;
    module.path = QString::fromUtf8(mapping.path.data(), static_cast<qsizetype>(mapping.path.size()));
    module.name = module.path.section(u'/', -1).left(mostModuleNameChars);
    module.ownProgram = !ownPath.isEmpty() && module.path == ownPath;
    return module;
}

} // namespace

std::vector<LoadedModule> modulesFromMaps(std::string_view maps, const QString &ownPath)
{
    std::vector<LoadedModule> modules;
    std::vector<bool> executable;
    std::string_view lastPath;
    while (!maps.empty()) {
        const std::size_t stop = std::min(maps.find('\n'), maps.size());
        const std::optional<Mapping> mapping = mappingOf(maps.substr(0, stop));
        maps.remove_prefix(std::min(stop + 1, maps.size()));
        if (!mapping)
            continue;
        // The kernel lists by address, so the pieces of one file follow each other.
        if (!modules.empty() && mapping->path == lastPath) {
            modules.back().end = std::max(modules.back().end, mapping->end);
            executable.back() = executable.back() || mapping->executable;
            continue;
        }
        if (!executable.empty() && !executable.back()) {
            modules.pop_back();
            executable.pop_back();
        }
        lastPath = mapping->path;
        if (modules.size() == mostModules)
            break;
        modules.push_back(moduleOf(*mapping, ownPath));
        executable.push_back(mapping->executable);
    }
    if (!executable.empty() && !executable.back())
        modules.pop_back();
    return modules;
}

std::vector<LoadedModule> loadedModules()
{
    QFile maps(u"/proc/self/maps"_s);
    if (!maps.open(QIODevice::ReadOnly))
        return {};
    // The file has no size of its own, so it is read to its end in pieces.
    QByteArray text;
    for (QByteArray piece = maps.read(64 * 1024); !piece.isEmpty() && text.size() < mostMapsBytes;
         piece = maps.read(64 * 1024))
        text += piece;
    return modulesFromMaps(std::string_view(text.constData(), static_cast<std::size_t>(text.size())),
                           QFile::symLinkTarget(u"/proc/self/exe"_s));
}

const LoadedModule *moduleAt(const std::vector<LoadedModule> &modules, std::uintptr_t address)
{
    const auto above =
        std::upper_bound(modules.begin(), modules.end(), address,
                         [](std::uintptr_t at, const LoadedModule &module) { return at < module.base; });
    if (above == modules.begin())
        return nullptr;
    const LoadedModule &module = *std::prev(above);
    return address < module.end ? &module : nullptr;
}
