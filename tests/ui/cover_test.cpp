// The cover: its picture, its cache, and its way into the window.
#include "window_fixture.h"

#include "ui/cover_store.h"

#include "tests/support/patience.h"

#include <QBuffer>
#include <QFile>
#include <QTest>
#include <atomic>

using namespace Qt::StringLiterals;

namespace {

QByteArray pictureBytes(const char *format, QSize size = {40, 30}, QColor color = Qt::red)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

class CoverFile : public testing::Test
{
protected:
    QImage readOf(const QByteArray &bytes)
    {
        const QString path = m_root.filePath(u"picture"_s);
        write(path, bytes);
        return readCoverImage(path);
    }
    QTemporaryDir m_root;
};

TEST_F(CoverFile, KnownFormatsAreReadByContent)
{
    for (const char *format : {"JPEG", "PNG", "BMP"})
        EXPECT_EQ(readOf(pictureBytes(format)).size(), QSize(40, 30)) << format;
    // A GIF of one red pixel.
    const QByteArray gif =
        QByteArray::fromHex("47494638396101000100800000ff0000ffffff2c00000000010001000002024401003b");
    EXPECT_EQ(readOf(gif).size(), QSize(1, 1));
}

TEST_F(CoverFile, OthersAndDamagedOnesAreNone)
{
    EXPECT_TRUE(readOf({}).isNull());
    EXPECT_TRUE(readOf("no picture").isNull());
    EXPECT_TRUE(readOf("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>").isNull());
    EXPECT_TRUE(readOf("/* XPM */ static char *a[] = {\"1 1 1 1\", \"a c red\", \"a\"};").isNull());
    const QByteArray png = pictureBytes("PNG", {400, 300});
    EXPECT_TRUE(readOf(png.first(30)).isNull());
    EXPECT_TRUE(readCoverImage(u"/no/such/file"_s).isNull());
    QByteArray huge = pictureBytes("BMP");
    // A head that promises 100,000 × 100,000 pixels.
    huge.replace(18, 8, QByteArray::fromHex("a0860100a0860100"));
    EXPECT_TRUE(readOf(huge).isNull());
}

TEST_F(CoverFile, LargeOnesAreReadSmall)
{
    EXPECT_EQ(readOf(pictureBytes("JPEG", {3000, 1500})).size(), QSize(1024, 512));
    EXPECT_EQ(readOf(pictureBytes("PNG", {4000, 2})).size(), QSize(1024, 1));
}

TEST(CoverCacheTest, TheOldestGivesWay)
{
    const QImage image(10, 10, QImage::Format_RGB32);
    CoverCache cache(1500);
    cache.insert(u"a"_s, image);
    cache.insert(u"b"_s, image);
    ASSERT_NE(cache.find(u"a"_s), nullptr);
    cache.insert(u"c"_s, image);
    EXPECT_EQ(cache.find(u"b"_s), nullptr) << "a was wanted later";
    EXPECT_NE(cache.find(u"a"_s), nullptr);
    EXPECT_LE(cache.bytes(), 1500);
    cache.insert(u"a"_s, image);
    EXPECT_EQ(cache.count(), 2);
    cache.insert(u"big"_s, QImage(100, 100, QImage::Format_RGB32));
    EXPECT_EQ(cache.count(), 1) << "the newest stays, however large";
    cache.insert(u"none"_s, {});
    ASSERT_NE(cache.find(u"none"_s), nullptr);
    EXPECT_TRUE(cache.find(u"none"_s)->isNull());
}

class CoverStoreTest : public testing::Test
{
protected:
    /// Answers at once, with a picture of the wish's colour.
    CoverStore::Ask answering()
    {
        return [this](const QStringList &args, int timeoutMs, const ProbeWorker::Deliver &deliver) {
            EXPECT_GT(timeoutMs, 0);
            m_asked.append(args);
            if (m_answer.rc == 0)
                write(args.at(3), pictureBytes("PNG"));
            deliver(m_answer);
        };
    }
    QImage load(CoverStore &store, const CoverWish &wish)
    {
        std::optional<QImage> got;
        store.load(wish, [&got](const QImage &image) { got = image; });
        EXPECT_TRUE(QTest::qWaitFor([&got] { return got.has_value(); }, kelp_test::patienceMs));
        return got.value_or(QImage());
    }
    void SetUp() override
    {
        m_path = m_root.filePath(u"a.flac"_s);
        write(m_path, "x");
    }
    QTemporaryDir m_root;
    QString m_path;
    QList<QStringList> m_asked;
    PlayerProbeResult m_answer;
};

TEST_F(CoverStoreTest, AsksTheEngineOnceAFile)
{
    CoverStore store(answering());
    EXPECT_EQ(load(store, {m_path}).size(), QSize(40, 30));
    EXPECT_EQ(load(store, {m_path}).size(), QSize(40, 30));
    ASSERT_EQ(m_asked.size(), 1);
    EXPECT_EQ(m_asked.first().mid(0, 3), (QStringList{u"-cover"_s, m_path, u"-out"_s}));
    EXPECT_FALSE(QFile::exists(m_asked.first().at(3))) << "the file is gone when it has been read";
    load(store, {m_path, 3});
    EXPECT_EQ(m_asked.last().mid(4), (QStringList{u"-track"_s, u"3"_s}));
    write(m_path, "changed");
    load(store, {m_path});
    EXPECT_EQ(m_asked.size(), 3) << "a changed file is looked at anew";
}

TEST_F(CoverStoreTest, NoCoverIsRememberedAndAFailureIsNot)
{
    m_answer = {1, u"COVER none"_s};
    CoverStore store(answering());
    EXPECT_TRUE(load(store, {m_path}).isNull());
    EXPECT_TRUE(load(store, {m_path}).isNull());
    EXPECT_EQ(m_asked.size(), 1);
    m_answer = {-1000, u"[probe] timed out"_s};
    EXPECT_TRUE(load(store, {m_path, 2}).isNull());
    EXPECT_TRUE(load(store, {m_path, 2}).isNull());
    EXPECT_EQ(m_asked.size(), 3);
    EXPECT_TRUE(load(store, {}).isNull());
    EXPECT_EQ(m_asked.size(), 3) << "nothing is asked for no file";
}

TEST_F(CoverStoreTest, AStoreThatIsGoneDeliversNothing)
{
    bool delivered = false;
    // Often, since the reading thread has to be at its end just when the store goes.
    for (int round = 0; round < 50; ++round) {
        m_asked.clear();
        {
            CoverStore store(answering());
            for (int track = 0; track < 3; ++track)
                store.load({m_path, track}, [&delivered](const QImage &) { delivered = true; });
        }
        ASSERT_EQ(m_asked.size(), 3);
        EXPECT_FALSE(QFileInfo(QFileInfo(m_asked.first().at(3)).path()).exists())
            << "nothing reads there any more, so the folder goes with the store";
    }
    QTest::qWait(50);
    EXPECT_FALSE(delivered);
}

class CoverWindow : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        m_probe = [this](const QStringList &args) {
            if (args.value(0) != u"-cover"_s)
                return PlayerProbeResult{};
            ++m_covers;
            if (args.at(1).endsWith(u"b.wav"_s))
                return PlayerProbeResult{1, u"COVER none"_s};
            write(args.at(3), pictureBytes("PNG"));
            return PlayerProbeResult{0, u"COVER 99 image/png"_s};
        };
        makeWindow();
        addFiles(2);
    }
    const QImage &image() { return WindowInspector::cover(*m_window).image; }
    std::atomic<int> m_covers = 0;
};

TEST_F(CoverWindow, FollowsTheTrack)
{
    EXPECT_TRUE(image().isNull());
    m_window->startPlayback(0);
    EXPECT_EQ(m_covers, 0) << "the start of a track does not wait for a picture";
    ASSERT_TRUE(QTest::qWaitFor([this] { return !image().isNull(); }, kelp_test::patienceMs));
    EXPECT_EQ(image().size(), QSize(40, 30));
    m_window->startPlayback(1);
    ASSERT_TRUE(QTest::qWaitFor([this] { return image().isNull(); }, kelp_test::patienceMs))
        << "no cover is not the last one's";
}

TEST_F(CoverWindow, OnlyTheLastWishIsShown)
{
    m_window->startPlayback(0);
    m_window->startPlayback(1);
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_covers >= 1; }, kelp_test::patienceMs));
    QTest::qWait(100);
    EXPECT_TRUE(image().isNull());
    EXPECT_EQ(m_covers, 1) << "a wish that was overtaken is not asked for";
}

} // namespace
