#include "tests/support/byte_writer.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace kelp_test {

void writeFile(const std::string &path, const std::vector<uint8_t> &bytes)
{
    writeFile(path, std::string_view(reinterpret_cast<const char *>(bytes.data()), bytes.size()));
}

void writeFile(const std::string &path, std::string_view text)
{
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(text.data(), static_cast<std::streamsize>(text.size()));
    file.close();
    if (!file) {
        std::fprintf(stderr, "cannot write %s\n", path.c_str());
        std::abort();
    }
}

std::vector<uint8_t> readFile(const std::string &path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace kelp_test
