/// \file
/// A combo box whose arrow is drawn.
#pragma once

#include <QComboBox>

/// A combo box of the main window. The sheet's arrow is a picture, and to learn a picture's size the style
/// loads every image plug-in of the system; what the window shows first must not cost that, so this one draws
/// its arrow itself, the same.
class GlyphCombo final : public QComboBox
{
    Q_OBJECT

public:
    using QComboBox::QComboBox;

protected:
    void paintEvent(QPaintEvent *event) override;
};
