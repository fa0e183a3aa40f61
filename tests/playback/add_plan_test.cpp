#include "playback/add_plan.h"

#include <QDir>
#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <cstdio>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class Folder : public testing::Test
{
protected:
    QString make(const QString &name)
    {
        const QString path = m_dir.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return path;
    }
    QStringList names(const QStringList &paths) const
    {
        QStringList result;
        for (const QString &path : paths)
            result += QFileInfo(path).fileName();
        return result;
    }

    QTemporaryDir m_dir;
};

AddFacts factsOf(const QSet<QString> &listed, const QSet<QString> &rows, const QSet<QString> &pending)
{
    return {[listed](const QString &path) { return listed.contains(path); },
            [rows](const QString &path) { return rows.contains(path); },
            [pending](const QString &path) { return pending.contains(path); }};
}

} // namespace

TEST(AudioNames, EverySupportedSuffixInEitherCase)
{
    for (const char *suffix : {"dsf", "dff", "wsd", "iso", "dts", "wav", "w64", "aif", "aifc", "aiff", "flac",
                               "cue", "m4a", "mp4", "alac", "tta", "wv", "ape"}) {
        const QString name = u"a."_s + QString::fromLatin1(suffix);
        EXPECT_EQ(audioNameKind(name), AudioNameKind::Supported) << suffix;
        EXPECT_EQ(audioNameKind(name.toUpper()), AudioNameKind::Supported) << suffix;
    }
    for (const QString &name : {u"a.mp3"_s, u"a.AAC"_s, u"a.ogg"_s})
        EXPECT_EQ(audioNameKind(name), AudioNameKind::NoDecoder);
    for (const QString &name : {u"a.txt"_s, u"flac"_s, u"a.flac.bak"_s, u""_s})
        EXPECT_EQ(audioNameKind(name), AudioNameKind::Other);
    EXPECT_EQ(supportedSuffixes().size(), 18);
}

TEST_F(Folder, CountsAudioFilesWhoseNamesAreNoUtf8)
{
    make(u"a.flac"_s);
    // As archives of other encodings leave them.
    for (const char *name : {"\xc4\xe3.flac", "\xba\xc3.DSF", "\xc4\xe3.txt", "\xc4\xe3.mp3"}) {
        FILE *raw = std::fopen((m_dir.path().toStdString() + '/' + name).c_str(), "w");
        ASSERT_NE(raw, nullptr);
        std::fclose(raw);
    }
    const CollectedPaths collected = collectPaths({m_dir.path()});
    EXPECT_EQ(names(collected.paths), QStringList{u"a.flac"_s});
    EXPECT_EQ(collected.badNames, 2);
    EXPECT_EQ(collected.noDecoder, 0);
}

TEST_F(Folder, ListsItsFilesByNameAndNotItsFolders)
{
    make(u"b.flac"_s);
    make(u"A.DSF"_s);
    make(u"c.txt"_s);
    make(u"album/inside.flac"_s);
    const CollectedPaths found = collectPaths({m_dir.path()});
    EXPECT_EQ(names(found.paths), (QStringList{u"A.DSF"_s, u"b.flac"_s}));
    EXPECT_EQ(found.noDecoder, 0) << "a text file is not counted";
    EXPECT_TRUE(QDir::isAbsolutePath(found.paths.first()));
}

TEST_F(Folder, CountsWhatHasNoDecoder)
{
    make(u"a.mp3"_s);
    make(u"b.OGG"_s);
    const CollectedPaths found = collectPaths({m_dir.path()});
    EXPECT_TRUE(found.paths.isEmpty());
    EXPECT_EQ(found.noDecoder, 2);
}

TEST_F(Folder, ATextFileNamedDirectlyIsTakenAndInAFolderPassedOver)
{
    const QString text = make(u"a.txt"_s);
    EXPECT_EQ(collectPaths({text}).paths, QStringList{text});
    EXPECT_EQ(collectPaths({text}).noDecoder, 0);
    EXPECT_TRUE(collectPaths({m_dir.path()}).paths.isEmpty());
}

TEST_F(Folder, AnMp3NamedDirectlyIsTakenWithoutACount)
{
    const QString path = make(u"a.mp3"_s);
    EXPECT_EQ(collectPaths({path}).paths, QStringList{path});
    EXPECT_EQ(collectPaths({path}).noDecoder, 0);
}

TEST_F(Folder, WhatIsNeitherFileNorFolderIsPassedOver)
{
    EXPECT_TRUE(collectPaths({m_dir.filePath(u"none"_s), u""_s, u"http://x/a.flac"_s, u"/dev/null"_s})
                    .paths.isEmpty());
}

TEST_F(Folder, ANameThatIsNoUtf8IsCounted)
{
    EXPECT_EQ(collectPaths({m_dir.filePath(u"a\uFFFD.flac"_s)}).badNames, 1);
}

TEST_F(Folder, AFileThatMayNotBeReadIsNotListed)
{
    if (geteuid() == 0)
        GTEST_SKIP() << "the superuser reads everything";
    QFile::setPermissions(make(u"a.flac"_s), {});
    EXPECT_TRUE(collectPaths({m_dir.path()}).paths.isEmpty());
}

TEST_F(Folder, KeepsTheOrderOfTheInputs)
{
    const QString first = make(u"z.wav"_s);
    make(u"sub/a.wav"_s);
    const QString last = make(u"b.wav"_s);
    EXPECT_EQ(names(collectPaths({first, m_dir.filePath(u"sub"_s), last}).paths),
              (QStringList{u"z.wav"_s, u"a.wav"_s, u"b.wav"_s}));
}

TEST(AddPlan, AFileEntersOnce)
{
    const AddPlan plan = planAdd({u"/a.wav"_s, u"/b.wav"_s, u"/a.wav"_s, u"/c.wav"_s},
                                 factsOf({u"/b.wav"_s}, {u"/b.wav"_s}, {}));
    EXPECT_EQ(plan.files, (QStringList{u"/a.wav"_s, u"/c.wav"_s}));
    EXPECT_TRUE(plan.containers.isEmpty());
}

TEST(AddPlan, PathsThatDifferInCaseAreTwoFiles)
{
    EXPECT_EQ(planAdd({u"/A.wav"_s, u"/a.wav"_s}, factsOf({u"/a.wav"_s}, {}, {})).files,
              QStringList{u"/A.wav"_s});
}

TEST(AddPlan, ContainersAreToldBySuffixInEitherCase)
{
    const AddPlan plan = planAdd({u"/a.CUE"_s, u"/b.iso"_s, u"/c.isox"_s}, factsOf({}, {}, {}));
    EXPECT_EQ(plan.containers, (QStringList{u"/a.CUE"_s, u"/b.iso"_s}));
    EXPECT_EQ(plan.files, QStringList{u"/c.isox"_s});
}

TEST(AddPlan, AnImageThatIsListedOrPendingIsDropped)
{
    const AddPlan plan = planAdd({u"/listed.iso"_s, u"/pending.iso"_s, u"/new.iso"_s, u"/new.iso"_s},
                                 factsOf({}, {u"/listed.iso"_s}, {u"/pending.iso"_s}));
    EXPECT_EQ(plan.containers, QStringList{u"/new.iso"_s});
    EXPECT_TRUE(plan.files.isEmpty());
}

TEST(AddPlan, ASheetIsNeverFoundListed)
{
    // Its rows have the path of the audio file.
    const AddPlan plan = planAdd({u"/a.cue"_s}, factsOf({u"/a.wav"_s}, {u"/a.wav"_s}, {}));
    EXPECT_EQ(plan.containers, QStringList{u"/a.cue"_s});
}

TEST(AddPlan, TheBoundOfBulkAdding)
{
    EXPECT_EQ(mostPathsLaidOutSingly, 500);
}
