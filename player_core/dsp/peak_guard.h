#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kelp_core {

/// Keeps samples within full scale: where one would pass ±1.0, the gain of all channels is brought down
/// smoothly ahead of it and comes back within some tenths of a second. Where none would, what goes in comes
/// out bit for bit. Audio thread; allocates nothing behind its construction.
///
/// It looks 1.5 ms ahead, so it holds so many frames back; flush() gives them where the stream ends or stops.
class PeakGuard
{
public:
    /// mostFrames: of one call of process().
    PeakGuard(int rateHz, int channels, size_t mostFrames);

    /// Takes frames and gives those that are ready. `out` has room for mostFrames + lookAhead() and is not
    /// `in`. Returns the number of frames given.
    size_t process(const double *in, size_t frames, double *out);
    /// Gives the frames that are held back; what follows is not known, so it is taken to be quiet.
    size_t flush(double *out);

    size_t lookAhead() const { return window_; }
    size_t held() const { return held_; }
    /// The frames given by the last call were scaled, at least one of them.
    bool acted() const { return acted_; }
    uint64_t guardedFrames() const { return guarded_; } ///< scaled since forgetCounts()
    double lowestGain() const { return lowest_; }       ///< since forgetCounts(); 1.0: never acted
    void forgetCounts();

private:
    double neededFor(const double *frame);
    size_t give(size_t frames, double *out);

    const size_t channels_;
    const size_t window_;
    const double release_;
    std::vector<double> samples_; ///< held back and new
    std::vector<double> needed_;  ///< the gain each of these frames may have at most
    std::vector<double> recent_;  ///< ring of the last window_ minima, whose mean is the gain
    size_t recentAt_ = 0;
    double recentSum_;
    size_t quietFrames_; ///< minima of exactly 1 in a row
    double lastNeeded_ = 1.0;
    size_t held_ = 0;
    bool fresh_ = true; ///< what comes next does not follow what was given last
    bool acted_ = false;
    uint64_t guarded_ = 0;
    double lowest_ = 1.0;
};

} // namespace kelp_core
