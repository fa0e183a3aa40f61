#include "platform/settings_file.h"

#include "tests/support/patience.h"

#include <QElapsedTimer>
#include <QFile>
#include <QLockFile>
#include <QSettings>
#include <QTemporaryDir>
#include <atomic>
#include <gtest/gtest.h>
#include <optional>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

const QString pathKey = u"play/resume_path"_s;
const QString secondsKey = u"play/resume_sec"_s;

class SettingsFileTest : public testing::Test
{
protected:
    QString path() const { return m_folder.filePath(u"KelpPlayer.ini"_s); }
    SettingsFile::Open opener()
    {
        return [this] {
            ++m_opened;
            return std::make_unique<QSettings>(path(), QSettings::IniFormat);
        };
    }
    // Past everything that is held in memory.
    QByteArray bytesOnDisk() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static std::optional<QString> valueIn(const QByteArray &bytes, const QString &name)
    {
        for (const QByteArray &line : bytes.split('\n')) {
            if (line.startsWith(name.toUtf8() + '='))
                return QString::fromUtf8(line.mid(name.size() + 1).trimmed());
        }
        return std::nullopt;
    }
    std::optional<QString> onDisk(const QString &name) const { return valueIn(bytesOnDisk(), name); }
    QTemporaryDir m_folder;
    std::atomic<int> m_opened = 0;
};

TEST_F(SettingsFileTest, WhatIsWrittenIsReadAtOnceAndOnTheDiskAfterAFlush)
{
    SettingsFile file(opener());
    file.apply({{secondsKey, 12.5}, {u"param/gapless"_s, false}});
    EXPECT_EQ(file.value(secondsKey).toDouble(), 12.5);
    file.flush();
    EXPECT_EQ(onDisk(u"resume_sec"_s), u"12.5"_s);
    EXPECT_EQ(onDisk(u"gapless"_s), u"false"_s);
    EXPECT_EQ(file.value(secondsKey).toDouble(), 12.5);
}

TEST_F(SettingsFileTest, NobodyWaitsForAWriterThatCannotGoOn)
{
    SettingsFile file(opener());
    file.apply({{secondsKey, 1.}, {u"param/vol"_s, 40}});
    file.flush();
    QLockFile held(path() + u".lock"_s);
    ASSERT_TRUE(held.lock());
    for (double seconds = 5.; seconds <= 50.; seconds += 5.) {
        file.apply({{secondsKey, seconds}});
        EXPECT_EQ(file.value(secondsKey).toDouble(), seconds);
        EXPECT_EQ(file.value(u"param/vol"_s).toInt(), 40) << "nor for another value";
    }
    EXPECT_EQ(onDisk(u"resume_sec"_s), u"1"_s) << "the writer has been let through";
    held.unlock();
    file.flush();
    EXPECT_EQ(onDisk(u"resume_sec"_s), u"50"_s);
}

TEST_F(SettingsFileTest, ALaterSaveIsNeverOvertakenAndAPairIsNeverTornApart)
{
    constexpr int saves = 400;
    SettingsFile file(opener());
    int last = 0;
    for (int i = 1; i <= saves; ++i) {
        file.apply({{pathKey, i}, {secondsKey, i}});
        if (i % 100 == 0)
            file.flush();
        const QByteArray bytes = bytesOnDisk();
        const int found = valueIn(bytes, u"resume_sec"_s).value_or(u"0"_s).toInt();
        EXPECT_GE(found, last) << "an older save came after a later one";
        EXPECT_EQ(valueIn(bytes, u"resume_path"_s), valueIn(bytes, u"resume_sec"_s));
        last = found;
    }
    file.flush();
    EXPECT_EQ(onDisk(u"resume_sec"_s), QString::number(saves));
    EXPECT_EQ(onDisk(u"resume_path"_s), QString::number(saves));
}

TEST_F(SettingsFileTest, AClearIsNeverOvertakenByAnOlderSave)
{
    SettingsFile file(opener());
    for (int round = 0; round < 20; ++round) {
        file.apply({{secondsKey, 7}});
        file.apply({{secondsKey, QVariant()}});
        EXPECT_FALSE(file.value(secondsKey).isValid());
        if (round % 5 == 0)
            file.flush();
    }
    file.flush();
    EXPECT_FALSE(onDisk(u"resume_sec"_s));
    EXPECT_FALSE(file.value(secondsKey).isValid());
}

TEST_F(SettingsFileTest, TheLastValueIsInTheFileWhenTheObjectHasGone)
{
    for (int round = 1; round <= 20; ++round) {
        {
            SettingsFile file(opener());
            file.apply({{secondsKey, round - 1}});
            file.apply({{secondsKey, round}});
        }
        EXPECT_EQ(onDisk(u"resume_sec"_s), QString::number(round));
    }
}

TEST_F(SettingsFileTest, ABurstIsWrittenInFewWritings)
{
    SettingsFile file(opener());
    file.flush();
    QLockFile held(path() + u".lock"_s);
    ASSERT_TRUE(held.lock());
    m_opened = 0;
    for (int volume = 0; volume <= 100; ++volume)
        file.apply({{u"param/vol"_s, volume}});
    held.unlock();
    file.flush();
    EXPECT_EQ(onDisk(u"vol"_s), u"100"_s);
    EXPECT_LE(m_opened, 2) << "the first, and the last of those that waited";
}

TEST_F(SettingsFileTest, AfterALongWritingItRestsLong)
{
    SettingsFile file([this] {
        std::this_thread::sleep_for(std::chrono::milliseconds(200)); // as with a very long playlist
        return opener()();
    });
    m_opened = 0;
    file.apply({{secondsKey, 1}});
    ASSERT_TRUE(kelp_test::waitUntil([this] { return onDisk(u"resume_sec"_s) == u"1"_s; }));
    QElapsedTimer sinceFirst;
    sinceFirst.start();
    for (int second = 2; second <= 10; ++second) {
        file.apply({{secondsKey, second}});
        std::this_thread::sleep_for(std::chrono::milliseconds(60));
    }
    EXPECT_EQ(file.value(secondsKey), 10) << "whoever reads sees the newest";
    const int before = m_opened;
    const bool quickly = sinceFirst.elapsed() < 3500;
    EXPECT_TRUE(!quickly || before == 1) << before << ", and the second writing is nearly four seconds away";
    file.flush();
    EXPECT_EQ(onDisk(u"resume_sec"_s), u"10"_s) << "but whoever asks for the disk gets it";
    EXPECT_LE(m_opened, before + 1);
}

TEST_F(SettingsFileTest, WhatAnotherProgramChangesIsSeenAndKept)
{
    SettingsFile file(opener());
    file.apply({{secondsKey, 3}});
    file.flush();
    const auto others = [this](const QByteArray &volume) {
        QFile bytes(path());
        ASSERT_TRUE(bytes.open(QIODevice::WriteOnly));
        bytes.write("[param]\nvol=" + volume + "\n[play]\nresume_sec=9\n");
    };
    others("31");
    EXPECT_EQ(file.value(u"param/vol"_s).toInt(), 31);
    EXPECT_EQ(file.value(secondsKey).toInt(), 9);
    others("3200");
    file.apply({{secondsKey, 11}});
    EXPECT_EQ(file.value(u"param/vol"_s).toInt(), 3200) << "also while it is being written";
    file.flush();
    EXPECT_EQ(onDisk(u"vol"_s), u"3200"_s);
    EXPECT_EQ(onDisk(u"resume_sec"_s), u"11"_s);
    EXPECT_EQ(file.value(u"param/vol"_s).toInt(), 3200);
}

TEST_F(SettingsFileTest, AFileThatHasGoneGivesNothing)
{
    SettingsFile file(opener());
    file.apply({{secondsKey, 3}});
    file.flush();
    ASSERT_TRUE(QFile::remove(path()));
    EXPECT_FALSE(file.value(secondsKey).isValid());
}

TEST_F(SettingsFileTest, WhatCannotBeWrittenIsLostInSilence)
{
    SettingsFile file(
        [] { return std::make_unique<QSettings>(u"/proc/nowhere/KelpPlayer.ini"_s, QSettings::IniFormat); });
    file.apply({{secondsKey, 3}});
    file.flush();
    EXPECT_FALSE(QFile::exists(u"/proc/nowhere/KelpPlayer.ini"_s));
    file.apply({{secondsKey, 4}});
    EXPECT_EQ(file.value(secondsKey).toInt(), 4) << "it still serves this run";
    file.flush();
}

TEST_F(SettingsFileTest, TwoFilesShareNothing)
{
    const QString otherPath = m_folder.filePath(u"Other.ini"_s);
    SettingsFile one(opener());
    SettingsFile other([&] { return std::make_unique<QSettings>(otherPath, QSettings::IniFormat); });
    QLockFile held(otherPath + u".lock"_s);
    ASSERT_TRUE(held.lock());
    other.apply({{secondsKey, 2}});
    one.apply({{secondsKey, 1}});
    EXPECT_EQ(one.value(secondsKey).toInt(), 1);
    EXPECT_EQ(other.value(secondsKey).toInt(), 2);
    one.flush();
    EXPECT_EQ(onDisk(u"resume_sec"_s), u"1"_s) << "and one does not wait for the other";
    held.unlock();
}

TEST_F(SettingsFileTest, ValuesKeepTheirFormOverTheDisk)
{
    const QStringList rows{u"一, 二"_s, u"a\x1f"_s + u"b;\"c\\\""_s};
    {
        SettingsFile file(opener());
        file.apply({{u"playlist"_s, rows}, {u"ui/geometry"_s, QByteArray("\x00\xff,", 3)}});
    }
    SettingsFile file(opener());
    EXPECT_EQ(file.value(u"playlist"_s).toStringList(), rows);
    EXPECT_EQ(file.value(u"ui/geometry"_s).toByteArray(), QByteArray("\x00\xff,", 3));
}

} // namespace
