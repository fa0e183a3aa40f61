// Reading the tags of many files in a warm cache, a line a form of file: our reader, a tag library on the
// same files, and merely reading bytes, round by round in turn; and the bytes read of each file, counted by
// the system. Head and tail are 64 KiB each ("bare"); "same" reads just as many bytes as our reader does.
//
// Judged are three bounds: 0.4 of the library's time, 1.6 of the time that the same bytes take to read, and
// 128 KiB. Where no tag is known at the head's start, all of head and tail can change the outcome and has to
// be read; "floor" is what this reading alone takes of the library's time, so no reader can be below it.
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

using Rounds = std::vector<double>;

double median(Rounds values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// Round by round, so that other work on the machine meets both sides.
double medianRatio(const Rounds &values, const Rounds &baseline)
{
    Rounds ratios;
    for (size_t i = 0; i < values.size(); ++i)
        ratios.push_back(values[i] / baseline[i]);
    return median(ratios);
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

constexpr double mostOfLibrary = 0.4;
constexpr double mostOfSame = 1.6;
constexpr size_t mostBytes = 2 * bufferBytes;
/// Behind the head an AIFF file's text chunks are looked at too, one header after the other.
constexpr size_t aiffChunkBytes = 8192;

struct Figures
{
    std::string kind;
    double ofLibrary = 0;
    double ofSame = 0;
    double floor = 0; ///< reading the same bytes, of the library's time
    size_t bytes = 0; ///< the most of any file

    bool meetsLibrary() const { return ofLibrary <= mostOfLibrary; }
    bool meetsSame() const { return ofSame <= mostOfSame; }
    bool meetsBytes() const { return bytes <= mostBytes + (kind == "aiff" ? aiffChunkBytes : 0); }
};

const char *verdict(bool met)
{
    return met ? "met" : "NO";
}

Figures measure(const std::string &kind, const std::string &folder, size_t count)
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

    Rounds ours;
    Rounds library;
    Rounds bare;
    Rounds same;
    for (int round = 0; round < rounds; ++round) {
        ours.push_back(microseconds(paths, readOurs));
        library.push_back(microseconds(paths, readByLibrary));
        bare.push_back(
            microseconds(paths, [](const std::string &path) { readBare(path, bufferBytes, bufferBytes); }));
        same.push_back(
            microseconds(paths, [&](const std::string &path) { readBare(path, sameHead, mean - sameHead); }));
    }
    const Figures figures{kind, medianRatio(ours, library), medianRatio(ours, same),
                          medianRatio(same, library), static_cast<size_t>(most)};
    std::printf("%-13s %8.2f %8.2f %8.2f %8.2f | %8.2f %-4s %6.2f | %6.2f %-4s %6.2f | %8zu %8zu %s\n",
                kind.c_str(), median(ours), median(library), median(bare), median(same), figures.ofLibrary,
                verdict(figures.meetsLibrary()), figures.floor, figures.ofSame, verdict(figures.meetsSame()),
                medianRatio(ours, bare), mean, figures.bytes, verdict(figures.meetsBytes()));
    std::fflush(stdout);
    for (const std::string &path : paths)
        std::filesystem::remove(path);
    return figures;
}

std::string kindsThat(const std::vector<Figures> &all, const std::function<bool(const Figures &)> &holds)
{
    std::string kinds;
    for (const Figures &figures : all)
        if (holds(figures))
            kinds += " " + figures.kind;
    return kinds.empty() ? " none" : kinds;
}

void summarise(const std::vector<Figures> &all)
{
    const auto line = [&all](const char *words, const std::function<bool(const Figures &)> &holds) {
        std::printf("%s:%s\n", words, kindsThat(all, holds).c_str());
    };
#ifdef KELP_HAVE_TAGLIB
    line("at most 0.4 of the library", [](const Figures &f) { return f.meetsLibrary(); });
    line("above it, though the same bytes can be read within it",
         [](const Figures &f) { return !f.meetsLibrary() && f.floor <= mostOfLibrary; });
    line("above it, as is merely reading the same bytes",
         [](const Figures &f) { return !f.meetsLibrary() && f.floor > mostOfLibrary; });
#endif
    line("at most 1.6 of reading the same bytes", [](const Figures &f) { return f.meetsSame(); });
    line("above it", [](const Figures &f) { return !f.meetsSame(); });
    line("more than 128 KiB read", [](const Figures &f) { return !f.meetsBytes(); });
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
    std::printf("%-13s %8s %8s %8s %8s | %8s %-4s %6s | %6s %-4s %6s | %8s %8s\n", "kind", "ours", "library",
                "bare", "same", "/library", "0.4", "floor", "/same", "1.6", "/bare", "bytes", "most");
    std::vector<Figures> all;
    for (const std::string &kind : kinds)
        all.push_back(measure(kind, folder.path(), count));
    summarise(all);
    return sink == 0 ? 1 : 0;
}
