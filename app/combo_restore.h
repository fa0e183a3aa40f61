/// \file
/// Finds a remembered choice again after its words have changed slightly.
#pragma once

#include <QList>
#include <QString>

struct ComboItem
{
    QString text;
    QString data; ///< as text; empty for none
};

/// The index for a stored text: by data, by text without its blanks, by the text's first word; -1 for none.
/// An empty stored text is found nowhere.
int findComboItem(const QList<ComboItem> &items, const QString &stored);
