/// \file
/// How paths enter the playlist: which files are taken, and which of them are listed already.
#pragma once

#include <QStringList>
#include <QStringView>
#include <QUrl>
#include <functional>

/// More collected paths than this are laid out once, at the end.
inline constexpr qsizetype mostPathsLaidOutSingly = 500;

/// What is thought of a name inside a folder.
enum class AudioNameKind
{
    Supported,
    NoDecoder, ///< audio that the engine does not read; it is counted
    Other,     ///< passed over without a word
};
AudioNameKind audioNameKind(QStringView fileName);

/// The suffixes that are supported, each with its point, for the filters of file dialogs.
QStringList supportedSuffixes();

struct CollectedPaths
{
    QStringList paths; ///< absolute, in order of input
    int noDecoder = 0; ///< files in folders that were passed over for want of a decoder
    int badNames = 0;  ///< audio files that cannot be opened by their names, because these are no valid UTF-8
};

/// Lists folders, one level deep and sorted by name, and takes files as they are: a file that was named is
/// not asked for its suffix. Reads the file system; what is neither file nor folder is passed over.
CollectedPaths collectPaths(const QStringList &inputs);

/// The paths of what was dropped; what is no local file is left out.
QStringList localFiles(const QList<QUrl> &urls);

/// What the list says about a path.
struct AddFacts
{
    std::function<bool(const QString &path)> isListed;  ///< as a plain file
    std::function<bool(const QString &path)> hasPath;   ///< any row plays it
    std::function<bool(const QString &path)> isPending; ///< its listing is still out
};

struct AddPlan
{
    QStringList files;      ///< that become rows at once
    QStringList containers; ///< that the engine is asked about
};

/// \param paths absolute, in the order in which they enter
AddPlan planAdd(const QStringList &paths, const AddFacts &facts);
