/// \file
/// The rows in which the engine's signal chain is told.
#pragma once

#include <QList>
#include <QString>

struct ChainRow
{
    QString label;     ///< its source text; chainRowLabel() gives it in the language of the interface
    QString value;     ///< the engine's words
    bool warn = false; ///< something changes the samples, or lost some

    bool operator==(const ChainRow &) const = default;
};

/// \param text lines that begin with a label of the engine's; all others, and the labels that stand in the
/// header
///             of the display, give no row
QList<ChainRow> buildChainRows(const QString &text);

/// Whether a line of the engine's report would stand as a warning.
bool chainLineWarns(const QString &line);

/// Translated.
QString chainRowLabel(const ChainRow &row);

/// "<b>label</b> · value", both escaped.
QString chainRowHtml(const ChainRow &row);

/// How many of the rows are warnings.
int chainWarnings(const QList<ChainRow> &rows);
