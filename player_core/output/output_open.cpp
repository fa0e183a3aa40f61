#include "player_core/output/output.h"

#include "player_core/output/alsa_cards.h"
#include "player_core/output/alsa_name.h"
#include "player_core/output/alsa_open.h"
#include "player_core/output/clock_output.h"
#include "player_core/output/ladder.h"
#include "player_core/output/pulse_output.h"
#include "player_core/output/wish_list.h"

#include <algorithm>
#include <exception>
#include <optional>

namespace kelp_core {
namespace {

std::string rungText(const Rung &rung)
{
    switch (rung.kind) {
    case Rung::Kind::alsaExact:
        return "The direct path to " + rung.name;
    case Rung::Kind::alsaAny:
        return "The ALSA device " + rung.name;
    case Rung::Kind::pulse:
        return rung.name.empty() ? "The sound server" : "The sound server's sink " + rung.name;
    case Rung::Kind::pulseCard:
        return "The sound server's sink for " + rung.name;
    case Rung::Kind::clockedNull:
        break;
    }
    return "The null device";
}

std::optional<SinkFacts> sinkFor(PulseConnection &connection, const Rung &rung)
{
    if (rung.kind == Rung::Kind::pulse)
        return connection.sink(rung.name);
    const int card = cardOf(rung.name);
    for (SinkFacts &facts : connection.sinks())
        if (card >= 0 && facts.card == card)
            return facts;
    return std::nullopt;
}

OpenAttempt openPulse(const OutputRequest &request, const Rung &rung, std::vector<std::string> notes)
{
    OpenAttempt attempt;
    std::string why;
    std::unique_ptr<PulseConnection> connection = PulseConnection::connect(why);
    if (!connection) {
        attempt.refuse(OpenFailure::missing, why);
        return attempt;
    }
    const std::optional<SinkFacts> sink = sinkFor(*connection, rung);
    if (!sink) {
        attempt.refuse(OpenFailure::missing, "the sound server has no such sink");
        return attempt;
    }
    WishPlan plan = planWishes(request, {false, false, sink->rateHz});
    const auto wish = std::find_if(plan.wishes.begin(), plan.wishes.end(),
                                   [](const Wish &one) { return PulseOutput::carries(one.wire); });
    if (wish == plan.wishes.end()) {
        attempt.refuse(OpenFailure::format, "the sound server knows no format for this stream");
        return attempt;
    }
    OpenedOutput opened;
    opened.device = rung.kind == Rung::Kind::pulse && rung.name.empty() ? "pulse" : "pulse:" + sink->name;
    opened.speakers = request.stream.speakers;
    opened.notes = std::move(notes);
    opened.notes.insert(opened.notes.end(), plan.notes.begin(), plan.notes.end());
    attempt.output = PulseOutput::open(std::move(connection), *sink, *wish, std::move(opened), why);
    if (attempt.output)
        attempt.notes = attempt.output->opened().notes;
    else
        attempt.refuse(OpenFailure::other, why);
    return attempt;
}

OpenAttempt openClock(const OutputRequest &request, std::vector<std::string> notes)
{
    const WishPlan plan = planWishes(request, DeviceTraits{});
    OpenedOutput opened;
    opened.wire = plan.wishes.front().wire;
    opened.pcmRateHz = plan.wishes.front().pcmRateHz;
    opened.device = "null clock";
    opened.deviceLabel = "no sound device";
    opened.backend = "null device";
    opened.notes = std::move(notes);
    opened.notes.push_back("no sound device: playing to a clocked null device");
    OpenAttempt attempt;
    attempt.notes = opened.notes;
    attempt.output = std::make_unique<ClockOutput>(std::move(opened));
    return attempt;
}

OpenAttempt openRung(const OutputRequest &request, const Rung &rung, std::vector<std::string> notes)
{
    switch (rung.kind) {
    case Rung::Kind::alsaExact:
        return openAlsa(request, rung.name, true, std::move(notes));
    case Rung::Kind::alsaAny:
        return openAlsa(request, rung.name, false, std::move(notes));
    case Rung::Kind::pulse:
    case Rung::Kind::pulseCard:
        return openPulse(request, rung, std::move(notes));
    case Rung::Kind::clockedNull:
        break;
    }
    return openClock(request, std::move(notes));
}

std::string missingText(const std::string &deviceId, const std::string &reason)
{
    return "device '" + deviceId + "' endpoint not found: " + reason;
}

/// Why a request without a single rung cannot be met.
std::string noRungText(const std::string &deviceId)
{
    return deviceId.empty() ? "cannot get exclusive access: there is no hardware sound card"
                            : "cannot get exclusive access to " + deviceId +
                                  ": a sound server mixes and never gives the hardware to one program";
}

OutputOutcome climb(const OutputRequest &request)
{
    OutputOutcome outcome;
    const bool exclusive = request.path == PathPolicy::exclusive;
    std::string firstHardware;
    if (exclusive && request.deviceId.empty())
        if (const std::vector<CardPcm> pcms = cardPcms(); !pcms.empty())
            firstHardware = pcms.front().id();
    const std::vector<Rung> rungs = planRungs(request.path, request.deviceId, firstHardware);
    outcome.error = noRungText(request.deviceId);
    for (const Rung &rung : rungs) {
        OpenAttempt attempt = openRung(request, rung, outcome.notes);
        if (attempt.output) {
            outcome.error.clear();
            outcome.notes = std::move(attempt.notes);
            outcome.output = std::move(attempt.output);
            return outcome;
        }
        const bool named = !request.deviceId.empty() && rung.kind != Rung::Kind::pulseCard;
        if (named && attempt.failure == OpenFailure::missing) {
            outcome.error = missingText(request.deviceId, attempt.reason);
            return outcome;
        }
        const std::string name = rung.name.empty() ? request.deviceId : rung.name;
        outcome.error =
            (exclusive ? "cannot get exclusive access to " : "cannot open ") + name + ": " + attempt.reason;
        outcome.notes.push_back(rungText(rung) + " was not taken: " + attempt.reason + ".");
    }
    return outcome;
}

bool isPlayable(const StreamFormat &stream)
{
    return stream.rateHz > 0 && stream.channels >= 1 && stream.channels <= StreamFormat::maxChannels &&
           stream.depthBits >= 1;
}

} // namespace

OutputOutcome openOutput(const OutputRequest &request)
{
    OutputOutcome outcome;
    if (!isPlayable(request.stream)) {
        outcome.error = "cannot open a device: the stream has no usable format";
        return outcome;
    }
    try {
        return climb(request);
    } catch (const std::exception &failure) {
        outcome.error = std::string("cannot open a device: ") + failure.what();
        return outcome;
    }
}

} // namespace kelp_core
