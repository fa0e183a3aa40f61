#include "player_core/source/dsd_source.h"

#include "player_core/source/dsd_bits.h"
#include "player_core/source/read_failure.h"

#include <algorithm>

namespace kelp_core {
namespace {

/// Plain DSD of any arrangement, turned to bytes interleaved by channel with the oldest bit in bit 7.
class DsdSource final : public Source
{
public:
    DsdSource(std::unique_ptr<FileInput> file, const DsdLayout &layout)
        : file_(std::move(file))
        , layout_(layout)
        , facts_(dsdFacts(layout))
    {
    }

    const SourceFacts &facts() const override { return facts_; }
    [[nodiscard]] ReadOutcome read(AudioBlock &block, size_t maxFrames) override;
    [[nodiscard]] bool seekFrame(int64_t frame) override
    {
        position_ = std::clamp<int64_t>(frame, 0, layout_.totalFrames);
        return true;
    }

private:
    size_t readInterleaved(AudioBlock &block, size_t frames);
    size_t readBlocked(AudioBlock &block, size_t frames);
    void tidy(AudioBlock &block) const;

    std::unique_ptr<FileInput> file_;
    DsdLayout layout_;
    SourceFacts facts_;
    int64_t position_ = 0;
    std::vector<uint8_t> channel_; ///< one channel's part of a block
};

size_t DsdSource::readInterleaved(AudioBlock &block, size_t frames)
{
    const auto channels = static_cast<size_t>(layout_.channels);
    block.dsd.resize(frames * channels);
    const int64_t got =
        file_->readAt(layout_.dataOffset + position_ * layout_.channels, block.dsd.data(), block.dsd.size());
    return got > 0 ? static_cast<size_t>(got) / channels : 0;
}

/// Reads at most to the end of the block of every channel that the position stands in.
size_t DsdSource::readBlocked(AudioBlock &block, size_t frames)
{
    const auto channels = static_cast<size_t>(layout_.channels);
    const int64_t group = position_ / layout_.blockBytes, within = position_ % layout_.blockBytes;
    size_t count = static_cast<size_t>(std::min(static_cast<int64_t>(frames), layout_.blockBytes - within));
    block.dsd.resize(count * channels);
    channel_.resize(count);
    const int64_t groupAt = layout_.dataOffset + group * layout_.blockBytes * layout_.channels;
    for (size_t channel = 0; channel < channels; ++channel) {
        const int64_t at = groupAt + static_cast<int64_t>(channel) * layout_.blockBytes + within;
        const int64_t got = file_->readAt(at, channel_.data(), count);
        // In a file that was cut off the later channels end first; what counts is what all of them have.
        count = std::min(count, static_cast<size_t>(std::max<int64_t>(got, 0)));
        for (size_t i = 0; i < count; ++i)
            block.dsd[i * channels + channel] = channel_[i];
    }
    return count;
}

/// Puts the bits in order and fills a last byte that is valid only in part with silence.
void DsdSource::tidy(AudioBlock &block) const
{
    if (layout_.lowestBitFirst) {
        for (uint8_t &byte : block.dsd)
            byte = reversedBits[byte];
    }
    const int64_t end = position_ + static_cast<int64_t>(block.frames);
    if (end < layout_.totalFrames || layout_.validBitsOfLastFrame == 8)
        return;
    const auto keep = static_cast<uint8_t>(0xFF << (8 - layout_.validBitsOfLastFrame));
    for (auto byte = block.dsd.end() - layout_.channels; byte != block.dsd.end(); ++byte)
        *byte = static_cast<uint8_t>((*byte & keep) | (dsdSilence & ~keep));
}

ReadOutcome DsdSource::read(AudioBlock &block, size_t maxFrames)
{
    block.clear();
    if (position_ >= layout_.totalFrames)
        return {ReadStatus::end, {}};
    const auto frames =
        static_cast<size_t>(std::min(static_cast<int64_t>(maxFrames), layout_.totalFrames - position_));
    if (frames == 0)
        return {ReadStatus::frames, {}};
    block.frames = layout_.blockBytes == 1 ? readInterleaved(block, frames) : readBlocked(block, frames);
    block.dsd.resize(block.frames * static_cast<size_t>(layout_.channels));
    if (block.frames == 0) {
        if (file_->lastError() != 0)
            return {ReadStatus::failed, "cannot read on: " + systemErrorWords(file_->lastError())};
        return endedEarly(facts_, position_);
    }
    tidy(block);
    position_ += static_cast<int64_t>(block.frames);
    return {ReadStatus::frames, {}};
}

} // namespace

SourceFacts dsdFacts(const DsdLayout &layout)
{
    SourceFacts facts;
    facts.format = {SignalKind::dsd, layout.rateHz, layout.channels, 1, false, layout.speakers};
    facts.formatWord = "dsd";
    facts.dst = layout.dst;
    facts.gains = layout.gains;
    facts.totalFrames = layout.totalFrames;
    std::string rate = std::to_string(layout.rateHz) + " Hz";
    if (layout.rateHz % 44100 == 0)
        rate = "DSD" + std::to_string(layout.rateHz / 44100) + ", " + rate;
    else if (layout.rateHz % 48000 == 0)
        rate = "DSD" + std::to_string(layout.rateHz / 48000) + " of 48 kHz, " + rate;
    facts.description = std::string(layout.name) + (layout.dst ? " (DST), " : ", ") + rate + ", " +
                        std::to_string(layout.channels) + (layout.channels == 1 ? " channel" : " channels");
    return facts;
}

std::unique_ptr<Source> makeDsdSource(std::unique_ptr<FileInput> file, const DsdLayout &layout)
{
    return std::make_unique<DsdSource>(std::move(file), layout);
}

} // namespace kelp_core
