/// \file
/// Text buttons in less room than they ask for: first their padding gives way, then the text.
#pragma once

#include <QList>

class QPushButton;

/// The padding is the sheet's property "pad". A text that has no room even then elides at its end; the whole
/// stands before the tool tip's own words and remains the accessible name. May be called at every resize.
/// \param room for all buttons together, in pixels, less the gaps between them
void fitButtons(const QList<QPushButton *> &buttons, int room);
void fitButton(QPushButton &button, int room);
