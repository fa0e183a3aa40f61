#pragma once

#include "tags/audio_file_info.h"
#include "tags/head_readers.h"
#include "tests/support/byte_writer.h"
#include "tests/support/tag_maker.h"
#include "tests/support/temp_dir.h"

namespace tags_test {

using kelp_test::Bytes;
using kelp_test::ByteWriter;
using kelp_test::Chunk;
using kelp_test::id3Tag;
using kelp_test::id3Text;

inline Bytes bytesOf(std::string_view text)
{
    return {text.begin(), text.end()};
}

inline Bytes joined(std::initializer_list<Bytes> parts)
{
    ByteWriter out;
    for (const Bytes &part : parts)
        out.append(part);
    return out.bytes;
}

struct Read
{
    bool understood = false;
    AudioFileInfo info;
};

/// Writes the bytes to a file and reads it.
inline Read readFileOf(const Bytes &bytes)
{
    const kelp_test::TempDir folder;
    kelp_test::writeFile(folder.file("file"), bytes);
    Read read;
    read.understood = readAudioFileInfo(read.info, folder.file("file"));
    return read;
}

using TagReader = void (*)(LazyBytes &, AudioFileInfo &);

inline AudioFileInfo tagsIn(TagReader reader, const Bytes &bytes, AudioFileInfo info = {})
{
    LazyBytes lazy{ByteView(bytes)};
    reader(lazy, info);
    return info;
}

} // namespace tags_test
