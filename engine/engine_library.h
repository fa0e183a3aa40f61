/// \file
/// The engine's shared library, loaded at its first use: it draws in many libraries of its own, and the
/// window must not wait for them.
#pragma once

#include "player_core/include/kelp_player_core.h"

#include <QString>
#include <QStringList>
#include <mutex>

namespace kelp {

/// Safe from any thread. Once loaded, a library stays for the life of the process: an engine's thread may
/// outlive its session.
class EngineLibrary
{
public:
    using MainEntry = decltype(&kelp_player_main);
    using ProbeEntry = decltype(&kelp_player_probe);

    /// \param candidates paths, the first that can be loaded counts
    explicit EngineLibrary(QStringList candidates);

    /// The program's own library: beside the program, else where an installation has it. Needs the
    /// application object at the first call.
    static EngineLibrary &ofProgram();
    /// The candidates of a program in programDir, in their order.
    static QStringList candidatesFor(const QString &programDir);

    /// Loads the library if that has not happened. A failed attempt is made again at the next call.
    bool load();
    /// load() without an answer, for a thread in the background.
    void preload() { load(); }

    MainEntry mainEntry();   ///< null when it cannot be had; errorText() tells why
    ProbeEntry probeEntry(); ///< likewise
    /// A sentence on the last failure, empty when there was none.
    QString errorText() const;

private:
    bool loadLocked();
    bool resolve(void *handle, const QString &path);

    const QStringList m_candidates;
    mutable std::mutex m_mutex; ///< guards all below
    MainEntry m_main = nullptr;
    ProbeEntry m_probe = nullptr;
    QString m_error;
};

} // namespace kelp
