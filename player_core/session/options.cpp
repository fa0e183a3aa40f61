#include "player_core/session/options.h"

#include <array>
#include <charconv>
#include <cmath>
#include <optional>

namespace kelp_core {

namespace {

/// Takes the operand (empty for a flag without one); returns an error sentence or an empty text.
using Handler = std::string (*)(SessionOptions &, const std::string &);

struct Flag
{
    std::string_view name;
    bool operand;
    Handler handle;
};

std::string badOperand(std::string_view flag, const std::string &value, std::string_view wanted)
{
    return std::string(flag) + " takes " + std::string(wanted) + ", not \"" + value + "\".";
}

std::string notYet(SessionOptions &o, const std::string &what)
{
    o.warnings.push_back(what + " is not in this engine yet, so the music plays without it.");
    return {};
}

std::optional<bool> onOff(const std::string &value)
{
    if (value == "on")
        return true;
    if (value == "off")
        return false;
    return std::nullopt;
}

std::string setOnOff(bool &target, std::string_view flag, const std::string &value)
{
    const auto answer = onOff(value);
    if (!answer)
        return badOperand(flag, value, "on or off");
    target = *answer;
    return {};
}

std::string setSource(SessionOptions &o, std::string SessionOptions::*field, const std::string &value)
{
    if (value.empty())
        return "The path of the source is empty.";
    o.path.clear();
    o.cuePath.clear();
    o.isoPath.clear();
    o.*field = value;
    return {};
}

std::string setSeconds(double &target, std::string_view flag, const std::string &value, double most)
{
    double seconds = 0;
    if (!parseNumber(value, seconds) || seconds < 0 || seconds > most)
        return badOperand(flag, value, "a number of seconds");
    target = seconds;
    return {};
}

std::string setPcmBits(SessionOptions &o, const std::string &value)
{
    constexpr std::array<std::pair<std::string_view, int>, 4> depths{
        {{"16", 16}, {"24", 24}, {"32", 32}, {"float32", 32}}};
    for (const auto &[word, bits] : depths) {
        if (value == word) {
            o.pcmBits = bits;
            o.pcmFloat = word == "float32";
            o.pcmBitsChosen = true;
            return {};
        }
    }
    return badOperand("-pcm-bits", value, "16, 24, 32 or float32");
}

std::string setAddress(uint64_t &target, std::string_view flag, const std::string &value)
{
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), target);
    if (error != std::errc() || end != value.data() + value.size())
        return badOperand(flag, value, "an address in decimal");
    return {};
}

std::string setSpeed(SessionOptions &o, const std::string &value)
{
    double ratio = 0;
    if (!parseNumber(value, ratio) || ratio < SpeedPlan::slowest || ratio > SpeedPlan::fastest)
        return badOperand("-speed", value, "a ratio from 0.5 to 3.0");
    o.speed.ratio = ratio;
    return {};
}

std::string setReplayGain(SessionOptions &o, const std::string &value)
{
    if (value == "off")
        o.replayGain = ReplayGainMode::off;
    else if (value == "track")
        o.replayGain = ReplayGainMode::track;
    else if (value == "album")
        o.replayGain = ReplayGainMode::album;
    else
        return badOperand("-replaygain", value, "off, track or album");
    return {};
}

std::string setMode(SessionOptions &o, const std::string &value)
{
    return value == "standard" ? std::string() : notYet(o, "The output mode \"" + value + "\"");
}

constexpr double longestSec = 1e7;

// In the order of the help text. Flags of stages that are still to come are taken with their operand, so that
// a host of today's command line is understood, and answer with one sentence when they would be heard.
constexpr Flag flags[] = {
    {"-i", true,
     [](SessionOptions &o, const std::string &v) { return setSource(o, &SessionOptions::path, v); }},
    {"-cue", true,
     [](SessionOptions &o, const std::string &v) { return setSource(o, &SessionOptions::cuePath, v); }},
    {"-iso", true,
     [](SessionOptions &o, const std::string &v) { return setSource(o, &SessionOptions::isoPath, v); }},
    {"-track", true,
     [](SessionOptions &o, const std::string &v) {
         int64_t n = 0;
         if (!parseInteger(v, n) || n < 0 || n > 999)
             return badOperand("-track", v, "a track number");
         o.track = static_cast<int>(n);
         return std::string();
     }},
    {"-stream", false,
     [](SessionOptions &o, const std::string &) {
         o.stream = true;
         return std::string();
     }},
    {"-start", true,
     [](SessionOptions &o, const std::string &v) { return setSeconds(o.startSec, "-start", v, longestSec); }},
    {"-dev", true,
     [](SessionOptions &o, const std::string &v) {
         o.device = v;
         return std::string();
     }},
    {"-output-path", true,
     [](SessionOptions &o, const std::string &v) {
         if (v == "auto")
             o.outputPath = PathPolicy::automatic;
         else if (v == "exclusive")
             o.outputPath = PathPolicy::exclusive;
         else if (v == "shared")
             o.outputPath = PathPolicy::shared;
         else
             return badOperand("-output-path", v, "auto, exclusive or shared");
         return std::string();
     }},
    {"-dop", true,
     [](SessionOptions &o, const std::string &v) {
         if (v == "auto")
             o.dop = DopPolicy::automatic;
         else if (v == "force")
             o.dop = DopPolicy::force;
         else if (v == "native")
             o.dop = DopPolicy::native;
         else if (v == "asio") {
             o.warnings.push_back("ASIO does not exist on this system; DSD takes the automatic way.");
             o.dop = DopPolicy::automatic;
         } else
             return badOperand("-dop", v, "auto, force or native");
         return std::string();
     }},
    {"-resample", false,
     [](SessionOptions &o, const std::string &) {
         o.resample = true;
         return std::string();
     }},
    {"-src-quality", true,
     [](SessionOptions &o, const std::string &v) {
         const auto quality = resampleQualityByName(v);
         if (!quality)
             return badOperand("-src-quality", v, "fast, standard or best");
         o.srcQuality = *quality;
         return std::string();
     }},
    {"-pcm", false,
     [](SessionOptions &o, const std::string &) {
         o.forcePcm = true;
         return std::string();
     }},
    {"-pcm-bits", true, setPcmBits},
    {"-pcm-filter", true,
     [](SessionOptions &o, const std::string &v) {
         const auto filter = pdmFilterByName(v);
         if (!filter)
             return badOperand("-pcm-filter", v, "fast, standard or best");
         o.pcmFilter = *filter;
         o.pcmFilterChosen = true;
         return std::string();
     }},
    {"-vol", true,
     [](SessionOptions &o, const std::string &v) {
         int64_t n = 0;
         if (!parseInteger(v, n) || n < 0 || n > 100)
             return badOperand("-vol", v, "a number from 0 to 100");
         o.volume = static_cast<int>(n);
         return std::string();
     }},
    {"-crossfade", true,
     [](SessionOptions &o, const std::string &v) { return setSeconds(o.crossfadeSec, "-crossfade", v, 60); }},
    {"-gapless", true,
     [](SessionOptions &o, const std::string &v) { return setOnOff(o.gapless, "-gapless", v); }},
    {"-spectrum", true,
     [](SessionOptions &o, const std::string &v) { return setOnOff(o.spectrum, "-spectrum", v); }},
    {"-scope", true, [](SessionOptions &o, const std::string &v) { return setOnOff(o.scope, "-scope", v); }},
    {"-parent-pid", true,
     [](SessionOptions &o, const std::string &v) {
         if (!parseInteger(v, o.parentPid) || o.parentPid < 1)
             return badOperand("-parent-pid", v, "a process id");
         return std::string();
     }},
    {"-inproc-host", false, [](SessionOptions &, const std::string &) { return std::string(); }},
    {"-inproc-ctl", true,
     [](SessionOptions &o, const std::string &v) { return setAddress(o.inprocQueue, "-inproc-ctl", v); }},
    {"-inproc-ctl-fn", true,
     [](SessionOptions &o, const std::string &v) { return setAddress(o.inprocReadFn, "-inproc-ctl-fn", v); }},
    {"-dsp-plugins-on", false,
     [](SessionOptions &o, const std::string &) { return notYet(o, "The chain of DSP plugins"); }},
    // Reading ahead is what this engine always does, so the flag has nothing to switch.
    {"-prefetch", true,
     [](SessionOptions &, const std::string &v) {
         return onOff(v) ? std::string() : badOperand("-prefetch", v, "on or off");
     }},
    {"-mode", true, setMode},
    // The mode has said that it is missing; its operands need no second sentence.
    {"-devs", true, [](SessionOptions &, const std::string &) { return std::string(); }},
    {"-xo", true, [](SessionOptions &, const std::string &) { return std::string(); }},
    {"-rig", true,
     [](SessionOptions &o, const std::string &v) {
         return v == "direct" || v == "auto" ? std::string() : notYet(o, "The speaker rig \"" + v + "\"");
     }},
    {"-peak-guard", true,
     [](SessionOptions &o, const std::string &v) { return setOnOff(o.peakGuard, "-peak-guard", v); }},
    {"-denoise", true,
     [](SessionOptions &o, const std::string &v) {
         return v == "off" ? std::string() : notYet(o, "Noise reduction");
     }},
    // Says how noise reduction works, and that has already been said to be missing.
    {"-keep-harmonics", true,
     [](SessionOptions &, const std::string &v) {
         return onOff(v) ? std::string() : badOperand("-keep-harmonics", v, "on or off");
     }},
    {"-replaygain", true, setReplayGain},
    {"-speed", true, setSpeed},
    {"-pitch-lock", true,
     [](SessionOptions &o, const std::string &v) { return setOnOff(o.speed.pitchKept, "-pitch-lock", v); }},
    {"-pcm2dsd", false,
     [](SessionOptions &o, const std::string &) { return notYet(o, "Turning PCM into DSD"); }},
    {"-pcm2dsd-target", true, [](SessionOptions &, const std::string &) { return std::string(); }},
    {"-pcm2dsd-taps", true, [](SessionOptions &, const std::string &) { return std::string(); }},
    {"-ext-decoder", true,
     [](SessionOptions &o, const std::string &) { return notYet(o, "An external decoder"); }},
};

const Flag *findFlag(std::string_view name)
{
    for (const Flag &flag : flags) {
        if (flag.name == name)
            return &flag;
    }
    return nullptr;
}

ParsedCommand bad(std::string sentence)
{
    ParsedCommand result;
    result.error = std::move(sentence);
    return result;
}

} // namespace

bool parseNumber(std::string_view text, double &value)
{
    double parsed = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), parsed);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(parsed))
        return false;
    value = parsed;
    return true;
}

bool parseInteger(std::string_view text, int64_t &value)
{
    int64_t parsed = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), parsed);
    if (error != std::errc() || end != text.data() + text.size())
        return false;
    value = parsed;
    return true;
}

ParsedCommand parseCommandLine(const std::vector<std::string> &args)
{
    ParsedCommand result;
    for (size_t i = 0; i < args.size(); ++i) {
        const std::string &name = args[i];
        if (name == "--help" || name == "-h" || name == "-help") {
            result.kind = CommandKind::help;
            return result;
        }
        if (name == "--version") {
            result.kind = CommandKind::version;
            return result;
        }
        const Flag *flag = findFlag(name);
        if (!flag)
            return bad("Unknown option \"" + name + "\"; --help lists all of them.");
        if (flag->operand && i + 1 == args.size())
            return bad(name + " needs a value behind it.");
        const std::string error = flag->handle(result.options, flag->operand ? args[++i] : std::string());
        if (!error.empty())
            return bad(error);
    }
    if (!result.options.hasSource() && !result.options.stream)
        return bad("Nothing to play: give -i FILE, -cue SHEET, or -stream; --help tells more.");
    if ((result.options.inprocQueue != 0) != (result.options.inprocReadFn != 0))
        return bad("-inproc-ctl and -inproc-ctl-fn belong together.");
    result.kind = CommandKind::session;
    return result;
}

} // namespace kelp_core
