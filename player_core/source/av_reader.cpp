#include "player_core/source/av_reader.h"

#include "player_core/source/av_log.h"

#include <algorithm>
#include <cerrno>

namespace kelp_core {
namespace {

constexpr int ioBufferBytes = 64 * 1024;

int refuseToOpen(AVFormatContext *, AVIOContext **, const char *, int, AVDictionary **)
{
    return AVERROR(EACCES);
}

} // namespace

int AvReader::readBytes(void *self, uint8_t *to, int size)
{
    auto *reader = static_cast<AvReader *>(self);
    if (reader->isCancelled())
        return AVERROR_EXIT;
    const int64_t got = reader->file_->readAt(reader->position_, to, static_cast<size_t>(std::max(size, 0)));
    if (got < 0)
        return AVERROR(reader->file_->lastError() ? reader->file_->lastError() : EIO);
    if (got == 0)
        return AVERROR_EOF;
    reader->position_ += got;
    return static_cast<int>(got);
}

int64_t AvReader::seekBytes(void *self, int64_t offset, int whence)
{
    auto *reader = static_cast<AvReader *>(self);
    const int64_t size = reader->file_->sizeBytes();
    switch (whence & ~AVSEEK_FORCE) {
    case AVSEEK_SIZE:
        return size;
    case SEEK_CUR:
        offset += reader->position_;
        break;
    case SEEK_END:
        offset += size;
        break;
    default:
        break;
    }
    if (offset < 0)
        return AVERROR(EINVAL);
    reader->position_ = offset;
    return offset;
}

int AvReader::isInterrupted(void *self)
{
    return static_cast<AvReader *>(self)->isCancelled() ? 1 : 0;
}

std::unique_ptr<AvReader> AvReader::open(const std::string &path, const Options &options, std::string &error)
{
    quietAvLog();
    std::unique_ptr<AvReader> reader(new AvReader);
    reader->file_ = FileInput::open(path, error);
    if (!reader->file_ || !reader->openContext(options, error))
        return nullptr;
    return reader;
}

bool AvReader::openContext(const Options &options, std::string &error)
{
    cancelled_ = options.cancelled;
    takeAvError();
    const AVInputFormat *input = av_find_input_format(options.demuxer);
    auto *buffer = static_cast<uint8_t *>(av_malloc(ioBufferBytes));
    io_ =
        buffer ? avio_alloc_context(buffer, ioBufferBytes, 0, this, readBytes, nullptr, seekBytes) : nullptr;
    if (!io_) {
        av_free(buffer);
        error = "cannot open: not enough memory";
        return false;
    }
    format_ = avformat_alloc_context();
    if (!input || !format_) {
        error = std::string("cannot open: the reader of ") + options.demuxer + " files is missing";
        return false;
    }
    format_->pb = io_;
    format_->flags |= AVFMT_FLAG_CUSTOM_IO;
    format_->io_open = refuseToOpen;
    format_->interrupt_callback = {isInterrupted, this};
    AVDictionary *demuxerOptions = nullptr;
    av_dict_parse_string(&demuxerOptions, options.demuxerOptions, "=", ":", 0);
    int code = avformat_open_input(&format_, "", input, &demuxerOptions);
    av_dict_free(&demuxerOptions);
    if (code >= 0)
        code = avformat_find_stream_info(format_, nullptr);
    if (isCancelled()) {
        error = "opening was cancelled";
        return false;
    }
    if (code < 0) {
        const std::string text = takeAvError();
        error = "the file is damaged: " + (text.empty() ? avErrorWords(code) : text);
        return false;
    }
    audio_ = av_find_best_stream(format_, AVMEDIA_TYPE_AUDIO, -1, -1, nullptr, 0);
    for (unsigned i = 0; i < format_->nb_streams; ++i) {
        if (static_cast<int>(i) != audio_)
            format_->streams[i]->discard = AVDISCARD_ALL;
    }
    return true;
}

AvReader::~AvReader()
{
    avformat_close_input(&format_);
    if (io_)
        av_freep(&io_->buffer);
    avio_context_free(&io_);
}

int AvReader::nextPacket(AVPacket *packet)
{
    for (;;) {
        const int code = av_read_frame(format_, packet);
        // Some demuxers call every failure to read an end; the file underneath knows better.
        if (code < 0 && file_->lastError() != 0)
            return AVERROR(file_->lastError());
        if (code < 0)
            return code;
        if (packet->stream_index == audio_)
            return 0;
        av_packet_unref(packet);
    }
}

bool AvReader::seek(int64_t timestamp)
{
    return av_seek_frame(format_, audio_, timestamp, AVSEEK_FLAG_BACKWARD) >= 0;
}

} // namespace kelp_core
