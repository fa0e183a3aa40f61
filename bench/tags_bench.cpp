// Reading the tags of many files in a warm cache, a table a form of file: our reader, a tag library on the
// same files, and merely reading bytes, round by round in turn; and the bytes read of each file, counted by
// the system.
//
// usage: tags_bench [FILES [FOLDER [KIND…]]]      20,000 files of some 150 KB in /dev/shm; removed at the end
#include "tags/audio_file_info.h"
#include "tests/support/byte_writer.h"
#include "tests/support/tag_maker.h"
#include "tests/support/temp_dir.h"

#include <algorithm>
#include <chrono>
#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <random>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#ifdef KELP_HAVE_TAGLIB
#include <taglib/fileref.h>
#include <taglib/tag.h>
#endif

namespace {

constexpr size_t audioBytes = 150000;
constexpr size_t bufferBytes = 65536;
constexpr int rounds = 5;

using Paths = std::vector<std::string>;
uint64_t sink = 0;

void readOurs(const std::string &path)
{
    AudioFileInfo info;
    sink += readAudioFileInfo(info, path) ? info.title.size() + info.sampleRate : 1;
}

void readByLibrary([[maybe_unused]] const std::string &path)
{
#ifdef KELP_HAVE_TAGLIB
    const TagLib::FileRef file(path.c_str());
    if (file.isNull())
        return;
    // Texts are handed over by reference; a copy would be the caller's.
    const TagLib::Tag *tag = file.tag();
    sink += tag->title().size() + tag->artist().size() + tag->album().size() + tag->genre().size() +
            tag->comment().size() + tag->year() + tag->track();
    if (file.audioProperties())
        sink += static_cast<uint64_t>(file.audioProperties()->sampleRate());
#endif
}

/// The first and the last bytes of a file into memory that is warm already.
void readBare(const std::string &path, size_t headBytes, size_t tailBytes)
{
    static uint8_t buffer[2 * bufferBytes];
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat facts = {};
    if (file < 0 || ::fstat(file, &facts) != 0)
        std::abort();
    ssize_t got = ::pread(file, buffer, headBytes, 0);
    if (tailBytes > 0)
        got += ::pread(file, buffer + headBytes, tailBytes, facts.st_size - static_cast<off_t>(tailBytes));
    ::close(file);
    sink += static_cast<uint64_t>(got) + buffer[0];
}

double microseconds(const Paths &paths, const std::function<void(const std::string &)> &read)
{
    const auto start = std::chrono::steady_clock::now();
    for (const std::string &path : paths)
        read(path);
    const std::chrono::duration<double, std::micro> took = std::chrono::steady_clock::now() - start;
    return took.count() / static_cast<double>(paths.size());
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// All bytes that this process has read so far, those of this very question left out.
uint64_t bytesReadSoFar()
{
    static uint64_t own = 0;
    char text[512];
    const int file = ::open("/proc/self/io", O_RDONLY | O_CLOEXEC);
    const ssize_t got = ::read(file, text, sizeof text - 1);
    ::close(file);
    text[std::max<ssize_t>(got, 0)] = '\0';
    uint64_t count = 0;
    if (std::sscanf(text, "rchar: %" SCNu64, &count) != 1)
        std::abort();
    count -= own;
    own += static_cast<uint64_t>(got);
    return count;
}

Paths makeFiles(const std::string &kind, const std::string &folder, size_t count)
{
    std::mt19937_64 random(1);
    kelp_test::Bytes pool(2 * audioBytes);
    std::generate(pool.begin(), pool.end(), [&random] { return static_cast<uint8_t>(random()); });
    Paths paths;
    for (size_t i = 0; i < count; ++i) {
        const auto begin = pool.begin() + static_cast<std::ptrdiff_t>(random() % audioBytes);
        const std::string number = std::to_string(i);
        paths.push_back(folder + "/" + number + "." +
                        (kind == "wavpack" ? "wv" : kind.substr(0, kind.find('-'))));
        kelp_test::writeFile(paths.back(),
                             kelp_test::taggedFile(kind, {"Title " + number, "Artist " + number, "Album"},
                                                   {begin, begin + audioBytes}));
    }
    return paths;
}

void measure(const std::string &kind, const std::string &folder, size_t count)
{
    const Paths paths = makeFiles(kind, folder, count);
    uint64_t most = 0;
    uint64_t total = 0;
    for (const std::string &path : paths) {
        const uint64_t before = bytesReadSoFar();
        readOurs(path);
        const uint64_t bytes = bytesReadSoFar() - before;
        most = std::max(most, bytes);
        total += bytes;
    }
    const size_t mean = static_cast<size_t>(total / paths.size());
    const size_t sameHead = std::min(mean, bufferBytes);

    std::vector<double> ours;
    std::vector<double> library;
    std::vector<double> bare;
    std::vector<double> bareSame;
    for (int round = 0; round < rounds; ++round) {
        ours.push_back(microseconds(paths, readOurs));
        library.push_back(microseconds(paths, readByLibrary));
        bare.push_back(
            microseconds(paths, [](const std::string &path) { readBare(path, bufferBytes, bufferBytes); }));
        bareSame.push_back(
            microseconds(paths, [&](const std::string &path) { readBare(path, sameHead, mean - sameHead); }));
    }
    std::printf("%-13s %8.2f %8.2f %8.2f %8.2f | %8.2f %8.2f %8.2f | %8zu %8" PRIu64 "\n", kind.c_str(),
                median(ours), median(library), median(bare), median(bareSame), median(ours) / median(library),
                median(ours) / median(bare), median(ours) / median(bareSame), mean, most);
    std::fflush(stdout);
    for (const std::string &path : paths)
        std::filesystem::remove(path);
}

} // namespace

int main(int argc, char **argv)
{
    const size_t count = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 20000;
    if (count == 0) {
        std::fprintf(stderr, "usage: %s [FILES [FOLDER [KIND...]]]\n", argv[0]);
        return 2;
    }
    ::setenv("TMPDIR", argc > 2 ? argv[2] : "/dev/shm", 1);
    const kelp_test::TempDir folder;
    Paths kinds(argv + std::min(argc, 3), argv + argc);
    if (kinds.empty())
        kinds = {"flac", "flac-cover", "wav",     "wav-untagged", "aiff", "mp3",
                 "dsf",  "ape",        "wavpack", "tta",          "ogg",  "m4a"};
    std::printf("%zu files a kind; microseconds a file, median of %d rounds\n", count, rounds);
#ifndef KELP_HAVE_TAGLIB
    std::printf("built without the tag library: its column is empty work\n");
#endif
    std::printf("%-13s %8s %8s %8s %8s | %8s %8s %8s | %8s %8s\n", "kind", "ours", "library", "bare", "same",
                "/library", "/bare", "/same", "bytes", "most");
    for (const std::string &kind : kinds)
        measure(kind, folder.path(), count);
    return sink == 0 ? 1 : 0;
}
