#include "net/remote_command.h"

#include <algorithm>
#include <array>
#include <limits>

namespace {

constexpr int mostPercent = 100;
constexpr int mostLibraryRows = 1000;
constexpr int usualLibraryRows = 200;

struct NamedAction
{
    std::string_view name;
    RemoteAction action;
};

constexpr std::array namedActions = {
    NamedAction{"play", RemoteAction::Play},     NamedAction{"pause", RemoteAction::Pause},
    NamedAction{"toggle", RemoteAction::Toggle}, NamedAction{"stop", RemoteAction::Stop},
    NamedAction{"next", RemoteAction::Next},     NamedAction{"prev", RemoteAction::Prev},
    NamedAction{"vol", RemoteAction::Vol},       NamedAction{"playat", RemoteAction::PlayAt},
};

RemoteCommand invalid(std::string reason)
{
    return {RemoteAction::Invalid, 0, std::move(reason)};
}

bool isBlank(char character)
{
    return character == ' ' || (character >= '\t' && character <= '\r');
}

RemoteCommand volumeCommand(const RemoteRequest &request)
{
    const std::string text = request.value("v");
    if (text.empty())
        return invalid("missing v= (0..100)");
    std::int32_t percent = 0;
    if (!leadingNumber(text, percent) || percent < 0 || percent > mostPercent)
        return invalid("v= must be 0..100");
    return {RemoteAction::Vol, percent, {}};
}

RemoteCommand rowCommand(const RemoteRequest &request)
{
    if (!request.has("i"))
        return invalid("missing i= (0-based row)");
    std::int32_t row = 0;
    if (!leadingNumber(request.value("i"), row) || row < 0)
        return invalid("i= must be >= 0");
    return {RemoteAction::PlayAt, row, {}};
}

} // namespace

bool leadingNumber(std::string_view text, std::int32_t &number)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    bool negative = false;
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        negative = text.front() == '-';
        text.remove_prefix(1);
    }
    constexpr std::int64_t beyond = std::int64_t{1} << 32;
    std::int64_t magnitude = 0;
    bool found = false;
    for (; !text.empty() && text.front() >= '0' && text.front() <= '9'; text.remove_prefix(1)) {
        magnitude = std::min(magnitude * 10 + (text.front() - '0'), beyond);
        found = true;
    }
    using Range = std::numeric_limits<std::int32_t>;
    number = static_cast<std::int32_t>(
        std::clamp<std::int64_t>(negative ? -magnitude : magnitude, Range::min(), Range::max()));
    return found;
}

RemoteCommand parseRemoteCommand(const RemoteRequest &request)
{
    const std::string wanted = request.value("do");
    if (wanted.empty())
        return invalid("missing do= (play|pause|toggle|stop|next|prev|vol|playat)");
    const auto *named = std::ranges::find(namedActions, std::string_view(wanted),
                                          [](const NamedAction &row) { return row.name; });
    if (named == namedActions.end())
        return invalid("unknown do=: " + wanted);
    switch (named->action) {
    case RemoteAction::Vol:
        return volumeCommand(request);
    case RemoteAction::PlayAt:
        return rowCommand(request);
    default:
        return {named->action, 0, {}};
    }
}

int remoteLibraryLimit(const RemoteRequest &request)
{
    if (!request.has("n"))
        return usualLibraryRows;
    std::int32_t rows = 0;
    // A text without a number reads as 0.
    static_cast<void>(leadingNumber(request.value("n"), rows));
    return std::clamp<int>(rows, 1, mostLibraryRows);
}

bool remoteActionToggles(RemoteAction action, bool playing, bool paused)
{
    switch (action) {
    case RemoteAction::Toggle:
        return true;
    case RemoteAction::Play:
        return paused || !playing;
    case RemoteAction::Pause:
        // With nothing running the toggle starts the current row. Kept: a remote with one button, bound to
        // "pause", can start the music as well.
        return !paused;
    default:
        return false;
    }
}
