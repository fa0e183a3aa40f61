#pragma once

#include "player_core/session/spsc_ring.h"
#include "player_core/session/stream_transform.h"
#include "player_core/source/source.h"

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

namespace kelp_core {

/// A part of a track that is repeated: frames [from, to) of its source.
struct FrameLoop
{
    int64_t from = 0;
    int64_t to = 0;
    bool active() const { return to > from; }
};

/// One track on its way into a deck.
struct DeckTrack
{
    uint32_t serial = 0;
    std::unique_ptr<Source> source;
    int64_t startFrame = 0; ///< the first frame that is heard, in the source's own frames
    int64_t runUp = 0;      ///< the source stands so many frames before it, which fill the filters unheard
    bool dither = false;    ///< its samples do not fit the device's depth
    double gain = 1.0;      ///< of PCM
    bool goesOn = false;    ///< not its start: another deck has played it up to here
    FrameLoop loop;
};

/// Told to the audio thread where a track begins, or where another place of the same track follows.
struct DeckMark
{
    int64_t frame = 0; ///< of the chain
    uint32_t serial = 0;
    bool dither = false;
    bool goesOn = false;     ///< the track was heard before
    int64_t sourceFrame = 0; ///< the place in the track
    double startSec = 0;     ///< the same
    double speed = 1.0;      ///< seconds of the track in one second
};

/// A place in a track.
struct DeckPlace
{
    uint32_t serial = 0;
    int64_t sourceFrame = 0;
};

struct DeckSetup
{
    uint32_t number = 0; ///< tells decks apart, also from one that stood at the same address before
    TransformPlan transform;
    double ringSec = 2.0; ///< how far the decoder reads ahead
    bool clocked = true;  ///< the device paces us; without a clock the decoder looks for room more often
    /// A track cannot be read further. Decoder thread.
    std::function<void(uint32_t serial, const std::string &reason)> onFailed;
};

/// A chain of tracks that join without a gap, decoded ahead into a ring by a thread of its own.
///
/// The session thread makes it, chains tracks and destroys it (which ends the thread); the audio thread
/// reads. Decoders keep their state over a join, so that not even the filter that decodes DSD sees an edge
/// there.
class Deck
{
public:
    Deck(DeckSetup setup, DeckTrack first);
    ~Deck();
    Deck(const Deck &) = delete;
    Deck &operator=(const Deck &) = delete;

    /// Tells the decoder to end and does not wait for it: it may be held up by a file. Session thread.
    void leave();
    /// The decoder has ended, so that destroying the deck takes no time. Any thread.
    bool left() const { return left_.load(); }

    /// Lets a track follow the last one. False when the end has already been sealed; the track then stays the
    /// caller's. Session thread.
    [[nodiscard]] bool chain(DeckTrack &track);

    uint32_t number() const { return setup_.number; }
    const TransformPlan &plan() const { return setup_.transform; }

    /// The track's place at a frame of the chain that is not behind what has been read; nothing behind the
    /// end. Session thread.
    std::optional<DeckPlace> placeAt(int64_t frame);

    // What follows is the audio thread's; none of it waits or allocates.

    /// A mark stands at the next frame to be read.
    bool markDue() const;
    /// The mark that stands exactly at the next frame to be read, once.
    std::optional<DeckMark> takeMark();
    /// Read up to `frames` frames, but never past a mark. Interleaved samples or DSD bytes.
    size_t read(double *out, size_t frames);
    size_t read(uint8_t *out, size_t frames);
    /// Frames that can be read now.
    size_t available() const;
    /// Frames that fit between the decoder and the reader.
    size_t ringFrames() const
    {
        return (setup_.transform.toDsd ? dsd_.capacity() : pcm_.capacity()) / channels_;
    }
    int64_t consumed() const { return consumed_.load(std::memory_order_relaxed); }
    /// Every frame has been read and none will follow.
    bool finished() const;
    /// The end is known and all that is left stands in the ring, so waiting brings no more.
    bool sealed() const { return endFrame_.load(std::memory_order_acquire) >= 0; }
    /// Frames to the end of the chain as far as it is known, else -1.
    int64_t framesLeft() const;

private:
    void run();
    void playTrack(DeckTrack &track);
    void beginTrack(const DeckTrack &track);
    bool nextTrack(DeckTrack &track);
    bool goBack(const DeckTrack &track, int64_t framesHeard);
    bool putMark(const DeckMark &mark);
    bool putAll(const AudioBlock &block);
    bool waitForRoom();
    void fail(uint32_t serial, const std::string &reason);
    size_t framesUntilMark(size_t frames) const;
    template<typename T>
    size_t readFrom(SpscRing<T> &ring, T *out, size_t frames);

    DeckSetup setup_;
    const size_t channels_;
    const int64_t lowFrames_;
    SpscRing<double> pcm_;
    SpscRing<uint8_t> dsd_;
    SpscRing<DeckMark> marks_{256};
    std::atomic<int64_t> produced_{0};
    std::atomic<int64_t> consumed_{0};
    std::atomic<int64_t> expectedEnd_{-1};
    std::atomic<int64_t> endFrame_{-1};
    std::atomic<bool> left_{false};

    // Decoder thread only.
    StreamTransform transform_;
    double expectedFrames_ = 0; ///< sum over the tracks begun so far; below 0: not known
    double reachedFrames_ = 0;  ///< where the track in work begins, by the sources' own counts
    size_t unheard_ = 0;        ///< frames of a run-up that still come out of the filters

    std::mutex mutex_;
    std::condition_variable wake_;
    std::optional<DeckTrack> queued_; // guarded by mutex_
    std::deque<DeckMark> places_;     // guarded by mutex_; all marks that may still be asked for
    bool ending_ = false;             // guarded by mutex_
    bool endSealed_ = false;          // guarded by mutex_
    std::thread thread_;
};

} // namespace kelp_core
