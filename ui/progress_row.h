/// \file
/// The row of the dial: the time, the dial, and the two points of the loop.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QPushButton>

class ProgressDial;

/// Only shows and reports. Never mirrored: time runs from left to right.
class ProgressRow final : public QFrame
{
    Q_OBJECT

public:
    explicit ProgressRow(QWidget *parent = nullptr);

    ProgressDial *dial; ///< child of this widget
    QPushButton *loopA; ///< child; checked while the point is set
    QPushButton *loopB; ///< likewise

    /// \param tip explains the text where it needs to
    void showText(const QString &text, const QString &tip = {});
    /// Points below 0 are not set.
    void showLoop(double aSec, double bSec);

private:
    QPushButton *addPoint(const QString &letter, const QString &tip);

    QLabel *m_text;
};
