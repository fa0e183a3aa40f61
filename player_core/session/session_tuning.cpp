// Session: another speed, or a loop, for the track that plays.
//
// Both are changed by putting another deck in the place of the present one. The source is opened a second
// time, the audio thread is asked to hold the old deck a moment ahead, and the new one begins with exactly
// the frame at which it is held. So nothing that was read ahead delays the change, the device is not touched,
// and the old deck sounds on for as long as opening takes.
#include "player_core/session/session.h"

#include "player_core/dsp/fixed_text.h"
#include "player_core/session/output_lines.h"

#include <algorithm>
#include <cmath>

namespace kelp_core {

namespace {

using namespace std::chrono_literals;

constexpr auto holdRetry = 200ms;
constexpr double shortestLoopSec = 0.02;
/// What the filters of a new deck are fed before its first frame is heard.
constexpr double runUpSec = 0.05;
/// The fade from an old deck to a new one whose filters or speed differ.
constexpr double replaceFadeSec = 0.01;
/// Whole frames of every way that DSD goes out: DoP carries 2 bytes of a channel, native DSD up to 4.
constexpr int64_t dsdLoopUnit = 4;

std::string secondsText(double seconds)
{
    return fixedText(seconds, 3) + " s";
}

} // namespace

void Session::wantRetune(std::chrono::milliseconds in)
{
    retuneWanted_ = true;
    retuneAt_ = Clock::now() + in;
}

void Session::setSpeed(double ratio)
{
    const bool same = std::abs(ratio - speed_.ratio) < 1e-9;
    speed_.ratio = ratio;
    const std::string text = fixedText(ratio, 2) + "x" + (speed_.pitchKept ? "" : ", the pitch goes along");
    if (!playing_ || parked_ || !output_)
        return lines_.say("Playback speed: " + text + " from the next track on, since nothing plays.");
    if (output_->opened().wire.carrier != Carrier::pcm) {
        if (speed_.active())
            lines_.say(
                "DSD goes out directly and cannot be stretched, so this track plays at its own speed; " +
                text + " holds for tracks that are played as PCM.");
        return;
    }
    if (!same) {
        lines_.say("Playback speed: " + text + ", at once.");
        return wantRetune(0ms);
    }
    if (const auto facts = chainFacts())
        lines_.say(speedLine(*facts));
}

std::string Session::loopProblem(const TrackInfo &info, double fromSec, double toSec) const
{
    if (info.totalSec >= 0 && fromSec >= info.totalSec)
        return "point A (" + secondsText(fromSec) + ") lies behind the end of this track (" +
               secondsText(info.totalSec) + ")";
    const double end = info.totalSec >= 0 ? std::min(toSec, info.totalSec) : toSec;
    if (end - fromSec < shortestLoopSec)
        return "its two points are too close together (" + secondsText(fromSec) + " and " + secondsText(end) +
               ")";
    return {};
}

void Session::setLoop(double fromSec, double toSec)
{
    if (!playing_) {
        ab_ = Loop{fromSec, toSec};
        return lines_.say("A/B loop: nothing plays, so it is kept for the next track that begins.");
    }
    const uint32_t serial = parked_ ? lastSerial_ : writtenSerial();
    const auto info = book_.find(serial);
    if (!info)
        return;
    if (const std::string problem = loopProblem(*info, fromSec, toSec); !problem.empty())
        return lines_.say("The A/B loop is refused: " + problem + '.');
    ab_ = Loop{fromSec, toSec, serial};
    wantRetune(0ms);
}

void Session::sayLoop(const TrackInfo &info, bool jumped)
{
    if (!ab_ || ab_->serial != info.serial || ab_->told)
        return;
    ab_->told = true;
    const FrameLoop loop = loopFrames(info);
    lines_.say("A/B loop: from " + secondsText(ab_->fromSec) + " to " + secondsText(ab_->toSec) +
               " of this track (frames " + std::to_string(loop.from) + " to " + std::to_string(loop.to) +
               ")" + (jumped ? "; the position was behind point B, so it goes on at point A." : "."));
}

void Session::clearLoop()
{
    if (!ab_)
        return lines_.say("A/B loop: none was set, so nothing changes.");
    ab_.reset();
    lines_.say("A/B loop: off; the track plays on to its end.");
    if (playing_)
        wantRetune(0ms);
}

FrameLoop Session::loopFrames(const TrackInfo &info) const
{
    if (!ab_ || (ab_->serial != info.serial && ab_->serial != 0))
        return {};
    const StreamFormat &format = info.facts.format;
    const auto frameAt = [&](double seconds) {
        int64_t frame = std::llround(seconds * static_cast<double>(format.framesPerSecond()));
        if (info.facts.totalFrames >= 0)
            frame = std::min(frame, info.facts.totalFrames);
        return format.isDsd() ? frame - frame % dsdLoopUnit : frame;
    };
    return {frameAt(ab_->fromSec), frameAt(ab_->toSec)};
}

void Session::startLoop(DeckTrack &track, bool keepsLoop)
{
    if (!ab_)
        return;
    const auto info = book_.find(track.serial);
    const bool waited = ab_->serial == 0;
    if (!info || (!waited && !keepsLoop))
        return ab_.reset();
    if (const std::string problem = loopProblem(*info, ab_->fromSec, ab_->toSec); !problem.empty()) {
        lines_.say("The A/B loop is refused: " + problem + '.');
        return ab_.reset();
    }
    ab_->serial = track.serial;
    track.loop = loopFrames(*info);
    if (track.startFrame < track.loop.to)
        return sayLoop(*info, false);
    // A start behind point B would never come to it.
    wantRetune(0ms);
    track.loop = {};
}

/// The track that is handed to the device now; the one asked for last when its first frame is still to come.
uint32_t Session::writtenSerial() const
{
    const uint32_t serial = loop_ ? loop_->board().read().serial : 0;
    return std::max(serial, firstWanted_) <= lastSerial_ && serial >= firstWanted_ ? serial : lastSerial_;
}

void Session::retune()
{
    retuneWanted_ = false;
    if (!playing_ || parked_ || !loop_ || loop_->left())
        return;
    const auto info = book_.find(writtenSerial());
    const auto request = info ? requests_.find(info->serial) : requests_.end();
    if (request == requests_.end())
        return;
    LoadRequest again = request->second;
    again.startSec = 0;
    again.source.onScan = nullptr;
    std::string error;
    std::unique_ptr<Source> source = open(again, error);
    if (cancel_->load())
        return;
    if (!source) {
        ab_.reset();
        return lines_.say("The change cannot be made within this track (" + oneLine(error) +
                          "); the speed holds from the next one on.");
    }
    if (!retuneTo(*info, request->second, std::move(source)))
        wantRetune(holdRetry);
}

/// False when there is no place to hold at the moment: while a track fades into another, or at its very end.
bool Session::retuneTo(const TrackInfo &info, const LoadRequest &request, std::unique_ptr<Source> source)
{
    const auto hold = loop_->hold();
    if (!hold)
        return false;
    const auto old = std::find_if(decks_.begin(), decks_.end(),
                                  [&](const auto &deck) { return deck->number() == hold->deck; });
    const auto place = old == decks_.end() ? std::nullopt : (*old)->placeAt(hold->frame);
    const bool over = place && info.facts.totalFrames >= 0 && place->sourceFrame >= info.facts.totalFrames;
    if (!place || over || place->serial != info.serial) {
        loop_->command({.kind = AudioCommandKind::letGo});
        return false;
    }
    const TransformPlan plan = transformFor(info.facts.format);
    DeckTrack track;
    track.serial = info.serial;
    track.goesOn = true;
    track.gain = info.gain;
    track.dither = needsDither(plan, info.gain);
    track.loop = loopFrames(info);
    const bool jump = track.loop.active() && place->sourceFrame >= track.loop.to;
    track.startFrame = jump ? track.loop.from : place->sourceFrame;
    if (!plan.isIdentity() && !plan.toDsd)
        track.runUp = std::min<int64_t>(
            track.startFrame,
            std::llround(runUpSec * static_cast<double>(info.facts.format.framesPerSecond())));
    if (!source->seekFrame(track.startFrame - track.runUp)) {
        loop_->command({.kind = AudioCommandKind::letGo});
        ab_.reset();
        lines_.say(
            "This source cannot be moved within, so neither a loop nor another speed is possible before "
            "the next track.");
        return true;
    }
    track.source = std::move(source);
    const bool exact = plan.isIdentity() && (*old)->plan().isIdentity();
    Deck &deck = makeDeck(std::move(track));
    if (jump) {
        loop_->command({.kind = AudioCommandKind::play, .deck = &deck, .staysPaused = true});
    } else {
        const auto fade = std::llround(replaceFadeSec * output_->opened().wire.frameRateHz);
        loop_->command({.kind = AudioCommandKind::replace, .deck = &deck, .fadeFrames = exact ? 0 : fade});
    }
    heardRequest_ = request;
    sayLoop(info, jump);
    putBackPreload(info.serial);
    return true;
}

/// The track that was to follow belonged to the old deck.
void Session::putBackPreload(uint32_t serial)
{
    if (lastSerial_ == serial)
        return;
    const auto next = requests_.find(lastSerial_);
    if (next == requests_.end())
        return;
    const LoadRequest request = next->second;
    requests_.erase(next);
    lastSerial_ = serial;
    if (ab_)
        return defer(request, "the A/B loop repeats a part of the present track");
    std::string error;
    std::unique_ptr<Source> source = open(request, error);
    if (!source)
        return defer(request, error);
    preload(request, std::move(source));
}

} // namespace kelp_core
