#include "tags/audio_file_info.h"

#include "platform/file_reader.h"
#include "tags/head_readers.h"

#include <memory>

namespace {

constexpr uint64_t bufferBytes = 65536;
constexpr uint64_t fewestBytes = 16;
/// A tail is looked at when the file goes on by more than this behind the head.
constexpr uint64_t tailSlack = 16;

bool untitled(const AudioFileInfo &info)
{
    return info.title.empty() && info.artist.empty();
}

/// The forms of tags in their order of precedence: each is asked only while those before gave nothing.
void readTags(LazyBytes &head, LazyBytes *tail, AudioFileInfo &info)
{
    if (head.first(4).holds("fLaC"))
        readFlacComment(head, info);
    if (untitled(info))
        readId3(head, info);
    if (untitled(info))
        readApeTag(head, info);
    if (untitled(info))
        scanBareText(head, info);
    if (tail && untitled(info))
        readId3(*tail, info);
}

struct HeadForm
{
    std::string_view word;
    uint64_t offset;
    uint64_t fewest; ///< bytes of the head
    const char *format;
    bool (*read)(LazyBytes &head, AudioFileInfo &info); ///< null: nothing is read and nothing understood
};

bool readDffHead(LazyBytes &, AudioFileInfo &info)
{
    info.bitsPerSample = 1;
    return false;
}

/// The first that matches counts.
constexpr HeadForm headForms[] = {
    {"FORM", 0, 0, "AIFF", readAiffHead}, {"fLaC", 0, 42, "FLAC", readFlacHead},
    {"MAC ", 0, 32, "APE", readApeHead},  {"wvpk", 0, 32, "WavPack", readWavPackHead},
    {"TTA1", 0, 22, "TTA", readTtaHead},  {"OggS", 0, 28, "OGG", readOggHead},
    {"ftyp", 4, 0, "M4A", nullptr},       {"ftyp", 0, 0, "M4A", nullptr},
    {"DSD ", 0, 28, "DSF", readDsfHead},  {"FRM8", 0, 0, "DFF", readDffHead},
    {"ID3", 0, 0, "MP3", readMp3Head},
};

bool readFormat(LazyBytes &head, AudioFileInfo &info)
{
    const ByteView start = head.first(fewestBytes);
    if (start.holds("RIFF") && start.holds("WAVE", 8)) {
        info.format = "WAV";
        return readWavHead(head, info);
    }
    for (const HeadForm &form : headForms) {
        if (!start.holds(form.word, form.offset) || head.size() < form.fewest)
            continue;
        info.format = form.format;
        return form.read && form.read(head, info);
    }
    info.format = "Unknown";
    return false;
}

} // namespace

bool readAudioFileInfo(AudioFileInfo &info, const std::string &path)
{
    // Kept a thread: fresh pages for every file would cost as much as reading into them.
    // They are not part of the thread's storage, which every thread of the program would have to clear.
    static thread_local const auto buffers = std::make_unique<uint8_t[]>(2 * bufferBytes);
    const FileReader file(path);
    if (!file.isOpen() || file.size() < fewestBytes)
        return false;
    const std::span<uint8_t> room(buffers.get(), 2 * bufferBytes);
    const auto length = static_cast<size_t>(std::min(file.size(), bufferBytes));
    LazyBytes head(file, 0, room.first(length));
    if (head.first(fewestBytes).size() < fewestBytes)
        return false;

    info = AudioFileInfo();
    info.dataSize = static_cast<uint32_t>(std::min<uint64_t>(file.size(), UINT32_MAX));
    if (head.first(4).holds("FORM"))
        readAiffTexts(file, head, info);

    if (file.size() > head.size() + tailSlack) {
        // A tag with a picture fills much of the tail, and then what lies behind its texts is not read.
        LazyBytes tail(file, file.size() - length, room.subspan(bufferBytes, length), bufferBytes / 2);
        readTags(head, &tail, info);
    } else {
        readTags(head, nullptr, info);
    }
    return readFormat(head, info);
}
