#include "engine/control_log_count.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

qint64 countIn(const QByteArray &text, qint64 limitBytes = 1 << 30)
{
    QBuffer buffer;
    buffer.setData(text);
    buffer.open(QIODevice::ReadOnly);
    return countReceivedLines(buffer, limitBytes);
}

void write(const QString &path, const QByteArray &text, QIODevice::OpenMode mode)
{
    QFile file(path);
    ASSERT_TRUE(file.open(mode));
    file.write(text);
}

TEST(ControlLogCount, CountsLinesAndNotMarks)
{
    EXPECT_EQ(countIn({}), 0);
    EXPECT_EQ(countIn("[ctl] recv stop"_ba), 1);
    EXPECT_EQ(countIn("12:00 [ctl] recv a [ctl] recv b\nother\n[ctl] recv c\n"_ba), 2);
    EXPECT_EQ(countIn("[ctl]\nrecv\n[ctl] rec\n"_ba), 0);
}

TEST(ControlLogCount, FindsTheMarkAcrossTheBordersOfPieces)
{
    for (int shift = 0; shift < 12; ++shift) {
        QByteArray text(65536 - shift, 'x');
        text += "[ctl] recv load\n[ctl] recv stop\n";
        EXPECT_EQ(countIn(text), 2) << shift;
    }
}

TEST(ControlLogCount, CountsAnEndlessLineOnce)
{
    QByteArray text;
    for (int i = 0; i < 5; ++i)
        text += "[ctl] recv " + QByteArray(100000, '\0');
    EXPECT_EQ(countIn(text), 1);
}

TEST(ControlLogCount, StopsAtItsLimit)
{
    EXPECT_EQ(countIn("[ctl] recv a\n[ctl] recv b\n"_ba, 15), 1);
}

TEST(ControlLogCounter, NoFileIsNoCount)
{
    ControlLogCounter counter;
    const QTemporaryDir directory;
    EXPECT_FALSE(counter.countNew({}, {}));
    EXPECT_FALSE(counter.countNew(directory.filePath(u"missing.log"_s), {}));
    EXPECT_FALSE(counter.countNew({}, directory.path()));
}

TEST(ControlLogCounter, CountsEachLineOnceAcrossChecks)
{
    ControlLogCounter counter;
    const QTemporaryDir directory;
    const QString path = directory.filePath(u"kelp-player.log"_s);
    write(path, "[ctl] recv a\n[ctl] recv b\n"_ba, QIODevice::WriteOnly);
    EXPECT_EQ(counter.countNew(path, {}), 2);
    EXPECT_EQ(counter.countNew(path, {}), 0);
    write(path, "[ctl] recv c\n"_ba, QIODevice::Append);
    EXPECT_EQ(counter.countNew(path, {}), 1);
}

TEST(ControlLogCounter, AFileWrittenAnewCountsFromItsStart)
{
    ControlLogCounter counter;
    const QTemporaryDir directory;
    const QString path = directory.filePath(u"kelp-player.log"_s);
    write(path, "[ctl] recv a\n[ctl] recv b\n"_ba, QIODevice::WriteOnly);
    EXPECT_EQ(counter.countNew(path, {}), 2);
    write(path, "[ctl] recv c\n"_ba, QIODevice::WriteOnly);
    EXPECT_EQ(counter.countNew(path, {}), 1);
}

TEST(ControlLogCounter, WithoutAPathAllFilesOfTheDirectoryCount)
{
    ControlLogCounter counter;
    const QTemporaryDir directory;
    write(directory.filePath(u"one.log"_s), "[ctl] recv a\n"_ba, QIODevice::WriteOnly);
    write(directory.filePath(u"two.log"_s), "x\n[ctl] recv b\n"_ba, QIODevice::WriteOnly);
    EXPECT_EQ(counter.countNew({}, directory.path()), 2);
}

} // namespace
