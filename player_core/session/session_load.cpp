// Session: how a track is opened, and how it gets to the device.
#include "player_core/session/session.h"

#include "player_core/output/opened_line.h"
#include "player_core/session/output_lines.h"
#include "player_core/session/sheet_successor.h"
#include "player_core/source/cue_list.h"
#include "player_core/source/sacd_source.h"

#include <algorithm>
#include <cmath>
#include <filesystem>

namespace kelp_core {

namespace {

using namespace std::chrono_literals;

constexpr auto sameLoadWithin = 2s;

} // namespace

bool Session::needsDither(const TransformPlan &plan, double gain) const
{
    const WireFormat &wire = output_->opened().wire;
    if (wire.carrier != Carrier::pcm || wire.encoding == SampleEncoding::f32)
        return false;
    const bool folds = plan.from.channels > plan.toChannels;
    return plan.decodesDsd() || plan.resamples() || plan.changesSpeed() || folds || gain != 1.0 ||
           plan.from.isFloat || plan.from.depthBits > wire.validBits;
}

std::string Session::LoadRequest::shownPath() const
{
    return !source.isoPath.empty() ? source.isoPath : !source.cuePath.empty() ? source.cuePath : source.path;
}

void Session::loadFirst()
{
    LoadRequest request;
    request.source.path = options_.path;
    request.source.cuePath = options_.cuePath;
    request.source.isoPath = options_.isoPath;
    request.source.track = options_.track;
    request.startSec = options_.startSec;
    request.fromCommandLine = true;
    startUsed_ = true;
    load(request);
}

void Session::load(const LoadRequest &asked)
{
    LoadRequest request = asked;
    // A host that was told of a dropped preload may send it once more, just as we begin with it ourselves.
    const bool justBegun = playing_ && Clock::now() - selfStarted_ < sameLoadWithin;
    if (justBegun && !request.hasPosition && request.shownPath() == heardRequest_.shownPath() &&
        request.source.track == heardRequest_.source.track) {
        selfStarted_ = {};
        return;
    }
    if (!startUsed_ && !request.hasPosition)
        request.startSec = options_.startSec;
    startUsed_ = true;

    const LoadAction action = planLoad(loadFacts(request));
    if (action == LoadAction::preload)
        followContainer(request);
    std::string error;
    std::unique_ptr<Source> source = open(request, error);
    if (cancel_->load())
        return; // `stop` came in while we were opening; its line is next in the mailbox
    if (action == LoadAction::preload)
        return source ? preload(request, std::move(source)) : defer(request, error);
    if (!source)
        return fail(request, error);
    begin(request, std::move(source));
}

void Session::followContainer(LoadRequest &request) const
{
    if (!request.source.cuePath.empty() || !request.source.isoPath.empty())
        return;
    const SourceRequest &playing = heardRequest_.source;
    const auto samePath = [](const std::string &a, const std::string &b) {
        std::error_code error;
        return a == b || std::filesystem::equivalent(a, b, error);
    };
    const std::string &path = request.source.path;
    if (!playing.cuePath.empty() && playing.track >= 1) {
        if (const auto next = sheetSuccessor(listCue(playing.cuePath).text, playing.track, path, samePath)) {
            request.source.cuePath = playing.cuePath;
            request.source.track = *next;
            return;
        }
    }
    const bool sameImage = !playing.isoPath.empty() && samePath(playing.isoPath, path);
    if (const auto next = imageSuccessor(sacdTrackNumbers(path), sameImage, playing.track)) {
        request.source.isoPath = path;
        request.source.track = *next;
    }
}

LoadFacts Session::loadFacts(const LoadRequest &request)
{
    LoadFacts facts;
    facts.playing = playing_ && !parked_;
    facts.paused = paused_;
    facts.hasPosition = request.hasPosition;
    facts.crossfadeSec = options_.crossfadeSec;
    facts.gapless = options_.gapless;
    facts.looping = ab_ && ab_->serial != 0;
    const HeardPosition heard = telemetry_.heard();
    facts.preloaded = deferred_.has_value() || lastSerial_ != heard.serial;
    facts.positionSec = heard.seconds;
    facts.speed = heard.speed;
    if (const auto info = book_.find(heard.serial))
        facts.totalSec = info->totalSec;
    return facts;
}

std::unique_ptr<Source> Session::open(const LoadRequest &request, std::string &error)
{
    SourceRequest asked = request.source;
    asked.cancelled = cancel_.get();
    asked.onScan = [this](double percent, double done, double total) {
        lines_.frame(scanLine(percent, done, total));
    };
    OpenedSource opened = services_.openSource(asked);
    error = opened.error;
    if (opened.source && !opened.source->facts().choice.empty())
        lines_.say(oneLine(opened.source->facts().choice));
    if (opened.source && request.startSec > 0) {
        const auto frame = std::llround(request.startSec *
                                        static_cast<double>(opened.source->facts().format.framesPerSecond()));
        if (!opened.source->seekFrame(frame))
            lines_.say("This source cannot be entered in its middle, so it begins at its start.");
    }
    return std::move(opened.source);
}

DeckTrack Session::enter(const LoadRequest &request, std::unique_ptr<Source> source)
{
    TrackInfo info;
    info.path = request.shownPath();
    info.facts = source->facts();
    info.startSec = request.startSec;
    info.totalSec = totalSeconds(info.facts);
    info.fromCommandLine = request.fromCommandLine;
    info.segments = source->segments();
    DeckTrack track;
    const StreamFormat format = info.facts.format;
    track.startFrame = std::llround(request.startSec * static_cast<double>(format.framesPerSecond()));
    const TransformPlan plan = transformFor(format);
    const ReplayGainChoice gain = chooseReplayGain(options_.replayGain, info.facts.gains, plan.toDsd);
    info.gain = track.gain = gain.gain;
    info.gainText = gain.text;
    track.dither = needsDither(plan, gain.gain);
    track.source = std::move(source);
    track.serial = lastSerial_ = book_.add(std::move(info));
    requests_[track.serial] = request;
    heardRequest_ = request;
    return track;
}

void Session::begin(const LoadRequest &request, std::unique_ptr<Source> source)
{
    const StreamFormat format = source->facts().format;
    deferred_.reset();
    parked_.reset();
    if (output_ && (loop_->left() || !whyNotOnThisDevice(format).empty()))
        closeDevice();
    if (!output_ && !openDevice(format))
        return;
    DeckTrack track = enter(request, std::move(source));
    retuneWanted_ = false;
    startLoop(track, request.keepsLoop);
    firstWanted_ = track.serial;
    telemetry_.expect(track.serial);
    paused_ = false;
    playing_ = true;
    loop_->command({.kind = AudioCommandKind::play, .deck = &makeDeck(std::move(track))});
}

void Session::preload(const LoadRequest &request, std::unique_ptr<Source> source)
{
    if (const std::string why = whyNotOnThisDevice(source->facts().format); !why.empty())
        return defer(request, why);
    DeckTrack track = enter(request, std::move(source));
    const bool sameSpeed = lastDeck_ && lastDeck_->plan() == transformFor(track.source->facts().format);
    const bool crossfade = options_.crossfadeSec > 0 && output_->opened().wire.carrier == Carrier::pcm;
    if (!crossfade && sameSpeed && lastDeck_->chain(track))
        return;
    const auto fade = std::llround(options_.crossfadeSec * output_->opened().wire.frameRateHz);
    Deck &deck = makeDeck(std::move(track));
    loop_->command({.kind = AudioCommandKind::follow, .deck = &deck, .fadeFrames = crossfade ? fade : 0});
}

void Session::defer(const LoadRequest &request, const std::string &reason)
{
    lines_.say("preload dropped: " + oneLine(reason) + "; the track finishes normally");
    deferred_ = request;
}

void Session::fail(const LoadRequest &request, const std::string &reason)
{
    // The listener has left the present track for one that cannot be played.
    if (loop_)
        closeDevice();
    playing_ = false;
    firstWanted_ = lastSerial_ + 1;
    parked_.reset();
    deferred_.reset();
    lines_.say(failedLine(reason, request.shownPath()));
    if (request.fromCommandLine)
        end(exit_code::unplayable);
}

TransformPlan Session::transformFor(const StreamFormat &stream) const
{
    const OpenedOutput &opened = output_->opened();
    TransformPlan plan;
    plan.from = stream;
    plan.toDsd = opened.wire.carrier != Carrier::pcm;
    plan.toRateHz = opened.pcmRateHz > 0 ? opened.pcmRateHz : opened.wire.frameRateHz;
    plan.toChannels = opened.wire.channels;
    plan.filter = options_.pcmFilter;
    plan.quality = options_.srcQuality;
    // A speed that is not applied makes no difference between two plans.
    plan.speed = {speed_.active() && !plan.toDsd ? speed_.ratio : 1.0, speed_.pitchKept};
    return plan;
}

std::string Session::whyNotOnThisDevice(const StreamFormat &stream) const
{
    return whyNotJoin({openedStream_, output_->opened().wire, stream});
}

bool Session::openDevice(const StreamFormat &stream)
{
    OutputRequest request;
    request.deviceId = options_.device;
    request.path = options_.outputPath;
    request.dop = options_.dop;
    request.stream = stream;
    request.forcePcm = options_.forcePcm;
    request.pcmBitsChosen = options_.pcmBitsChosen;
    request.pcmBits = options_.pcmBits;
    request.pcmFloat = options_.pcmFloat;
    request.allowResample = options_.resample;
    OutputOutcome outcome = services_.openOutput(request);
    const auto &notes = outcome.output ? outcome.output->opened().notes : outcome.notes;
    for (const std::string &note : notes)
        lines_.say(oneLine(note));
    if (!outcome.output) {
        lines_.say(oneLine(outcome.error));
        end(exit_code::noDevice);
        return false;
    }
    output_ = std::move(outcome.output);
    openedStream_ = stream;
    lines_.say(openedLine(output_->opened()));
    loop_ = std::make_unique<AudioLoop>(*output_, AudioSetup{gainForVolume(volume_), guard_, oneSource()});
    telemetry_.attach(*loop_, *output_, ++openings_);
    return true;
}

void Session::closeDevice()
{
    if (!loop_)
        return;
    watchUnderruns(true);
    loop_->finish();
    telemetry_.detach();
    loop_.reset();
    retireDecks();
    output_.reset();
    underrunsTold_ = 0;
    underrunsBefore_ = 0;
}

void Session::retireDeck(uint32_t number)
{
    if (lastDeck_ && lastDeck_->number() == number)
        lastDeck_ = nullptr;
    const auto deck = std::find_if(decks_.begin(), decks_.end(),
                                   [number](const auto &one) { return one->number() == number; });
    if (deck == decks_.end())
        return;
    (*deck)->leave();
    leavingDecks_.push_back(std::move(*deck));
    decks_.erase(deck);
}

void Session::retireDecks()
{
    while (!decks_.empty())
        retireDeck(decks_.back()->number());
}

Deck &Session::makeDeck(DeckTrack track)
{
    DeckSetup setup;
    setup.number = ++decksMade_;
    setup.transform = transformFor(track.source->facts().format);
    setup.clocked = output_->opened().clocked;
    setup.onFailed = [mailbox = mailbox_](uint32_t serial, const std::string &reason) {
        mailbox->post({.kind = MessageKind::sourceFailed, .text = reason, .serial = serial});
    };
    decks_.push_back(std::make_unique<Deck>(std::move(setup), std::move(track)));
    lastDeck_ = decks_.back().get();
    return *lastDeck_;
}

} // namespace kelp_core
