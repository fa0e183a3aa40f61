#include "player_core/source/sacd_source.h"

#include "player_core/source/dsd_source.h"
#include "player_core/source/dst_decoder.h"
#include "player_core/source/file_input.h"
#include "player_core/source/read_failure.h"
#include "player_core/source/sacd_frame_reader.h"

#include <algorithm>

namespace kelp_core {
namespace {

/// A stretch of an area: a track, or all of them.
struct Stretch
{
    int64_t startFrame = 0; ///< of 1/75 s
    int64_t frames = 0;
    int64_t firstSector = -1;
    std::vector<SourceSegment> segments;
};

SourceFacts factsOf(const SacdArea &area, const Stretch &stretch, const std::string &choice)
{
    DsdLayout layout;
    layout.name = "SACD image";
    layout.rateHz = area.rateHz;
    layout.channels = area.channels;
    // Front left and right, centre, with six the low tones, and the pair behind.
    layout.speakers = area.channels == 6 ? 0x3F : area.channels == 5 ? 0x37 : 0;
    layout.totalFrames = stretch.frames * sacdFrameBytes;
    layout.dst = area.dst;
    SourceFacts facts = dsdFacts(layout);
    facts.firstFrame = stretch.startFrame * sacdFrameBytes;
    facts.choice = choice;
    return facts;
}

/// DSD of an image, unpacked where it is packed.
class SacdSource final : public Source
{
public:
    SacdSource(std::unique_ptr<FileInput> file, const SacdImage &image, Stretch stretch)
        : file_(std::move(file))
        , sectors_(*file_, image.storedBytes)
        , reader_(sectors_, image.area)
        , stretch_(std::move(stretch))
        , facts_(factsOf(image.area, stretch_, image.choice))
        , decoder_(image.area.channels, sacdFrameBytes)
    {
    }

    const SourceFacts &facts() const override { return facts_; }
    std::vector<SourceSegment> segments() const override { return stretch_.segments; }
    [[nodiscard]] ReadOutcome read(AudioBlock &block, size_t maxFrames) override;
    [[nodiscard]] bool seekFrame(int64_t frame) override
    {
        position_ = std::clamp<int64_t>(frame, 0, facts_.totalFrames);
        return true;
    }

private:
    ReadOutcome load(int64_t number);

    std::unique_ptr<FileInput> file_;
    SacdSectors sectors_;
    SacdFrameReader reader_;
    Stretch stretch_;
    SourceFacts facts_;
    DstDecoder decoder_;
    int64_t position_ = 0; ///< bytes of a channel, from the stretch's start
    int64_t loaded_ = -1;  ///< the frame of the disc that bytes_ holds
    SacdFrame frame_;
    std::vector<uint8_t> bytes_;
};

ReadOutcome SacdSource::load(int64_t number)
{
    const int64_t hint = number == stretch_.startFrame ? stretch_.firstSector : -1;
    switch (reader_.read(number, hint, frame_)) {
    case SacdFrameReader::Result::found:
        break;
    case SacdFrameReader::Result::ended:
        if (file_->lastError() != 0)
            return {ReadStatus::failed, "cannot read on: " + systemErrorWords(file_->lastError())};
        return endedEarly(facts_, position_);
    case SacdFrameReader::Result::damaged:
        return damagedAt(facts_, position_, "a frame of the image is missing or incomplete");
    }
    if (!frame_.dst)
        bytes_.swap(frame_.bytes);
    else if (std::string error = decoder_.decode(frame_.bytes, bytes_); !error.empty())
        return damagedAt(facts_, position_, error);
    loaded_ = number;
    return {ReadStatus::frames, {}};
}

ReadOutcome SacdSource::read(AudioBlock &block, size_t maxFrames)
{
    block.clear();
    const int64_t channels = facts_.format.channels;
    while (block.frames < maxFrames && position_ < facts_.totalFrames) {
        const int64_t number = stretch_.startFrame + position_ / sacdFrameBytes;
        if (number != loaded_) {
            loaded_ = -1;
            if (ReadOutcome outcome = load(number); outcome.status != ReadStatus::frames) {
                // What was gathered comes first; the next call meets the failure again.
                return block.frames > 0 ? ReadOutcome{ReadStatus::frames, {}} : outcome;
            }
        }
        const int64_t within = position_ % sacdFrameBytes;
        const int64_t count =
            std::min(static_cast<int64_t>(maxFrames - block.frames), sacdFrameBytes - within);
        const auto first = bytes_.begin() + within * channels;
        block.dsd.insert(block.dsd.end(), first, first + count * channels);
        block.frames += static_cast<size_t>(count);
        position_ += count;
    }
    if (block.frames == 0 && maxFrames > 0)
        return {ReadStatus::end, {}};
    return {ReadStatus::frames, {}};
}

Stretch wholeOf(const SacdArea &area)
{
    Stretch stretch;
    stretch.startFrame = area.startFrame();
    stretch.frames = area.endFrame() - stretch.startFrame;
    for (const SacdTrack &track : area.tracks)
        stretch.segments.push_back({track.number, (track.startFrame - stretch.startFrame) * sacdFrameBytes,
                                    track.title, track.performer});
    std::stable_sort(
        stretch.segments.begin(), stretch.segments.end(),
        [](const SourceSegment &a, const SourceSegment &b) { return a.startFrame < b.startFrame; });
    return stretch;
}

/// The file and what its tables say, or one line in error.
std::optional<SacdImage> loadImage(const std::string &path, std::unique_ptr<FileInput> &file,
                                   std::string &error)
{
    file = FileInput::open(path, error);
    if (!file)
        return {};
    SacdOutcome outcome = readSacdImage(*file);
    error = file->lastError() != 0 ? "cannot read: " + systemErrorWords(file->lastError()) : outcome.error;
    return std::move(outcome.image);
}

} // namespace

OpenedSource openSacd(const SourceRequest &request)
{
    std::unique_ptr<FileInput> file;
    std::string error;
    const auto image = loadImage(request.isoPath, file, error);
    if (!image)
        return {nullptr, error};
    if (request.track < 1)
        return {std::make_unique<SacdSource>(std::move(file), *image, wholeOf(image->area)), {}};
    const SacdTrack *track = image->area.find(request.track);
    if (!track)
        return {nullptr, "the SACD image has no track " + std::to_string(request.track)};
    Stretch stretch{track->startFrame, track->frames, track->firstSector, {}};
    return {std::make_unique<SacdSource>(std::move(file), *image, std::move(stretch)), {}};
}

} // namespace kelp_core
