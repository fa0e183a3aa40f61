#include "ui/stage.h"

#include "ui/cover_disc.h"
#include "ui/elided_label.h"

#include <QVBoxLayout>

Stage::Stage(QWidget *parent)
    : QFrame(parent)
    , disc(new CoverDisc(this))
    , m_audioLine(new ElidedLabel(this))
{
    setObjectName("vesperStage");
    m_audioLine->setObjectName("vesperBayLabel");
    m_audioLine->setAlignment(Qt::AlignHCenter);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(8);
    rows->addStretch();
    rows->addWidget(disc, 0, Qt::AlignHCenter);
    rows->addWidget(m_audioLine);
    rows->addStretch();
}

void Stage::showAudioLine(const QString &text, const QString &tip)
{
    m_audioLine->setWhole(text, tip);
    disc->setToolTip(text);
}

QString Stage::audioLine() const
{
    return m_audioLine->whole();
}

void Stage::applyPlan(const AreaPlan &plan, int centreWidth)
{
    m_audioLine->setVisible(plan.showsAudioLine);
    m_centreWidth = centreWidth;
    fitDisc();
}

void Stage::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    fitDisc();
}

void Stage::fitDisc()
{
    const int diameter = discDiameter(height(), m_centreWidth);
    disc->setFixedSize(diameter, diameter);
    setFixedWidth(diameter);
}
