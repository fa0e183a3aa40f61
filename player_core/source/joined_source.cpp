#include "player_core/source/joined_source.h"

#include <algorithm>

namespace kelp_core {
namespace {

class JoinedSource final : public Source
{
public:
    explicit JoinedSource(JoinedParts parts)
        : parts_(std::move(parts))
        , facts_(parts_.facts)
    {
        facts_.totalFrames = parts_.totalFrames;
    }

    /// Opens a part; "" or why not. The part that was open stays when this fails.
    std::string openPart(size_t number)
    {
        OpenedSource opened = parts_.openers[number]();
        if (!opened.source)
            return opened.error;
        if (opened.source->facts().format != facts_.format)
            return "a file of the sheet has changed its format";
        current_ = std::move(opened.source);
        part_ = number;
        return {};
    }

    const SourceFacts &facts() const override { return facts_; }
    std::vector<SourceSegment> segments() const override { return parts_.segments; }

    [[nodiscard]] ReadOutcome read(AudioBlock &block, size_t maxFrames) override
    {
        for (;;) {
            ReadOutcome outcome = current_->read(block, maxFrames);
            if (outcome.status != ReadStatus::end || part_ + 1 >= parts_.openers.size())
                return outcome;
            if (std::string error = openPart(part_ + 1); !error.empty())
                return {ReadStatus::failed, error};
        }
    }

    [[nodiscard]] bool seekFrame(int64_t frame) override
    {
        frame = std::max<int64_t>(frame, 0);
        const auto after = std::upper_bound(parts_.startFrames.begin(), parts_.startFrames.end(), frame);
        const auto part = static_cast<size_t>(after - parts_.startFrames.begin()) - 1;
        if (part != part_ && !openPart(part).empty())
            return false;
        return current_->seekFrame(frame - parts_.startFrames[part]);
    }

private:
    JoinedParts parts_;
    SourceFacts facts_;
    std::unique_ptr<Source> current_;
    size_t part_ = 0;
};

} // namespace

std::string JoinedParts::add(const SourceFacts &part)
{
    if (part.totalFrames < 0)
        return "a file of the sheet does not tell its length";
    if (startFrames.empty())
        facts = part;
    else if (facts.format != part.format)
        return "the files of this sheet differ in format; play its tracks one at a time";
    startFrames.push_back(totalFrames);
    totalFrames += part.totalFrames;
    return {};
}

OpenedSource makeJoinedSource(JoinedParts parts)
{
    auto source = std::make_unique<JoinedSource>(std::move(parts));
    if (std::string error = source->openPart(0); !error.empty())
        return {nullptr, error};
    return {std::move(source), {}};
}

} // namespace kelp_core
