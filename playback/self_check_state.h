/// \file
/// The window's memory of a self-check.
#pragma once

#include "playback/self_check_statements.h"

#include <QStringList>
#include <optional>

struct SelfCheckState
{
    bool verifyActive = false; ///< lines of the engine's answer belong to the check in the dialog
    bool verifyGotVerdict = false;
    int track = -1;          ///< of the chain's facts, when the check was asked for
    QList<VerifyItem> items; ///< in the order in which they came
    QStringList lines;       ///< the answer as it came, for the saved report
    std::optional<VerifyVerdict> verdict;

    /// What the last check found for a track; nothing for any other.
    std::optional<bool> passedFor(int wantedTrack) const
    {
        return verdict && track == wantedTrack ? std::optional(verdict->passed) : std::nullopt;
    }
};

/// An engine that answers without end does not fill the memory.
inline constexpr qsizetype mostVerifyLines = 500;
