/// \file
/// Where in the track we are. It shows and does not seek, so it has no knob and takes no clicks.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QProgressBar>

class ProgressRow final : public QFrame
{
    Q_OBJECT

public:
    explicit ProgressRow(QWidget *parent = nullptr);

    /// \param value 0 to progressBarMaximum
    void showBar(int value);
    /// \param tip explains the text where it needs to
    void showText(const QString &text, const QString &tip = {});

private:
    QLabel *m_text;
    QProgressBar *m_bar;
};
