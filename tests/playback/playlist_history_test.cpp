#include "playback/playlist_history.h"

#include "playback/playlist_history_file.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using Kind = PlaylistChange::Kind;

QList<PlaylistEntry> entries(int count, qsizetype pathLength = 6)
{
    QList<PlaylistEntry> list;
    for (int i = 0; i < count; ++i) {
        PlaylistEntry entry;
        entry.path = u"/"_s + QString::number(i).rightJustified(pathLength, u'0');
        list.append(entry);
    }
    return list;
}

PlaylistChange insertion(int first, int count, quint64 group = 0)
{
    return {Kind::Insert, {{first, count}}, entries(count), group};
}

StoredHistory sample()
{
    PlaylistHistory history;
    history.record(insertion(0, 3));
    PlaylistEntry track{u"01. Ä — ω"_s, u"/m/d.iso"_s, {}, u"/m/d.iso"_s, 1, 0.1, 60.25};
    history.record({Kind::Insert, {{3, 1}}, {track}, 0});
    history.record({Kind::Reorder, {{1, 3}, {0, 1}}, {}, 0});
    history.record({Kind::Remove, {{0, 1}, {2, 2}}, {track, entries(2).at(0), entries(2).at(1)}, 0});
    history.noteUndone();
    return {history, 0x0123456789abcdefU};
}

} // namespace

TEST(PlaylistChange, TheInverseLeadsBack)
{
    const PlaylistChange added = insertion(2, 3);
    EXPECT_EQ(inverseOf(added).kind, Kind::Remove);
    EXPECT_EQ(inverseOf(inverseOf(added)), added);
    const PlaylistChange moved{Kind::Reorder, {{1, 3}, {0, 1}}, {}, 0};
    EXPECT_EQ(inverseOf(moved).runs, (RowRuns{{3, 1}, {0, 3}}));
    EXPECT_EQ(inverseOf(inverseOf(moved)), moved);
    EXPECT_EQ(rowAfterChange(moved, 0), 3);
    EXPECT_EQ(rowAfterChange(added, 2), 5);
    EXPECT_EQ(rowAfterChange(inverseOf(added), 3), -1);
}

TEST(PlaylistChange, RunsAndRowsMustFit)
{
    EXPECT_TRUE(isConsistent(insertion(0, 2)));
    EXPECT_FALSE(isConsistent({Kind::Insert, {{0, 3}}, entries(2), 0}));
    EXPECT_FALSE(isConsistent({Kind::Remove, {{4, 1}, {0, 1}}, entries(2), 0}));
    EXPECT_FALSE(isConsistent({Kind::Insert, {}, {}, 0}));
    EXPECT_FALSE(isConsistent({Kind::Reorder, {{1, 1}}, {}, 0}));
    EXPECT_FALSE(isConsistent({Kind::Reorder, {{0, 1}}, entries(1), 0}));
}

TEST(PlaylistChange, ATextThatIsTheFilesNameIsLeftOut)
{
    PlaylistEntry entry;
    entry.path = u"/m/a.flac"_s;
    entry.text = u"a.flac"_s;
    EXPECT_TRUE(slimEntry(entry).text.isEmpty());
    entry.text = u"A"_s;
    EXPECT_EQ(slimEntry(entry).text, u"A"_s);
}

TEST(PlaylistHistory, UndoAndRedoChangePlaces)
{
    PlaylistHistory history;
    EXPECT_FALSE(history.canUndo());
    history.record(insertion(0, 2));
    history.record(insertion(2, 1));
    EXPECT_EQ(history.nextUndo(), insertion(2, 1));
    history.noteUndone();
    EXPECT_EQ(history.nextRedo(), insertion(2, 1));
    EXPECT_EQ(history.nextUndo(), insertion(0, 2));
    history.noteRedone();
    EXPECT_FALSE(history.canRedo());
    EXPECT_EQ(history.nextUndo(), insertion(2, 1));
}

TEST(PlaylistHistory, AFreshChangeEndsWhatCouldBeMadeAgain)
{
    PlaylistHistory history;
    history.record(insertion(0, 2));
    history.noteUndone();
    history.record(insertion(0, 1));
    EXPECT_FALSE(history.canRedo());
}

TEST(PlaylistHistory, OneOperationIsOneChangeThoughItComesInPieces)
{
    PlaylistHistory history;
    history.record(insertion(0, 2, 7));
    history.record(insertion(2, 3, 7));
    ASSERT_EQ(history.undoChanges().size(), 1);
    EXPECT_EQ(history.nextUndo().runs, (RowRuns{{0, 5}}));
    EXPECT_EQ(history.nextUndo().entries.size(), 5);
    history.record(insertion(5, 1, 8));
    history.record(insertion(0, 1, 8));
    EXPECT_EQ(history.undoChanges().size(), 3) << "another operation, and rows that do not follow on";
    history.record(insertion(1, 1));
    history.record(insertion(2, 1));
    EXPECT_EQ(history.undoChanges().size(), 5) << "no group";
}

TEST(PlaylistHistory, ARowsLatestTextComesBack)
{
    PlaylistHistory history;
    history.record(insertion(0, 1));
    QList<PlaylistEntry> now = entries(1);
    now[0].text = u"retagged"_s;
    history.noteUndone(now);
    EXPECT_EQ(history.nextRedo().entries.first().text, u"retagged"_s);
}

TEST(PlaylistHistory, TheOldestGoFirst)
{
    PlaylistHistory history;
    for (int i = 0; i < PlaylistHistory::mostChanges + 5; ++i)
        history.record(insertion(i, 1));
    EXPECT_EQ(history.undoChanges().size(), PlaylistHistory::mostChanges);
    EXPECT_EQ(history.undoChanges().first().runs.first().first, 5);
}

TEST(PlaylistHistory, BytesAreBoundedAndTheNewestStays)
{
    constexpr qsizetype longPath = 1 << 20;
    constexpr int rows = 24; // 48 MiB
    PlaylistHistory history;
    history.record(insertion(0, 1));
    history.record({Kind::Insert, {{1, rows}}, entries(rows, longPath), 0});
    EXPECT_EQ(history.undoChanges().size(), 2);
    history.record({Kind::Remove, {{0, rows}}, entries(rows, longPath), 0});
    EXPECT_EQ(history.undoChanges().size(), 1) << "two of them would be 96 MiB";
    history.record({Kind::Remove, {{0, 3 * rows}}, entries(3 * rows, longPath), 0});
    EXPECT_EQ(history.undoChanges().size(), 1) << "the newest may cost more than all together";
    EXPECT_FALSE(history.record({Kind::Remove, {{0, 6 * rows}}, entries(6 * rows, longPath), 0}));
    EXPECT_FALSE(history.canUndo()) << "what came before no longer fits the list";
}

TEST(PlaylistHistory, AnEarlierRunLiesBelowThisOne)
{
    PlaylistHistory older;
    older.record(insertion(0, 1));
    older.record(insertion(1, 1));
    older.noteUndone();
    PlaylistHistory untouched;
    untouched.adoptOlder(older);
    EXPECT_TRUE(untouched.canUndo());
    EXPECT_TRUE(untouched.canRedo());
    PlaylistHistory changed;
    changed.record(insertion(1, 5));
    changed.adoptOlder(older);
    EXPECT_EQ(changed.undoChanges().size(), 2);
    EXPECT_EQ(changed.nextUndo(), insertion(1, 5));
    EXPECT_FALSE(changed.canRedo());
}

TEST(PlaylistHistory, EachReportSaysWhatWasDone)
{
    const PlaylistChange removal = inverseOf(insertion(0, 3));
    const PlaylistChange moved{Kind::Reorder, {{1, 1}, {0, 1}}, {}, 0};
    EXPECT_EQ(undoText(insertion(0, 3), 9), u"已撤销添加的 3 首 (列表共 9 首)"_s);
    EXPECT_EQ(undoText(removal, 9), u"已恢复移除的 3 首 (列表共 9 首)"_s);
    EXPECT_EQ(undoText(moved, 9), u"已恢复原来的播放顺序"_s);
    EXPECT_EQ(redoText(insertion(0, 3), 9), u"已重新添加 3 首 (列表共 9 首)"_s);
    EXPECT_EQ(redoText(removal, 9), u"已重新移除 3 首 (列表共 9 首)"_s);
    EXPECT_EQ(redoText(moved, 9), u"已重新调整播放顺序"_s);
}

TEST(PlaylistHistoryFile, ComesBackAsItWas)
{
    const StoredHistory stored = sample();
    const std::optional<StoredHistory> back = parseHistory(historyBytes(stored));
    ASSERT_TRUE(back);
    EXPECT_EQ(back->fingerprint, stored.fingerprint);
    EXPECT_EQ(back->history.undoChanges(), stored.history.undoChanges());
    EXPECT_EQ(back->history.redoChanges(), stored.history.redoChanges());
}

TEST(PlaylistHistoryFile, EveryDamagedByteIsNoticed)
{
    const QByteArray whole = historyBytes(sample());
    for (qsizetype i = 0; i < whole.size(); ++i) {
        QByteArray damaged = whole;
        damaged[i] = static_cast<char>(damaged[i] ^ 0x10);
        EXPECT_FALSE(parseHistory(damaged)) << i;
    }
}

TEST(PlaylistHistoryFile, EveryCutIsNoticed)
{
    const QByteArray whole = historyBytes(sample());
    for (qsizetype size = 0; size < whole.size(); ++size)
        EXPECT_FALSE(parseHistory(whole.left(size))) << size;
    EXPECT_FALSE(parseHistory(whole + '\0'));
}

TEST(PlaylistHistoryFile, TheFingerprintTellsListsApartAndNotTitles)
{
    const QStringList list{u"A\u001f/a\u001f"_s, u"B\u001f/b\u001f"_s};
    EXPECT_EQ(listFingerprint(list), listFingerprint({u"X\u001f/a\u001f"_s, u"Y\u001f/b\u001f"_s}));
    EXPECT_NE(listFingerprint(list), listFingerprint({list.at(1), list.at(0)}));
    EXPECT_NE(listFingerprint(list), listFingerprint({list.at(0)}));
    EXPECT_NE(listFingerprint(list), listFingerprint({u"A\u001f/a\u001f0"_s, list.at(1)}));
    EXPECT_NE(listFingerprint({}), listFingerprint(list));
}
