#include "playback/row_order.h"

namespace {

bool inList(int row, int count)
{
    return row >= 0 && row < count;
}

} // namespace

int settleStartRow(const StartRowFacts &facts)
{
    int row = facts.currentRow;
    if (facts.askedRow >= 0)
        row = facts.askedRow;
    else if (!facts.sessionRuns && facts.selectedRow >= 0)
        row = facts.selectedRow;
    if (inList(row, facts.count))
        return row;
    return inList(facts.lastPlayedRow, facts.count) ? facts.lastPlayedRow : 0;
}

std::optional<int> steppedRow(int baseRow, int delta, int count)
{
    const int row = baseRow + delta;
    return inList(row, count) ? std::optional(row) : std::nullopt;
}

int rowToShow(const ShownRowFacts &facts)
{
    return facts.sessionRuns || facts.selectedRow < 0 ? facts.playingRow : facts.selectedRow;
}
