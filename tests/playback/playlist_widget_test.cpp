#include "playback/playlist_widget.h"

#include "playback/playlist_item.h"
#include "playback/playlist_roles.h"
#include "playback/saved_rows.h"

#include <QAbstractItemModelTester>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

QString pathOf(int number)
{
    return u"/m/"_s + QString::number(number).rightJustified(6, u'0') + u".flac"_s;
}

QStringList paths(int from, int to)
{
    QStringList list;
    for (int i = from; i < to; ++i)
        list.append(pathOf(i));
    return list;
}

const PlaylistEntry sheetRow{u"03. Lied"_s, u"/m/a.wav"_s, u"/m/a.cue"_s, {}, 3, 1.5, 2.5};
const PlaylistEntry imageRow{u"01. x"_s, u"/m/d.iso"_s, {}, u"/m/d.iso"_s, 1, 0., 9.};

/// Few rows take the ordinary way and many the bulk way; both must end alike.
class Rows : public testing::TestWithParam<int>
{
protected:
    int count() const { return GetParam(); }
    QStringList shown() const
    {
        QStringList list;
        for (int row = 0; row < m_list.count(); ++row)
            list.append(m_list.entryAt(row).path);
        return list;
    }
    /// The index finds exactly what a look at every row finds.
    void checkIndex()
    {
        const QStringList all = shown();
        for (int i = 0; i < count() * 2; i += std::max(1, count() / 10)) {
            EXPECT_EQ(m_list.rowOfPath(pathOf(i)), all.indexOf(pathOf(i))) << i;
            EXPECT_EQ(m_list.index().hasPath(pathOf(i)), all.contains(pathOf(i))) << i;
            EXPECT_EQ(m_list.index().isListed(pathOf(i)), all.contains(pathOf(i))) << i;
        }
        EXPECT_EQ(m_list.model()->rowCount(), all.size());
    }

    PlaylistWidget m_list;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(FewAndMany, Rows, testing::Values(6, 300));

TEST_P(Rows, FilesAreAppended)
{
    m_list.appendFiles(paths(0, count()));
    EXPECT_EQ(shown(), paths(0, count()));
    EXPECT_EQ(m_list.item(1)->text(), u"000001.flac"_s);
    EXPECT_EQ(m_list.item(1)->toolTip(), pathOf(1));
    checkIndex();
    m_list.appendFiles(paths(count(), count() + count() / 2));
    EXPECT_EQ(m_list.count(), count() + count() / 2);
    checkIndex();
}

TEST_P(Rows, RemovedAndPutBack)
{
    m_list.appendFiles(paths(0, count()));
    const RowRuns gone{{1, 2}, {count() / 2, count() / 3}};
    const QList<PlaylistEntry> removed = m_list.removeEntries(gone);
    EXPECT_EQ(removed.size(), 2 + count() / 3);
    EXPECT_EQ(removed.first().path, pathOf(1));
    EXPECT_FALSE(shown().contains(pathOf(count() / 2)));
    checkIndex();
    m_list.insertEntries(gone, removed);
    EXPECT_EQ(shown(), paths(0, count()));
    checkIndex();
}

TEST_P(Rows, TheRowBehindRemovedOnesIsCurrent)
{
    m_list.appendFiles(paths(0, count()));
    m_list.setCurrentRow(2);
    m_list.removeEntries({{2, count() - 4}});
    EXPECT_EQ(m_list.currentRow(), 2);
    EXPECT_EQ(m_list.entryAt(2).path, pathOf(count() - 2));
    m_list.setCurrentRow(3);
    m_list.removeEntries({{1, 3}});
    EXPECT_EQ(m_list.currentRow(), 0) << "the last one that is left";
}

TEST_P(Rows, EverythingCanGoAndComeBack)
{
    m_list.appendFiles(paths(0, count()));
    const QList<PlaylistEntry> removed = m_list.removeEntries({{0, count()}});
    EXPECT_EQ(m_list.count(), 0);
    EXPECT_FALSE(m_list.index().hasPath(pathOf(0)));
    m_list.insertEntries({{0, count()}}, removed);
    EXPECT_EQ(shown(), paths(0, count()));
    checkIndex();
}

TEST_P(Rows, ArrangedRowsKeepCurrentSelectionHiddenAndHighlight)
{
    m_list.appendFiles(paths(0, count()));
    m_list.setCurrentRow(1);
    m_list.item(3)->setSelected(true);
    m_list.setRowHidden(2, true);
    m_list.highlight(1);
    m_list.arrange(blockMove({{1, 3}}, count(), count()));
    QStringList expected{pathOf(0)};
    expected += paths(4, count()) + paths(1, 4);
    EXPECT_EQ(shown(), expected);
    EXPECT_EQ(m_list.currentRow(), count() - 3);
    EXPECT_EQ(m_list.highlightedRow(), count() - 3);
    EXPECT_EQ(m_list.selectedRuns(), (RowRuns{{count() - 3, 1}, {count() - 1, 1}}));
    EXPECT_TRUE(m_list.isRowHidden(count() - 2));
    EXPECT_FALSE(m_list.isRowHidden(2));
    EXPECT_EQ(*m_list.takeOrderChange(), (RowRuns{{0, 1}, {4, count() - 4}, {1, 3}}));
    EXPECT_FALSE(m_list.takeOrderChange());
    checkIndex();
}

TEST_P(Rows, RowsCanBeAddedWhileOthersAreHidden)
{
    m_list.appendFiles(paths(0, count()));
    m_list.setRowHidden(1, true);
    m_list.setCurrentRow(0);
    m_list.appendFiles(paths(count(), count() * 2));
    EXPECT_EQ(shown(), paths(0, count() * 2));
    EXPECT_TRUE(m_list.isRowHidden(1));
    EXPECT_FALSE(m_list.isRowHidden(count() + 1));
    EXPECT_EQ(m_list.currentRow(), 0);
    checkIndex();
}

TEST_P(Rows, SelectAllLeavesHiddenRowsAlone)
{
    m_list.appendFiles(paths(0, count()));
    m_list.setRowHidden(1, true);
    m_list.show();
    m_list.setFocus();
    QTest::keyClick(&m_list, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(m_list.selectedRuns(), (RowRuns{{0, 1}, {2, count() - 2}}));
}

TEST(PlaylistWidget, IsSetUpForDragging)
{
    const PlaylistWidget list;
    EXPECT_EQ(list.selectionMode(), QListWidget::ExtendedSelection);
    EXPECT_FALSE(list.alternatingRowColors());
    EXPECT_EQ(list.minimumHeight(), 110);
    EXPECT_EQ(list.dragDropMode(), QListWidget::InternalMove);
    EXPECT_EQ(list.defaultDropAction(), Qt::MoveAction);
    EXPECT_TRUE(list.dragEnabled());
    EXPECT_TRUE(list.showDropIndicator());
    EXPECT_TRUE(list.viewport()->acceptDrops());
    EXPECT_TRUE(list.uniformItemSizes());
}

TEST(PlaylistWidget, RowsAnswerTheirRoles)
{
    PlaylistWidget list;
    list.appendEntry(sheetRow, u"tip"_s);
    list.appendEntry(imageRow);
    list.appendFiles({u"/m/b.flac"_s});
    const QListWidgetItem &sheet = *list.item(0);
    EXPECT_EQ(sheet.text(), u"03. Lied"_s);
    EXPECT_EQ(sheet.toolTip(), u"tip"_s);
    EXPECT_EQ(sheet.data(256).toString(), u"/m/a.wav"_s);
    EXPECT_EQ(sheet.data(257).toString(), u"/m/a.cue"_s);
    EXPECT_EQ(sheet.data(258).toInt(), 3);
    EXPECT_EQ(sheet.data(259).toDouble(), 1.5);
    EXPECT_EQ(sheet.data(260).toDouble(), 2.5);
    EXPECT_FALSE(sheet.data(261).isValid());
    EXPECT_EQ(list.item(1)->data(261).toString(), u"/m/d.iso"_s);
    for (const int role : {257, 258, 259, 260, 261, Qt::UserRole + 20})
        EXPECT_FALSE(list.item(2)->data(role).isValid()) << role;
    EXPECT_EQ(rowKey(list.entryAt(0)), rowKey(sheetRow));
    EXPECT_EQ(list.entryAt(7).path, QString());
    const std::unique_ptr<QListWidgetItem> copy(sheet.clone());
    EXPECT_EQ(rowKey(PlaylistWidget::entryOf(*copy)), rowKey(sheetRow));
    QListWidgetItem plain(u"t"_s);
    plain.setData(256, u"/x"_s);
    EXPECT_EQ(PlaylistWidget::entryOf(plain).path, u"/x"_s);
}

TEST(PlaylistWidget, AChangedRoleIsToldAndIndexed)
{
    PlaylistWidget list;
    list.appendFiles({u"/m/a.flac"_s, u"/m/b.flac"_s});
    QSignalSpy changes(list.model(), &QAbstractItemModel::dataChanged);
    list.item(0)->setData(playlist_role::path, u"/n/c.flac"_s);
    EXPECT_EQ(changes.size(), 1);
    EXPECT_EQ(list.rowOfPath(u"/n/c.flac"_s), 0);
    EXPECT_EQ(list.rowOfPath(u"/m/a.flac"_s), -1);
    EXPECT_EQ(list.item(0)->text(), u"a.flac"_s) << "the text stays";
    list.item(1)->setText(u"Title"_s);
    EXPECT_EQ(list.item(1)->text(), u"Title"_s);
    list.item(1)->setText({});
    EXPECT_EQ(list.item(1)->text(), QString());
    list.item(1)->setData(playlist_role::track, 4);
    list.item(1)->setData(playlist_role::cuePath, u"/m/x.cue"_s);
    list.item(1)->setData(playlist_role::startSec, 1.);
    list.item(1)->setData(playlist_role::endSec, 2.);
    list.item(1)->setData(playlist_role::isoPath, u"/i"_s);
    list.item(1)->setToolTip(u"tip"_s);
    list.item(1)->setData(Qt::UserRole + 20, 5);
    const PlaylistEntry entry = list.entryAt(1);
    EXPECT_EQ(entry.track, 4);
    EXPECT_EQ(entry.isoPath, u"/i"_s);
    EXPECT_EQ(list.item(1)->data(Qt::UserRole + 20).toInt(), 5);
    EXPECT_EQ(changes.size(), 10);
}

TEST(PlaylistWidget, APlainFileThatASheetPlaysCountsAsListed)
{
    PlaylistWidget list;
    list.appendEntry(sheetRow);
    EXPECT_TRUE(list.index().isListed(u"/m/a.wav"_s));
    EXPECT_FALSE(list.index().isListed(u"/m/a.cue"_s));
    EXPECT_FALSE(list.index().isListed(u"/m/A.wav"_s)) << "the case of letters counts";
}

TEST(PlaylistWidget, ASheetNamedLikeANumberIsTheOneExceptionOfBeingListed)
{
    PlaylistWidget list;
    PlaylistEntry odd = sheetRow;
    odd.cuePath = u"7"_s;
    list.appendEntry(odd);
    EXPECT_FALSE(list.index().isListed(u"/m/a.wav"_s));
    EXPECT_TRUE(list.index().hasPath(u"/m/a.wav"_s));
    odd.cuePath = u"0"_s;
    list.appendEntry(odd);
    EXPECT_TRUE(list.index().isListed(u"/m/a.wav"_s)) << "a zero is a zero";
}

TEST(PlaylistWidget, TheFirstOfSeveralEqualRowsIsFound)
{
    PlaylistWidget list;
    list.appendFiles({u"/m/x.flac"_s});
    list.appendEntry(sheetRow);
    list.appendEntry(sheetRow);
    PlaylistEntry other = sheetRow;
    other.track = 4;
    list.appendEntry(other);
    EXPECT_EQ(list.rowOfKey(rowKey(sheetRow)), 1);
    EXPECT_EQ(list.rowOfKey(rowKey(other)), 3);
    EXPECT_EQ(list.rowOfPath(sheetRow.path), 1);
    EXPECT_EQ(list.rowOfKey(rowKey(sheetRow, 9)), -1);
    EXPECT_EQ(list.rowOfKey({}), -1);
    delete list.takeItem(1);
    EXPECT_EQ(list.rowOfKey(rowKey(sheetRow)), 1);
}

TEST(PlaylistWidget, ANameWithASeparatorIsFoundByItsKey)
{
    PlaylistWidget list;
    PlaylistEntry odd;
    odd.path = u"/m/a\u001fb.flac"_s;
    list.appendEntry(odd);
    EXPECT_EQ(list.rowOfKey(rowKey(odd)), 0);
}

TEST(PlaylistWidget, RowsThatLeaveInAnyWayLeaveTheIndex)
{
    auto list = std::make_unique<PlaylistWidget>();
    list->appendFiles(paths(0, 5));
    const std::unique_ptr<QListWidgetItem> taken(list->takeItem(0));
    EXPECT_EQ(list->rowOfPath(pathOf(0)), -1);
    delete list->item(0);
    EXPECT_EQ(list->rowOfPath(pathOf(1)), -1);
    list->model()->removeRows(0, 1);
    EXPECT_EQ(list->rowOfPath(pathOf(2)), -1);
    EXPECT_EQ(list->rowOfPath(pathOf(3)), 0);
    list->addItem(new QListWidgetItem(u"a row of another make"_s));
    list->removeEntries({{2, 1}});
    list->highlight(0);
    list->clear();
    EXPECT_FALSE(list->index().hasPath(pathOf(3)));
    EXPECT_EQ(list->highlightedRow(), -1);
    list->appendFiles(paths(0, 5));
    list.reset(); // the rows end after the index
}

TEST(PlaylistWidget, TheModelKeepsItsPromisesForSingleRows)
{
    PlaylistWidget list;
    const QAbstractItemModelTester tester(list.model(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    list.appendFiles(paths(0, 5));
    list.moveEntry(0, 3);
    list.removeEntries({{1, 2}});
    list.clear();
}

TEST(PlaylistWidget, OneRowIsBoldAndAmber)
{
    PlaylistWidget list;
    list.appendFiles(paths(0, 3));
    list.highlight(0);
    list.highlight(1);
    EXPECT_EQ(list.highlightedRow(), 1);
    for (int row = 0; row < 3; ++row)
        EXPECT_EQ(list.item(row)->font().weight(), row == 1 ? 700 : 400);
    EXPECT_EQ(list.item(1)->foreground().color(), QColor(245, 166, 35, 255));
    EXPECT_FALSE(list.item(0)->data(Qt::ForegroundRole).isValid());
    list.highlight(-1);
    EXPECT_EQ(list.item(1)->font().weight(), 400);
    list.highlight(2);
    delete list.takeItem(2);
    EXPECT_EQ(list.highlightedRow(), -1);
}

TEST(PlaylistWidget, AMovedRowIsCurrentAndKeepsItsHighlight)
{
    PlaylistWidget list;
    list.appendFiles(paths(0, 4));
    list.highlight(0);
    list.moveEntry(0, 2);
    EXPECT_EQ(list.entryAt(2).path, pathOf(0));
    EXPECT_EQ(list.currentRow(), 2);
    EXPECT_EQ(list.highlightedRow(), 2);
    EXPECT_EQ(*list.takeOrderChange(), (RowRuns{{1, 2}, {0, 1}, {3, 1}}));
    list.moveEntry(3, 0);
    EXPECT_EQ(*list.takeOrderChange(), (RowRuns{{3, 1}, {0, 3}}));
}

TEST(PlaylistWidget, SavedRowsAreTheRows)
{
    PlaylistWidget list;
    list.appendFiles({u"/m/a.flac"_s});
    list.appendEntry(sheetRow);
    list.item(0)->setText(u"Title"_s);
    PlaylistEntry plain;
    plain.text = u"Title"_s;
    plain.path = u"/m/a.flac"_s;
    EXPECT_EQ(list.savedRows(), (QStringList{savedRow(plain), savedRow(sheetRow)}));
}

TEST(PlaylistWidget, TypingFindsARowAndEnterStartsIt)
{
    PlaylistWidget list;
    list.appendFiles({u"/m/Aria.flac"_s, u"/m/Bolero.flac"_s, u"/m/Canon.flac"_s});
    list.show();
    list.setFocus();
    QSignalSpy started(&list, &QListWidget::itemActivated);
    QTest::keyClicks(&list, u"bo"_s);
    EXPECT_EQ(list.currentRow(), 1);
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(started.size(), 1);
}

TEST(PlaylistWidget, AnInputMethodFindsARow)
{
    PlaylistWidget list;
    list.appendFiles({u"/m/Aria.flac"_s, u"/m/北京.flac"_s, u"/m/上海.flac"_s});
    list.show();
    list.setFocus();
    list.setCurrentRow(0);
    EXPECT_TRUE(list.testAttribute(Qt::WA_InputMethodEnabled));
    QInputMethodEvent composing(u"shang"_s, {});
    QCoreApplication::sendEvent(&list, &composing);
    EXPECT_EQ(list.currentRow(), 0);
    QInputMethodEvent written;
    written.setCommitString(u"上"_s);
    QCoreApplication::sendEvent(&list, &written);
    EXPECT_EQ(list.currentRow(), 2);
    EXPECT_TRUE(list.testAttribute(Qt::WA_InputMethodEnabled)) << "and another one after that";
}

TEST(PlaylistWidget, RowsAreOfOneHeight)
{
    PlaylistWidget list;
    list.resize(300, 400);
    list.appendFiles(paths(0, 1000));
    list.item(3)->setText(u"two\nlines"_s);
    list.show();
    EXPECT_EQ(list.visualItemRect(list.item(0)).height(), 32);
    EXPECT_EQ(list.visualItemRect(list.item(3)).height(), 32);
    EXPECT_EQ(list.visualItemRect(list.item(999)).top() - list.visualItemRect(list.item(0)).top(), 999 * 32);
    list.showRow(500);
    EXPECT_TRUE(list.viewport()->rect().contains(list.visualItemRect(list.item(500))));
    list.removeEntries({{900, 50}});
    EXPECT_TRUE(list.viewport()->rect().contains(list.visualItemRect(list.item(500))))
        << "the view stays where it is";
}
