// Makes the first inputs that the fuzz targets of the tag readers start from.
//
// usage: make_tag_seeds fuzz/corpus
#include "tests/support/byte_writer.h"
#include "tests/support/tag_maker.h"

#include <cstdio>
#include <filesystem>

using kelp_test::Bytes;
using kelp_test::id3Text;

namespace {

std::string corpus;

void seed(const std::string &target, const std::string &name, const Bytes &bytes)
{
    std::filesystem::create_directories(corpus + "/tag_" + target);
    kelp_test::writeFile(corpus + "/tag_" + target + "/" + name, bytes);
}

void seedFiles()
{
    const kelp_test::TagWords words{"Title", "Artist", "Album"};
    for (const char *kind : {"flac", "wav", "aiff", "mp3", "dsf", "ape", "wavpack", "tta", "ogg", "m4a"}) {
        Bytes bytes = kelp_test::taggedFile(kind, words, Bytes(500, 0x69));
        for (const char *target : {"file_info", "heads", "exact_files"})
            seed(target, kind, bytes);
    }
    const Bytes tag = kelp_test::id3Tag(4, {{"TIT2", id3Text(3, "Title")}});
    Bytes dff{'F', 'R', 'M', '8'};
    dff.resize(60);
    dff.insert(dff.end(), tag.begin(), tag.end());
    seed("exact_files", "dff", dff);
    seed("file_info", "dff", dff);
    seed("heads", "ape_tag", kelp_test::apeTag({{"Title", "T"}, {"Artist", "A"}, {"Track", "3"}}));
    const std::string bare = "................TITLE=T\nartist=A\r\nDate=1999";
    seed("heads", "bare_text", {bare.begin(), bare.end()});
}

void seedTags()
{
    seed("vorbis_comment", "two", kelp_test::vorbisPayload("maker", {"TITLE=T", "ARTIST=A", "none"}));
    seed("vorbis_comment", "empty", Bytes(8));
    Bytes endless = kelp_test::vorbisPayload("maker", {"A=1"});
    endless[9] = endless[10] = endless[11] = 0xFF;
    seed("vorbis_comment", "count_too_large", endless);
    for (const int version : {3, 4})
        seed("id3", "version" + std::to_string(version),
             kelp_test::id3Tag(version, {{"TIT2", id3Text(3, "Title")},
                                         {"TPE1", id3Text(1, std::string("\xFF\xFE\x3D\xD8\0\xDE", 6))},
                                         {"TALB", id3Text(0, "Caf\xE9")},
                                         {"COMM", id3Text(3, std::string("eng\0words", 9))},
                                         {"TRCK", id3Text(3, "3/12")}}));
    seed("id3", "not_sync_safe", kelp_test::id3Tag(3, {{"TIT2", id3Text(3, std::string(255, 'x'))}}));
}

void seedNames()
{
    const char *names[] = {"/m/Album/CD2/01.flac",
                           "/m/disc - 2/track_07 - Song",
                           "02. Song",
                           "12345 Song",
                           "CD1-02 Title",
                           "03、歌",
                           "/m/CD100/x"};
    int number = 0;
    for (const std::string name : names)
        seed("names", "name" + std::to_string(number++), {name.begin(), name.end()});
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s CORPUS_FOLDER\n", argv[0]);
        return 2;
    }
    corpus = argv[1];
    seedFiles();
    seedTags();
    seedNames();
    return 0;
}
