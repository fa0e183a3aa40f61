#pragma once

#include "player_core/audio/audio_block.h"
#include "player_core/audio/stream_format.h"
#include "player_core/dsp/pdm_decimator.h"
#include "player_core/dsp/resampler.h"
#include "player_core/dsp/speed_stage.h"

#include <memory>
#include <vector>

namespace kelp_core {

/// What stands between a source and the ring. Plain value.
struct TransformPlan
{
    StreamFormat from;  ///< the source's format
    bool toDsd = false; ///< DSD goes on as DSD, untouched
    int toRateHz = 0;   ///< PCM: the rate wanted
    int toChannels = 0; ///< channels wanted
    PdmFilter filter = PdmFilter::standard;
    ResampleQuality quality = ResampleQuality::standard;
    SpeedPlan speed; ///< PCM only

    bool decodesDsd() const { return from.isDsd() && !toDsd; }
    /// The rate in front of the resampler: the source's, or that of the decoder.
    int decodedRateHz() const;
    bool resamples() const { return !toDsd && decodedRateHz() != toRateHz; }
    bool mapsChannels() const { return from.channels != toChannels; }
    bool changesSpeed() const { return !toDsd && speed.active(); }
    /// Seconds of music in one second.
    double speedRatio() const { return changesSpeed() ? speed.ratio : 1.0; }
    /// Nothing is computed: what comes out is what went in.
    bool isIdentity() const { return !decodesDsd() && !resamples() && !mapsChannels() && !changesSpeed(); }
    /// Frames that come out a second.
    int64_t framesPerSecondOut() const { return toDsd ? from.framesPerSecond() : toRateHz; }
    /// Frames that come out for one frame of the source.
    double framesOutPerFrame() const;
    bool operator==(const TransformPlan &) const = default;
};

/// Decodes DSD, converts the rate, changes the speed and maps channels as a plan says. Decoder thread.
///
/// Mono goes to the first two channels; further channels of the device are silent. Where the device has fewer
/// channels than the source, channels 3 and up are mixed into the first two in turn, scaled so that nothing
/// can clip.
class StreamTransform
{
public:
    explicit StreamTransform(const TransformPlan &plan);

    /// Scales what is processed from here on; exactly 1.0 touches nothing. DSD that stays DSD is never
    /// scaled.
    void setGain(double gain) { gain_ = gain; }

    /// Replaces out by what the block gives. One of its vectors is filled, by the plan's kind.
    void process(const AudioBlock &in, AudioBlock &out);
    /// Replaces out by what the filters still hold.
    void flush(AudioBlock &out);

private:
    void scale(std::vector<double> &pcm) const;
    void finish(std::vector<double> &pcm, AudioBlock &out);

    TransformPlan plan_;
    std::unique_ptr<PdmDecimator> decimator_;
    std::unique_ptr<Resampler> resampler_;
    std::unique_ptr<SpeedStage> speed_;
    double gain_ = 1.0;
    std::vector<double> decoded_;
    std::vector<double> resampled_;
    std::vector<double> sped_;
};

} // namespace kelp_core
