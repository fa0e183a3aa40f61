/// \file
/// Arithmetic on row numbers: where a start or a step by hand leads.
#pragma once

#include <optional>

/// Which row startPlayback settles on.
struct StartRowFacts
{
    int askedRow = -1;        ///< below 0: keep or choose
    bool sessionRuns = false; ///< then the row is kept
    int selectedRow = -1;     ///< the list's current row
    int currentRow = -1;
    int lastPlayedRow = -1; ///< of the stored last-played key
    int count = 0;          ///< above 0
};
int settleStartRow(const StartRowFacts &facts);

/// Which row the mini cover leads to; -1 for none.
struct ShownRowFacts
{
    bool sessionRuns = false;
    int playingRow = -1;
    int selectedRow = -1; ///< the list's current row
};
int rowToShow(const ShownRowFacts &facts);

/// A base row plus a step, or none outside the list.
std::optional<int> steppedRow(int baseRow, int delta, int count);
