#include "player_core/probe/probe_table.h"

#include "player_core/probe/analyze_answer.h"
#include "player_core/probe/device_answers.h"
#include "player_core/source/cover.h"
#include "player_core/source/cue_list.h"
#include "player_core/source/sacd_source.h"

#include <charconv>

namespace kelp_core {

namespace {

/// A question that a host may ask and that this engine has no answer for yet.
ProbeAnswer notYet(const std::vector<std::string> &args)
{
    return {2, "This engine cannot answer " + args.front() + " yet.\n"};
}

ProbeAnswer cueList(const std::vector<std::string> &args)
{
    if (args.size() < 2)
        return {2, "-cue-list needs the path of a CUE sheet behind it.\n"};
    CueListing listing = listCue(args[1]);
    return {listing.exitCode, std::move(listing.text)};
}

ProbeAnswer isoList(const std::vector<std::string> &args)
{
    if (args.size() < 2)
        return {2, "-iso-list needs the path of an SACD image behind it.\n"};
    SacdListing listing = listSacd(args[1]);
    return {listing.exitCode, std::move(listing.text)};
}

ProbeAnswer cover(const std::vector<std::string> &args)
{
    CoverRequest request;
    request.outPath = operandOf(args, "-out");
    if (args.size() < 2 || request.outPath.empty())
        return {2, "-cover needs the path of an audio file and -out with the path of the picture.\n"};
    request.path = args[1];
    const std::string track = operandOf(args, "-track");
    const auto [end, error] = std::from_chars(track.data(), track.data() + track.size(), request.track);
    if (!track.empty() && (error != std::errc() || end != track.data() + track.size()))
        return {2, "-track takes a track number.\n"};
    const CoverAnswer answer = extractCover(request);
    return {answer.exitCode, answer.line + '\n'};
}

constexpr Probe probes[] = {
    {"-cue-list", cueList}, {"-cover", cover},          {"-dsd-caps", notYet},
    {"-iso-list", isoList}, {"-analyze", analyzeTrack}, {"-fingerprint", notYet},
    {"-scan", notYet},      {"-check-ext", notYet},     {"-rig-info", notYet},
};

} // namespace

std::optional<ProbeAnswer> answerProbe(const std::vector<std::string> &args)
{
    const auto answer = answerDeviceProbe(args);
    return answer ? answer : answerFrom(probes, args);
}

ProbeAnswer unknownProbe(const std::vector<std::string> &args)
{
    if (args.empty())
        return {2, "No question was asked.\n"};
    return {2, "\"" + args.front() + "\" is no question this engine knows.\n"};
}

} // namespace kelp_core
