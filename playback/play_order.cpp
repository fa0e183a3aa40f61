#include "playback/play_order.h"

#include <QCoreApplication>
#include <algorithm>

namespace {

QString translated(const char *source)
{
    return QCoreApplication::translate("PlayOrder", source);
}

/// The row that is the n-th among those not played.
int unplayedRow(const std::vector<bool> &playedBits, int n)
{
    for (std::size_t row = 0; row < playedBits.size(); ++row) {
        if (!playedBits[row] && n-- == 0)
            return static_cast<int>(row);
    }
    return -1;
}

/// \param currentRow -1 when what has just been heard is none of the rows
std::optional<int> drawRow(PlayOrderState &state, int currentRow, int count)
{
    if (count == 1)
        return std::max(currentRow, 0);
    const auto markCurrent = [&] {
        if (currentRow >= 0 && currentRow < count)
            state.playedBits[static_cast<std::size_t>(currentRow)] = true;
    };
    const auto candidates = [&] {
        return static_cast<int>(std::count(state.playedBits.begin(), state.playedBits.end(), false));
    };
    markCurrent();
    int left = candidates();
    if (left == 0) {
        if (state.repeat != RepeatAxis::List)
            return std::nullopt;
        // The new round does not begin with the row that has just been heard.
        state.playedBits.assign(state.playedBits.size(), false);
        markCurrent();
        left = candidates();
    }
    std::uniform_int_distribution<int> draw(0, left - 1);
    return unplayedRow(state.playedBits, draw(state.generator));
}

} // namespace

OrderAxis orderAxisOf(int number)
{
    return number == static_cast<int>(OrderAxis::Random) ? OrderAxis::Random : OrderAxis::Sequential;
}

RepeatAxis repeatAxisOf(int number)
{
    switch (number) {
    case static_cast<int>(RepeatAxis::List):
        return RepeatAxis::List;
    case static_cast<int>(RepeatAxis::Track):
        return RepeatAxis::Track;
    default:
        return RepeatAxis::None;
    }
}

std::optional<int> advanceRow(PlayOrderState &state, int currentRow, int count, bool rowGone)
{
    if (count <= 0 || (currentRow < 0 && !rowGone))
        return std::nullopt;
    if (state.playedBits.size() != static_cast<std::size_t>(count))
        state.playedBits.assign(static_cast<std::size_t>(count), false);
    if (state.repeat == RepeatAxis::Track && !rowGone)
        return currentRow;
    if (state.order == OrderAxis::Random)
        return drawRow(state, rowGone ? -1 : currentRow, count);
    if (currentRow + 1 < count)
        return currentRow + 1;
    return state.repeat == RepeatAxis::List ? std::optional(0) : std::nullopt;
}

int peekNextRow(const PlayOrderState &state, int currentRow, int count, bool rowGone)
{
    PlayOrderState copy = state;
    return advanceRow(copy, currentRow, count, rowGone).value_or(-1);
}

QString orderText(OrderAxis order, RepeatAxis repeat)
{
    const QString text = order == OrderAxis::Random ? translated(QT_TRANSLATE_NOOP("PlayOrder", "随机"))
                                                    : translated(QT_TRANSLATE_NOOP("PlayOrder", "顺序"));
    switch (repeat) {
    case RepeatAxis::None:
        return text + translated(QT_TRANSLATE_NOOP("PlayOrder", " · 不循环"));
    case RepeatAxis::List:
        return text + translated(QT_TRANSLATE_NOOP("PlayOrder", " · 列表循环"));
    case RepeatAxis::Track:
        break;
    }
    return text + translated(QT_TRANSLATE_NOOP("PlayOrder", " · 单曲循环"));
}
