#include "player_core/source/span_source.h"

#include <algorithm>

namespace kelp_core {
namespace {

class SpanSource final : public Source
{
public:
    SpanSource(std::unique_ptr<Source> whole, int64_t start, int64_t end, const GainTags &gains)
        : whole_(std::move(whole))
        , facts_(whole_->facts())
        , start_(start)
    {
        facts_.gains = gains;
        facts_.firstFrame = start;
        facts_.totalFrames = end < 0 ? -1 : end - start;
    }

    const SourceFacts &facts() const override { return facts_; }

    [[nodiscard]] ReadOutcome read(AudioBlock &block, size_t maxFrames) override
    {
        if (facts_.totalFrames >= 0) {
            const int64_t left = facts_.totalFrames - position_;
            if (left <= 0) {
                block.clear();
                return {ReadStatus::end, {}};
            }
            maxFrames = static_cast<size_t>(std::min(static_cast<int64_t>(maxFrames), left));
        }
        ReadOutcome outcome = whole_->read(block, maxFrames);
        position_ += static_cast<int64_t>(block.frames);
        return outcome;
    }

    [[nodiscard]] bool seekFrame(int64_t frame) override
    {
        frame = std::max<int64_t>(frame, 0);
        if (facts_.totalFrames >= 0)
            frame = std::min(frame, facts_.totalFrames);
        if (!whole_->seekFrame(start_ + frame))
            return false;
        position_ = frame;
        return true;
    }

private:
    std::unique_ptr<Source> whole_;
    SourceFacts facts_;
    int64_t start_;
    int64_t position_ = 0;
};

} // namespace

OpenedSource makeSpanSource(std::unique_ptr<Source> whole, int64_t start, int64_t end,
                            const std::string &what, const GainTags &gains)
{
    const int64_t total = whole->facts().totalFrames;
    if (total >= 0) {
        if (start >= total)
            return {nullptr, what + " begins behind the end of its file"};
        end = end < 0 ? total : std::min(end, total);
    }
    if (start > 0 && !whole->seekFrame(start))
        return {nullptr, what + " cannot be reached in its file"};
    return {std::make_unique<SpanSource>(std::move(whole), start, end, gains), {}};
}

} // namespace kelp_core
