// Feeds every file of a corpus folder to a fuzz target: what the fuzzer once found stays found.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

int main(int argc, char **argv)
{
    if (argc != 2 || !std::filesystem::is_directory(argv[1])) {
        std::fprintf(stderr, "usage: %s CORPUS_FOLDER (the folder must exist)\n", argv[0]);
        return 2;
    }
    size_t count = 0;
    for (const auto &entry : std::filesystem::directory_iterator(argv[1])) {
        if (!entry.is_regular_file())
            continue;
        std::ifstream file(entry.path(), std::ios::binary);
        const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(bytes.data()), bytes.size());
        ++count;
    }
    // An empty corpus would be a test that cannot fail.
    std::printf("%zu inputs replayed\n", count);
    return count > 0 ? 0 : 1;
}
