/// \file
/// The left panel: the list with its search, its filters and its buttons.
#pragma once

#include "ui/area_plan.h"

#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

/// Only shows and reports. Searching and filtering do not exist yet: their controls stand in their places,
/// disabled, and say so.
class LibraryPanel final : public QFrame
{
    Q_OBJECT

public:
    /// \param list stands in the middle and becomes a child of the panel
    LibraryPanel(QWidget *list, QWidget *parent);

    // Children of this widget.
    QLineEdit *search = nullptr;
    QList<QPushButton *> chips; ///< all, DSD, PCM, images
    QComboBox *artist = nullptr;
    QComboBox *album = nullptr;
    QPushButton *importFiles = nullptr;
    QPushButton *importFolder = nullptr;
    QPushButton *removeRows = nullptr;
    QPushButton *clearList = nullptr;

    /// \param playing counted from 0, -1 for none
    void showCounts(int playing, int shown, int all);
    void applyPlan(const AreaPlan &plan);

private:
    QLayout *buildHead();
    QLayout *buildChips();
    QLayout *buildCombos();
    QLayout *buildButtons();
    QPushButton *addButton(const char *objectName, const QString &name, const QString &tip);

    void fitRow();

    int m_buttonRoom = 0;        ///< in width; 0 before the first plan
    QLabel *m_counter = nullptr; ///< playing / all
    QLabel *m_shown = nullptr;   ///< shown / all, at the end of the search
};
