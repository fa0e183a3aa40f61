/// \file
/// The dial: where in the track we are, as the needle of a tuner shows it.
#pragma once

#include <QWidget>

/// It has no knob and takes no clicks, because it shows and does not seek. Never mirrored: time runs from
/// left to right.
class ProgressDial final : public QWidget
{
    Q_OBJECT

public:
    explicit ProgressDial(QWidget *parent = nullptr);

    /// \param totalSec below 0.5 for an unknown length: the dial is dark
    void showPosition(double positionSec, double totalSec);
    /// For a length that is not known: how much is done, 0 to 1, without divisions.
    void showFraction(double fraction);
    /// The loop's points; below 0 for a point that is not set.
    void showLoop(double aSec, double bSec);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void place(double positionSec, double totalSec, bool divided);
    double placeOf(double seconds) const; ///< in pixels from the left

    bool m_divided = true; ///< the dial is one of time
    double m_positionSec = 0.;
    double m_totalSec = 0.;
    double m_aSec = -1.;
    double m_bSec = -1.;
    int m_needle = 0; ///< the pixel on which the needle stands: what decides whether to paint anew
};

/// The dial's divisions for a track's length, both in seconds.
struct DialTicks
{
    int minorSec = 10;
    int majorSec = 60;
};
DialTicks dialTicks(double totalSec);
