#include "playback/add_plan.h"

#include "playback/container_listing.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <algorithm>
#include <array>
#include <filesystem>
#include <string>
#include <system_error>

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

/// Supported files that a listing of the folder passes over in silence.
int badNamesIn(const QString &folder)
{
    int bad = 0;
    std::error_code error;
    const std::filesystem::path path(QFile::encodeName(folder).toStdString());
    for (std::filesystem::directory_iterator each(path, error), end; !error && each != end;
         each.increment(error)) {
        const std::string name = each->path().filename().string();
        const QByteArrayView bytes(name.data(), qsizetype(name.size()));
        std::error_code unknown;
        if (!QUtf8StringView(bytes).isValidUtf8() && each->is_regular_file(unknown) &&
            audioNameKind(QString::fromLatin1(bytes)) == AudioNameKind::Supported)
            ++bad;
    }
    return bad;
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
    collected.badNames += badNamesIn(folder);
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

QStringList localFiles(const QList<QUrl> &urls)
{
    QStringList paths;
    for (const QUrl &url : urls) {
        if (const QString path = url.toLocalFile(); !path.isEmpty())
            paths.append(path);
    }
    return paths;
}

AddPlan planAdd(const QStringList &paths, const AddFacts &facts)
{
    AddPlan plan;
    QSet<QString> fresh;
    for (const QString &path : paths) {
        const bool container = isContainerPath(path);
        if (container ? facts.hasPath(path) || facts.isPending(path) : facts.isListed(path))
            continue;
        const qsizetype before = fresh.size();
        fresh.insert(path);
        if (fresh.size() > before)
            (container ? plan.containers : plan.files).append(path);
    }
    return plan;
}
