/// \file
/// Where the engine writes its log.
#pragma once

#include <QString>
#include <QTemporaryDir>
#include <memory>

/// Settles the path of the engine's log for this run of the program and exports it as KELP_ENGINE_LOG,
/// which is how an engine in either kind of session learns it. A value that is already exported is kept,
/// so that one run writes one log for all its sessions.
///
/// \param stem    file name without ".log"
/// \param holder  receives the run's temporary directory, which is deleted with the holder; an earlier one is
///                deleted now. Null means that nobody holds one: the lasting directory is used.
/// \param keepEngineLog  the log outlives the program, in the directory "kelp-logs"
/// \return the path, empty when there is none
QString prepareEngineLog(const QString &stem, std::unique_ptr<QTemporaryDir> *holder, bool keepEngineLog);
