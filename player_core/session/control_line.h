#pragma once

#include <string>
#include <string_view>

namespace kelp_core {

/// The control lines this engine acts on, and the two ways of not doing so.
enum class ControlKind
{
    stop,
    load,
    loadAt,
    loadCue,
    loadIso,
    pause,
    resume, ///< `resume` and `play`
    volume,
    spectrum,
    scope,
    report,
    verify,
    speed,
    loop,    ///< `ab A B`
    loopOff, ///< `ab off`
    guard,
    notSupported, ///< known or unknown, not built: logged
    malformed,    ///< error says what is wrong
    empty,
};

/// One parsed control line. Plain value.
struct ControlLine
{
    ControlKind kind = ControlKind::empty;
    std::string path;   ///< load forms: the rest of the line, as it stands
    int track = 0;      ///< load-cue, load-iso
    double seconds = 0; ///< loadat; loop: point A
    double toSec = 0;   ///< loop: point B
    double ratio = 1.0; ///< speed
    int volume = 0;
    bool on = false;        ///< spectrum, scope, guard
    std::string error;      ///< malformed: a whole sentence
    std::string heardAbout; ///< notSupported: what a listener would miss, or empty
};

/// The longest line taken, without its end; a longer one is lost and said to be.
inline constexpr size_t maxControlLine = 64 * 1024;

/// Parses a line without its end. Words are separated by single blanks; a path is the rest of the line.
[[nodiscard]] ControlLine parseControlLine(std::string_view line);

} // namespace kelp_core
