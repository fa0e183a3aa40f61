// Files written by real programs in this run, and what other programs say of them. Where the readers differ
// from those on purpose the difference stands here, so that it cannot change unseen.
#include "tags/audio_file_info.h"
#include "tags/flac_tags.h"
#include "tests/support_devices/child_process.h"
#include "tests/tags/tags_support.h"

#include "tests/support/patience.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStringList>

#include <gtest/gtest.h>

using namespace tags_test;
using namespace Qt::StringLiterals;

namespace {

#define NEED(program)                                                                                        \
    if (test_devices::findProgram(program).empty())                                                          \
    GTEST_SKIP() << program << " is not installed"

class RealFiles : public testing::Test
{
protected:
    QString file(const QString &name) const
    {
        return QString::fromStdString(m_folder.file(name.toStdString()));
    }

    QByteArray run(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished(kelp_test::patienceMs)) << program.toStdString();
        EXPECT_EQ(process.exitCode(), 0)
            << program.toStdString() << ": " << process.readAllStandardError().toStdString();
        return process.readAllStandardOutput();
    }
    void ffmpeg(const QStringList &arguments)
    {
        run(u"ffmpeg"_s, QStringList{u"-loglevel"_s, u"error"_s, u"-y"_s} + arguments);
    }

    /// Ten seconds of noise: packed it is longer than the head.
    void makeWav(const QString &name, int rateHz = 44100, const QString &codec = u"pcm_s16le"_s)
    {
        ffmpeg({u"-f"_s, u"lavfi"_s, u"-i"_s, u"anoisesrc=d=10:r=%1:seed=3"_s.arg(rateHz), u"-ac"_s, u"2"_s,
                u"-c:a"_s, codec, file(name)});
    }
    QStringList tagged(const QString &target) const
    {
        return {u"-i"_s,        file(u"a.wav"_s),    u"-metadata"_s, u"title=Größe"_s,
                u"-metadata"_s, u"artist=Trio 音"_s, u"-metadata"_s, u"album=Album"_s,
                u"-metadata"_s, u"date=1999"_s,      u"-metadata"_s, u"track=3/12"_s,
                target};
    }

    AudioFileInfo info(const QString &name, bool understood = true)
    {
        AudioFileInfo read;
        EXPECT_EQ(readAudioFileInfo(read, file(name).toStdString()), understood) << name.toStdString();
        return read;
    }
    /// The first audio stream as ffprobe tells it.
    QJsonObject probed(const QString &name)
    {
        const QByteArray text =
            run(u"ffprobe"_s, {u"-loglevel"_s, u"error"_s, u"-select_streams"_s, u"a:0"_s, u"-show_streams"_s,
                               u"-show_format"_s, u"-of"_s, u"json"_s, file(name)});
        QJsonObject all = QJsonDocument::fromJson(text).object();
        QJsonObject stream = all.value("streams"_L1)[0].toObject();
        const QJsonObject format = all.value("format"_L1).toObject();
        stream.insert("formatTags"_L1, format.value("tags"_L1));
        return stream;
    }
    void expectStream(const QString &name, const AudioFileInfo &read, bool withSamples = true)
    {
        const QJsonObject stream = probed(name);
        EXPECT_EQ(read.sampleRate, stream.value("sample_rate"_L1).toString().toUInt()) << name.toStdString();
        EXPECT_EQ(read.channels, static_cast<uint32_t>(stream.value("channels"_L1).toInt()))
            << name.toStdString();
        if (withSamples) {
            EXPECT_EQ(read.totalSamples,
                      static_cast<uint64_t>(
                          stream.value("duration"_L1).toString().toDouble() * read.sampleRate + 0.5))
                << name.toStdString();
        }
    }
    /// What ffprobe says of a tag, the file's or the stream's.
    static std::string tag(const QJsonObject &stream, const QString &key)
    {
        for (const char *where : {"formatTags", "tags"}) {
            const QJsonObject tags = stream.value(QLatin1StringView(where)).toObject();
            for (auto it = tags.begin(); it != tags.end(); ++it)
                if (it.key().compare(key, Qt::CaseInsensitive) == 0)
                    return it->toString().toStdString();
        }
        return {};
    }

    kelp_test::TempDir m_folder;
};

} // namespace

TEST_F(RealFiles, FlacAndMetaflacAgreeWithBothReaders)
{
    NEED("ffmpeg");
    NEED("flac");
    NEED("metaflac");
    makeWav(u"a.wav"_s, 48000);
    run(u"flac"_s, {u"--silent"_s, u"-T"_s, u"TITLE=Größe"_s, u"-T"_s, u"ALBUMARTIST=Band"_s, u"-T"_s,
                    u"Artist=Trio"_s, u"-T"_s, u"TRACKNUMBER=3/12"_s, u"-T"_s, u"WORK=Sonata"_s, u"-o"_s,
                    file(u"a.flac"_s), file(u"a.wav"_s)});
    run(u"metaflac"_s, {u"--set-tag=COMPOSER=Ravel"_s, u"--set-tag=MOVEMENT=Allegro"_s,
                        u"--set-tag=DATE=1999-05"_s, file(u"a.flac"_s)});
    const AudioFileInfo read = info(u"a.flac"_s);
    TagSet exact;
    ASSERT_TRUE(readFlacTags(file(u"a.flac"_s).toStdString(), exact));
    const auto shown = [this](const QString &what) {
        return QString::fromUtf8(run(u"metaflac"_s, {what, file(u"a.flac"_s)})).trimmed();
    };
    EXPECT_EQ(read.sampleRate, shown(u"--show-sample-rate"_s).toUInt());
    EXPECT_EQ(read.channels, shown(u"--show-channels"_s).toUInt());
    EXPECT_EQ(read.bitsPerSample, shown(u"--show-bps"_s).toUInt());
    EXPECT_EQ(read.totalSamples, shown(u"--show-total-samples"_s).toULongLong());
    const auto value = [&](const QString &key) {
        return shown(u"--show-tag="_s + key).section(u'=', 1).toStdString();
    };
    EXPECT_EQ(exact, (TagSet{value(u"TITLE"_s), value(u"ARTIST"_s), value(u"ALBUM"_s),
                             value(u"ALBUMARTIST"_s), value(u"TRACKNUMBER"_s), value(u"DATE"_s),
                             value(u"COMPOSER"_s), value(u"WORK"_s), value(u"MOVEMENT"_s), ""}));
    EXPECT_EQ(exact.title, "Größe");
    EXPECT_EQ(read.title, exact.title);
    EXPECT_EQ(read.composer, "Ravel");
    EXPECT_EQ(read.movementName, "Allegro");
    EXPECT_EQ(read.track, 3);
    // The difference: for lists the first of artist and album artist is the artist.
    EXPECT_EQ(read.artist, "Band");
    EXPECT_EQ(exact.artist, "Trio");
}

TEST_F(RealFiles, MetaflacsLargePictureHidesTheCommentFromListsOnly)
{
    NEED("ffmpeg");
    NEED("flac");
    NEED("metaflac");
    makeWav(u"a.wav"_s);
    ffmpeg({u"-f"_s, u"lavfi"_s, u"-i"_s, u"nullsrc=s=400x400,geq=random(1)*255:128:128"_s, u"-frames:v"_s,
            u"1"_s, file(u"cover.png"_s)});
    run(u"flac"_s, {u"--silent"_s, u"--no-padding"_s, u"-o"_s, file(u"a.flac"_s), file(u"a.wav"_s)});
    run(u"metaflac"_s, {u"--remove-all"_s, u"--dont-use-padding"_s, file(u"a.flac"_s)});
    run(u"metaflac"_s,
        {u"--dont-use-padding"_s, u"--import-picture-from="_s + file(u"cover.png"_s), file(u"a.flac"_s)});
    run(u"metaflac"_s, {u"--dont-use-padding"_s, u"--set-tag=COMPOSER=Ravel"_s, file(u"a.flac"_s)});
    TagSet exact;
    ASSERT_TRUE(readFlacTags(file(u"a.flac"_s).toStdString(), exact));
    EXPECT_EQ(exact.composer, "Ravel");
    FlacBlocks blocks;
    ASSERT_TRUE(readFlacBlocks(file(u"a.flac"_s).toStdString(), blocks, nullptr));
    ASSERT_FALSE(blocks.others.empty());
    if (blocks.others.front().type != 6)
        GTEST_SKIP() << "this metaflac puts the comment first";
    EXPECT_GT(blocks.others.front().bytes.size(), 65536U);
    EXPECT_EQ(info(u"a.flac"_s).composer, "");
}

TEST_F(RealFiles, FfmpegsFlacAndMp3AgreeWithFfprobe)
{
    NEED("ffmpeg");
    NEED("ffprobe");
    makeWav(u"a.wav"_s);
    for (const QString &name : {u"a.flac"_s, u"a.mp3"_s}) {
        ffmpeg(tagged(file(name)));
        const AudioFileInfo read = info(name);
        const QJsonObject stream = probed(name);
        expectStream(name, read, name == "a.flac"_L1);
        EXPECT_EQ(read.title, tag(stream, u"title"_s)) << name.toStdString();
        EXPECT_EQ(read.artist, tag(stream, u"artist"_s));
        EXPECT_EQ(read.album, tag(stream, u"album"_s));
        EXPECT_EQ(read.date, tag(stream, u"date"_s));
        EXPECT_EQ(read.track, 3);
        EXPECT_EQ(read.trackTotal, 12);
    }
    // The difference: of an MP3 file neither the number of samples nor a depth is read.
    EXPECT_EQ(info(u"a.mp3"_s).totalSamples, 0U);
}

TEST_F(RealFiles, FfmpegsId3OfVersion3IsUtf16AndReadsTheSame)
{
    NEED("ffmpeg");
    makeWav(u"a.wav"_s);
    QStringList arguments = tagged(file(u"a.mp3"_s));
    arguments.insert(arguments.size() - 1, u"-id3v2_version"_s);
    arguments.insert(arguments.size() - 1, u"3"_s);
    ffmpeg(arguments);
    const AudioFileInfo read = info(u"a.mp3"_s);
    EXPECT_EQ(read.title, "Größe");
    EXPECT_EQ(read.artist, "Trio 音");
    EXPECT_EQ(read.date, "1999");
}

TEST_F(RealFiles, WavFilesOfEveryDepthAgreeWithFfprobe)
{
    NEED("ffmpeg");
    NEED("ffprobe");
    const char *codecs[] = {"pcm_u8", "pcm_s16le", "pcm_s24le", "pcm_s32le", "pcm_f32le", "pcm_f64le"};
    for (const int rateHz : {44100, 96000}) {
        for (const char *codec : codecs) {
            makeWav(u"a.wav"_s, rateHz, QLatin1StringView(codec));
            const AudioFileInfo read = info(u"a.wav"_s);
            const QJsonObject stream = probed(u"a.wav"_s);
            expectStream(u"a.wav"_s, read, false);
            EXPECT_EQ(read.totalSamples, 10U * static_cast<uint32_t>(rateHz)) << codec;
            EXPECT_EQ(read.bitsPerSample, static_cast<uint32_t>(stream.value("bits_per_sample"_L1).toInt()))
                << codec;
            // The difference: FFmpeg writes floats behind an extensible format tag, where they are not told.
            EXPECT_FALSE(read.isFloat) << codec << " " << rateHz;
        }
    }
    // The difference: tags in a LIST chunk are not read.
    ffmpeg(tagged(file(u"b.wav"_s)));
    EXPECT_EQ(tag(probed(u"b.wav"_s), u"title"_s), "Größe");
    EXPECT_EQ(info(u"b.wav"_s).title, "");
}

TEST_F(RealFiles, AiffOfFfmpegDiffersInItsRate)
{
    NEED("ffmpeg");
    NEED("ffprobe");
    makeWav(u"a.wav"_s, 48000);
    ffmpeg(tagged(file(u"a.aiff"_s)));
    const AudioFileInfo read = info(u"a.aiff"_s);
    const QJsonObject stream = probed(u"a.aiff"_s);
    EXPECT_EQ(read.title, tag(stream, u"title"_s));
    EXPECT_EQ(read.channels, 2U);
    EXPECT_EQ(read.totalSamples, 480000U);
    // The differences: the rate is a constant, and of the texts an artist stands in "AUTH" only.
    EXPECT_EQ(stream.value("sample_rate"_L1).toString(), u"48000"_s);
    EXPECT_EQ(read.sampleRate, 44100U);
}

TEST_F(RealFiles, AiffOfSox)
{
    NEED("ffmpeg");
    NEED("sox");
    makeWav(u"a.wav"_s);
    run(u"sox"_s, {file(u"a.wav"_s), u"--comment"_s, u"Note"_s, file(u"a.aiff"_s)});
    const AudioFileInfo read = info(u"a.aiff"_s);
    EXPECT_EQ(read.totalSamples, 441000U);
    EXPECT_EQ(read.channels, 2U);
    EXPECT_EQ(read.bitsPerSample, 16U);
    // The difference: the comment stands in "COMT", which is not read.
    EXPECT_EQ(read.comment, "");
}

TEST_F(RealFiles, WavOfSox)
{
    NEED("sox");
    run(u"sox"_s, {u"-n"_s, u"-r"_s, u"88200"_s, u"-c"_s, u"1"_s, u"-b"_s, u"24"_s, file(u"a.wav"_s),
                   u"synth"_s, u"2"_s, u"noise"_s});
    const AudioFileInfo read = info(u"a.wav"_s);
    EXPECT_EQ(read.sampleRate, 88200U);
    EXPECT_EQ(read.channels, 1U);
    EXPECT_EQ(read.bitsPerSample, 24U);
    EXPECT_EQ(read.totalSamples, 176400U);
    run(u"sox"_s, {file(u"a.wav"_s), u"-e"_s, u"floating-point"_s, u"-b"_s, u"32"_s, file(u"b.wav"_s)});
    EXPECT_TRUE(info(u"b.wav"_s).isFloat);
    EXPECT_FALSE(read.isFloat);
}

TEST_F(RealFiles, WavpacksStreamAgreesAndItsTagIsNotRead)
{
    NEED("ffmpeg");
    NEED("ffprobe");
    NEED("wavpack");
    makeWav(u"a.wav"_s, 96000, u"pcm_s24le"_s);
    run(u"wavpack"_s, {u"-q"_s, u"-w"_s, u"Title=Song"_s, u"-w"_s, u"Artist=Trio"_s, file(u"a.wav"_s),
                       u"-o"_s, file(u"a.wv"_s)});
    const AudioFileInfo read = info(u"a.wv"_s);
    expectStream(u"a.wv"_s, read);
    EXPECT_EQ(read.bitsPerSample, 24U);
    EXPECT_EQ(tag(probed(u"a.wv"_s), u"title"_s), "Song");
    // The difference: an APEv2 tag at the end of a file longer than the head is not looked for …
    EXPECT_EQ(read.title, "");
    // … and one whose size leaves the header out, as programs write it, is not found in a short file either.
    run(u"ffmpeg"_s, {u"-loglevel"_s, u"error"_s, u"-y"_s, u"-i"_s, file(u"a.wav"_s), u"-t"_s, u"0.05"_s,
                      u"-c:a"_s, u"pcm_s24le"_s, file(u"b.wav"_s)});
    run(u"wavpack"_s, {u"-q"_s, u"-w"_s, u"Title=Song"_s, file(u"b.wav"_s), u"-o"_s, file(u"b.wv"_s)});
    EXPECT_EQ(tag(probed(u"b.wv"_s), u"title"_s), "Song");
    EXPECT_EQ(info(u"b.wv"_s).title, "");
}

TEST_F(RealFiles, FfmpegsTtaAgreesWithFfprobe)
{
    NEED("ffmpeg");
    NEED("ffprobe");
    makeWav(u"a.wav"_s);
    ffmpeg({u"-i"_s, file(u"a.wav"_s), u"-map_metadata"_s, u"-1"_s, file(u"a.tta"_s)});
    const AudioFileInfo read = info(u"a.tta"_s);
    EXPECT_EQ(read.format, "TTA");
    expectStream(u"a.tta"_s, read);
    EXPECT_EQ(read.bitsPerSample, 16U);
}

TEST_F(RealFiles, FfmpegsOggIsReadByItsBareText)
{
    NEED("ffmpeg");
    NEED("ffprobe");
    makeWav(u"a.wav"_s);
    QStringList arguments = tagged(file(u"a.ogg"_s));
    arguments.insert(arguments.size() - 1, u"-c:a"_s);
    arguments.insert(arguments.size() - 1, u"libvorbis"_s);
    ffmpeg(arguments);
    const AudioFileInfo read = info(u"a.ogg"_s);
    expectStream(u"a.ogg"_s, read, false);
    const std::string title = tag(probed(u"a.ogg"_s), u"title"_s);
    EXPECT_EQ(title, "Größe");
    // The difference: a value runs on to a NUL, through the length of the comment behind it.
    EXPECT_EQ(read.title.substr(0, title.size()), title);
    EXPECT_LE(read.title.size(), title.size() + 2);
}

TEST_F(RealFiles, FfmpegsM4aIsKnownAndNotUnderstood)
{
    NEED("ffmpeg");
    makeWav(u"a.wav"_s);
    ffmpeg(tagged(file(u"a.m4a"_s)));
    const AudioFileInfo read = info(u"a.m4a"_s, false);
    EXPECT_EQ(read.format, "M4A");
    EXPECT_EQ(read.sampleRate, 0U);
}
