/// \file
/// The loop between two points of a track.
#pragma once

#include "playback/play_order.h"

struct AbLoopState
{
    double pointA = -1.; ///< seconds of the source, -1 while unset
    double pointB = -1.; ///< likewise
    int row = -1;        ///< that the points belong to
    /// A loop repeats its track, so the repeat axis is forced; what it stood at comes back with the loop's
    /// end.
    RepeatAxis savedRepeat = RepeatAxis::None;
    bool repeatForced = false;

    bool isMarked() const { return pointA >= 0. || pointB >= 0.; }
    bool isComplete() const { return pointA >= 0. && pointB >= 0.; }
    /// B stands behind A: the loop can be sent.
    bool isSound() const { return isComplete() && pointB > pointA; }
};

/// The control line that starts the loop.
QString abLoopLine(const AbLoopState &loop);

/// The log sentences, translated.
QString abPointText(const QString &name, double positionSec);
QString abRefusedText(const AbLoopState &loop); ///< B does not come after A
QString abMarkedText();                         ///< nothing plays yet
QString abStartedText(const AbLoopState &loop);
/// \param restoredOrder the order that came back, empty when none was forced
QString abClearedText(const QString &restoredOrder);
QString abDiscardedText();
