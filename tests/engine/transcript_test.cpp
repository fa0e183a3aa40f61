// Recorded outputs beside what they have to set going. After a change that is meant, write the new file with
// build/tools/replay_transcript and read the difference before it is kept. "session" is what this engine
// really says, recorded by tests/e2e/record_transcript.py; the others are composed.
#include "engine/transcript.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

class Transcripts : public testing::TestWithParam<const char *>
{
};

TEST_P(Transcripts, SetGoingWhatIsExpected)
{
    const QString stem = QString::fromUtf8(KELP_TRANSCRIPTS "/") + QString::fromUtf8(GetParam());
    const QStringList actual = transcriptOf(contentOf(stem + u".txt"_s)).split(u'\n');
    const QStringList expected = QString::fromUtf8(contentOf(stem + u".expected"_s)).split(u'\n');
    ASSERT_GT(expected.size(), 10);
    for (qsizetype line = 0; line < std::min(actual.size(), expected.size()); ++line)
        ASSERT_EQ(actual[line].toStdString(), expected[line].toStdString()) << "line " << line + 1;
    EXPECT_EQ(actual.size(), expected.size());
}

INSTANTIATE_TEST_SUITE_P(Recorded, Transcripts,
                         testing::Values("pcm_flac", "dsd_dop", "exclusive_refused", "stamped", "garbage",
                                         "session"));

TEST(Transcripts, AllRecordingsAreTested)
{
    const QDir folder(QString::fromUtf8(KELP_TRANSCRIPTS));
    EXPECT_EQ(folder.entryList({u"*.txt"_s}).size(), 6);
    EXPECT_EQ(folder.entryList({u"*.expected"_s}).size(), 6);
}

TEST(Transcripts, EmptyRecordingsAndLinesWithoutAnEnd)
{
    EXPECT_EQ(transcriptOf(""), QString());
    EXPECT_EQ(transcriptOf("DONE x"), u"DONE x\n    track is done\n"_s);
    EXPECT_EQ(transcriptOf("\n"), u"\n    log \"\"\n"_s);
}

} // namespace
