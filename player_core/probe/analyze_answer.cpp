#include "player_core/probe/analyze_answer.h"

#include "player_core/dsp/fixed_text.h"
#include "player_core/dsp/key_estimator.h"
#include "player_core/dsp/pdm_decimator.h"
#include "player_core/dsp/resampler.h"
#include "player_core/dsp/tempo_estimator.h"
#include "player_core/source/source.h"

#include <algorithm>
#include <exception>

namespace kelp_core {
namespace {

constexpr int64_t longestSec = 180;

/// Turns a source's frames to one channel at the rate of the estimators.
class MonoStream
{
public:
    explicit MonoStream(const StreamFormat &format)
        : channels_(static_cast<size_t>(format.channels))
        , pcmRateHz_(format.isDsd() ? PdmDecimator::pcmRatesFor(format.rateHz).back() : format.rateHz)
        , resampler_(ResampleQuality::fast, pcmRateHz_, analysisRateHz, 1)
    {
        if (format.isDsd())
            decimator_.emplace(PdmFilter::fast, format.rateHz, pcmRateHz_, format.channels);
    }

    /// The samples that a block gives, valid until the next call.
    const std::vector<double> &process(const AudioBlock &block)
    {
        pcm_.clear();
        mono_.clear();
        out_.clear();
        if (decimator_)
            decimator_->process(block.dsd.data(), block.frames, pcm_);
        const std::vector<double> &in = decimator_ ? pcm_ : block.pcm;
        for (size_t at = 0; at + channels_ <= in.size(); at += channels_) {
            double sum = 0;
            for (size_t channel = 0; channel < channels_; ++channel)
                sum += in[at + channel];
            mono_.push_back(sum / static_cast<double>(channels_));
        }
        resampler_.process(mono_.data(), mono_.size(), out_);
        return out_;
    }

private:
    size_t channels_;
    int pcmRateHz_;
    std::optional<PdmDecimator> decimator_;
    Resampler resampler_;
    std::vector<double> pcm_, mono_, out_;
};

ProbeAnswer analyze(const std::string &path)
{
    constexpr size_t blockFrames = 16384;
    SourceRequest request;
    request.path = path;
    OpenedSource opened = openSource(request);
    if (!opened.source)
        return {1, opened.error + "\n"};
    const SourceFacts &facts = opened.source->facts();
    if (facts.format.isDsd() && PdmDecimator::pcmRatesFor(facts.format.rateHz).empty())
        return {1, "DSD of " + std::to_string(facts.format.rateHz) + " Hz cannot be decoded\n"};
    int64_t left = longestSec * facts.format.framesPerSecond();
    // Beginnings and ends are the least typical parts. A source that cannot be moved is heard from its start.
    if (facts.totalFrames > left)
        (void)opened.source->seekFrame((facts.totalFrames - left) / 2);
    MonoStream mono(facts.format);
    TempoEstimator tempo;
    KeyEstimator key;
    AudioBlock block;
    std::string note;
    while (left > 0) {
        const ReadOutcome outcome =
            opened.source->read(block, static_cast<size_t>(std::min<int64_t>(left, blockFrames)));
        if (outcome.status == ReadStatus::failed)
            note = "WARN " + outcome.message + "\n";
        if (outcome.status != ReadStatus::frames)
            break;
        left -= static_cast<int64_t>(block.frames);
        const std::vector<double> &samples = mono.process(block);
        tempo.process(samples.data(), samples.size());
        key.process(samples.data(), samples.size());
    }
    const auto bpm = tempo.beatsPerMinute();
    return {0, note + "ANALYZE bpm=" + (bpm ? fixedText(*bpm, 1) : "none") +
                   "\nANALYZE key=" + key.key().value_or("none") + "\n"};
}

} // namespace

ProbeAnswer analyzeTrack(const std::vector<std::string> &args)
{
    if (args.size() < 2)
        return {2, "-analyze needs the path of an audio file behind it.\n"};
    try {
        return analyze(args[1]);
    } catch (const std::exception &failure) {
        return {1, std::string("the file cannot be analysed: ") + failure.what() + "\n"};
    }
}

} // namespace kelp_core
