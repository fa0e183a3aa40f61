// Prints what the player reads of audio files: the look at head and tail, the exact reader's tags, and what
// their names say.
//
// usage: dump_tags FILE…
#include "tags/audio_file_info.h"
#include "tags/disc_number.h"
#include "tags/flac_tags.h"
#include "tags/id3_tags.h"
#include "tags/track_file_name.h"

#include <cinttypes>
#include <cstdio>
#include <filesystem>

namespace {

void printText(const char *name, const std::string &text)
{
    if (!text.empty())
        std::printf("  %-16s %s\n", name, text.c_str());
}

void printInfo(const std::string &path)
{
    AudioFileInfo info;
    const bool understood = readAudioFileInfo(info, path);
    std::printf(" head and tail: %s\n", understood ? "understood" : "not understood");
    printText("format", info.format);
    std::printf("  %-16s %" PRIu32 " Hz, %" PRIu32 " bit%s, %" PRIu32 " channel(s), %" PRIu64 " samples\n",
                "stream", info.sampleRate, info.bitsPerSample, info.isFloat ? " float" : "", info.channels,
                info.totalSamples);
    std::printf("  %-16s %" PRIu32 " bytes from %" PRIu32 "\n", "data", info.dataSize, info.dataOffset);
    printText("title", info.title);
    printText("artist", info.artist);
    printText("album", info.album);
    printText("genre", info.genre);
    printText("composer", info.composer);
    printText("work", info.work);
    printText("movement", info.movementName);
    printText("movement number", info.movementNumber);
    printText("date", info.date);
    printText("comment", info.comment);
    if (info.track != 0)
        std::printf("  %-16s %" PRId32 " of %" PRId32 "\n", "track", info.track, info.trackTotal);
}

void printExactTags(const std::string &path)
{
    constexpr const char *names[] = {"title", "artist",   "album", "album artist", "track",
                                     "date",  "composer", "work",  "movement",     "movement number"};
    TagSet tags;
    std::string error;
    const bool isFlac = path.ends_with(".flac") || path.ends_with(".FLAC");
    if (!(isFlac ? readFlacTags(path, tags, &error) : readId3Tags(path, tags, &error))) {
        std::printf(" exact reader: %s\n", error.c_str());
        return;
    }
    std::printf(" exact reader:\n");
    for (size_t i = 0; i < tagSetFields.size(); ++i)
        printText(names[i], tags.*tagSetFields[i]);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s FILE...\n", argv[0]);
        return 2;
    }
    for (int i = 1; i < argc; ++i) {
        const std::string path = argv[i];
        std::printf("%s\n", path.c_str());
        printInfo(path);
        printExactTags(path);
        const TrackFileName name = parseTrackFileName(std::filesystem::path(path).stem().string());
        std::printf(" name: disc %d, track \"%s\", title \"%s\"\n", discNumberFromPath(path),
                    name.track.c_str(), name.title.c_str());
    }
    return 0;
}
