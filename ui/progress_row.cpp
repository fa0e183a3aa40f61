#include "ui/progress_row.h"

#include "ui/area_plan.h"
#include "ui/progress_dial.h"
#include "ui/style_sheet.h"

#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int figurePixels = 12;
constexpr QSize pointSize(26, 22);

} // namespace

ProgressRow::ProgressRow(QWidget *parent)
    : QFrame(parent)
    , dial(new ProgressDial(this))
    , m_text(new QLabel(u"0:00"_s, this))
{
    setObjectName("vesperProg"_L1);
    setFixedHeight(areas::dial);
    setLayoutDirection(Qt::LeftToRight);
    m_text->setObjectName("vesperTime"_L1);
    m_text->setFont(figureFont(figurePixels));
    m_text->setAccessibleName(tr("位置"));
    loopA = addPoint(u"A"_s, tr("循环起点：标在现在的位置；A 和 B 都标好就开始循环，再按一次取消"));
    loopB = addPoint(u"B"_s, tr("循环终点：标在现在的位置；A 和 B 都标好就开始循环，再按一次取消"));

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(16, 0, 16, 0);
    row->setSpacing(16);
    row->addWidget(m_text);
    row->addWidget(dial, 1);
    auto *points = new QHBoxLayout;
    points->setSpacing(4);
    points->addWidget(loopA);
    points->addWidget(loopB);
    row->addLayout(points);
}

QPushButton *ProgressRow::addPoint(const QString &letter, const QString &tip)
{
    auto *button = new QPushButton(letter, this);
    button->setObjectName("vesperPoint"_L1);
    button->setCheckable(true);
    button->setFont(figureFont(figurePixels));
    button->setFixedSize(pointSize);
    button->setToolTip(tip);
    button->setAccessibleDescription(tip);
    return button;
}

void ProgressRow::showText(const QString &text, const QString &tip)
{
    m_text->setText(text);
    m_text->setToolTip(tip);
}

void ProgressRow::showLoop(double aSec, double bSec)
{
    loopA->setChecked(aSec >= 0.);
    loopB->setChecked(bSec >= 0.);
    dial->showLoop(aSec, bSec);
}
