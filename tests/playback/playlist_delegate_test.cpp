// What rows look like, by their pixels.
#include "playback/playlist_delegate.h"

#include "playback/playlist_widget.h"

#include <QImage>
#include <QPainter>
#include <QStyleOptionViewItem>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr QColor amber(245, 166, 35);

class Looks : public testing::Test
{
protected:
    void SetUp() override
    {
        m_list.setFrameShape(QFrame::NoFrame);
        m_list.setStyleSheet(u"QListWidget { background: #0C0C0F; }"_s);
        m_list.appendFiles(
            {u"/m/short.flac"_s, u"/m/x"_s, u"/m/"_s + QString(300, u'W') + u".dsf"_s, u"/m/last.wav"_s});
        m_list.resize(300, 160);
        m_list.ensurePolished();
    }
    QImage picture()
    {
        m_list.doItemsLayout();
        QImage image(m_list.viewport()->size(), QImage::Format_RGB32);
        m_list.viewport()->render(&image);
        return image;
    }
    static bool paints(const QImage &image, const QRect &area, const QColor &background)
    {
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                if (image.pixelColor(x, y) != background)
                    return true;
            }
        }
        return false;
    }
    QRect rowRect(int row) { return m_list.visualItemRect(m_list.item(row)); }

    PlaylistWidget m_list;
    const QColor m_well{0x0C, 0x0C, 0x0F};
};

} // namespace

TEST_F(Looks, TheFormatStandsAtTheEndAndTheTextStopsBeforeIt)
{
    const QImage image = picture();
    const QRect plain = rowRect(0);
    EXPECT_TRUE(paints(image, {plain.right() - 45, plain.top(), 34, 32}, m_well)) << "FLAC";
    EXPECT_FALSE(paints(image, {plain.right() - 11, plain.top(), 11, 32}, m_well)) << "padding";
    EXPECT_FALSE(paints(image, {0, plain.top(), 12, 32}, m_well)) << "padding";
    const QRect noSuffix = rowRect(1);
    EXPECT_FALSE(paints(image, {noSuffix.right() - 60, noSuffix.top(), 60, 32}, m_well));
    const QRect endless = rowRect(2);
    EXPECT_FALSE(paints(image, {endless.right() - 41, endless.top(), 6, 32}, m_well)) << "the gap before DSF";
}

TEST_F(Looks, ThePlayingRowHasABarAtItsLeadingEdge)
{
    m_list.highlight(0);
    const QImage image = picture();
    EXPECT_EQ(image.pixelColor(0, 5), amber);
    EXPECT_EQ(image.pixelColor(1, 30), amber);
    EXPECT_NE(image.pixelColor(2, 5), amber);
    EXPECT_NE(image.pixelColor(150, 2), m_well) << "a wash lies over the row";
    m_list.highlight(-1);
    EXPECT_EQ(picture().pixelColor(0, 5), m_well);
}

TEST_F(Looks, ANameRunsAsItsOwnScriptDoesWhicheverWayTheInterfaceRuns)
{
    m_list.clear();
    m_list.appendFiles({u"/m/1 WWWWWWWW"_s});
    // How far the ink goes on from its left end until the first gap of a blank's width. Painted by hand: a
    // painter on a window takes the window's direction, one on an image does not.
    const auto firstWord = [this](Qt::LayoutDirection direction) {
        QImage image(300, 32, QImage::Format_RGB32);
        image.fill(m_well);
        QPainter painter(&image);
        painter.setLayoutDirection(direction);
        QStyleOptionViewItem option;
        option.initFrom(&m_list);
        option.rect = image.rect();
        option.direction = direction;
        m_list.itemDelegate()->paint(&painter, option, m_list.model()->index(0, 0));
        painter.end();
        const auto inked = [&](int x) { return paints(image, {x, 0, 1, 32}, m_well); };
        int left = 0;
        while (left < 299 && !inked(left))
            ++left;
        int end = left;
        while (end < 297 && (inked(end) || inked(end + 1) || inked(end + 2)))
            ++end;
        return end - left;
    };
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        EXPECT_GT(firstWord(direction), 0);
        EXPECT_LT(firstWord(direction), 15) << "the number stands behind the name";
    }
}

TEST_F(Looks, EverythingMirrorsFromRightToLeft)
{
    m_list.highlight(0);
    m_list.setLayoutDirection(Qt::RightToLeft);
    const QImage image = picture();
    EXPECT_EQ(image.pixelColor(rowRect(0).right(), 5), amber);
    EXPECT_NE(image.pixelColor(0, 5), amber);
    const QRect last = rowRect(3);
    EXPECT_TRUE(paints(image, {12, last.top(), 24, 32}, m_well)) << "WAV";
    EXPECT_FALSE(paints(image, {last.center().x() - 20, last.top(), 40, 32}, m_well))
        << "the text stands right";
}

TEST_F(Looks, ASelectedRowIsRaised)
{
    m_list.item(1)->setSelected(true);
    EXPECT_EQ(picture().pixelColor(150, rowRect(1).center().y()), QColor(0x1F, 0x1F, 0x26));
}

TEST_F(Looks, TheRowThatKeysLedToHasARing)
{
    QStyleOptionViewItem option;
    option.rect = QRect(0, 0, 300, 32);
    option.widget = &m_list;
    const auto edgeOf = [&](QStyle::State state) {
        option.state = state;
        QImage image(300, 32, QImage::Format_RGB32);
        image.fill(m_well);
        QPainter painter(&image);
        m_list.itemDelegate()->paint(&painter, option, m_list.model()->index(0, 0));
        painter.end();
        return image.pixelColor(150, 1);
    };
    const QColor ring = PlaylistColours().ring;
    EXPECT_NE(edgeOf(QStyle::State_Enabled | QStyle::State_HasFocus | QStyle::State_Selected), ring);
    m_list.setProperty("keyFocus", true);
    EXPECT_EQ(edgeOf(QStyle::State_Enabled | QStyle::State_HasFocus | QStyle::State_Selected), ring);
    EXPECT_EQ(edgeOf(QStyle::State_Enabled | QStyle::State_HasFocus), ring);
    EXPECT_NE(edgeOf(QStyle::State_Enabled | QStyle::State_Selected), ring) << "another row";
}

TEST_F(Looks, InTheLightLookThePlayingRowStandsOnADarkPlate)
{
    auto *delegate = qobject_cast<PlaylistDelegate *>(m_list.itemDelegate());
    ASSERT_NE(delegate, nullptr);
    delegate->setColours(lightPlaylistColours());
    m_list.highlight(0);
    const QImage image = picture();
    EXPECT_EQ(image.pixelColor(200, 2), QColor(43, 39, 32));
    EXPECT_EQ(image.pixelColor(0, 5), amber);
}

TEST_F(Looks, ANarrowRowLeavesTheFormatOut)
{
    m_list.setMinimumWidth(0);
    m_list.resize(40, 160);
    picture();
    EXPECT_EQ(m_list.itemDelegate()->sizeHint({}, {}).height(), 32);
}
