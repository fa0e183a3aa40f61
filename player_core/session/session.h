#pragma once

#include "player_core/session/audio_loop.h"
#include "player_core/session/chain_report.h"
#include "player_core/session/control_line.h"
#include "player_core/session/control_reader.h"
#include "player_core/session/deck.h"
#include "player_core/session/line_writer.h"
#include "player_core/session/load_plan.h"
#include "player_core/session/mailbox.h"
#include "player_core/session/options.h"
#include "player_core/session/process_watch.h"
#include "player_core/session/telemetry.h"
#include "player_core/session/track_book.h"

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace kelp_core {

/// What a session needs of the world; tests give their own.
struct SessionServices
{
    std::function<OpenedSource(const SourceRequest &)> openSource;
    std::function<OutputOutcome(const OutputRequest &)> openOutput;
};

/// How kelp_player_main ends.
namespace exit_code {
inline constexpr int done = 0;
inline constexpr int unplayable = 1;
inline constexpr int usage = 2;
inline constexpr int stopped = 3;
inline constexpr int noDevice = 4;
} // namespace exit_code

/// One run of the engine: opens sources and devices, and decides. All of its functions run on the session
/// thread, the caller of run(); the other threads post to its mailbox.
class Session
{
public:
    Session(SessionOptions options, SessionServices services, LineWriter &lines);
    ~Session();
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    /// Plays until the end and returns the exit code. Control lines come from where `control` says.
    int run(const ControlOrigin &control);

private:
    using Clock = std::chrono::steady_clock;

    /// What a load line or the command line asks for.
    struct LoadRequest
    {
        SourceRequest source;
        double startSec = 0;
        bool hasPosition = false; ///< `loadat`
        bool fromCommandLine = false;
        bool keepsLoop = false; ///< the same track goes on after a long pause
        std::string shownPath() const;
    };

    void handle(const Message &message);
    void handleLine(const std::string &text);
    void handleControl(const ControlLine &line, const std::string &text);
    void handleUnsupported(const ControlLine &line, const std::string &text);
    bool oneSource() const { return options_.hasSource() && !options_.staysUp(); }
    void controlEnded();
    void onTrackHeard(uint32_t serial);
    void onTrackOver(uint32_t serial);
    void passTime();
    std::chrono::milliseconds waitTime() const;

    // Loading (session_load.cpp).
    void loadFirst();
    void load(const LoadRequest &request);
    /// Lets a preload of the playing sheet's own file, or of an SACD image, mean the track that follows.
    void followContainer(LoadRequest &request) const;
    LoadFacts loadFacts(const LoadRequest &request);
    std::unique_ptr<Source> open(const LoadRequest &request, std::string &error);
    DeckTrack enter(const LoadRequest &request, std::unique_ptr<Source> source);
    void begin(const LoadRequest &request, std::unique_ptr<Source> source);
    void preload(const LoadRequest &request, std::unique_ptr<Source> source);
    void defer(const LoadRequest &request, const std::string &reason);
    void fail(const LoadRequest &request, const std::string &reason);
    bool openDevice(const StreamFormat &stream);
    void closeDevice();
    Deck &makeDeck(DeckTrack track);
    void retireDeck(uint32_t number);
    void retireDecks();
    /// Whether samples must be rounded on their way, so that dither is due.
    bool needsDither(const TransformPlan &plan, double gain) const;
    TransformPlan transformFor(const StreamFormat &stream) const;
    std::string whyNotOnThisDevice(const StreamFormat &stream) const;

    // Speed and loop of what plays (session_tuning.cpp).
    void setSpeed(double ratio);
    void setLoop(double fromSec, double toSec);
    void clearLoop();
    void sayLoop(const TrackInfo &info, bool jumped);
    void setGuard(bool on);
    void wantRetune(std::chrono::milliseconds in);
    void retune();
    bool retuneTo(const TrackInfo &info, const LoadRequest &request, std::unique_ptr<Source> source);
    void putBackPreload(uint32_t serial);
    uint32_t writtenSerial() const;
    FrameLoop loopFrames(const TrackInfo &info) const;
    std::string loopProblem(const TrackInfo &info, double fromSec, double toSec) const;
    /// A track that begins leaves the loop of the one before, or takes the one that waits for it.
    void startLoop(DeckTrack &track, bool keepsLoop);

    // What is told (session_report.cpp).
    void sayGuard(uint32_t serial);
    void setVolume(int volume);
    VolumeFacts volumeFacts(double replayGain) const;
    void sayChain();
    /// The stages as they are now; nothing while there is no stream.
    std::optional<ChainFacts> chainFacts() const;
    /// Since the device was opened.
    unsigned underruns() const;
    /// Tells when the device has run dry since that was told last; every few seconds at most while a track
    /// lasts, and at its end.
    void watchUnderruns(bool trackEnds = false);
    void askVerify();
    void sayVerify();

    void pause();
    void resume();
    void park();
    void end(int code);

    const SessionOptions options_;
    const SessionServices services_;
    LineWriter &lines_;
    std::shared_ptr<Mailbox> mailbox_ = std::make_shared<Mailbox>();
    std::shared_ptr<std::atomic<bool>> cancel_ = std::make_shared<std::atomic<bool>>(false);
    TrackBook book_;
    Telemetry telemetry_;
    ProcessWatch parent_;
    bool hostOwned_ = false; ///< control comes through the host's function

    std::unique_ptr<Output> output_;
    std::unique_ptr<AudioLoop> loop_;
    std::vector<std::unique_ptr<Deck>> decks_;
    /// Done with, but a decoder may still wait for its file; nobody waits for it.
    std::vector<std::unique_ptr<Deck>> leavingDecks_;
    Deck *lastDeck_ = nullptr;  ///< the one that ends the chain
    StreamFormat openedStream_; ///< what the device was opened for
    TransformPlan transform_;   ///< of the track that is heard

    bool playing_ = false;
    bool paused_ = false;
    bool inputEnded_ = false;
    bool startUsed_ = false;  ///< `-start` has been applied
    uint32_t lastSerial_ = 0; ///< of the track that was asked for last
    uint32_t heardSerial_ = 0;
    uint32_t firstWanted_ = 0; ///< the listener has left all tracks before this one
    uint32_t decksMade_ = 0;
    uint32_t openings_ = 0;
    int volume_;
    bool guard_;
    SpeedPlan speed_; ///< wished
    double heardSpeed_ = 1.0;
    struct Loop
    {
        double fromSec = 0;
        double toSec = 0;
        uint32_t serial = 0; ///< of its track; 0: the next one that begins
        bool told = false;
    };
    std::optional<Loop> ab_;
    bool retuneWanted_ = false;
    Clock::time_point retuneAt_{};
    std::map<uint32_t, LoadRequest> requests_; ///< what the tracks in hand came from
    LoadRequest heardRequest_;                 ///< what lastSerial_ came from
    std::optional<LoadRequest> deferred_;      ///< handed over early, but cannot join
    std::optional<LoadRequest> parked_;        ///< paused so long that the device was given back
    Clock::time_point deferredAt_{};
    Clock::time_point idleSince_{};
    Clock::time_point pausedSince_{};
    Clock::time_point selfStarted_{};
    Clock::time_point changedAt_{};             ///< when the last line came that may change the chain
    std::optional<Clock::time_point> verifyAt_; ///< a check that waits for the stages to settle
    unsigned underrunsBefore_ = 0;              ///< when the track that is heard began
    unsigned underrunsTold_ = 0;                ///< of the device that is open
    Clock::time_point underrunsToldAt_{};
    std::set<std::string> warned_;
    std::optional<int> exit_;
};

} // namespace kelp_core
