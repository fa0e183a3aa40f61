/// \file
/// Finds the row of a combo box that a stored text means.
#pragma once

#include <QList>
#include <QString>

struct ComboRow
{
    QString data; ///< the item's data as text, empty when it has none
    QString text;
};

struct ComboRestore
{
    int row = -1;         ///< to be selected; -1 leaves the combo as it stands
    bool missing = false; ///< something was stored and no row matches: to be logged
};

/// A stored text that is empty or blank leaves the combo as it stands. Otherwise the first hit of three
/// searches: by data, exact; by text without any blanks, exact; by the stored text's first word, with which a
/// row's trimmed text begins. So a device is found again whose name has changed slightly.
ComboRestore findComboRow(const QString &stored, const QList<ComboRow> &rows);

/// The log line for a stored text that no row matches, translated.
QString comboMissingText(const QString &stored);
