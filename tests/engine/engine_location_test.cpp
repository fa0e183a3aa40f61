#include "engine/engine_location.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QSet>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

EngineLocationFacts factsWith(const QSet<QString> &files, const QString &environment = {})
{
    return {environment, u"/opt/kelp"_s, u"/src"_s, QString(),
            [files](const QString &path) { return files.contains(path); }};
}

TEST(EngineLocation, NothingFoundIsEmpty)
{
    const EngineLocation found = locateEngine(factsWith({}));
    EXPECT_TRUE(found.path.isEmpty());
    EXPECT_TRUE(found.source.isEmpty());
}

TEST(EngineLocation, EnvironmentComesFirst)
{
    const EngineLocation found =
        locateEngine(factsWith({u"/e/engine"_s, u"/opt/kelp/KelpPlayerEngine"_s}, u"/e/engine"_s));
    EXPECT_EQ(found.path, u"/e/engine"_s);
    EXPECT_EQ(found.source, u"环境变量 KELP_PLAYER_BIN"_s);
}

TEST(EngineLocation, EnvironmentThatNamesAMissingFileDoesNotStopTheSearch)
{
    const EngineLocation found = locateEngine(factsWith({u"/opt/kelp/KelpPlayerEngine"_s}, u"/nowhere"_s));
    EXPECT_EQ(found.path, u"/opt/kelp/KelpPlayerEngine"_s);
    EXPECT_EQ(found.source, u"程序同目录"_s);
}

TEST(EngineLocation, SuffixOfThePlatformBelongsToTheName)
{
    EngineLocationFacts facts = factsWith({u"/opt/kelp/KelpPlayerEngine.exe"_s});
    facts.executableSuffix = u".exe"_s;
    EXPECT_EQ(locateEngine(facts).path, u"/opt/kelp/KelpPlayerEngine.exe"_s);
}

TEST(EngineLocation, DevelopmentPathsInTheirOrderWithTheirLabels)
{
    QSet<QString> files{u"/src/build/KelpPlayerEngine"_s, u"/src/release/linux/KelpPlayer"_s,
                        u"/src/release/windows/KelpPlayerEngine.exe"_s};
    EXPECT_EQ(locateEngine(factsWith(files)).path, u"/src/build/KelpPlayerEngine"_s);
    EXPECT_EQ(locateEngine(factsWith(files)).source, u"开发构建（build/）"_s);
    files.remove(u"/src/build/KelpPlayerEngine"_s);
    EXPECT_EQ(locateEngine(factsWith(files)).path, u"/src/release/linux/KelpPlayer"_s);
    EXPECT_EQ(locateEngine(factsWith(files)).source, u"程序同目录"_s);
    files.remove(u"/src/release/linux/KelpPlayer"_s);
    EXPECT_EQ(locateEngine(factsWith(files)).path, u"/src/release/windows/KelpPlayerEngine.exe"_s);
    EXPECT_EQ(locateEngine(factsWith(files)).source, u"程序同目录"_s);
}

TEST(EngineLocation, RealTestWantsARegularFileThatIsNotEmpty)
{
    const QTemporaryDir directory;
    QFile file(directory.filePath(u"engine"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_FALSE(isUsableEngineFile(file.fileName()));
    file.write("x");
    file.close();
    EXPECT_TRUE(isUsableEngineFile(file.fileName()));
    EXPECT_FALSE(isUsableEngineFile(directory.path()));
    EXPECT_FALSE(isUsableEngineFile(directory.filePath(u"missing"_s)));
}

} // namespace
