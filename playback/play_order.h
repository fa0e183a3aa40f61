/// \file
/// Which row comes next: one after the other or at random, with the list or the track repeated.
#pragma once

#include <QString>
#include <optional>
#include <random>
#include <vector>

enum class OrderAxis
{
    Sequential,
    Random
};

enum class RepeatAxis
{
    None,
    List,
    Track
};

/// The axis of a stored or chosen number; one that names none is the first.
OrderAxis orderAxisOf(int number);
RepeatAxis repeatAxisOf(int number);

/// All that the choice of the next row depends on, the list's length and its current row aside. A copy makes
/// the same choices as its original.
struct PlayOrderState
{
    OrderAxis order = OrderAxis::Sequential;
    RepeatAxis repeat = RepeatAxis::None;
    /// Rows that random order has played. Its size is the list's: another size means that the list has
    /// changed, and the record begins anew.
    std::vector<bool> playedBits;
    std::mt19937 generator{std::random_device{}()};

    /// Random order begins anew.
    void forgetHistory() { playedBits.clear(); }
};

/// The row to play after currentRow in a list of count rows; none when the list has ended.
/// \param rowGone the track's own row has left the list: currentRow is the one before its place, -1 for none.
/// What stands in its place follows it, and a repeated track, which there is no more, is followed likewise.
std::optional<int> advanceRow(PlayOrderState &state, int currentRow, int count, bool rowGone = false);
/// The row that advanceRow will give, or -1. Nothing is disturbed: the choice is made on a copy.
int peekNextRow(const PlayOrderState &state, int currentRow, int count, bool rowGone = false);

/// "Random · no repeat", translated.
QString orderText(OrderAxis order, RepeatAxis repeat);
