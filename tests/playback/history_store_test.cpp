#include "playback/history_store.h"

#include "tests/support/patience.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>
#include <optional>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class HistoryFile : public testing::Test
{
protected:
    QString path() const { return m_dir.filePath(u"data/list.history"_s); }
    static PlaylistHistory history(int changes)
    {
        PlaylistHistory made;
        PlaylistEntry entry;
        entry.path = u"/a"_s;
        for (int i = 0; i < changes; ++i)
            made.record({PlaylistChange::Kind::Insert, {{i, 1}}, {entry}, 0});
        return made;
    }
    HistoryStore::Loaded load(const QStringList &rows)
    {
        HistoryStore store(path());
        std::optional<HistoryStore::Loaded> answer;
        store.load(rows, [&answer](const HistoryStore::Loaded &loaded) { answer = loaded; });
        EXPECT_TRUE(QTest::qWaitFor([&answer] { return answer.has_value(); }, kelp_test::patienceMs));
        return *answer;
    }

    QTemporaryDir m_dir;
    const QStringList m_rows{u"A\u001f/a\u001f"_s};
};

} // namespace

TEST_F(HistoryFile, ComesBackForTheSameList)
{
    HistoryStore(path()).save(history(3), m_rows);
    const HistoryStore::Loaded loaded = load(m_rows);
    EXPECT_TRUE(loaded.complaint.isEmpty());
    EXPECT_EQ(loaded.history.undoChanges().size(), 3);
}

TEST_F(HistoryFile, TheLastOfSeveralIsWritten)
{
    {
        HistoryStore store(path());
        for (int i = 1; i <= 20; ++i)
            store.save(history(i), m_rows);
    }
    EXPECT_EQ(load(m_rows).history.undoChanges().size(), 20);
}

TEST_F(HistoryFile, WithoutAFileThereIsNothingAndNothingIsSaid)
{
    const HistoryStore::Loaded loaded = load(m_rows);
    EXPECT_TRUE(loaded.complaint.isEmpty());
    EXPECT_FALSE(loaded.history.canUndo());
}

TEST_F(HistoryFile, ADamagedFileIsPassedOverWithASentence)
{
    HistoryStore(path()).save(history(3), m_rows);
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.resize(file.size() - 5);
    file.close();
    const HistoryStore::Loaded loaded = load(m_rows);
    EXPECT_TRUE(loaded.complaint.contains(path()));
    EXPECT_FALSE(loaded.history.canUndo());
}

TEST_F(HistoryFile, OfAnotherListIsPassedOverWithASentence)
{
    HistoryStore(path()).save(history(3), m_rows);
    const HistoryStore::Loaded loaded = load({u"B\u001f/b\u001f"_s});
    EXPECT_FALSE(loaded.complaint.isEmpty());
    EXPECT_FALSE(loaded.history.canUndo());
}

TEST_F(HistoryFile, WhatCannotBeWrittenIsSaid)
{
    // A file stands where the folder should be; this holds for the superuser too.
    QFile blocker(m_dir.filePath(u"data"_s));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    HistoryStore store(path());
    QString complaint;
    store.onFailure = [&complaint](const QString &text) { complaint = text; };
    store.save(history(1), m_rows);
    ASSERT_TRUE(QTest::qWaitFor([&complaint] { return !complaint.isEmpty(); }, kelp_test::patienceMs));
    EXPECT_TRUE(complaint.contains(path()));
}
