/// \file
/// Libraries of the program that are loaded by name, when somebody needs them.
#pragma once

#include <QString>
#include <QStringList>

/// Where a library of the program may lie: beside the program, or where an installation has it. In the order
/// in which they are looked for.
QStringList programLibraryPaths(const QString &programDir, const QString &fileName);

/// Loads the first of the paths that there is. A library that is loaded stays until the process ends. Any
/// thread.
/// \param error a sentence where none can be loaded; untouched otherwise
/// \return null with error set
void *loadLibrary(const QStringList &paths, QString &error);

/// An entry of a loaded library by its name. \return null with error set
void *findLibraryEntry(void *library, const char *name, QString &error);

template<typename Entry>
Entry findEntry(void *library, const char *name, QString &error)
{
    return reinterpret_cast<Entry>(findLibraryEntry(library, name, error));
}
