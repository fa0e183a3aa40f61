/// \file
/// The choices of how the window looks.
#pragma once

#include <QWidget>

class QCheckBox;
class QComboBox;
class QPushButton;
class QSpinBox;

/// What LookControls shows and tells.
struct LookChoices
{
    int theme = 0; ///< 0 dark, 1 light, 2 as the system says
    bool coverAccent = true;
    bool reduceMotion = false;
    int sideWidth = 240; ///< of the right column, in pixels
    int vizMode = 1;     ///< bit 0 spectrum, bit 1 scope: what a session asks the engine for

    bool operator==(const LookChoices &) const = default;
};

/// Only shows and reports. Every control says in its tool tip when it takes effect.
class LookControls final : public QWidget
{
    Q_OBJECT

public:
    explicit LookControls(QWidget *parent = nullptr);

    // Children of this widget.
    QComboBox *theme;
    QCheckBox *coverAccent;
    QCheckBox *reduceMotion;
    QCheckBox *spectrum;
    QCheckBox *scope;
    QSpinBox *sideWidth; ///< any number may be typed; the owner clamps it and says so
    QPushButton *resetLayout;
    QPushButton *pureDefaults;

    /// Without a signal.
    void showChoices(const LookChoices &choices);
    LookChoices choices() const;

Q_SIGNALS:
    /// By the listener's hand.
    void changed();
    void resetLayoutAsked();
    void pureDefaultsAsked();
};
