#pragma once

#include "player_core/dsp/peak_guard.h"
#include "player_core/dsp/volume.h"
#include "player_core/dsp/wire_writer.h"
#include "player_core/output/output.h"
#include "player_core/session/deck.h"
#include "player_core/session/playback_state.h"
#include "player_core/session/spsc_ring.h"

#include <atomic>
#include <chrono>
#include <cstdint>
#include <optional>
#include <thread>
#include <vector>

namespace kelp_core {

enum class AudioCommandKind
{
    play,   ///< leave what sounds (with a short fade) and begin with `deck`; ends a pause unless staysPaused
    follow, ///< `deck` follows the present one, mixed over fadeFrames when these are above 0
    pause,
    resume,
    gain,    ///< move to the gain
    guard,   ///< switch the peak guard
    hold,    ///< stop reading the present deck a moment from now; answered by holdAnswer
    letGo,   ///< no longer
    replace, ///< where it is held, `deck` takes the place of the present one; of `next` nothing is left
};

struct AudioCommand
{
    AudioCommandKind kind;
    Deck *deck = nullptr;
    int64_t fadeFrames = 0;
    double gain = 1.0;
    bool on = false;
    bool staysPaused = false;
};

enum class AudioEventKind
{
    trackStarted, ///< its first frame has been handed over
    trackMoved,   ///< another place or another speed of the same track follows
    chainEnded,   ///< the last frame of the last deck has been handed over
    deckFree,     ///< the deck is not used any more
    deviceGone,
};

struct AudioEvent
{
    AudioEventKind kind;
    uint32_t serial = 0; ///< of the track, or the deck's number
    uint64_t at = 0;     ///< frames handed over before the event
    int64_t frames = 0;  ///< but for deckFree: frames handed over since the event before
    double startSec = 0; ///< trackStarted, trackMoved: the place in the track
    double speed = 1.0;  ///< the same: seconds of the track in one second
};

struct AudioSetup
{
    double gain = 1.0;
    bool guard = false;
    /// Play out and leave by itself at the end of the chain, instead of feeding silence.
    bool drainAtEnd = false;
};

/// Where the audio thread stops reading until it is told more.
struct HoldPlace
{
    uint32_t deck = 0; ///< its number
    int64_t frame = 0; ///< of the deck's chain
};

/// The audio thread: takes samples from decks, scales, fades and mixes them, writes them to the device, and
/// keeps the device fed with silence while nothing plays.
///
/// Inside the loop nothing is allocated, locked, logged or opened; the session thread speaks to it by a ring
/// of commands, and hears from it by a ring of events, a board and two taps of samples. A device without a
/// clock takes music as fast as it comes and silence at the pace of the clock, so that a pause does not fill
/// a disk.
class AudioLoop
{
public:
    AudioLoop(Output &output, const AudioSetup &setup);
    ~AudioLoop(); ///< as finish()
    AudioLoop(const AudioLoop &) = delete;
    AudioLoop &operator=(const AudioLoop &) = delete;

    void command(const AudioCommand &command); ///< session thread
    /// Stops the reading of the present deck a tenth of a second ahead of what is read now, so that another
    /// one can go on from there to the frame. Nothing when none plays, or while one fades into another; then
    /// nothing is held. Ended by `replace`, `letGo` or `play`. Session thread; waits for the audio thread.
    std::optional<HoldPlace> hold();
    /// Ends and joins the thread, within the time of one write. Session thread.
    void finish();

    SpscRing<AudioEvent> &events() { return events_; }
    SpscRing<double> &pcmTap() { return pcmTap_; }  ///< what the device gets, two channels interleaved
    SpscRing<uint8_t> &dsdTap() { return dsdTap_; } ///< the same for DSD, before it is packed
    const PlaybackBoard &board() const { return board_; }
    int tapChannels() const { return tapChannels_; }
    /// The thread has ended by itself and takes no more commands. Any thread.
    bool left() const { return left_.load(); }
    /// Gaps in the music since the device was opened: the decoder came too late, or the device ran dry. One
    /// that runs dry while it is fed silence leaves no gap. Any thread.
    unsigned gaps() const { return gaps_.load(std::memory_order_relaxed); }

private:
    enum class Step
    {
        written,
        wait, ///< nothing to do for a moment
        gone, ///< the device
    };

    void run();
    void playOut();
    void takeCommands();
    void apply(const AudioCommand &command);
    Step step();
    Step playMusic();
    Step playPcm();
    Step playDsd();
    Step crossfadeStep(int64_t left);
    Step takeOver();
    void mixFade(size_t frames);
    Step flushGuard();
    Step putPcm(const double *pcm, size_t frames, bool unity, bool mixing);
    void answerHold();
    void countAnew();
    Step silence();
    Step starve();
    bool hasCushion();
    Step writeMusic(size_t wireFrames);
    Step writeOut(size_t wireFrames, bool music);
    void countGaps(bool music);
    Step writePcm(size_t frames, bool mixing);
    void noteStart();
    void toNextDeck();
    void release(Deck *&deck);
    void beginSwitch(Deck *deck, bool staysPaused);
    void finishSwitch();
    void event(AudioEventKind kind, uint32_t serial, int64_t frames, double startSec = 0, double speed = 1);
    void publish();
    bool isDsd() const { return wire_.carrier != Carrier::pcm; }

    Output &output_;
    const OpenedOutput &opened_;
    const WireFormat wire_;
    const AudioSetup setup_;
    const size_t channels_;
    const int tapChannels_;
    const size_t chunkFrames_; ///< at the device

    PcmWriter pcmWriter_;
    DsdWriter dsdWriter_;
    const size_t dsdPerWire_;
    GainRamp ramp_;
    PeakGuard guard_;
    std::vector<double> mix_;
    std::vector<double> other_;
    std::vector<double> guarded_;
    std::vector<double> tapScratch_;
    std::vector<uint8_t> dsd_;
    std::vector<uint8_t> dsdTapScratch_;
    size_t dsdCarry_ = 0; ///< frames left over from the last write, at the start of dsd_
    std::vector<uint8_t> bytes_;

    // Audio thread only.
    Deck *current_ = nullptr;
    Deck *next_ = nullptr;
    Deck *leaving_ = nullptr; ///< while a crossfade is under way
    Deck *switchTo_ = nullptr;
    Deck *replacement_ = nullptr;
    int64_t holdFrame_ = -1; ///< of current_; below 0: not held
    int64_t fadeFrames_ = 0; ///< wanted
    int64_t fadeLength_ = 0; ///< of the fade in progress; 0: none
    int64_t fadePosition_ = 0;
    bool fadesSameMusic_ = false;
    bool countsAnew_ = false; ///< with the next frames that are not mixed
    int64_t replaceFade_ = 0;
    double gain_;
    bool guardOn_;
    bool paused_ = false;
    bool dither_ = false;
    bool quit_ = false;
    bool sounding_ = false;      ///< the present track has begun
    bool cushioned_ = false;     ///< the present deck had enough decoded to begin
    bool musicInHand_ = false;   ///< what was written last was music
    unsigned drySeen_ = 0;       ///< of the device
    uint64_t clippedBefore_ = 0; ///< of the writer, at the start of the present track
    PlaybackState state_;
    std::chrono::steady_clock::time_point silenceUntil_{};
    std::chrono::steady_clock::time_point refusedSince_{};

    SpscRing<AudioCommand> commands_{256};
    SpscRing<AudioEvent> events_{1024};
    SpscRing<double> pcmTap_;
    SpscRing<uint8_t> dsdTap_;
    PlaybackBoard board_;
    std::atomic<bool> left_{false};
    std::atomic<unsigned> gaps_{0};
    // The answer to `hold`: the number of holds asked for and answered, and the last answer.
    uint32_t holdsAsked_ = 0; ///< session thread
    std::atomic<uint32_t> holdsAnswered_{0};
    std::atomic<uint32_t> heldDeck_{0}; ///< 0: none
    std::atomic<int64_t> heldFrame_{0};
    std::atomic<bool> hurry_{false}; ///< leave at once, also from within a write
    std::thread thread_;
};

} // namespace kelp_core
