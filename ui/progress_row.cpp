#include "ui/progress_row.h"

#include "engine/progress_display.h"
#include "ui/style_sheet.h"

#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int rowHeight = 36;
constexpr int barHeight = 2;
constexpr int figurePixels = 12;

} // namespace

ProgressRow::ProgressRow(QWidget *parent)
    : QFrame(parent)
    , m_text(new QLabel(u"0:00"_s, this))
    , m_bar(new QProgressBar(this))
{
    setObjectName("vesperProg"_L1);
    setFixedHeight(rowHeight);
    m_text->setObjectName("vesperTime"_L1);
    m_text->setFont(figureFont(figurePixels));
    m_text->setAccessibleName(tr("位置"));
    m_bar->setObjectName("vesperDial"_L1);
    m_bar->setRange(0, progressBarMaximum);
    m_bar->setTextVisible(false);
    m_bar->setFixedHeight(barHeight);
    m_bar->setAccessibleName(tr("播放进度"));
    m_bar->setToolTip(tr("只显示进度：播放中不能跳转"));
    m_bar->setFocusPolicy(Qt::NoFocus);

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(16, 0, 16, 0);
    row->setSpacing(16);
    row->addWidget(m_text);
    row->addWidget(m_bar, 1);
}

void ProgressRow::showBar(int value)
{
    m_bar->setValue(value);
}

void ProgressRow::showText(const QString &text, const QString &tip)
{
    m_text->setText(text);
    m_text->setToolTip(tip);
}
