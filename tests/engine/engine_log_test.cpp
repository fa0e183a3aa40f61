#include "engine/engine_log.h"

#include "engine/session_support.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;
using session_support::Variable;

namespace {

class EngineLog : public testing::Test
{
protected:
    QTemporaryDir scratch;
    Variable temporaryDirectory{"TMPDIR", QFile::encodeName(scratch.path())};
    Variable exported{"KELP_ENGINE_LOG", {}};
    std::unique_ptr<QTemporaryDir> holder;
};

TEST_F(EngineLog, AFreshDirectoryGoesIntoTheHolder)
{
    const QString path = prepareEngineLog(u"kelp-player"_s, &holder, false);
    ASSERT_TRUE(holder);
    EXPECT_EQ(path, holder->path() + u"/kelp-player.log"_s);
    EXPECT_TRUE(holder->path().startsWith(scratch.path() + u"/kelp-log-"_s));
    EXPECT_EQ(qgetenv("KELP_ENGINE_LOG"), path.toLocal8Bit());
    const QString directory = holder->path();
    holder.reset();
    EXPECT_FALSE(QFileInfo::exists(directory));
}

TEST_F(EngineLog, AnExportedPathIsKept)
{
    const QString first = prepareEngineLog(u"kelp-player"_s, &holder, false);
    QTemporaryDir *const held = holder.get();
    EXPECT_EQ(prepareEngineLog(u"other"_s, &holder, true), first);
    EXPECT_EQ(holder.get(), held);
}

TEST_F(EngineLog, AnEarlierDirectoryOfTheHolderIsDeleted)
{
    prepareEngineLog(u"kelp-player"_s, &holder, false);
    const QString former = holder->path();
    qputenv("KELP_ENGINE_LOG", "");
    prepareEngineLog(u"kelp-player"_s, &holder, false);
    EXPECT_NE(holder->path(), former);
    EXPECT_FALSE(QFileInfo::exists(former));
}

TEST_F(EngineLog, KeptLogsAndLogsWithoutAHolderHaveALastingDirectory)
{
    const QString expected = scratch.filePath(u"kelp-logs/kelp-player.log"_s);
    EXPECT_EQ(prepareEngineLog(u"kelp-player"_s, &holder, true), expected);
    EXPECT_FALSE(holder);
    EXPECT_TRUE(QFileInfo(scratch.filePath(u"kelp-logs"_s)).isDir());
    qputenv("KELP_ENGINE_LOG", "");
    EXPECT_EQ(prepareEngineLog(u"kelp-player"_s, nullptr, false), expected);
}

TEST_F(EngineLog, WhereNoDirectoryCanBeMadeTheHolderIsEmptied)
{
    prepareEngineLog(u"kelp-player"_s, &holder, false);
    qputenv("KELP_ENGINE_LOG", "");
    const QString nowhere = u"/proc"_s; // takes new directories from nobody
    const Variable elsewhere("TMPDIR", QFile::encodeName(nowhere));
    EXPECT_EQ(prepareEngineLog(u"kelp-player"_s, &holder, false), nowhere + u"/kelp-logs/kelp-player.log"_s);
    EXPECT_FALSE(holder);
}

} // namespace
