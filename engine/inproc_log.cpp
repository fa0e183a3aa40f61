#include "engine/inproc_log.h"

#include <cstdio>
#include <cstdlib>

namespace kelp {

std::string inprocLogPath()
{
    const char *value = std::getenv("KELP_INPROC_LOG");
    return value != nullptr ? value : "";
}

void appendInprocLog(const std::string &path, std::string_view text)
{
    if (path.empty())
        return;
    // "e": a child that starts meanwhile does not inherit the file.
    std::FILE *file = std::fopen(path.c_str(), "ae");
    if (file == nullptr)
        return;
    std::fwrite(text.data(), 1, text.size(), file);
    std::fclose(file);
}

} // namespace kelp
