/// \file
/// The hooks by which scripts drive the program: environment variables, read once at start.
#pragma once

#include <QString>
#include <functional>
#include <optional>

struct HookPlan
{
    struct Autoplay
    {
        QString path;
        QString device; ///< empty keeps the selection
        bool operator==(const Autoplay &) const = default;
    };
    struct JumpAt
    {
        double afterSec = 0.;
        int row = 0;
        bool operator==(const JumpAt &) const = default;
    };
    struct NextEvery
    {
        double everySec = 0.;
        int count = 0;
        bool operator==(const NextEvery &) const = default;
    };
    struct MoveRow
    {
        int from = 0;
        int to = 0;
        bool operator==(const MoveRow &) const = default;
    };

    std::optional<Autoplay> autoplay;
    std::optional<JumpAt> jumpAt;
    std::optional<NextEvery> nextEvery;
    double nextAfterSec = 0.; ///< 0: not armed, here and in the next three
    double quitAfterSec = 0.;
    double stopAfterSec = 0.;
    double autostopMs = 0.;
    double checkAfterSec = 0.; ///< the bit-perfect self-check
    std::optional<MoveRow> moveRow;
    QString badMoveRow; ///< a value that cannot be read
    bool rigDump = false;
    QString rigDumpValue;
    bool autoClose = false;
    QString shotPath;
    double shotAfterSec = 0.; ///< above 0: the picture is taken so much later, of a window that plays
    bool smoke = false;
    bool smokeWide = false;
    bool smokeHang = false;

    /// One of the armed hooks ends the program; then closing must meet no question box.
    bool endsProgram() const { return quitAfterSec > 0. || autoClose || smoke || rigDump; }
};

/// The value of a variable, none when it is not set.
using HookEnvironment = std::function<std::optional<QString>(const char *name)>;

/// A value that cannot be read arms nothing.
HookPlan parseHooks(const HookEnvironment &environment);
/// The environment of this process.
HookEnvironment processHookEnvironment();
