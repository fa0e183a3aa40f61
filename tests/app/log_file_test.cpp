#include "app/guard_trace.h"
#include "app/gui_log_file.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

TEST(GuiLogFile, ThePathFollowsTheVariable)
{
    EXPECT_EQ(GuiLogFile({{}, u"/tmp"_s, 42, false}).path(), u"/tmp/kelp-gui-42.log"_s);
    EXPECT_EQ(GuiLogFile({u"/x/y.log"_s, u"/tmp"_s, 42, false}).path(), u"/x/y.log"_s);
    EXPECT_TRUE(GuiLogFile({u"0"_s, u"/tmp"_s, 42, false}).path().isEmpty());
}

TEST(GuiLogFile, EachLineIsAppendedAsUtf8)
{
    const QTemporaryDir directory;
    const GuiLogFile log({{}, directory.path(), 1, false});
    log.write(u"一"_s);
    log.write(u"two"_s);
    EXPECT_EQ(contents(log.path()), QByteArray("一\ntwo\n"));
}

TEST(GuiLogFile, TimeStampsStandInBrackets)
{
    EXPECT_EQ(GuiLogFile::formatted(u"x"_s, true, QTime(3, 4, 5, 6)), u"[03:04:05.006] x"_s);
    EXPECT_EQ(GuiLogFile::formatted(u"x"_s, false, QTime(3, 4, 5, 6)), u"x"_s);
}

TEST(GuiLogFile, AFileThatCannotBeOpenedIsSkipped)
{
    const GuiLogFile log({u"/nonexistent/x.log"_s, {}, 1, false});
    log.write(u"lost"_s);
    EXPECT_FALSE(QFile::exists(log.path()));
}

TEST(GuardTrace, WritesOnlyWhereItIsAskedTo)
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(u"trace"_s);
    guardTrace("lost %d", 1);
    qputenv("KELP_GUARD_TRACE", QFile::encodeName(path));
    guardTrace("kept %d %s", 2, "x");
    qunsetenv("KELP_GUARD_TRACE");
    EXPECT_EQ(contents(path), QByteArray("kept 2 x\n"));
}
