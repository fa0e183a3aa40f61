#include "player_core/session/control_line.h"

#include "player_core/dsp/fixed_text.h"
#include "player_core/session/options.h"

#include <cstdint>

namespace kelp_core {

namespace {

constexpr double longestTrackSec = 1e7;

std::string_view takeWord(std::string_view &rest)
{
    const size_t blank = rest.find(' ');
    const std::string_view word = rest.substr(0, blank);
    rest = blank == std::string_view::npos ? std::string_view() : rest.substr(blank + 1);
    return word;
}

ControlLine malformed(std::string sentence)
{
    ControlLine line;
    line.kind = ControlKind::malformed;
    line.error = std::move(sentence);
    return line;
}

ControlLine withPath(ControlKind kind, std::string_view command, std::string_view rest)
{
    if (rest.empty())
        return malformed("The line \"" + std::string(command) + "\" came without a path.");
    ControlLine line;
    line.kind = kind;
    line.path = rest;
    return line;
}

ControlLine parseLoad(std::string_view command, std::string_view rest)
{
    return withPath(ControlKind::load, command, rest);
}

ControlLine parseLoadAt(std::string_view command, std::string_view rest)
{
    const std::string_view word = takeWord(rest);
    double seconds = 0;
    if (!parseNumber(word, seconds) || seconds < 0 || seconds > longestTrackSec)
        return malformed("The line \"loadat\" takes a number of seconds, not \"" + std::string(word) + "\".");
    ControlLine line = withPath(ControlKind::loadAt, command, rest);
    line.seconds = seconds;
    return line;
}

ControlLine parseTrackLoad(ControlKind kind, std::string_view command, std::string_view rest)
{
    const std::string_view word = takeWord(rest);
    int64_t track = 0;
    if (!parseInteger(word, track) || track < 0 || track > 999)
        return malformed("The line \"" + std::string(command) + "\" takes a track number, not \"" +
                         std::string(word) + "\".");
    ControlLine line = withPath(kind, command, rest);
    line.track = static_cast<int>(track);
    return line;
}

ControlLine parseVolume(std::string_view, std::string_view rest)
{
    int64_t volume = 0;
    if (!parseInteger(rest, volume) || volume < 0 || volume > 100)
        return malformed("The line \"vol\" takes a number from 0 to 100, not \"" + std::string(rest) + "\".");
    ControlLine line;
    line.kind = ControlKind::volume;
    line.volume = static_cast<int>(volume);
    return line;
}

ControlLine parseSpeed(std::string_view, std::string_view rest)
{
    ControlLine line;
    line.kind = ControlKind::speed;
    if (!parseNumber(rest, line.ratio) || line.ratio < SpeedPlan::slowest || line.ratio > SpeedPlan::fastest)
        return malformed("The line \"speed\" takes a ratio from 0.5 to 3.0, not \"" + std::string(rest) +
                         "\"; the speed stays as it is.");
    return line;
}

ControlLine parseLoop(std::string_view, std::string_view rest)
{
    ControlLine line;
    line.kind = ControlKind::loopOff;
    if (rest == "off")
        return line;
    line.kind = ControlKind::loop;
    const std::string whole(rest);
    const std::string_view from = takeWord(rest);
    if (!parseNumber(from, line.seconds) || !parseNumber(rest, line.toSec) || line.seconds < 0 ||
        line.toSec > longestTrackSec)
        return malformed("The A/B loop is refused: two points in seconds are wanted, or \"off\", not \"" +
                         whole + "\".");
    if (line.toSec <= line.seconds)
        return malformed("The A/B loop is refused: point B (" + fixedText(line.toSec, 3) +
                         " s) must come after point A (" + fixedText(line.seconds, 3) + " s).");
    return line;
}

ControlLine parseSwitch(ControlKind kind, std::string_view command, std::string_view rest)
{
    if (rest != "on" && rest != "off")
        return malformed("The line \"" + std::string(command) + "\" takes on or off, not \"" +
                         std::string(rest) + "\".");
    ControlLine line;
    line.kind = kind;
    line.on = rest == "on";
    return line;
}

template<ControlKind kind>
ControlLine bare(std::string_view, std::string_view)
{
    ControlLine line;
    line.kind = kind;
    return line;
}

template<ControlKind kind>
ControlLine trackLoad(std::string_view command, std::string_view rest)
{
    return parseTrackLoad(kind, command, rest);
}

template<ControlKind kind>
ControlLine onOffSwitch(std::string_view command, std::string_view rest)
{
    return parseSwitch(kind, command, rest);
}

struct Command
{
    std::string_view word;
    ControlLine (*parse)(std::string_view command, std::string_view rest);
};

constexpr Command commands[] = {
    {"stop", bare<ControlKind::stop>},
    {"load", parseLoad},
    {"loadat", parseLoadAt},
    {"load-cue", trackLoad<ControlKind::loadCue>},
    {"load-iso", trackLoad<ControlKind::loadIso>},
    {"pause", bare<ControlKind::pause>},
    {"resume", bare<ControlKind::resume>},
    {"play", bare<ControlKind::resume>},
    {"vol", parseVolume},
    {"spectrum", onOffSwitch<ControlKind::spectrum>},
    {"scope", onOffSwitch<ControlKind::scope>},
    {"report", bare<ControlKind::report>},
    {"verify", bare<ControlKind::verify>},
    {"speed", parseSpeed},
    {"ab", parseLoop},
    {"guard", onOffSwitch<ControlKind::guard>},
};

/// Whether an effects line would change what is heard. A host sends all its settings after each load, most of
/// them neutral; those must not make a warning.
std::string missedEffect(std::string_view rest)
{
    const std::string_view effect = takeWord(rest);
    if (effect == "balance")
        return rest == "50" ? "" : "balance";
    if (effect == "width")
        return rest == "100" ? "" : "stereo width";
    if (effect == "denoise")
        return rest == "off" ? "" : "noise reduction";
    if (effect == "plugins")
        return rest == "off" ? "" : "DSP plugins";
    if ((effect == "reverb" || effect == "tone" || effect == "eq" || effect == "hrtf") && rest == "on")
        return std::string(effect);
    return {};
}

} // namespace

ControlLine parseControlLine(std::string_view line)
{
    while (!line.empty() && (line.back() == '\r' || line.back() == '\n'))
        line.remove_suffix(1);
    if (line.empty())
        return {};
    if (line.find('\0') != std::string_view::npos)
        return malformed("A control line held a zero byte.");
    std::string_view rest = line;
    const std::string_view word = takeWord(rest);
    for (const Command &command : commands) {
        if (command.word == word)
            return command.parse(word, rest);
    }
    ControlLine result;
    result.kind = ControlKind::notSupported;
    result.heardAbout = word == "fx" ? missedEffect(rest) : std::string();
    return result;
}

} // namespace kelp_core
