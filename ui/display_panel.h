/// \file
/// The display: what plays, in which format, and where in it we are.
#pragma once

#include "ui/area_plan.h"

#include <QFrame>
#include <QLabel>

class ElidedLabel;
class FittedTitle;

/// What the display says of a track. Empty texts leave their line blank.
struct DisplayedTrack
{
    QString meta;   ///< "TRACK 07", with " · DISC 02" where a disc is known
    QString format; ///< "FLAC"
    QString title;
    QString artist;
    QString album;
};

class DisplayPanel final : public QFrame
{
    Q_OBJECT

public:
    explicit DisplayPanel(QWidget *parent = nullptr);

    void showTrack(const DisplayedTrack &track);
    /// \param position the time, and the total where it is known, as "0:00 / 0:00"
    void showTime(const QString &position, const QString &tip = {});
    /// The transport's state in a word, and whether sound is flowing.
    void showStatus(const QString &word, bool sounding);
    void applyPlan(const AreaPlan &plan);

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void fitTitle();
    void alignTimes();

    QFrame *m_screen;
    QLabel *m_meta;
    QLabel *m_format;
    FittedTitle *m_title;
    ElidedLabel *m_artist;
    ElidedLabel *m_album;
    QLabel *m_time;
    QLabel *m_total;
    QLabel *m_status;
    int m_mostTitlePixels = 0;
    int m_timePixels = 0;
};
