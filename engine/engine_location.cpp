#include "engine/engine_location.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QtGlobal>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

QString besideLabel()
{
    return QCoreApplication::translate("EngineLocation", "程序同目录");
}

/// Both platforms' spellings on purpose: one list for a source tree that is shared between machines.
constexpr const char16_t *developmentPaths[] = {u"build/KelpPlayerEngine", u"release/linux/KelpPlayer",
                                                u"release/windows/KelpPlayerEngine.exe"};

} // namespace

EngineLocation locateEngine(const EngineLocationFacts &facts)
{
    std::vector<EngineLocation> candidates;
    if (!facts.environmentPath.isEmpty())
        candidates.push_back({facts.environmentPath,
                              QCoreApplication::translate("EngineLocation", "环境变量 KELP_PLAYER_BIN")});
    candidates.push_back(
        {QDir(facts.programDir).filePath(u"KelpPlayerEngine"_s + facts.executableSuffix), besideLabel()});
    for (const char16_t *spelled : developmentPaths) {
        const QString path = QString::fromUtf16(spelled);
        candidates.push_back({QDir(facts.currentDir).filePath(path),
                              path.startsWith("build/"_L1)
                                  ? QCoreApplication::translate("EngineLocation", "开发构建（build/）")
                                  : besideLabel()});
    }
    for (const EngineLocation &candidate : candidates) {
        if (facts.isUsableFile(candidate.path))
            return candidate;
    }
    return {};
}

bool isUsableEngineFile(const QString &path)
{
    const QFileInfo info(path);
    return info.isFile() && info.size() > 0;
}

EngineLocationFacts engineLocationFacts()
{
    return {qEnvironmentVariable("KELP_PLAYER_BIN"), QCoreApplication::applicationDirPath(),
            QDir::currentPath(),
#ifdef Q_OS_WIN
            u".exe"_s,
#else
            QString(),
#endif
            isUsableEngineFile};
}
