#include "player_core/source/pcm_source.h"

#include "player_core/source/av_log.h"
#include "player_core/source/av_reader.h"
#include "player_core/source/gain_tag_text.h"
#include "player_core/source/pcm_codec.h"
#include "player_core/source/pcm_convert.h"
#include "player_core/source/read_failure.h"
#include "player_core/source/wav_head.h"

#include <algorithm>
#include <string_view>

namespace kelp_core {
namespace {

constexpr int lowestRateHz = 1000;
constexpr int highestRateHz = 1'536'000;

struct DecoderFree
{
    void operator()(AVCodecContext *context) const { avcodec_free_context(&context); }
};
struct FrameFree
{
    void operator()(AVFrame *frame) const { av_frame_free(&frame); }
};

/// One track of PCM. The decoder's frames are handed on in the pieces that are asked for.
class PcmSource final : public Source
{
public:
    std::string open(const std::string &path, const ContentKind &kind, const SourceRequest &request);

    const SourceFacts &facts() const override { return facts_; }
    [[nodiscard]] ReadOutcome read(AudioBlock &block, size_t maxFrames) override;
    [[nodiscard]] bool seekFrame(int64_t frame) override;

private:
    std::string openReader();
    std::string openDecoder();
    std::string measure(const SourceRequest &request);
    std::string scanLength(const SourceRequest &request);
    ReadOutcome decodeFrame();
    ReadOutcome decodeInOrder();
    ReadOutcome feedPacket();
    ReadOutcome failAt(int code);
    ReadOutcome endOrFailure() const;
    bool atStatedEnd() const;
    bool goesOnBehindIt();
    bool restart();
    bool jump(int64_t frame);
    bool settleAt(int64_t frame);
    void dropDecoded();
    int64_t frameOfTime(int64_t time) const;
    size_t decodedLeft() const { return static_cast<size_t>(frame_->nb_samples) - used_; }

    std::string path_;
    ContentKind kind_;
    SourceFacts facts_;
    std::unique_ptr<AvReader> reader_;
    std::unique_ptr<AVCodecContext, DecoderFree> decoder_;
    std::unique_ptr<AVFrame, FrameFree> frame_;
    AvPacketPtr packet_;
    size_t used_ = 0;       ///< frames of frame_ that were handed on
    int64_t position_ = 0;  ///< the next frame that read() gives
    bool draining_ = false; ///< all packets were sent
    /// Times come from the frames themselves, not from counting them.
    bool hasFrameNumbers_ = false;
    ReadOutcome over_{ReadStatus::frames, {}}; ///< the end or the failure, once it was met
};

std::string PcmSource::open(const std::string &path, const ContentKind &kind, const SourceRequest &request)
{
    path_ = path;
    kind_ = kind;
    hasFrameNumbers_ = std::string_view(kind.demuxer) == "flac";
    frame_.reset(av_frame_alloc());
    packet_.reset(av_packet_alloc());
    if (!frame_ || !packet_)
        return "cannot open: not enough memory";
    std::string error;
    AvReader::Options options{kind.demuxer, kind.options, request.cancelled};
    reader_ = AvReader::open(path, options, error);
    if (!reader_)
        return error;
    if (error = openDecoder(); !error.empty())
        return error;
    // The first block tells what the head could not: the profile of DTS and the decoder's own format.
    const ReadOutcome first = decodeFrame();
    if (first.status == ReadStatus::failed)
        return first.message;
    facts_ = pcmFacts(kind_, *reader_->audio()->codecpar, *decoder_, reader_->file());
    facts_.gains = gainTagsOf(*reader_->context(), reader_->audio()->index);
    const StreamFormat &format = facts_.format;
    // A head that claims more than any device takes would only cost memory.
    if (!isConvertible(decoder_->sample_fmt) || format.rateHz < lowestRateHz ||
        format.rateHz > highestRateHz || format.channels < 1 || format.channels > StreamFormat::maxChannels)
        return "the file's audio format is not one that can be played (" + facts_.description + ")";
    if (error = measure(request); !error.empty())
        return error;
    reader_->forgetCancelled();
    return {};
}

std::string PcmSource::openReader()
{
    std::string error;
    reader_ = AvReader::open(path_, {kind_.demuxer, kind_.options, nullptr}, error);
    return error;
}

std::string PcmSource::openDecoder()
{
    AVStream *stream = reader_->audio();
    if (!stream)
        return "the file holds no audio";
    if (std::string refusal = codecRefusal(stream->codecpar->codec_id); !refusal.empty())
        return refusal;
    // The demuxer counted the samples of such a file before it saw that each takes four bytes.
    if (stream->codecpar->codec_id == AV_CODEC_ID_PCM_F24LE && stream->duration > 0)
        stream->duration = av_rescale(stream->duration, 24, 32);
    correctSampleWidth(*stream->codecpar, reader_->file());
    const AVCodec *codec = avcodec_find_decoder(stream->codecpar->codec_id);
    decoder_.reset(codec ? avcodec_alloc_context3(codec) : nullptr);
    if (!decoder_ || avcodec_parameters_to_context(decoder_.get(), stream->codecpar) < 0)
        return "the decoder of this file is missing";
    decoder_->pkt_timebase = stream->time_base;
    // One thread: decoding is far faster than real time, and errors stay on the thread that asks for them.
    decoder_->thread_count = 1;
    decoder_->err_recognition = AV_EF_CRCCHECK | AV_EF_EXPLODE;
    if (avcodec_open2(decoder_.get(), codec, nullptr) < 0) {
        const std::string text = takeAvError();
        return "the file is damaged: " + (text.empty() ? "its decoder refuses it" : text);
    }
    return {};
}

/// Finds the track's length: from the container where it states one, else by reading the file through.
std::string PcmSource::measure(const SourceRequest &request)
{
    const AVStream *stream = reader_->audio();
    const auto head = readWavHead(reader_->file());
    const bool plain = av_get_bits_per_sample(stream->codecpar->codec_id) > 0;
    if (plain && head && head->dataBytes > 0 && head->blockAlign > 0) {
        facts_.totalFrames = head->dataBytes / head->blockAlign;
        return {};
    }
    const bool stated = reader_->context()->duration_estimation_method == AVFMT_DURATION_FROM_STREAM &&
                        stream->duration > 0 && stream->codecpar->codec_id != AV_CODEC_ID_DTS;
    if (!stated)
        return scanLength(request);
    facts_.totalFrames =
        av_rescale_q(stream->duration, stream->time_base, AVRational{1, facts_.format.rateHz});
    return {};
}

std::string PcmSource::scanLength(const SourceRequest &request)
{
    const int64_t sizeBytes = std::max<int64_t>(reader_->file().sizeBytes(), 1);
    const AVRational frames{1, facts_.format.rateHz};
    if (!restart())
        return "the file cannot be read";
    int64_t total = 0;
    double toldPercent = -1;
    for (;;) {
        if (request.cancelled && request.cancelled->load(std::memory_order_relaxed))
            return "opening was cancelled";
        const int code = reader_->nextPacket(packet_.get());
        if (code < 0)
            break;
        total += av_rescale_q(packet_->duration, reader_->audio()->time_base, frames);
        const double percent =
            100.0 * static_cast<double>(std::max<int64_t>(packet_->pos, 0)) / static_cast<double>(sizeBytes);
        av_packet_unref(packet_.get());
        if (request.onScan && percent >= toldPercent + 1) {
            toldPercent = percent;
            const double done = static_cast<double>(total) / facts_.format.rateHz;
            request.onScan(percent, done, percent > 0 ? done * 100 / percent : 0);
        }
    }
    facts_.totalFrames = total;
    return restart() ? std::string() : "the file cannot be read";
}

int64_t PcmSource::frameOfTime(int64_t time) const
{
    const AVStream *stream = reader_->audio();
    const int64_t start = stream->start_time == AV_NOPTS_VALUE ? 0 : stream->start_time;
    return av_rescale_q(time - start, stream->time_base, AVRational{1, decoder_->sample_rate});
}

ReadOutcome PcmSource::failAt(int code)
{
    const std::string text = takeAvError();
    if (const int system = reader_->file().lastError())
        return {ReadStatus::failed, "cannot read on: " + systemErrorWords(system)};
    return damagedAt(facts_, position_, text.empty() ? avErrorWords(code) : text);
}

ReadOutcome PcmSource::endOrFailure() const
{
    if (facts_.totalFrames > 0 && position_ < facts_.totalFrames)
        return endedEarly(facts_, position_);
    return {ReadStatus::end, {}};
}

/// Gives the decoder one more packet, or the news that there are none left.
ReadOutcome PcmSource::feedPacket()
{
    int code = reader_->nextPacket(packet_.get());
    if (code == AVERROR_EOF) {
        draining_ = true;
        code = avcodec_send_packet(decoder_.get(), nullptr);
        return code < 0 && code != AVERROR_EOF ? failAt(code) : ReadOutcome{ReadStatus::frames, {}};
    }
    if (code < 0)
        return failAt(code);
    code = avcodec_send_packet(decoder_.get(), packet_.get());
    av_packet_unref(packet_.get());
    return code < 0 ? failAt(code) : ReadOutcome{ReadStatus::frames, {}};
}

/// Puts the decoder's next frame into frame_.
ReadOutcome PcmSource::decodeFrame()
{
    takeAvError();
    for (;;) {
        const int code = avcodec_receive_frame(decoder_.get(), frame_.get());
        used_ = 0;
        if (code == 0) {
            if (frame_->nb_samples > 0)
                return {ReadStatus::frames, {}};
            continue;
        }
        dropDecoded();
        if (code == AVERROR_EOF || (code == AVERROR(EAGAIN) && draining_))
            return endOrFailure();
        if (code != AVERROR(EAGAIN))
            return failAt(code);
        if (ReadOutcome fed = feedPacket(); fed.status != ReadStatus::frames)
            return fed;
    }
}

/// As decodeFrame, but a frame that does not follow the one before it is damage: FLAC numbers its frames, and
/// the demuxer passes over damaged ones without a word.
ReadOutcome PcmSource::decodeInOrder()
{
    ReadOutcome outcome = decodeFrame();
    if (outcome.status != ReadStatus::frames || !hasFrameNumbers_ || frame_->pts == AV_NOPTS_VALUE)
        return outcome;
    const int64_t missing = frameOfTime(frame_->pts) - position_;
    if (missing == 0)
        return outcome;
    dropDecoded();
    return damagedAt(facts_, position_,
                     missing > 0 ? std::to_string(missing) + " frames are missing"
                                 : "its frames are out of order");
}

void PcmSource::dropDecoded()
{
    av_frame_unref(frame_.get());
    used_ = 0;
}

bool PcmSource::atStatedEnd() const
{
    return facts_.totalFrames >= 0 && position_ >= facts_.totalFrames;
}

/// Whatever stands behind the stated length is a tag or padding and no music, but for FLAC, whose frames are
/// numbered: one that carries the next number was only forgotten by the head.
bool PcmSource::goesOnBehindIt()
{
    if (!hasFrameNumbers_)
        return false;
    return decodedLeft() > 0 || decodeInOrder().status == ReadStatus::frames;
}

ReadOutcome PcmSource::read(AudioBlock &block, size_t maxFrames)
{
    block.clear();
    while (block.frames < maxFrames && over_.status == ReadStatus::frames) {
        if (atStatedEnd() && !goesOnBehindIt()) {
            over_ = {ReadStatus::end, {}};
            break;
        }
        if (decodedLeft() == 0) {
            if (ReadOutcome outcome = decodeInOrder(); outcome.status != ReadStatus::frames) {
                over_ = outcome;
                break;
            }
        }
        if (frame_->format != decoder_->sample_fmt || frame_->sample_rate != facts_.format.rateHz ||
            frame_->ch_layout.nb_channels != facts_.format.channels) {
            over_ = damagedAt(facts_, position_, "the audio format changes within the file");
            break;
        }
        size_t count = std::min(decodedLeft(), maxFrames - block.frames);
        if (facts_.totalFrames >= 0 && !hasFrameNumbers_)
            count =
                static_cast<size_t>(std::min(static_cast<int64_t>(count), facts_.totalFrames - position_));
        appendAsDouble(*frame_, facts_.format.channels, used_, count, block.pcm);
        used_ += count;
        position_ += static_cast<int64_t>(count);
        block.frames += count;
    }
    if (block.frames > 0 || maxFrames == 0)
        return {ReadStatus::frames, {}};
    return over_;
}

/// Opens the file anew and stands at its start.
bool PcmSource::restart()
{
    dropDecoded();
    if (!openReader().empty() || !openDecoder().empty())
        return false;
    draining_ = false;
    position_ = 0;
    over_ = {ReadStatus::frames, {}};
    return true;
}

/// Lets the container jump to a packet at or before the frame. False when it landed nowhere certain.
bool PcmSource::jump(int64_t frame)
{
    // The lossy codings need the blocks before the wanted one to fill their filters' memory.
    constexpr int64_t lossyRunUpFrames = 8192;
    const AVStream *stream = reader_->audio();
    const int64_t runUp = facts_.lossless ? 0 : lossyRunUpFrames;
    const int64_t start = stream->start_time == AV_NOPTS_VALUE ? 0 : stream->start_time;
    const int64_t time =
        start + av_rescale_q_rnd(std::max<int64_t>(frame - runUp, 0), AVRational{1, facts_.format.rateHz},
                                 stream->time_base, AV_ROUND_DOWN);
    if (!reader_->seek(time))
        return false;
    avcodec_flush_buffers(decoder_.get());
    draining_ = false;
    over_ = {ReadStatus::frames, {}};
    if (decodeFrame().status != ReadStatus::frames || frame_->pts == AV_NOPTS_VALUE)
        return false;
    position_ = frameOfTime(frame_->pts);
    return position_ >= 0 && position_ <= frame;
}

/// Decodes forward to the frame and drops what comes before it.
bool PcmSource::settleAt(int64_t frame)
{
    while (position_ < frame) {
        if (decodedLeft() == 0) {
            if (ReadOutcome outcome = decodeInOrder(); outcome.status != ReadStatus::frames) {
                over_ = outcome;
                return true; // the next read tells what was met on the way
            }
        }
        const auto skip = std::min(static_cast<int64_t>(decodedLeft()), frame - position_);
        used_ += static_cast<size_t>(skip);
        position_ += skip;
    }
    return true;
}

bool PcmSource::seekFrame(int64_t frame)
{
    frame = std::max<int64_t>(frame, 0);
    if (facts_.totalFrames >= 0 && frame >= facts_.totalFrames) {
        dropDecoded();
        position_ = facts_.totalFrames;
        over_ = {ReadStatus::end, {}};
        return true;
    }
    const bool near = over_.status == ReadStatus::frames && frame >= position_ &&
                      frame - position_ <= facts_.format.rateHz / 2;
    if (!near && !jump(frame) && !restart())
        return false;
    return settleAt(frame);
}

} // namespace

OpenedSource openPcmFile(const std::string &path, const ContentKind &kind, const SourceRequest &request)
{
    auto source = std::make_unique<PcmSource>();
    std::string error = source->open(path, kind, request);
    if (!error.empty())
        return {nullptr, error};
    return {std::move(source), {}};
}

} // namespace kelp_core
