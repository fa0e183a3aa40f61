// Files of any bytes: the look at head and tail, whatever the form.

#include "fuzz/file_of_bytes.h"
#include "tags/audio_file_info.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static FileOfBytes file;
    file.hold(data, size);
    AudioFileInfo info;
    const bool understood = readAudioFileInfo(info, file.path("flac"));
    if (size < 16 && (understood || info != AudioFileInfo()))
        std::abort();
    // UTF-16 grows by half; nothing else grows.
    if (info.title.size() > 3 * size || (size >= 16 && info.format.empty()))
        std::abort();
    return 0;
}
