/// \file
/// The sleep timer's choice.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QWidget>

class SleepControls final : public QWidget
{
    Q_OBJECT

public:
    explicit SleepControls(QWidget *parent = nullptr);

    /// \param minutes 0 for off
    /// \param text the timer's state in words
    void showTimer(int minutes, const QString &text);

Q_SIGNALS:
    void chosen(int minutes);

private:
    QComboBox *m_minutes;
    QLabel *m_state;
};
