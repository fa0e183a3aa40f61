#include "ui/sleep_controls.h"

#include <QHBoxLayout>
#include <array>

namespace {

constexpr std::array presets = {0, 15, 30, 45, 60, 90, 120};

} // namespace

SleepControls::SleepControls(QWidget *parent)
    : QWidget(parent)
    , m_minutes(new QComboBox(this))
    , m_state(new QLabel(this))
{
    for (const int minutes : presets)
        m_minutes->addItem(minutes == 0 ? tr("关闭") : tr("%1 分钟后").arg(minutes), minutes);
    m_minutes->setAccessibleName(tr("睡眠定时"));
    m_minutes->setToolTip(tr("到时间后用十秒淡出，然后停止"));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_minutes);
    row->addWidget(m_state, 1);
    connect(m_minutes, &QComboBox::activated, this,
            [this] { Q_EMIT chosen(m_minutes->currentData().toInt()); });
}

void SleepControls::showTimer(int minutes, const QString &text)
{
    if (const int row = m_minutes->findData(minutes); row >= 0)
        m_minutes->setCurrentIndex(row);
    m_state->setText(text);
}
