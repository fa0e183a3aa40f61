#include "app/guard_trace.h"
#include "app/gui_log_file.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
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

TEST(GuiLogFile, EachLineOfTheFileGetsItsStampWhereThatIsAskedFor)
{
    const QTemporaryDir directory;
    const GuiLogFile log({{}, directory.path(), 1, true});
    log.write(u"one"_s);
    log.write(u"two"_s);
    static const QRegularExpression form(
        u"^\\[\\d\\d:\\d\\d:\\d\\d\\.\\d{3}\\] one\n\\[[\\d:.]{12}\\] two\n$"_s);
    EXPECT_TRUE(form.match(QString::fromUtf8(contents(log.path()))).hasMatch())
        << contents(log.path()).data();
}

TEST(GuiLogFile, NoughtTurnsTheFileOff)
{
    const QTemporaryDir directory;
    const QString former = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(directory.path()));
    GuiLogFile({u"0"_s, directory.path(), 1, false}).write(u"nowhere"_s);
    EXPECT_TRUE(QDir(directory.path()).isEmpty());
    QDir::setCurrent(former);
}

TEST(GuiLogFile, AFileThatWasMovedAwayIsBegunAnew)
{
    const QTemporaryDir directory;
    const GuiLogFile log({{}, directory.path(), 1, false});
    log.write(u"old"_s);
    ASSERT_TRUE(QFile::rename(log.path(), directory.filePath(u"kept"_s)));
    log.write(u"new"_s);
    EXPECT_EQ(contents(log.path()), QByteArray("new\n"));
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
    EXPECT_EQ(contents(path), QByteArray("kept 2 x\n"));
    const QByteArray longText(5000, 'x');
    guardTrace("%s", longText.constData());
    EXPECT_LT(contents(path).size(), 2000) << "a line has its limit";
    qputenv("KELP_GUARD_TRACE", "/nonexistent/trace");
    guardTrace("lost too");
    qunsetenv("KELP_GUARD_TRACE");
}
