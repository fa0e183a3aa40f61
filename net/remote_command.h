/// \file
/// What a phone may tell the player.
#pragma once

#include "net/remote_request.h"

#include <cstdint>

enum class RemoteAction
{
    Play = 1,
    Pause,
    Toggle,
    Stop,
    Next,
    Prev,
    Vol,
    PlayAt,
    Invalid,
};

/// The parsed query of /cmd.
struct RemoteCommand
{
    RemoteAction action = RemoteAction::Invalid;
    std::int32_t value = 0; ///< Vol: percent, 0 to 100; PlayAt: row, from 0
    std::string error;      ///< why a command is invalid: English, for the program that asked
};

RemoteCommand parseRemoteCommand(const RemoteRequest &request);

/// The number at the start of a text, read as strtol does: blanks, a sign and digits count, the rest is
/// ignored, and what is too large for 32 bits stays at the end of their range.
/// \return false when there is no digit
[[nodiscard]] bool leadingNumber(std::string_view text, std::int32_t &number);

/// How many rows /library is asked for, 1 to 1000: the key "n" as atoi reads it, 200 without it.
int remoteLibraryLimit(const RemoteRequest &request);

/// Whether Play, Pause or Toggle comes down to the player's one toggle between start, pause and resume.
/// \param playing a track runs, paused or not
bool remoteActionToggles(RemoteAction action, bool playing, bool paused);
