// The readers of tags within a head, and of headers, each on the same bytes, whatever these begin with; and
// the quick searches against plain ones.

#include "tags/byte_scan.h"
#include "tags/head_readers.h"
#include "tests/tags/naive_scan.h"

#include <cstdlib>

namespace {

/// Over as many bytes as a plain search goes through quickly, which are many blocks of the quick one.
void compareSearches(ByteView all)
{
    constexpr uint64_t mostBytes = 6000;
    const ByteView bytes = all.slice(0, mostBytes);
    const uint64_t from = bytes.at(0);
    for (const std::string_view word : {"ID3", "APETAGEX", "=="})
        if (findWord(bytes, word, from) != tags_test::naiveFind(bytes.text(), word, from) ||
            findLastWord(bytes, word, from) != tags_test::naiveFindLast(bytes.text(), word, from))
            std::abort();
    AudioFileInfo plain;
    tags_test::naiveBareText(bytes.text(), plain);
    AudioFileInfo info;
    LazyBytes head(bytes);
    scanBareText(head, info);
    if (info != plain)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const ByteView bytes(std::span<const uint8_t>(data, size));
    for (const auto read : {readFlacComment, readId3, readApeTag, scanBareText}) {
        LazyBytes head(bytes);
        AudioFileInfo info;
        read(head, info);
        if (info.sampleRate != 0 || info.comment.size() > 3 * size)
            std::abort();
    }
    for (const auto read : {readWavHead, readAiffHead, readFlacHead, readApeHead, readWavPackHead,
                            readTtaHead, readOggHead, readDsfHead, readMp3Head}) {
        LazyBytes head(bytes);
        AudioFileInfo info;
        (void)read(head, info);
    }
    compareSearches(bytes);
    return 0;
}
