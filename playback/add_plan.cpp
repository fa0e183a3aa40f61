#include "playback/add_plan.h"

#include "playback/container_listing.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array supported = {".dsf"_L1, ".dff"_L1, ".wsd"_L1,  ".iso"_L1,  ".dts"_L1,  ".wav"_L1,
                                  ".w64"_L1, ".aif"_L1, ".aifc"_L1, ".aiff"_L1, ".flac"_L1, ".cue"_L1,
                                  ".m4a"_L1, ".mp4"_L1, ".alac"_L1, ".tta"_L1,  ".wv"_L1,   ".ape"_L1};
constexpr std::array undecodable = {".mp3"_L1, ".aac"_L1, ".ogg"_L1};

template<class Table>
bool endsWithOneOf(QStringView name, const Table &suffixes)
{
    return std::any_of(suffixes.begin(), suffixes.end(), [name](QLatin1StringView suffix) {
        return name.endsWith(suffix, Qt::CaseInsensitive);
    });
}

void collectFolder(const QString &folder, CollectedPaths &collected)
{
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files | QDir::Readable, QDir::Name);
    for (const QFileInfo &file : files) {
        const AudioNameKind kind = audioNameKind(file.fileName());
        if (kind == AudioNameKind::Supported)
            collected.paths.append(file.absoluteFilePath());
        else if (kind == AudioNameKind::NoDecoder)
            ++collected.noDecoder;
    }
}

} // namespace

AudioNameKind audioNameKind(QStringView fileName)
{
    if (endsWithOneOf(fileName, supported))
        return AudioNameKind::Supported;
    return endsWithOneOf(fileName, undecodable) ? AudioNameKind::NoDecoder : AudioNameKind::Other;
}

QStringList supportedSuffixes()
{
    return {supported.begin(), supported.end()};
}

CollectedPaths collectPaths(const QStringList &inputs)
{
    CollectedPaths collected;
    for (const QString &input : inputs) {
        const QFileInfo info(input);
        if (info.isDir())
            collectFolder(input, collected);
        else if (info.isFile())
            collected.paths.append(info.absoluteFilePath());
        else if (input.contains(QChar::ReplacementCharacter))
            ++collected.badNames;
    }
    return collected;
}

AddPlan planAdd(const QStringList &paths, const AddFacts &facts)
{
    AddPlan plan;
    QSet<QString> fresh;
    for (const QString &path : paths) {
        if (isContainerPath(path)) {
            if (!facts.hasPath(path) && !facts.isPending(path) && !plan.containers.contains(path))
                plan.containers.append(path);
            continue;
        }
        if (facts.isListed(path))
            continue;
        const qsizetype before = fresh.size();
        fresh.insert(path);
        if (fresh.size() > before)
            plan.files.append(path);
    }
    return plan;
}
