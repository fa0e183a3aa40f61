// The row that plays is removed: what comes after its end.
#include "playback_fixture.h"

#include <set>

using namespace Qt::StringLiterals;

class RemovedRow : public BothKinds
{
protected:
    void SetUp() override
    {
        BothKinds::SetUp();
        openWith(OrderAxis::Sequential, RepeatAxis::None);
    }
    /// Four tracks in a fresh window.
    void openWith(OrderAxis order, RepeatAxis repeat)
    {
        open(4);
        transport().order.order = order;
        transport().order.repeat = repeat;
        m_files.clear();
        for (int row = 0; row < 4; ++row)
            m_files.append(fileAt(row));
        takeLines();
    }
    void remove(const QList<int> &rows)
    {
        ui().playlist->clearSelection();
        for (const int row : rows)
            ui().playlist->item(row)->setSelected(true);
        m_window->removeSelectedRows();
    }
    /// The files that are loaded one after the other as each track ends, by the numbers they once had.
    QList<int> playedToTheEnd(int most = 10)
    {
        QList<int> played;
        takeLines();
        while (most-- > 0) {
            say(u"DONE x"_s);
            const QStringList lines = takeLines();
            if (lines.isEmpty())
                return played;
            played.append(numberOf(lines.first()));
        }
        return played;
    }
    int numberOf(const QString &loadLine) const
    {
        return static_cast<int>(m_files.indexOf(loadLine.sliced(u"load "_s.size())));
    }
    QStringList m_files;
};
INSTANTIATE_TEST_SUITE_P(Kinds, RemovedRow, testing::Bool(), kindName);

TEST_P(RemovedRow, WhatTookItsPlaceFollowsInTheirSequence)
{
    struct Case
    {
        int plays;
        QList<int> removed;
        QList<int> follow;
    };
    const Case cases[] = {
        {0, {0}, {1, 2, 3}},   // the first
        {1, {1}, {2, 3}},      // one in the middle
        {3, {3}, {}},          // the last
        {0, {0, 1}, {2, 3}},   // with the one behind it
        {1, {0, 1}, {2, 3}},   // with the one before it
        {1, {1, 3}, {2}},      // with one that is no neighbour
        {2, {0, 2}, {3}},      //
        {2, {2, 3}, {}},       // with all behind it
        {1, {0, 1, 2}, {3}},   //
        {1, {0, 1, 2, 3}, {}}, // with all
        {1, {0}, {2, 3}},      // others only
        {0, {1, 2}, {3}},      //
    };
    for (const Case &each : cases) {
        openWith(OrderAxis::Sequential, RepeatAxis::None);
        m_window->startPlayback(each.plays);
        at(20.);
        remove(each.removed);
        EXPECT_EQ(takeLines().filter(u"stop"_s), QStringList()) << "the sound goes on";
        EXPECT_EQ(playedToTheEnd(), each.follow)
            << "playing " << each.plays << ", removed " << each.removed.first() << " and "
            << each.removed.size() - 1;
        EXPECT_TRUE(takeLog().contains(u"播放列表结束"_s));
    }
}

TEST_P(RemovedRow, InARepeatedListTheFirstFollowsTheLast)
{
    openWith(OrderAxis::Sequential, RepeatAxis::List);
    m_window->startPlayback(3);
    remove({3});
    EXPECT_EQ(playedToTheEnd(4), (QList{0, 1, 2, 0}));
    openWith(OrderAxis::Sequential, RepeatAxis::List);
    m_window->startPlayback(0);
    remove({0});
    EXPECT_EQ(playedToTheEnd(4), (QList{1, 2, 3, 1}));
}

TEST_P(RemovedRow, ARepeatedTrackGivesWayToWhatTookItsPlaceWhichIsThenRepeated)
{
    for (const int plays : {0, 1}) {
        openWith(OrderAxis::Sequential, RepeatAxis::Track);
        m_window->startPlayback(plays);
        remove({plays});
        EXPECT_EQ(playedToTheEnd(3), (QList{plays + 1, plays + 1, plays + 1}));
    }
    openWith(OrderAxis::Sequential, RepeatAxis::Track);
    m_window->startPlayback(3);
    remove({3});
    EXPECT_EQ(playedToTheEnd(), QList<int>()) << "nothing took the place of the last";
}

TEST_P(RemovedRow, AtRandomEachOfTheOthersIsHeardOnce)
{
    for (const int plays : {0, 1, 3}) {
        openWith(OrderAxis::Random, RepeatAxis::None);
        m_window->startPlayback(plays);
        remove({plays});
        const QList<int> follow = playedToTheEnd();
        std::set<int> others{0, 1, 2, 3};
        others.erase(plays);
        EXPECT_EQ(follow.size(), 3);
        EXPECT_EQ(std::set<int>(follow.begin(), follow.end()), others);
    }
}

TEST_P(RemovedRow, AtRandomTheOnlyOneLeftIsPlayed)
{
    openWith(OrderAxis::Random, RepeatAxis::List);
    m_window->startPlayback(0);
    remove({0, 1, 3});
    EXPECT_EQ(playedToTheEnd(2), (QList{2, 2}));
}

TEST_P(RemovedRow, TheEndOfASessionGoesOnLikeTheEndOfATrack)
{
    m_window->startPlayback(0);
    at(99.);
    remove({0});
    takeLines();
    end(0);
    EXPECT_EQ(takeLines(), QStringList{u"load "_s + m_files.at(1)});
    EXPECT_EQ(start().playingRow, 0);
    EXPECT_FALSE(start().currentRowGone);
}

TEST_P(RemovedRow, WhatTookItsPlaceIsHandedOverWithoutAGap)
{
    for (const OrderAxis order : {OrderAxis::Sequential, OrderAxis::Random}) {
        openWith(order, RepeatAxis::None);
        m_window->startPlayback(0);
        at(50.);
        remove({0});
        at(99.);
        const QStringList lines = takeLines().filter(u"load "_s).mid(1);
        ASSERT_EQ(lines.size(), 1);
        const int number = numberOf(lines.first());
        if (order == OrderAxis::Sequential) {
            EXPECT_EQ(number, 1);
        }
        at(0.2);
        EXPECT_EQ(start().started.path, m_files.at(number));
        EXPECT_EQ(fileAt(start().currentRow), m_files.at(number));
        EXPECT_EQ(start().playingRow, start().currentRow);
        EXPECT_FALSE(takeLog().contains(u"按文件对回"_s)) << "the prediction was right";
    }
}

TEST_P(RemovedRow, RemovedAfterTheHandOverTheListFollowsWhatWasHandedOver)
{
    m_window->startPlayback(0);
    at(99.);
    remove({0});
    at(0.2);
    EXPECT_EQ(start().started.path, m_files.at(1));
    EXPECT_EQ(start().currentRow, 0);
    EXPECT_EQ(playedToTheEnd(), (QList{2, 3}));
}

TEST_P(RemovedRow, BroughtBackItIsFollowedByItsOwnNeighbour)
{
    for (const int plays : {0, 1, 3}) {
        openWith(OrderAxis::Sequential, RepeatAxis::None);
        m_window->startPlayback(plays);
        remove({plays});
        m_window->undoPlaylist();
        EXPECT_EQ(start().playingRow, plays);
        EXPECT_EQ(start().currentRow, plays);
        QList<int> follow;
        for (int row = plays + 1; row < 4; ++row)
            follow.append(row);
        EXPECT_EQ(playedToTheEnd(), follow) << "and not by itself";
    }
}

TEST_P(RemovedRow, ATrackThatIsListedTwiceGoesOnFromItsOtherRow)
{
    PlaylistEntry twin = ui().playlist->entryAt(0);
    ui().playlist->appendEntry(twin);
    m_window->startPlayback(0);
    remove({0});
    EXPECT_EQ(start().playingRow, 3);
    EXPECT_EQ(start().currentRow, 3);
    EXPECT_EQ(playedToTheEnd(), QList<int>());
}

TEST_P(RemovedRow, FurtherChangesLeaveWhatFollowsInItsPlace)
{
    m_window->startPlayback(1);
    remove({1});
    remove({0}); // the one before the place
    m_window->appendFile(m_files.at(1));
    EXPECT_EQ(playedToTheEnd(), (QList{2, 3, 1}));
}

TEST_P(RemovedRow, AStartByHandIsNoneOfTheRemovedRow)
{
    m_window->startPlayback(0);
    remove({0});
    m_window->startPlayback(2);
    EXPECT_FALSE(start().currentRowGone);
    EXPECT_EQ(playedToTheEnd(), QList<int>()) << "row 2 of three was the last";
}

TEST_P(RemovedRow, ASessionThatIsBegunAgainBeginsWithWhatTookItsPlace)
{
    m_window->startPlayback(0);
    remove({0});
    start().restartPending = true;
    takeLines();
    end(0);
    EXPECT_EQ(takeLines(), QStringList{u"load "_s + m_files.at(1)});
}

TEST_P(RemovedRow, AStepByHandFromARowThatHasGoneIsTheFirstRow)
{
    m_window->startPlayback(2);
    remove({2});
    EXPECT_EQ(start().playingRow, -1);
    takeLines();
    m_window->stepRow(-1);
    EXPECT_TRUE(takeLines().isEmpty());
    EXPECT_TRUE(takeLog().contains(u"已经是第一首"_s));
    m_window->stepRow(1);
    EXPECT_EQ(takeLines(), QStringList{u"load "_s + m_files.at(0)});
    EXPECT_EQ(playedToTheEnd(), (QList{1, 3})) << "and from there the list goes on";
}

TEST_P(RemovedRow, ThePositionOfARemovedTrackIsStillItsOwn)
{
    m_window->startPlayback(0);
    at(20.);
    remove({0});
    at(30.);
    EXPECT_EQ(readUserSetting(settings::resumePath), m_files.at(0));
    EXPECT_EQ(readUserSetting(settings::resumeSec), 30.);
    say(u"DONE x"_s);
    EXPECT_TRUE(readUserSetting(settings::resumePath).isEmpty());
}

TEST_P(RemovedRow, AClearedListEndsWithTheTrack)
{
    m_window->startPlayback(1);
    m_window->clearPlaylist();
    m_window->appendFile(m_files.at(0));
    EXPECT_EQ(playedToTheEnd(), QList<int>());
    // Emptied row by row it is no different.
    openWith(OrderAxis::Sequential, RepeatAxis::None);
    m_window->startPlayback(0);
    remove({0});
    remove({0, 1, 2});
    m_window->appendFile(m_files.at(0));
    EXPECT_EQ(playedToTheEnd(), QList<int>());
}
