// The playlist in the window: adding, changing, saving and taking back.
#include "app/settings_store.h"
#include "platform/settings_table.h"
#include "tests/support/settings_on_disk.h"
#include "window_fixture.h"

#include "ui/dock_bar.h"

#include "tests/support/patience.h"

#include <QDir>
#include <QDragEnterEvent>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QUrl>

using namespace Qt::StringLiterals;

class Playlist : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        makeWindow();
        takeLog();
    }
    PlaylistWidget *list() { return m_window->widgets().playlist; }
    TrackStartState &start() { return WindowInspector::start(*m_window); }
    QString message() { return m_window->widgets().message->text(); }

    /// Files in a folder of the test's, each with nothing in it.
    QStringList make(const QStringList &names)
    {
        QStringList paths;
        for (const QString &name : names) {
            const QString path = m_root.filePath(u"music/"_s + name);
            QDir().mkpath(QFileInfo(path).path());
            QFile file(path);
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
            paths.append(path);
        }
        return paths;
    }
    QStringList makeMany(int count, const QString &folder)
    {
        QStringList names;
        for (int i = 0; i < count; ++i)
            names.append(folder + u'/' + QString::number(i).rightJustified(4, u'0') + u".flac"_s);
        return make(names);
    }
    QString folder(const QString &name) { return m_root.filePath(u"music/"_s + name); }
    QStringList shown()
    {
        QStringList names;
        for (int row = 0; row < list()->count(); ++row)
            names.append(QFileInfo(fileAt(row)).fileName());
        return names;
    }
    QStringList saved() { return readUserSetting(settings::playlist); }
    void select(const QList<int> &rows)
    {
        list()->clearSelection();
        for (const int row : rows)
            list()->item(row)->setSelected(true);
    }
    void restart()
    {
        m_window.reset();
        makeWindow();
    }
    void abc() { m_window->addPaths(make({u"a.flac"_s, u"b.flac"_s, u"c.flac"_s})); }
};

TEST_F(Playlist, AFolderAndAFileAreAdded)
{
    make({u"d/b.flac"_s, u"d/a.dsf"_s, u"d/c.txt"_s, u"d/sub/x.flac"_s});
    int done = 0;
    m_window->addPaths({folder(u"d"_s), make({u"note.txt"_s}).first()}, [&done] { ++done; });
    EXPECT_EQ(shown(), (QStringList{u"a.dsf"_s, u"b.flac"_s, u"note.txt"_s}));
    EXPECT_EQ(done, 1);
    EXPECT_TRUE(logHas(u"已添加 3 首 (列表共 3 首)"_s));
    EXPECT_EQ(saved().size(), 3);
    EXPECT_TRUE(m_window->widgets().dock->start->isEnabled());
    EXPECT_EQ(list()->item(0)->toolTip(), fileAt(0));
}

TEST_F(Playlist, AFolderOfMp3OnlyAddsNothing)
{
    make({u"d/a.mp3"_s, u"d/b.ogg"_s});
    int done = 0;
    m_window->addPaths({folder(u"d"_s)}, [&done] { ++done; });
    const QString log = takeLog();
    EXPECT_LT(log.indexOf(u"跳过 2 个音频文件"_s), log.indexOf(u"没有可以添加的音频文件"_s));
    EXPECT_TRUE(log.contains(u"跳过 2 个音频文件"_s));
    EXPECT_EQ(done, 1);
}

TEST_F(Playlist, FiveHundredFilesAreNotBulkAndFiveHundredAndOneAre)
{
    makeMany(500, u"d"_s);
    m_window->addPaths({folder(u"d"_s)});
    EXPECT_EQ(list()->count(), 500);
    EXPECT_FALSE(takeLog().contains(u"批量添加耗时"_s));
    makeMany(501, u"e"_s);
    m_window->addPaths({folder(u"e"_s)});
    EXPECT_EQ(list()->count(), 1001);
    const QString log = takeLog();
    EXPECT_TRUE(log.contains(u"(501 首, 只排版一次)"_s));
    EXPECT_TRUE(log.contains(u"已添加 501 首 (列表共 1001 首)"_s));
    EXPECT_TRUE(list()->updatesEnabled());
    m_window->addPaths({folder(u"e"_s)});
    const QString again = takeLog();
    EXPECT_FALSE(again.contains(u"已添加"_s));
    EXPECT_TRUE(again.contains(u"(0 首, 只排版一次)"_s)) << "in bulk mode nothing added is told so";
    EXPECT_FALSE(again.contains(u"没有可以添加"_s));
    EXPECT_EQ(list()->count(), 1001);
}

TEST_F(Playlist, AListedFileIsNotAddedTwice)
{
    abc();
    m_window->addPaths(make({u"a.flac"_s, u"d.flac"_s}));
    EXPECT_EQ(shown(), (QStringList{u"a.flac"_s, u"b.flac"_s, u"c.flac"_s, u"d.flac"_s}));
    m_window->addPaths({fileAt(0)});
    EXPECT_TRUE(logHas(u"没有可以添加的音频文件"_s));
}

TEST_F(Playlist, ASheetWaitsForItsProbeAndDoneComesLast)
{
    const QStringList files = make({u"x.flac"_s, u"a.cue"_s, u"y.flac"_s});
    m_probe = [files](const QStringList &) {
        return PlayerProbeResult{
            0, u"TRACK\t3\t0\t60\t\t\t%1\nTRACK\t4\t60\t90\tEins\tWer\t%1\n"_s.arg(files.last())};
    };
    m_window.reset();
    makeWindow();
    bool done = false;
    m_window->addPaths(files, [&done] { done = true; });
    EXPECT_EQ(list()->count(), 2) << "plain files enter at once";
    EXPECT_FALSE(done);
    ASSERT_TRUE(QTest::qWaitFor([&done] { return done; }, kelp_test::patienceMs));
    ASSERT_EQ(list()->count(), 4);
    EXPECT_EQ(list()->item(2)->text(), u"03. y.flac"_s);
    EXPECT_EQ(list()->item(3)->text(), u"04. Eins — Wer"_s);
    EXPECT_EQ(list()->item(3)->toolTip(),
              files.at(1) + u"\n轨 4\n(标签来自容器自带的信息; 本地库里没有额外的标签)"_s);
    EXPECT_TRUE(logHas(u"已添加 4 首 (列表共 4 首)"_s));
    EXPECT_EQ(saved().size(), 4);

    done = false;
    m_window->addPaths({files.at(1)}, [&done] { done = true; });
    ASSERT_TRUE(QTest::qWaitFor([&done] { return done; }, kelp_test::patienceMs));
    EXPECT_EQ(list()->count(), 6) << "a sheet added again lists its tracks again";
    m_window->undoPlaylist();
    m_window->undoPlaylist();
    EXPECT_EQ(list()->count(), 0) << "files and tracks of one operation are taken back together";
    m_window->redoPlaylist();
    EXPECT_EQ(list()->item(3)->text(), u"04. Eins — Wer"_s);
    EXPECT_TRUE(list()->item(3)->toolTip().contains(u"轨 4"_s));
}

TEST_F(Playlist, AnImageAddedTwiceIsListedOnce)
{
    const QString image = make({u"d.iso"_s}).first();
    m_probe = [](const QStringList &) { return PlayerProbeResult{0, u"ISO\tx\t1\nTRACK\t1\t0\t60\tA\n"_s}; };
    m_window.reset();
    makeWindow();
    int done = 0;
    m_window->addPaths({image, image}, [&done] { ++done; });
    m_window->addPaths({image}, [&done] { ++done; });
    EXPECT_EQ(done, 1) << "the second is stopped by the listing that is still out";
    ASSERT_TRUE(QTest::qWaitFor([&done] { return done == 2; }, kelp_test::patienceMs));
    m_window->addPaths({image});
    EXPECT_EQ(list()->count(), 1) << "and the third by the rows";
    EXPECT_TRUE(logHas(u"SACD ISO: d.iso — 1 首"_s));
}

TEST_F(Playlist, TracksThatAreListedForAClearedListStayOutOfTheNewOne)
{
    const QString image = make({u"d.iso"_s}).first();
    m_probe = [](const QStringList &) { return PlayerProbeResult{0, u"ISO\tx\t1\nTRACK\t1\t0\t60\tA\n"_s}; };
    m_window.reset();
    makeWindow();
    int done = 0;
    m_window->addPaths({image}, [&done] { ++done; });
    m_window->clearPlaylist();
    ASSERT_TRUE(QTest::qWaitFor([&done] { return done == 1; }, 20000));
    EXPECT_EQ(list()->count(), 0);
    EXPECT_TRUE(logHas(u"列表在列出分轨时被清空 ⇒ 不再加入: "_s + image));

    m_window->addPaths({image}, [&done] { ++done; });
    m_window->clearPlaylist();
    m_window->addPaths({image}, [&done] { ++done; });
    m_window->addPaths({image}, [&done] { ++done; });
    EXPECT_EQ(done, 2) << "it is being listed for the new list";
    ASSERT_TRUE(QTest::qWaitFor([&done] { return done == 4; }, 20000));
    EXPECT_EQ(list()->count(), 1);
}

TEST_F(Playlist, AFailedProbeStillEndsTheAdding)
{
    m_probe = [](const QStringList &) { return PlayerProbeResult{-4, {}}; };
    m_window.reset();
    makeWindow();
    bool done = false;
    m_window->addPaths(make({u"a.cue"_s}), [&done] { done = true; });
    ASSERT_TRUE(QTest::qWaitFor([&done] { return done; }, kelp_test::patienceMs));
    EXPECT_TRUE(logHas(u"(rc=-4)"_s));
    EXPECT_TRUE(logHas(u"没有可以添加的音频文件"_s));
}

TEST_F(Playlist, AWindowMayCloseWhileProbesAreOut)
{
    m_window->addPaths(make({u"a.cue"_s, u"b.iso"_s}));
    m_window.reset();
}

TEST_F(Playlist, ComesBackAfterARestart)
{
    abc();
    list()->setCurrentRow(1);
    m_window->moveRow(1, 2);
    restart();
    EXPECT_EQ(shown(), (QStringList{u"a.flac"_s, u"c.flac"_s, u"b.flac"_s}));
    EXPECT_EQ(list()->currentRow(), 2);
    EXPECT_EQ(list()->highlightedRow(), -1);
    EXPECT_EQ(start().currentRow, 2);
    EXPECT_EQ(start().lastStartedRow, 2);
    EXPECT_TRUE(logHas(u"播放列表已恢复: 3 首"_s));
    EXPECT_EQ(list()->item(0)->toolTip(), fileAt(0));
}

TEST_F(Playlist, TheStoredRowIsKeptInsideTheList)
{
    abc();
    for (const auto &[stored, row] : {std::pair(9, 2), std::pair(-5, 0)}) {
        writeUserSetting(settings::playlistRow, stored);
        restart();
        EXPECT_EQ(list()->currentRow(), row) << stored;
    }
}

TEST_F(Playlist, TheLastPlayedRowIsShown)
{
    abc();
    m_window->startPlayback(1);
    m_window->savePlaylist();
    restart();
    EXPECT_EQ(list()->currentRow(), 1);
    EXPECT_EQ(list()->highlightedRow(), 1);
    EXPECT_TRUE(logHas(u"上次播放: 第 2 首 — b.flac"_s));
    EXPECT_EQ(message(), u"上次播放: 第 2 首"_s);
    EXPECT_EQ(m_window->lastPlayedRow(), 1);
}

TEST_F(Playlist, AStartedTrackIsTheLastPlayedOnTheDiskWithoutTheListBeingSaved)
{
    abc();
    const QStringList before{u"nothing writes this row"_s};
    writeUserSetting(settings::playlist, before);
    m_window->startPlayback(0);
    m_window->startPlayback(1);
    EXPECT_TRUE(readUserSetting(settings::lastPlayed).isEmpty()) << "not while the track is on its way";
    EXPECT_TRUE(QTest::qWaitFor([&] { return readUserSetting(settings::lastPlayed) == fileAt(1); },
                                kelp_test::patienceMs));
    EXPECT_EQ(readUserSetting(settings::lastPlayedKey), rowKey(list()->entryAt(1)));
    EXPECT_EQ(saved(), before);
}

TEST_F(Playlist, ThePathServesWhereNoKeyWasStored)
{
    abc();
    writeUserSetting(settings::lastPlayed, fileAt(2));
    writeUserSetting(settings::lastPlayedKey, {});
    restart();
    EXPECT_EQ(m_window->lastPlayedRow(), 2);
    start().lastPlayedKey = u"of another row"_s;
    EXPECT_EQ(m_window->lastPlayedRow(), -1) << "a key that is not found does not fall back to the path";
    start().lastPlayedKey.clear();
    start().lastPlayed.clear();
    EXPECT_EQ(m_window->lastPlayedRow(), -1);
}

TEST_F(Playlist, RowsWhoseFilesHaveGoneAreSkippedCountedAndCanBeTakenBack)
{
    abc();
    QStringList rows = saved();
    rows.insert(1, u"six\u001f/a\u001f\u001f0\u001f0\u001f0"_s);
    rows.append(u"net\u001fhttp://host/x.flac\u001fstream\u001f0\u001f0\u001f0\u001f"_s);
    writeUserSetting(settings::playlist, rows);
    const QString gone = fileAt(1);
    m_window.reset();
    QFile::remove(gone);
    makeWindow();
    EXPECT_EQ(shown(), (QStringList{u"a.flac"_s, u"c.flac"_s}));
    EXPECT_EQ(m_window->skippedAtRestore(), 3);
    EXPECT_TRUE(logHas(u"恢复播放列表时跳过 3 首 (文件已不存在)"_s));
    m_window->undoPlaylist();
    EXPECT_EQ(list()->count(), 4);
    EXPECT_EQ(fileAt(1), gone);
}

TEST_F(Playlist, AnEmptyListIsRestoredToNothing)
{
    restart();
    EXPECT_EQ(list()->count(), 0);
    EXPECT_FALSE(logHas(u"播放列表已恢复"_s));
}

TEST_F(Playlist, OddNamesSurviveTheSettings)
{
    m_window->addPaths(
        make({u"@At.flac"_s, u"a,b;c \"q\" \\ %1.flac"_s, u"武満徹 — أم.flac"_s, u"line\nbreak.flac"_s}));
    const QStringList before = shown();
    restart();
    EXPECT_EQ(shown(), before);
    select({1, 2, 3});
    m_window->removeSelectedRows();
    restart();
    EXPECT_EQ(shown(), QStringList{u"@At.flac"_s}) << "a list of one text";
}

TEST_F(Playlist, RemovingTheTrackThatPlaysLeavesItSounding)
{
    abc();
    m_window->startPlayback(1);
    select({1});
    m_window->removeSelectedRows();
    EXPECT_EQ(start().playingRow, -1);
    EXPECT_TRUE(m_engine.current->isRunning());
    EXPECT_FALSE(m_engine.did(u"write stop"_s));
    EXPECT_TRUE(logHas(u"正在播放的曲目已从列表移除 (声音继续, 但它不在列表里了)"_s));
    EXPECT_TRUE(logHas(u"已移除 1 首 (列表共 2 首)"_s));
    EXPECT_EQ(saved().size(), 2);
    EXPECT_EQ(start().currentRow, 0) << "what follows is the row that followed the removed one";
    m_window->undoPlaylist();
    EXPECT_EQ(start().playingRow, 1) << "its row is found again";
    EXPECT_EQ(list()->highlightedRow(), 1);
}

TEST_F(Playlist, RemovingOthersMovesThePlayingRow)
{
    abc();
    m_window->startPlayback(2);
    select({0, 1});
    m_window->removeSelectedRows();
    EXPECT_EQ(start().playingRow, 0);
    EXPECT_EQ(start().currentRow, 0);
    EXPECT_EQ(start().lastStartedRow, 0);
    EXPECT_FALSE(logHas(u"正在播放的曲目已从列表移除"_s));
}

TEST_F(Playlist, RemovingNothingSaysNothing)
{
    abc();
    takeLog();
    list()->clearSelection();
    m_window->removeSelectedRows();
    EXPECT_FALSE(takeLog().contains(u"已移除"_s));
}

TEST_F(Playlist, DeleteRemovesWhatIsSelectedAndUndoBringsItBack)
{
    abc();
    m_window->show();
    m_window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get(), kelp_test::patienceMs));
    list()->setFocus();
    QTest::keyClick(list(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(list(), Qt::Key_Delete);
    EXPECT_EQ(list()->count(), 0);
    QTest::keyClick(list(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(shown(), (QStringList{u"a.flac"_s, u"b.flac"_s, u"c.flac"_s}));
    EXPECT_EQ(message(), u"已恢复移除的 3 首 (列表共 3 首)"_s);
    EXPECT_EQ(saved().size(), 3);
    QTest::keyClick(list(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(list()->count(), 0);
}

TEST_F(Playlist, AClearedListIsSavedAndComesBack)
{
    abc();
    m_window->startPlayback(1);
    m_window->clearPlaylist();
    EXPECT_EQ(list()->count(), 0);
    EXPECT_TRUE(saved().isEmpty());
    EXPECT_EQ(start().playingRow, -1);
    EXPECT_TRUE(logHas(u"播放列表已清空"_s));
    EXPECT_FALSE(m_window->widgets().dock->next->isEnabled());
    restart();
    EXPECT_EQ(list()->count(), 0);
    m_window->undoPlaylist();
    EXPECT_EQ(shown(), (QStringList{u"a.flac"_s, u"b.flac"_s, u"c.flac"_s})) << "after a restart too";
    m_window->undoPlaylist();
    EXPECT_EQ(list()->count(), 0) << "and the addition of the run before";
    m_window->redoPlaylist();
    EXPECT_EQ(list()->count(), 3);
}

TEST_F(Playlist, ADamagedHistoryIsToldAndTheListStays)
{
    abc();
    m_window.reset();
    const QString file = QFileInfo(SettingsOnDisk().fileName()).dir().filePath(u"playlist.history"_s);
    ASSERT_TRUE(QFile::exists(file));
    QFile damaged(file);
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
    damaged.write("nonsense");
    damaged.close();
    makeWindow();
    ASSERT_TRUE(QTest::qWaitFor([this] { return logHas(u"撤销记录已损坏"_s); }, kelp_test::patienceMs));
    EXPECT_EQ(list()->count(), 3);
    m_window->undoPlaylist();
    EXPECT_EQ(message(), u"没有可以撤销的改动"_s);
    m_window->redoPlaylist();
    EXPECT_EQ(message(), u"没有可以重做的改动"_s);
}

TEST_F(Playlist, AHistoryThatDoesNotFitIsDroppedInsteadOfApplied)
{
    abc();
    delete list()->takeItem(1);
    m_window->undoPlaylist();
    EXPECT_EQ(shown(), (QStringList{u"a.flac"_s, u"c.flac"_s}));
    EXPECT_TRUE(logHas(u"撤销记录和播放列表对不上"_s));
}

TEST_F(Playlist, AMovedRowTakesThePlayingRowAlong)
{
    abc();
    m_window->startPlayback(0);
    EXPECT_TRUE(m_window->moveRow(0, 2));
    EXPECT_EQ(shown(), (QStringList{u"b.flac"_s, u"c.flac"_s, u"a.flac"_s}));
    EXPECT_EQ(start().playingRow, 2);
    EXPECT_EQ(start().currentRow, 2);
    EXPECT_EQ(list()->highlightedRow(), 2);
    EXPECT_EQ(list()->currentRow(), 2);
    EXPECT_EQ(message(), u"播放顺序已改: 第 3/3 项"_s);
    EXPECT_TRUE(saved().last().startsWith(u"a.flac"_s));
    m_window->undoPlaylist();
    EXPECT_EQ(shown(), (QStringList{u"a.flac"_s, u"b.flac"_s, u"c.flac"_s}));
    EXPECT_EQ(start().playingRow, 0);
    EXPECT_EQ(list()->highlightedRow(), 0);
}

TEST_F(Playlist, AMoveOutOfRangeIsRefusedAndOneOntoItselfIsNothing)
{
    abc();
    takeLog();
    EXPECT_FALSE(m_window->moveRow(0, 3));
    EXPECT_FALSE(m_window->moveRow(-1, 0));
    EXPECT_TRUE(logHas(u"移动失败: 行号越界 (from=-1 to=0, 列表共 3 项)"_s));
    const QString before = message();
    EXPECT_TRUE(m_window->moveRow(1, 1));
    EXPECT_EQ(message(), before);
}

TEST_F(Playlist, SelectedRowsGoToTheTopAndToTheBottom)
{
    m_window->addPaths(make({u"a.flac"_s, u"b.flac"_s, u"c.flac"_s, u"d.flac"_s}));
    m_window->startPlayback(3);
    select({1, 3});
    m_window->moveSelectedRows(true);
    EXPECT_EQ(shown(), (QStringList{u"b.flac"_s, u"d.flac"_s, u"a.flac"_s, u"c.flac"_s}));
    EXPECT_EQ(start().playingRow, 1);
    m_window->moveSelectedRows(false);
    EXPECT_EQ(shown(), (QStringList{u"a.flac"_s, u"c.flac"_s, u"b.flac"_s, u"d.flac"_s}));
    m_window->undoPlaylist();
    m_window->undoPlaylist();
    EXPECT_EQ(shown(), (QStringList{u"a.flac"_s, u"b.flac"_s, u"c.flac"_s, u"d.flac"_s}));
    EXPECT_EQ(start().playingRow, 3);
}

TEST_F(Playlist, ADragInsideTheListIsSavedAndFollowed)
{
    abc();
    m_window->startPlayback(0);
    list()->onDragStarted();
    list()->arrange({{1, 2}, {0, 1}});
    list()->onOrderChanged();
    EXPECT_EQ(start().playingRow, 2);
    EXPECT_TRUE(saved().last().startsWith(u"a.flac"_s));
    m_window->undoPlaylist();
    EXPECT_EQ(start().playingRow, 0);
}

TEST_F(Playlist, SteppingAtTheEnds)
{
    m_window->stepRow(1);
    EXPECT_TRUE(logHas(u"播放列表是空的"_s));
    abc();
    list()->setCurrentRow(0);
    EXPECT_FALSE(m_window->widgets().dock->previous->isEnabled());
    EXPECT_TRUE(m_window->widgets().dock->next->isEnabled());
    m_window->stepRow(-1);
    EXPECT_TRUE(logHas(u"已经是第一首"_s));
    m_window->stepRow(1);
    EXPECT_EQ(start().playingRow, 1);
    EXPECT_EQ(message(), u"第 2/3 首"_s);
    list()->setCurrentRow(0);
    m_window->stepRow(1);
    EXPECT_EQ(start().playingRow, 2) << "a running session steps from what plays, not from what is selected";
    m_window->stepRow(1);
    EXPECT_TRUE(logHas(u"已经是最后一首"_s));
}

TEST_F(Playlist, FilesDroppedOnTheListAndOnTheWindowAreAdded)
{
    const QStringList files = make({u"a.flac"_s, u"b.flac"_s});
    list()->onFilesDropped({files.first()});
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(files.last()), QUrl(u"http://host/x.flac"_s)});
    QDragEnterEvent enter(QPoint(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(m_window.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    drop.ignore();
    QCoreApplication::sendEvent(m_window.get(), &drop);
    EXPECT_TRUE(drop.isAccepted());
    EXPECT_EQ(shown(), (QStringList{u"a.flac"_s, u"b.flac"_s}));
}

TEST_F(Playlist, AFileWhoseNameIsNoUtf8IsSaid)
{
    m_window->addPaths({u"/m/a\uFFFD.flac"_s});
    EXPECT_TRUE(logHas(u"跳过 1 个文件: 文件名不是合法的 UTF-8, 打不开"_s));
}

TEST_F(Playlist, TheMenuOffersWhatCanBeDone)
{
    m_window->show();
    const auto openMenu = [this] {
        Q_EMIT list()->customContextMenuRequested(QPoint(5, 5));
        const QList<QMenu *> menus = m_window->findChildren<QMenu *>();
        QMap<QString, bool> actions;
        for (const QAction *action : menus.last()->actions()) {
            if (!action->isSeparator())
                actions.insert(action->text(), action->isEnabled());
        }
        return actions;
    };
    QMap<QString, bool> empty = openMenu();
    EXPECT_FALSE(empty.value(u"播放"_s));
    EXPECT_FALSE(empty.value(u"移除"_s));
    EXPECT_FALSE(empty.value(u"撤销"_s));
    abc();
    list()->setCurrentRow(1);
    QMap<QString, bool> full = openMenu();
    for (const QString &name : {u"播放"_s, u"移除"_s, u"在文件管理器中显示"_s, u"移到最前"_s, u"移到最后"_s,
                                u"属性"_s, u"全选"_s, u"撤销"_s, u"清空列表"_s})
        EXPECT_TRUE(full.value(name)) << qPrintable(name);
    EXPECT_FALSE(full.value(u"重做"_s));
    for (QAction *action : m_window->findChildren<QMenu *>().last()->actions()) {
        if (action->text() == u"属性"_s)
            action->trigger();
    }
    const auto *box = m_window->findChild<QMessageBox *>();
    ASSERT_NE(box, nullptr);
    EXPECT_TRUE(box->text().contains(fileAt(1)));
}

TEST_F(Playlist, NothingButPlayingTouchesAFile)
{
    // Files that have gone: selecting, moving and looking at their properties works as before.
    abc();
    for (const QString &path : {fileAt(0), fileAt(1), fileAt(2)})
        QFile::remove(path);
    list()->selectAll();
    list()->setCurrentRow(1);
    m_window->moveRow(0, 2);
    Q_EMIT list()->customContextMenuRequested(QPoint(5, 5));
    EXPECT_EQ(list()->count(), 3) << "rows whose file has gone are never dropped while the program runs";
    EXPECT_EQ(WindowInspector::tags(*m_window).size(), 0) << "nor are tags looked for";
}

TEST_F(Playlist, ARowThatWasPlayedIsChosenByItsTags)
{
    abc();
    m_window->startPlayback(1);
    EXPECT_EQ(WindowInspector::tags(*m_window).size(), 1);
    m_window->stopPlayback();
    settle();
    list()->setCurrentRow(0);
    list()->setCurrentRow(1);
    EXPECT_EQ(WindowInspector::tags(*m_window).size(), 1) << "what is known is shown, and no more is read";
}
