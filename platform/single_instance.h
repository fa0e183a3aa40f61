/// \file
/// One window a user. Two windows would play on top of each other on one device.
#pragma once

#include <QString>

/// The outcome in the words of the guard trace: a handle, and an error that says whether it was there before.
struct SingleInstanceResult
{
    /// What another running program's lock is reported as.
    static constexpr unsigned long alreadyExists = 183;

    int descriptor = -1;         ///< of the lock file; -1 when it could not be opened
    unsigned long lastError = 0; ///< 0, alreadyExists, or the system's error number

    /// Only this answer refuses a start: a lock that cannot be made blocks nobody.
    bool heldByOther() const { return descriptor >= 0 && lastError == alreadyExists; }
};

/// Takes the lock for the life of this process. The system drops it when the process ends in whatever way,
/// so that a dead process never blocks; children do not inherit it.
/// \param directory an existing directory of the user's own
SingleInstanceResult takeSingleInstance(const QString &directory);

/// Where the lock stands: the user's runtime directory, else a directory in the temporary one that only this
/// user may enter. Empty when neither can be had.
QString singleInstanceDirectory();

/// The number of this process's session, for the guard trace.
unsigned long processSessionId();
