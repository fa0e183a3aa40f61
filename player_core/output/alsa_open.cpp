#include "player_core/output/alsa_open.h"

#include "player_core/output/alsa_messages.h"
#include "player_core/output/alsa_name.h"
#include "player_core/output/alsa_output.h"
#include "player_core/output/hw_params_record.h"
#include "player_core/output/player_conf.h"
#include "player_core/output/wish_list.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace kelp_core {
namespace {

constexpr int dopBits = 24;

/// What is at hand once a PCM is open and before it is set up.
struct Candidate
{
    std::string name;
    std::unique_ptr<DeviceReservation> reservation;
    PcmHandle pcm;
    PcmChain chain;
    std::optional<PcmPlace> place;
};

OpenFailure failureOf(int error)
{
    switch (-error) {
    case ENOENT:
    case ENODEV:
    case ENXIO:
        return OpenFailure::missing;
    case EBUSY:
    case EAGAIN:
        return OpenFailure::busy;
    default:
        return OpenFailure::other;
    }
}

std::string openReason(int error, const std::string &said)
{
    if (failureOf(error) == OpenFailure::busy)
        return "the device is busy, another program has it";
    return alsaErrorText(error) + (said.empty() ? "" : " (" + said + ")");
}

/// Reserves a card; false when another program keeps it.
bool reserveCard(Candidate &candidate, int card, OpenAttempt &attempt)
{
    DeviceReservation::Outcome reservation = DeviceReservation::acquire(card, candidate.name);
    if (reservation.refused) {
        attempt.refuse(OpenFailure::busy, "the device is busy: " + reservation.note);
        return false;
    }
    candidate.reservation = std::move(reservation.held);
    attempt.notes.push_back(reservation.note);
    return true;
}

/// Reserves the card that the name speaks of, if it does; false when it cannot be opened.
bool reserveByName(Candidate &candidate, OpenAttempt &attempt)
{
    if (!parseHardwareName(candidate.name))
        return true;
    const int card = cardOf(candidate.name);
    if (card >= 0)
        return reserveCard(candidate, card, attempt);
    attempt.refuse(OpenFailure::missing, "there is no such sound card");
    return false;
}

bool openCandidate(Candidate &candidate, OpenAttempt &attempt)
{
    if (!reserveByName(candidate, attempt))
        return false;
    const AlsaMessages messages;
    snd_pcm_t *raw = nullptr;
    const int error = snd_pcm_open(&raw, candidate.name.c_str(), SND_PCM_STREAM_PLAYBACK, SND_PCM_NONBLOCK);
    if (error < 0) {
        attempt.refuse(failureOf(error), openReason(error, messages.text()));
        return false;
    }
    candidate.pcm.reset(raw);
    candidate.chain = chainOf(raw);
    candidate.place = candidate.chain.hardware ? placeOf(raw) : std::nullopt;
    // Of a PCM with a name of its own it is known only now that it ends at a card.
    const bool unasked = candidate.place && !parseHardwareName(candidate.name);
    return !unasked || reserveCard(candidate, candidate.place->card, attempt);
}

/// True when the set-up PCM really is what the wish needs, and not only by name.
bool keepsItsPromise(const Candidate &candidate, const Wish &wish, const PcmSetup &setup)
{
    if (wish.wire.carrier == Carrier::pcm)
        return true;
    const bool deepEnough =
        wish.wire.carrier != Carrier::dop || setup.significantBits == 0 || setup.significantBits >= dopBits;
    // Looked at again, because some PCMs build their chain only when they know the format.
    return deepEnough && chainOf(candidate.pcm.get()).untouched;
}

const Wish *configure(const Candidate &candidate, const WishPlan &plan, PcmSetup &setup, int &error)
{
    const AlsaMessages quiet;
    for (const Wish &wish : plan.wishes) {
        setup = PcmSetup{};
        error = configurePcm(candidate.pcm.get(), wish.wire, setup);
        if (error >= 0 && keepsItsPromise(candidate, wish, setup))
            return &wish;
        if (error >= 0)
            snd_pcm_hw_free(candidate.pcm.get());
        else if (failureOf(error) == OpenFailure::missing)
            return nullptr;
    }
    return nullptr;
}

std::string backendOf(const PcmChain &chain)
{
    if (chain.hardware)
        return chain.untouched ? "ALSA hardware" : "ALSA";
    if (chain.file)
        return "ALSA file";
    return chain.clocked ? "ALSA" : "ALSA null device";
}

std::string streamText(const StreamFormat &stream)
{
    return std::to_string(stream.rateHz) + " Hz, " + std::to_string(stream.depthBits) +
           (stream.depthBits == 1 ? " bit, " : " bits, ") + std::to_string(stream.channels) +
           (stream.channels == 1 ? " channel" : " channels");
}

/// What the listener should know about how the stream was made to fit.
void noteTheFit(const OutputRequest &request, const WishPlan &plan, const OpenedOutput &opened,
                const Wish &wish, std::vector<std::string> &notes)
{
    const bool askedDirect = !plan.wishes.empty() && plan.wishes.front().wire.carrier != Carrier::pcm;
    if (askedDirect && opened.wire.carrier == Carrier::pcm)
        notes.push_back("The device " + opened.device +
                        " did not take this DSD as it is, so it is decoded to PCM at " +
                        std::to_string(opened.pcmRateHz) + " Hz.");
    const int wanted = request.stream.isDsd() ? request.pcmBits : request.stream.depthBits;
    if (opened.wire.carrier == Carrier::pcm &&
        (wish.losesBits || opened.wire.validBits < std::min(wanted, 32)))
        notes.push_back("The device " + opened.device + " carries " + std::to_string(opened.wire.validBits) +
                        " bits, fewer than the " + std::to_string(wanted) + " of the stream.");
    if (opened.wire.channels > request.stream.channels)
        notes.push_back("The device " + opened.device +
                        " has no single channel, so that of the stream goes out on both.");
    if (wish.otherRate)
        notes.push_back("The stream is resampled to " + std::to_string(opened.pcmRateHz) +
                        " Hz, because that was allowed and the device prefers it.");
}

OpenedOutput describe(const Candidate &candidate, const Wish &wish, const PcmSetup &setup)
{
    OpenedOutput opened;
    opened.wire = wish.wire;
    if (wish.wire.carrier == Carrier::pcm && setup.significantBits > 0)
        opened.wire.validBits = std::min(opened.wire.validBits, setup.significantBits);
    opened.device = candidate.name;
    opened.deviceLabel = candidate.place ? candidate.place->name : candidate.name;
    opened.backend = backendOf(candidate.chain);
    opened.exclusive = candidate.chain.untouched;
    opened.mixer = candidate.chain.mixes;
    opened.pcmRateHz = wish.pcmRateHz;
    if (candidate.place)
        opened.readBack =
            readHwParams(candidate.place->card, candidate.place->device, candidate.place->subdevice);
    // A chain that ends in a file has a record too: what the file's own stage was set up for.
    else if (candidate.chain.file && !candidate.chain.hardware && !candidate.chain.mixes)
        opened.readBack = endSetupOf(candidate.pcm.get());
    const ReadBack &record = opened.readBack;
    opened.converts = record.known &&
                      (record.rateHz != opened.wire.frameRateHz || record.channels != opened.wire.channels ||
                       record.format != encodingName(opened.wire.encoding));
    return opened;
}

bool pacedByWish()
{
    const char *pace = std::getenv("KELP_ENGINE_PACE");
    return pace && std::string_view(pace) == "realtime";
}

} // namespace

OpenAttempt openAlsa(const OutputRequest &request, const std::string &name, bool exact,
                     std::vector<std::string> notes)
{
    OpenAttempt attempt;
    attempt.notes = std::move(notes);
    Candidate candidate;
    candidate.name = name;
    if (!openCandidate(candidate, attempt))
        return attempt;
    if (exact && !candidate.chain.untouched) {
        attempt.refuse(OpenFailure::touched,
                       "it is not the hardware itself, " + candidate.chain.blocker + " stands in the way");
        return attempt;
    }
    const std::vector<std::string> marks = readDsdOk();
    const std::string label = candidate.place ? candidate.place->name : name;
    const DeviceTraits traits{candidate.chain.untouched,
                              isDsdMarked(marks, name) || isDsdMarked(marks, label), 0};
    const WishPlan plan = planWishes(request, traits);
    attempt.notes.insert(attempt.notes.end(), plan.notes.begin(), plan.notes.end());
    PcmSetup setup;
    int error = 0;
    const Wish *wish = configure(candidate, plan, setup, error);
    if (!wish) {
        if (failureOf(error) == OpenFailure::missing)
            attempt.refuse(OpenFailure::missing, alsaErrorText(error));
        else
            attempt.refuse(OpenFailure::format, "it takes no format for " + streamText(request.stream));
        return attempt;
    }
    AlsaOutput::Parts parts;
    parts.opened = describe(candidate, *wish, setup);
    parts.opened.speakers = request.stream.speakers;
    const std::vector<int> places = placesOf(candidate.pcm.get());
    parts.order = orderFor(request.stream.speakers, places);
    if (!parts.order.empty()) {
        parts.opened.speakerOrder = placesText(places);
        attempt.notes.push_back("The channels go out in the order of the device's speakers (" +
                                parts.opened.speakerOrder + ").");
    }
    noteTheFit(request, plan, parts.opened, *wish, attempt.notes);
    parts.takesAtOnce = !candidate.chain.clocked;
    parts.paced = parts.takesAtOnce && pacedByWish();
    parts.opened.clocked = candidate.chain.clocked || parts.paced;
    parts.opened.notes = attempt.notes;
    parts.reservation = std::move(candidate.reservation);
    parts.pcm = std::move(candidate.pcm);
    parts.setup = setup;
    attempt.output = std::make_unique<AlsaOutput>(std::move(parts));
    return attempt;
}

} // namespace kelp_core
