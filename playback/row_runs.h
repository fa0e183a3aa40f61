/// \file
/// Sets and orders of rows, written as runs: a block of a hundred thousand rows is one run.
#pragma once

#include <QList>

/// \p count rows from \p first on.
struct RowRun
{
    int first = 0;
    int count = 0; ///< above 0

    friend bool operator==(const RowRun &, const RowRun &) = default;
};

/// A set of rows: ascending, not touching. Or an order: the old rows in their new sequence.
using RowRuns = QList<RowRun>;

/// How many rows there are in all.
int rowsIn(const RowRuns &runs);
/// Appends one row, to the last run where it follows on.
void appendRow(RowRuns &runs, int row);
/// Whether the runs are a set of rows below \p count.
bool isRowSet(const RowRuns &runs, int count);
/// Whether the runs are an order of exactly the rows 0 to \p count - 1.
bool isRowOrder(const RowRuns &order, int count);
bool isUnchangedOrder(const RowRuns &order);

/// The order that takes \p order back.
RowRuns inverseOrder(const RowRuns &order);
/// The order that takes the rows of a set out of \p count and puts them, as they stand, before row \p target.
RowRuns blockMove(const RowRuns &moved, int target, int count);

// Of no row, -1, comes no row.

/// Where a row is after rows were put in; the set tells where those are now.
int rowAfterInsert(const RowRuns &inserted, int row);
/// Where a row is after a set of rows has gone; -1 when it was one of them.
int rowAfterRemove(const RowRuns &removed, int row);
/// Where a row is after the order; -1 when the order has no such row.
int rowAfterOrder(const RowRuns &order, int row);
/// The last row that stays before \p row when a set of rows goes, counted as it stands then; -1 for none.
int survivorBefore(const RowRuns &removed, int row);
