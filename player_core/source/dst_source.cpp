#include "player_core/source/dsd_source.h"

#include "player_core/source/dst_decoder.h"
#include "player_core/source/endian.h"
#include "player_core/source/read_failure.h"

#include <algorithm>
#include <cstring>

namespace kelp_core {
namespace {

/// DSD packed by DST. The list of frames grows as far as it is needed: an hour has 270,000 of them.
class DstSource final : public Source
{
public:
    DstSource(std::unique_ptr<FileInput> file, const DsdLayout &layout)
        : file_(std::move(file))
        , layout_(layout)
        , facts_(dsdFacts(layout))
        , decoder_(layout.channels, static_cast<int>(layout.dstFrameBytes()))
        , next_(layout.dataOffset)
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
    struct FramePlace
    {
        int64_t offset;
        uint32_t size;
    };

    bool listUpTo(int64_t number);
    ReadOutcome decodeNumber(int64_t number);

    std::unique_ptr<FileInput> file_;
    DsdLayout layout_;
    SourceFacts facts_;
    DstDecoder decoder_;
    std::vector<FramePlace> places_;
    int64_t next_;         ///< where the first chunk stands that is not listed yet
    int64_t position_ = 0; ///< frames, that is bytes of a channel
    int64_t decoded_ = -1; ///< the DST frame that bytes_ holds
    std::vector<uint8_t> packed_;
    std::vector<uint8_t> bytes_;
};

/// Walks the chunks until the frame of the given number is listed. False when the file has none.
bool DstSource::listUpTo(int64_t number)
{
    const int64_t end = std::min(layout_.dataOffset + layout_.dataBytes, file_->sizeBytes());
    // A frame never grows by more than its head; twice the plain size is damage.
    const auto maxFrameBytes = static_cast<uint64_t>(2 * layout_.dstFrameBytes() * layout_.channels);
    while (static_cast<int64_t>(places_.size()) <= number) {
        uint8_t head[12];
        if (next_ + 12 > end || !file_->readFully(next_, head, sizeof head))
            return false;
        const uint64_t size = bigU64(head + 4);
        if (size > maxFrameBytes)
            return false;
        const auto length = static_cast<int64_t>(size);
        if (std::memcmp(head, "DSTF", 4) == 0) {
            if (next_ + 12 + length > end)
                return false;
            places_.push_back({next_ + 12, static_cast<uint32_t>(size)});
        }
        next_ += 12 + length + (length & 1);
    }
    return true;
}

ReadOutcome DstSource::decodeNumber(int64_t number)
{
    if (!listUpTo(number)) {
        if (file_->lastError() != 0)
            return {ReadStatus::failed, "cannot read on: " + systemErrorWords(file_->lastError())};
        return endedEarly(facts_, position_);
    }
    const FramePlace place = places_[static_cast<size_t>(number)];
    packed_.resize(place.size);
    if (!file_->readFully(place.offset, packed_.data(), packed_.size()))
        return endedEarly(facts_, position_);
    if (std::string error = decoder_.decode(packed_, bytes_); !error.empty())
        return damagedAt(facts_, position_, error);
    decoded_ = number;
    return {ReadStatus::frames, {}};
}

ReadOutcome DstSource::read(AudioBlock &block, size_t maxFrames)
{
    block.clear();
    const int64_t perFrame = layout_.dstFrameBytes();
    while (block.frames < maxFrames && position_ < layout_.totalFrames) {
        const int64_t number = position_ / perFrame;
        if (number != decoded_) {
            decoded_ = -1;
            if (ReadOutcome outcome = decodeNumber(number); outcome.status != ReadStatus::frames) {
                // What was gathered comes first; the next call meets the failure again.
                return block.frames > 0 ? ReadOutcome{ReadStatus::frames, {}} : outcome;
            }
        }
        const int64_t within = position_ % perFrame;
        const int64_t count = std::min(static_cast<int64_t>(maxFrames - block.frames), perFrame - within);
        const auto first = bytes_.begin() + within * layout_.channels;
        block.dsd.insert(block.dsd.end(), first, first + count * layout_.channels);
        block.frames += static_cast<size_t>(count);
        position_ += count;
    }
    if (block.frames == 0 && maxFrames > 0)
        return {ReadStatus::end, {}};
    return {ReadStatus::frames, {}};
}

} // namespace

std::unique_ptr<Source> makeDstSource(std::unique_ptr<FileInput> file, const DsdLayout &layout)
{
    return std::make_unique<DstSource>(std::move(file), layout);
}

} // namespace kelp_core
