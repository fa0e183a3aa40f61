/// \file
/// Where the engine's program is looked for.
#pragma once

#include <QString>
#include <functional>

struct EngineLocationFacts
{
    QString environmentPath;  ///< the value of KELP_PLAYER_BIN, empty when unset
    QString programDir;       ///< the directory of the running program
    QString currentDir;       ///< what relative candidates are resolved against
    QString executableSuffix; ///< of the platform, with its dot; empty on Linux
    /// Whether a path names an existing regular file that is not empty.
    std::function<bool(const QString &)> isUsableFile;
};

/// Both fields are empty when there is no engine.
struct EngineLocation
{
    QString path;
    QString source; ///< translated label of where it was found
};

/// The first usable candidate: the environment's, the one beside the program, the builds of a source tree.
EngineLocation locateEngine(const EngineLocationFacts &facts);

/// Whether path names a regular file that is not empty.
bool isUsableEngineFile(const QString &path);

/// The facts of this process, with a test on the real file system. Needs the application object.
EngineLocationFacts engineLocationFacts();
