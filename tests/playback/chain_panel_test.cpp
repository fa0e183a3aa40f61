#include "playback/chain_panel.h"

#include "playback/warning_count.h"

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QList<ChainRow> threeRows = {
    {u"后端"_s, u"<ALSA>"_s, false}, {u"欠载"_s, u"12"_s, true}, {u"DSP"_s, u"none"_s, false}};

class ChainPanelTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_panel.setStyleSheet(u"QLabel#vesperChainRow[chainWarn=\"true\"] { color: #ff0000; }"
                              "QFrame#vesperChainLamp[lamp=\"good\"] { background: #00ff00; }"
                              "QLabel#vesperChainVerdict[px=\"12\"] { font-size: 12px; }"_s);
        m_panel.resize(208, 600);
        m_panel.show();
        QApplication::processEvents();
    }
    QList<QLabel *> rows() { return m_panel.findChildren<QLabel *>(u"vesperChainRow"_s); }
    QStringList shownRows()
    {
        QApplication::processEvents();
        QStringList texts;
        for (const QLabel *label : rows()) {
            if (!label->isHidden())
                texts.append(label->toolTip());
        }
        return texts;
    }
    QStringList values()
    {
        QStringList texts;
        for (const QLabel *label : m_panel.findChildren<QLabel *>(u"vesperCardVal"_s))
            texts.append(label->text());
        return texts;
    }
    ChainPanel m_panel;
};

TEST(ChainPanelMirrored, ValuesStayPiecesOfTheirOwn)
{
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        QGuiApplication::setLayoutDirection(direction);
        ChainPanel panel;
        panel.showRows({{u"延时"_s, u"46.4 ms"_s, false}});
        ChainCardTexts cards;
        cards.sampleRate = u"96000 Hz"_s;
        cards.channels = u"القنوات: 2"_s;
        panel.showCards(cards);
        const bool mirrored = direction == Qt::RightToLeft;
        EXPECT_EQ(panel.findChild<QLabel *>(u"vesperChainRow"_s)->text().contains(u"\u206846.4 ms\u2069"_s),
                  mirrored);
        const QList<QLabel *> values = panel.findChildren<QLabel *>(u"vesperCardVal"_s);
        EXPECT_FALSE(values.at(1)->property("words").toBool());
        EXPECT_TRUE(values.at(2)->property("words").toBool())
            << "letters that join up are not set as figures";
    }
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST_F(ChainPanelTest, RowsHaveTheirFormAndTheirProperty)
{
    m_panel.showRows(threeRows);
    ASSERT_EQ(rows().size(), 3);
    const QLabel *first = rows().at(0);
    EXPECT_EQ(first->text(), u"<b>后端</b> · &lt;ALSA&gt;"_s);
    EXPECT_TRUE(first->wordWrap());
    EXPECT_EQ(first->toolTip(), u"&lt;ALSA&gt;"_s);
    EXPECT_FALSE(first->property("chainWarn").toBool());
    EXPECT_TRUE(rows().at(1)->property("chainWarn").toBool());
    EXPECT_EQ(rows().at(1)->palette().color(QPalette::WindowText), QColor(Qt::red))
        << "the style is polished anew";
    m_panel.showRows(threeRows.first(1));
    EXPECT_EQ(rows().size(), 1);
}

TEST_F(ChainPanelTest, WithoutRowsTheirPlaceIsHidden)
{
    auto *list = m_panel.findChild<QWidget *>(u"vesperChainRows"_s);
    EXPECT_TRUE(list->isHidden());
    m_panel.showRows(threeRows);
    EXPECT_FALSE(list->isHidden());
    m_panel.setRowsEnabled(false);
    EXPECT_TRUE(list->isHidden());
    m_panel.showRows(threeRows.first(2));
    EXPECT_TRUE(list->isHidden());
    m_panel.setRowsEnabled(true);
    EXPECT_FALSE(list->isHidden());
    m_panel.showRows({});
    EXPECT_TRUE(list->isHidden());
}

TEST_F(ChainPanelTest, RowsGiveWayFromTheLastUpwardButAWarningNever)
{
    QList<ChainRow> rows = threeRows;
    rows.append({u"音量"_s, u"unity"_s, false});
    m_panel.showRows(rows);
    EXPECT_EQ(shownRows(), (QStringList{u"&lt;ALSA&gt;"_s, u"12"_s, u"none"_s, u"unity"_s}));
    auto *list = m_panel.findChild<QWidget *>(u"vesperChainRows"_s);
    const int row =
        rows.isEmpty() ? 0 : m_panel.findChildren<QLabel *>(u"vesperChainRow"_s).first()->height();
    list->resize(208, 3 * row);
    EXPECT_EQ(shownRows(), (QStringList{u"&lt;ALSA&gt;"_s, u"12"_s, u"none"_s}));
    list->resize(208, 2 * row);
    EXPECT_EQ(shownRows(), (QStringList{u"&lt;ALSA&gt;"_s, u"12"_s}));
    list->resize(208, row);
    EXPECT_EQ(shownRows(), QStringList{u"12"_s});
    list->resize(208, 1);
    EXPECT_EQ(shownRows(), QStringList{u"12"_s});
    EXPECT_GE(list->minimumSizeHint().height(), row);
}

TEST_F(ChainPanelTest, LongRowsWrapAndDoNotOverlap)
{
    m_panel.showRows(
        {{u"后端"_s, u"words and words and "_s.repeated(12), false}, {u"DSP"_s, u"none"_s, false}});
    QApplication::processEvents();
    EXPECT_GT(rows().at(0)->height(), 2 * rows().at(1)->height());
    EXPECT_GE(rows().at(1)->y(), rows().at(0)->geometry().bottom());
    EXPECT_EQ(m_panel.width(), 208) << "a long value does not widen the column";
}

TEST_F(ChainPanelTest, TheVerdictCountsItsWarnings)
{
    auto *count = m_panel.findChild<WarningCount *>();
    EXPECT_TRUE(count->isHidden());
    m_panel.setRowsEnabled(false);
    m_panel.showRows(threeRows);
    EXPECT_FALSE(count->isHidden()) << "also while the rows are not shown";
    EXPECT_EQ(count->text(), u"1"_s);
    m_panel.showRows(threeRows.first(1));
    EXPECT_TRUE(count->isHidden());
}

TEST_F(ChainPanelTest, TheLampFollows)
{
    auto *lamp = m_panel.findChild<QFrame *>(u"vesperChainLamp"_s);
    EXPECT_EQ(lamp->property("lamp").toString(), u"off"_s);
    m_panel.showVerdict({ChainLamp::Green, u"Bit-perfect"_s, u"because"_s, {}});
    EXPECT_EQ(lamp->property("lamp").toString(), u"good"_s);
    EXPECT_EQ(lamp->grab().toImage().pixelColor(5, 5), QColor(0, 255, 0));
    m_panel.showVerdict({ChainLamp::Amber, u"Mixer+convert and many more words"_s, u"because"_s, {}});
    EXPECT_EQ(lamp->property("lamp").toString(), u"warn"_s);
    auto *word = m_panel.findChild<QLabel *>(u"vesperChainVerdict"_s);
    EXPECT_EQ(word->property("px").toInt(), 12) << "a long word is printed smaller";
}

TEST_F(ChainPanelTest, IdleCards)
{
    EXPECT_EQ(values(), (QStringList{u"— kbps"_s, u"— Hz"_s, u"—"_s, u"—"_s}));
    m_panel.showCards({u"4.61 Mbps"_s, u"96000 Hz"_s, u"PCM 96000 Hz"_s, u"2 ch"_s, 14});
    EXPECT_EQ(values(), (QStringList{u"4.61 Mbps"_s, u"96000 Hz"_s, u"2 ch"_s, u"14"_s}));
    m_panel.showCards({});
    EXPECT_EQ(values().first(), u"— kbps"_s);
}

TEST_F(ChainPanelTest, CardsAreTwoByTwoAndOneLineEachInANarrowColumn)
{
    const auto cells = m_panel.findChildren<QWidget *>(u"vesperCardCell"_s);
    ASSERT_EQ(cells.size(), 4);
    EXPECT_EQ(cells.at(0)->y(), cells.at(1)->y());
    EXPECT_LT(cells.at(0)->y(), cells.at(2)->y());
    m_panel.resize(180, 600);
    QApplication::processEvents();
    for (int i = 1; i < 4; ++i) {
        EXPECT_GT(cells.at(i)->y(), cells.at(i - 1)->y());
        EXPECT_EQ(cells.at(i)->x(), cells.at(0)->x());
    }
    const auto *key = cells.at(0)->findChild<QLabel *>(u"vesperCardKey"_s);
    const auto *value = cells.at(0)->findChild<QLabel *>(u"vesperCardVal"_s);
    EXPECT_LT(key->x(), value->x());
    m_panel.resize(208, 600);
    QApplication::processEvents();
    EXPECT_EQ(cells.at(0)->y(), cells.at(1)->y());
}

} // namespace
