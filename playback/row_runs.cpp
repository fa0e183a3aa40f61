#include "playback/row_runs.h"

#include <algorithm>
#include <limits>

int rowsIn(const RowRuns &runs)
{
    // Runs may come from a file: their sum stops at the largest number instead of passing it.
    qint64 rows = 0;
    for (const RowRun &run : runs)
        rows += run.count;
    return static_cast<int>(std::min<qint64>(rows, std::numeric_limits<int>::max()));
}

void appendRow(RowRuns &runs, int row)
{
    if (!runs.isEmpty() && runs.last().first + runs.last().count == row)
        ++runs.last().count;
    else
        runs.append(RowRun{row, 1});
}

bool isRowSet(const RowRuns &runs, int count)
{
    int least = 0;
    for (const RowRun &run : runs) {
        // Subtracting, because the sum of two hostile numbers may not fit.
        if (run.first < least || run.count < 1 || run.first > count || run.count > count - run.first)
            return false;
        least = run.first + run.count;
    }
    return true;
}

bool isRowOrder(const RowRuns &order, int count)
{
    RowRuns sorted = order;
    std::sort(sorted.begin(), sorted.end(),
              [](const RowRun &a, const RowRun &b) { return a.first < b.first; });
    return isRowSet(sorted, count) && rowsIn(sorted) == count;
}

bool isUnchangedOrder(const RowRuns &order)
{
    int expected = 0;
    for (const RowRun &run : order) {
        if (run.first != expected)
            return false;
        expected += run.count;
    }
    return true;
}

RowRuns inverseOrder(const RowRuns &order)
{
    struct Piece
    {
        int oldFirst;
        RowRun now;
    };
    QList<Piece> pieces;
    pieces.reserve(order.size());
    int row = 0;
    for (const RowRun &run : order) {
        pieces.append(Piece{run.first, RowRun{row, run.count}});
        row += run.count;
    }
    std::sort(pieces.begin(), pieces.end(),
              [](const Piece &a, const Piece &b) { return a.oldFirst < b.oldFirst; });
    RowRuns inverse;
    inverse.reserve(pieces.size());
    for (const Piece &piece : pieces) {
        if (!inverse.isEmpty() && inverse.last().first + inverse.last().count == piece.now.first)
            inverse.last().count += piece.now.count;
        else
            inverse.append(piece.now);
    }
    return inverse;
}

namespace {

void appendRun(RowRuns &runs, RowRun run)
{
    if (run.count < 1)
        return;
    if (!runs.isEmpty() && runs.last().first + runs.last().count == run.first)
        runs.last().count += run.count;
    else
        runs.append(run);
}

/// The rows from \p from to before \p to that are not in the set.
void appendOthers(RowRuns &order, const RowRuns &set, int from, int to)
{
    int row = from;
    for (const RowRun &run : set) {
        const int first = std::clamp(run.first, from, to);
        appendRun(order, RowRun{row, first - row});
        row = std::max(row, std::clamp(run.first + run.count, from, to));
    }
    appendRun(order, RowRun{row, to - row});
}

} // namespace

RowRuns blockMove(const RowRuns &moved, int target, int count)
{
    RowRuns order;
    appendOthers(order, moved, 0, target);
    for (const RowRun &run : moved)
        appendRun(order, run);
    appendOthers(order, moved, target, count);
    return order;
}

int rowAfterInsert(const RowRuns &inserted, int row)
{
    if (row < 0)
        return -1;
    for (const RowRun &run : inserted) {
        if (run.first > row)
            break;
        row += run.count;
    }
    return row;
}

int rowAfterRemove(const RowRuns &removed, int row)
{
    if (row < 0)
        return -1;
    int before = 0;
    for (const RowRun &run : removed) {
        if (row < run.first)
            break;
        if (row < run.first + run.count)
            return -1;
        before += run.count;
    }
    return row - before;
}

int rowAfterOrder(const RowRuns &order, int row)
{
    int now = 0;
    for (const RowRun &run : order) {
        if (row >= run.first && row < run.first + run.count)
            return now + row - run.first;
        now += run.count;
    }
    return -1;
}

int survivorBefore(const RowRuns &removed, int row)
{
    int gone = 0;
    for (const RowRun &run : removed) {
        if (run.first >= row)
            break;
        gone += std::min(run.count, row - run.first);
    }
    return row - gone - 1;
}
