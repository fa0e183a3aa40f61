#pragma once

#include "player_core/source/file_input.h"

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>

extern "C" {
#include <libavformat/avformat.h>
}

namespace kelp_core {

struct AvPacketFree
{
    void operator()(AVPacket *packet) const { av_packet_free(&packet); }
};
using AvPacketPtr = std::unique_ptr<AVPacket, AvPacketFree>;

/// A container opened by FFmpeg over a file of ours. FFmpeg never opens a file or a URL by itself: a name
/// such as "http:x.flac" stays a file name, and what a container refers to is not followed.
class AvReader
{
public:
    struct Options
    {
        const char *demuxer = "";                     ///< FFmpeg's name of the format
        const char *demuxerOptions = "";              ///< "key=value:key=value"
        const std::atomic<bool> *cancelled = nullptr; ///< set by another thread to give up; may be null
    };

    /// Opens and analyses. Null with one line in error.
    static std::unique_ptr<AvReader> open(const std::string &path, const Options &options,
                                          std::string &error);
    ~AvReader();
    AvReader(const AvReader &) = delete;
    AvReader &operator=(const AvReader &) = delete;

    AVFormatContext *context() { return format_; }
    /// The audio stream that plays, or null when there is none.
    AVStream *audio() { return audio_ < 0 ? nullptr : format_->streams[audio_]; }

    /// The next packet of the audio stream. 0, AVERROR_EOF at the end, or another AVERROR; a failed read of
    /// the disk is never told as an end.
    int nextPacket(AVPacket *packet);

    /// Moves to the last packet that begins at or before a time in the stream's units.
    bool seek(int64_t timestamp);

    FileInput &file() { return *file_; }

    /// Forgets the flag for giving up once opening is over, since the flag may not live as long as we do.
    void forgetCancelled() { cancelled_ = nullptr; }

private:
    AvReader() = default;
    bool openContext(const Options &options, std::string &error);
    bool isCancelled() const { return cancelled_ && cancelled_->load(std::memory_order_relaxed); }
    static int readBytes(void *self, uint8_t *to, int size);
    static int64_t seekBytes(void *self, int64_t offset, int whence);
    static int isInterrupted(void *self);

    std::unique_ptr<FileInput> file_;
    int64_t position_ = 0;
    const std::atomic<bool> *cancelled_ = nullptr;
    AVIOContext *io_ = nullptr;
    AVFormatContext *format_ = nullptr;
    int audio_ = -1;
};

} // namespace kelp_core
