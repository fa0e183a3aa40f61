/// \file
/// The stage: the disc, and the line that says what the audio data is.
#pragma once

#include "ui/area_plan.h"

#include <QFrame>

class CoverDisc;
class ElidedLabel;

class Stage final : public QFrame
{
    Q_OBJECT

public:
    explicit Stage(QWidget *parent = nullptr);

    CoverDisc *disc; ///< child of this widget

    void showAudioLine(const QString &text, const QString &tip = {});
    QString audioLine() const;
    /// \param centreWidth of the column that the stage shares with the display
    void applyPlan(const AreaPlan &plan, int centreWidth);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void fitDisc();

    int m_centreWidth = 0;
    ElidedLabel *m_audioLine;
};
