#include "tags/tag_summary.h"
#include "tests/tags/tags_support.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace tags_test;
using namespace Qt::StringLiterals;

namespace {

class TagSummaryTest : public testing::Test
{
protected:
    QString write(const std::string &name, const std::vector<std::string> &comments)
    {
        kelp_test::writeFile(m_folder.file(name),
                             kelp_test::flacBytes({{0, kelp_test::flacStreamInfo(44100, 2, 16, 1)},
                                                   {4, kelp_test::vorbisPayload("maker", comments)}}));
        return QString::fromStdString(m_folder.file(name));
    }

    kelp_test::TempDir m_folder;
    TagSummaryCache m_cache;
};

} // namespace

TEST_F(TagSummaryTest, TheSixTextsAreTrimmed)
{
    const QString path =
        write("a.flac", {"TITLE= Größe ", "ARTIST=A\n", "ALBUM= B", "COMPOSER=P ", "WORK= W", "MOVEMENT=M "});
    const TagSummary expected{u"Größe"_s, u"A"_s, u"B"_s, u"P"_s, u"W"_s, u"M"_s};
    EXPECT_EQ(m_cache.tagSummaryFor(path), expected);
}

TEST_F(TagSummaryTest, AnUntaggedFileIsOfItsFolder)
{
    const QString path = write("a.flac", {"TITLE=T", "ARTIST=  "});
    EXPECT_EQ(m_cache.tagSummaryFor(path).artist, QString::fromStdString(m_folder.path()));
    const QString missing = QString::fromStdString(m_folder.file("none.flac"));
    EXPECT_EQ(m_cache.tagSummaryFor(missing).artist, QString::fromStdString(m_folder.path()));
    EXPECT_EQ(m_cache.size(), 2) << "a file that cannot be read is kept too";
}

TEST_F(TagSummaryTest, WhatWasReadStaysUntilItIsDropped)
{
    const QString path = write("a.flac", {"TITLE=old"});
    EXPECT_EQ(m_cache.tagSummaryFor(path).title, u"old"_s);
    write("a.flac", {"TITLE=new"});
    EXPECT_EQ(m_cache.tagSummaryFor(path).title, u"old"_s);
    m_cache.drop(path);
    EXPECT_EQ(m_cache.tagSummaryFor(path).title, u"new"_s);
    write("a.flac", {"TITLE=newer"});
    m_cache.clear();
    EXPECT_EQ(m_cache.tagSummaryFor(path).title, u"newer"_s);
}

TEST_F(TagSummaryTest, AnEmptyPathHasNothing)
{
    EXPECT_EQ(m_cache.tagSummaryFor({}), TagSummary());
}
