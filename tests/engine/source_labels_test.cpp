#include "engine/source_labels.h"

#include <QCoreApplication>
#include <QTranslator>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

SourceInfo pcm(int rateHz, std::optional<int> depthBits, int channels)
{
    return {rateHz, depthBits, channels, u"flac"_s, false, 61.25};
}

SourceInfo dsd(int rateHz, bool dst)
{
    return {rateHz, 1, 2, u"dsd"_s, dst, 10.};
}

TEST(SourceLabels, Pcm)
{
    const SourceLabels labels = sourceLabels(pcm(44100, 16, 2));
    EXPECT_EQ(labels.format, u"PCM 44100 Hz"_s);
    EXPECT_EQ(labels.info, u"音频：PCM 44100 Hz · 16 位 · 2 声道 · 61.3 秒"_s);
    EXPECT_EQ(labels.channels, u"2 声道"_s);
    EXPECT_EQ(labels.bitrate, u"1.41 Mbps"_s);
    EXPECT_EQ(labels.ledBits, 16);
}

class RightToLeft final : public QTranslator
{
public:
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return QByteArray(source).contains("%4") ? u"الصوت: %1 · %2 بت · القنوات: %3 · %4 ث"_s : QString();
    }
    bool isEmpty() const override { return false; }
};

TEST(SourceLabels, EachValueStaysAPieceOfItsOwnFromRightToLeft)
{
    int count = 1;
    char name[] = "test";
    char *arguments[] = {name, nullptr};
    const QCoreApplication application(count, arguments);
    RightToLeft words;
    ASSERT_TRUE(QCoreApplication::installTranslator(&words));
    const QString info = sourceLabels(pcm(44100, 16, 2)).info;
    QCoreApplication::removeTranslator(&words);
    EXPECT_EQ(info, u"الصوت: \u2068PCM 44100 Hz\u2069 · \u206816\u2069 بت · القنوات: \u20682\u2069 · "
                    "\u206861.3\u2069 ث"_s);
}

TEST(SourceLabels, DsdNamesByRate)
{
    EXPECT_EQ(sourceLabels(dsd(2822400, false)).format, u"DSD64"_s);
    EXPECT_EQ(sourceLabels(dsd(5644800, false)).format, u"DSD128"_s);
    EXPECT_EQ(sourceLabels(dsd(11289600, false)).format, u"DSD256"_s);
    EXPECT_EQ(sourceLabels(dsd(22579200, false)).format, u"DSD512"_s);
    EXPECT_EQ(sourceLabels(dsd(3072000, false)).format, u"DSD 3072000"_s);
}

TEST(SourceLabels, DsdTellsDstAndLeavesTheLamp)
{
    const SourceLabels packed = sourceLabels(dsd(2822400, true));
    EXPECT_TRUE(packed.info.endsWith(u" · DST：是"_s)) << packed.info.toStdString();
    EXPECT_FALSE(packed.ledBits);
    EXPECT_EQ(packed.bitrate, u"5.64 Mbps"_s);
    EXPECT_TRUE(sourceLabels(dsd(2822400, false)).info.endsWith(u" · DST：否"_s));
}

TEST(SourceLabels, BitrateBelowAndFrom1000)
{
    EXPECT_EQ(sourceLabels(pcm(8000, 16, 1)).bitrate, u"128 kbps"_s);
    EXPECT_EQ(sourceLabels(pcm(31249, 16, 2)).bitrate, u"1000 kbps"_s);
    EXPECT_EQ(sourceLabels(pcm(31250, 16, 2)).bitrate, u"1.00 Mbps"_s);
}

TEST(SourceLabels, UnknownDepthGivesNoBitrateAndNoLamp)
{
    const SourceLabels labels = sourceLabels(pcm(44100, std::nullopt, 2));
    EXPECT_TRUE(labels.bitrate.isEmpty());
    EXPECT_FALSE(labels.ledBits);
    EXPECT_TRUE(labels.info.contains(u"— 位"_s));
}

TEST(SourceLabels, LargestNumbersDoNotOverflow)
{
    EXPECT_EQ(sourceLabels(pcm(2147483647, 2147483647, 1)).bitrate, u"4611686014132.42 Mbps"_s);
}

} // namespace
