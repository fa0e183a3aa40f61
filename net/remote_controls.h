/// \file
/// The switch of the phone remote, its port and the addresses to open.
#pragma once

#include <QTimer>
#include <QWidget>

class QCheckBox;
class QLabel;
class QSpinBox;

/// Shows and reports; the server is its owner's matter.
class RemoteControls final : public QWidget
{
    Q_OBJECT

public:
    explicit RemoteControls(QWidget *parent = nullptr);

    // Children of this widget.
    QCheckBox *enable = nullptr;
    QSpinBox *port = nullptr; ///< 1 to 65535, read when the switch is turned
    QLabel *addresses = nullptr;

    /// Turns the switch without telling anybody.
    void showSwitch(bool on);
    /// Sets the port without telling anybody. A number that is no port stands for the usual one.
    void showPort(int number);
    /// The server listens under these addresses; with none the machine has no network.
    void showListening(const QStringList &urls);
    void showOff();

Q_SIGNALS:
    /// The user turned the switch.
    void switched(bool on);
    /// The addresses are in view: they may have changed with the network. Comes at once and then again while
    /// they are.
    void addressesWanted();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QTimer m_lookAgain; ///< runs while this is shown
};
