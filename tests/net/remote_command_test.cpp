#include "net/remote_command.h"

#include <gtest/gtest.h>

namespace {

RemoteRequest asked(const std::string &query)
{
    RemoteRequest request;
    EXPECT_TRUE(parseRemoteRequest("GET /cmd?" + query + " HTTP/1.1", request));
    return request;
}

RemoteCommand command(const std::string &query)
{
    return parseRemoteCommand(asked(query));
}

} // namespace

TEST(RemoteCommands, EachNameHasItsAction)
{
    const std::pair<const char *, RemoteAction> rows[] = {
        {"play", RemoteAction::Play}, {"pause", RemoteAction::Pause}, {"toggle", RemoteAction::Toggle},
        {"stop", RemoteAction::Stop}, {"next", RemoteAction::Next},   {"prev", RemoteAction::Prev},
    };
    int number = 1;
    for (const auto &[name, action] : rows) {
        EXPECT_EQ(command(std::string("do=") + name).action, action) << name;
        EXPECT_EQ(static_cast<int>(action), number++);
    }
    EXPECT_EQ(static_cast<int>(RemoteAction::Vol), 7);
    EXPECT_EQ(static_cast<int>(RemoteAction::PlayAt), 8);
    EXPECT_EQ(static_cast<int>(RemoteAction::Invalid), 9);
}

TEST(RemoteCommands, WhatIsWrongIsSaidInTheseWords)
{
    const std::pair<const char *, const char *> rows[] = {
        {"x=1", "missing do= (play|pause|toggle|stop|next|prev|vol|playat)"},
        {"do=", "missing do= (play|pause|toggle|stop|next|prev|vol|playat)"},
        {"do=Play", "unknown do=: Play"},
        {"do=jump", "unknown do=: jump"},
        {"do=vol", "missing v= (0..100)"},
        {"do=vol&v=", "missing v= (0..100)"},
        {"do=vol&v=loud", "v= must be 0..100"},
        {"do=vol&v=101", "v= must be 0..100"},
        {"do=vol&v=-1", "v= must be 0..100"},
        {"do=vol&v=99999999999999999999", "v= must be 0..100"},
        {"do=vol&v=4294967296", "v= must be 0..100"},
        {"do=playat", "missing i= (0-based row)"},
        {"do=playat&i=", "i= must be >= 0"},
        {"do=playat&i=first", "i= must be >= 0"},
        {"do=playat&i=-1", "i= must be >= 0"},
    };
    for (const auto &[query, reason] : rows) {
        const RemoteCommand result = command(query);
        EXPECT_EQ(result.action, RemoteAction::Invalid) << query;
        EXPECT_EQ(result.error, reason) << query;
    }
}

TEST(RemoteCommands, ValuesAreReadLikeStrtol)
{
    const std::pair<const char *, int> rows[] = {
        {"do=vol&v=0", 0},        {"do=vol&v=100", 100},     {"do=vol&v=50abc", 50}, {"do=vol&v=+7", 7},
        {"do=vol&v=%2B7", 7},     {"do=vol&v=007", 7},       {"do=vol&v=-0", 0},     {"do=playat&i=0", 0},
        {"do=playat&i=12.9", 12}, {"do=playat&i=%0934", 34},
    };
    for (const auto &[query, value] : rows) {
        const RemoteCommand result = command(query);
        EXPECT_NE(result.action, RemoteAction::Invalid) << query << ": " << result.error;
        EXPECT_EQ(result.value, value) << query;
        EXPECT_EQ(result.error, "");
    }
}

TEST(RemoteCommands, ARowBeyondAllNumbersDoesNotWrapAround)
{
    EXPECT_EQ(command("do=playat&i=4294967296").value, 2147483647);
    EXPECT_EQ(command("do=playat&i=99999999999999999999").value, 2147483647);
}

TEST(LeadingNumber, KeepsTheEndsOfItsRange)
{
    std::int32_t number = 0;
    EXPECT_TRUE(leadingNumber("2147483647", number));
    EXPECT_EQ(number, 2147483647);
    EXPECT_TRUE(leadingNumber("-2147483649", number));
    EXPECT_EQ(number, -2147483647 - 1);
    for (const char *text : {"", " ", "-", "+", "--1", "x1"})
        EXPECT_FALSE(leadingNumber(text, number)) << text;
}

TEST(LibraryLimit, IsReadLikeAtoiAndClamped)
{
    const std::pair<const char *, int> rows[] = {
        {"t=x", 200}, {"n=0", 1},  {"n=1", 1}, {"n=1000", 1000}, {"n=5000", 1000},
        {"n=abc", 1}, {"n=-5", 1}, {"n=", 1},  {"n=12abc", 12},  {"n=99999999999", 1000},
    };
    for (const auto &[query, limit] : rows)
        EXPECT_EQ(remoteLibraryLimit(asked(query)), limit) << query;
}

TEST(RemoteActions, PlayTogglesOnlyWhatDoesNotPlay)
{
    EXPECT_FALSE(remoteActionToggles(RemoteAction::Play, true, false)) << "already playing: nothing";
    EXPECT_TRUE(remoteActionToggles(RemoteAction::Play, true, true));
    EXPECT_TRUE(remoteActionToggles(RemoteAction::Play, false, false));
}

TEST(RemoteActions, PauseTogglesUnlessPausedAndStartsWhenNothingRuns)
{
    EXPECT_TRUE(remoteActionToggles(RemoteAction::Pause, true, false));
    EXPECT_FALSE(remoteActionToggles(RemoteAction::Pause, true, true));
    EXPECT_TRUE(remoteActionToggles(RemoteAction::Pause, false, false));
}

TEST(RemoteActions, OthersAreNoToggle)
{
    EXPECT_TRUE(remoteActionToggles(RemoteAction::Toggle, true, false));
    for (const RemoteAction action : {RemoteAction::Stop, RemoteAction::Next, RemoteAction::Prev,
                                      RemoteAction::Vol, RemoteAction::PlayAt, RemoteAction::Invalid})
        EXPECT_FALSE(remoteActionToggles(action, false, true));
}
