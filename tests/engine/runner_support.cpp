#include "engine/runner_support.h"

#include "player_core/include/kelp_player_core.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <sys/stat.h>

namespace runner_support {

kelp::InProcRunner::Entry testEngine()
{
    static void *const library = dlopen(KELP_TEST_ENGINE_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) {
        std::fprintf(stderr, "%s\n", dlerror());
        std::abort();
    }
    return reinterpret_cast<decltype(&kelp_player_main)>(dlsym(library, "kelp_player_main"));
}

std::vector<std::string> engineArgs(const std::string &mode, const std::string &operand)
{
    return {"KelpPlayer", "-test", mode, operand};
}

kelp::InProcRunner::LineSink Pieces::sink()
{
    return [this](std::string_view piece) {
        const std::lock_guard lock(m_mutex);
        m_pieces.emplace_back(piece);
    };
}

std::vector<std::string> Pieces::all() const
{
    const std::lock_guard lock(m_mutex);
    return m_pieces;
}

std::string Pieces::text() const
{
    std::string text;
    for (const std::string &piece : all())
        text += piece;
    return text;
}

bool Pieces::contains(std::string_view piece) const
{
    const auto pieces = all();
    return std::find(pieces.begin(), pieces.end(), piece) != pieces.end();
}

std::vector<std::string> Pieces::ofTheEngine() const
{
    auto pieces = all();
    std::erase_if(pieces, [](const std::string &piece) {
        return piece.starts_with("[host]") || piece.starts_with("[inproc]");
    });
    return pieces;
}

StandardDescriptors StandardDescriptors::now()
{
    StandardDescriptors result;
    for (int fd = 0; fd < 3; ++fd) {
        struct stat info
        {
        };
        if (fstat(fd, &info) == 0)
            result.descriptor[fd] = {info.st_dev, info.st_ino, fcntl(fd, F_GETFD)};
    }
    return result;
}

ScratchDirectory::ScratchDirectory()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "kelp-runner-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr)
        std::abort();
    m_path = pattern;
}

ScratchDirectory::~ScratchDirectory()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

void ScratchDirectory::touch(const std::string &name) const
{
    std::ofstream(file(name)) << "x";
}

std::string contents(const std::string &path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

kelp::InProcRunner::Options quickOptions()
{
    kelp::InProcRunner::Options options;
    options.destructorWaitMs = 60;
    return options;
}

} // namespace runner_support
