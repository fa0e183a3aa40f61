#include "ui/dsp_bar.h"

#include "ui/dsp_tab.h"
#include "ui/elided_label.h"
#include "ui/style_sheet.h"

#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int captionPixels = 12;
constexpr int denoiseTab = 4;
constexpr int summaryShare = 100;

} // namespace

DspBar::DspBar(QWidget *parent)
    : QFrame(parent)
    // The sentence on direct DSD stands at the end and stays readable.
    , m_summary(new ElidedLabel(this, Qt::ElideMiddle))
    , m_live(new QLabel(tr("实时"), this))
{
    setObjectName("vesperDspBar"_L1);
    setFixedHeight(areas::dspBar);
    auto *caption = new QLabel(u"DSP"_s, this);
    caption->setObjectName("vesperDspCaption"_L1);
    QFont headFont = figureFont(captionPixels);
    headFont.setWeight(QFont::DemiBold);
    caption->setFont(headFont);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(16, 0, 16, 0);
    row->setSpacing(4);
    row->addWidget(caption);
    row->addSpacing(8);
    for (const QString &name : {tr("混响"), tr("音调"), tr("平衡"), tr("空间"), tr("降噪"), tr("均衡器")}) {
        auto *tab = new DspTab(name, this);
        tab->setEnabled(false);
        tab->setToolTip(tr("这一页效果还没有做好，以后的版本才有"));
        // The tabs are left to shortcuts; an open page takes the Tab key.
        tab->setFocusPolicy(Qt::NoFocus);
        m_tabs.append(tab);
        row->addWidget(tab);
    }
    m_summary->setObjectName("vesperDspSummary"_L1);
    m_summary->setAlignment((isRightToLeft() ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignAbsolute |
                            Qt::AlignVCenter);
    m_live->setObjectName("vesperDspLive"_L1);
    m_live->setFont(captionFont(m_live->text()));
    row->addSpacing(12);
    // Takes over where the summary has no room.
    row->addStretch(1);
    row->addWidget(m_summary, summaryShare);
    row->addSpacing(8);
    row->addWidget(m_live);
    showSummary({}, false);
}

void DspBar::showSummary(const QString &words, bool live)
{
    m_summary->setWhole(words);
    m_live->setEnabled(live);
    m_live->setToolTip(live ? tr("效果链在播放的路径上：改动马上听得到") : tr("效果链现在不在播放的路径上"));
    m_live->setAccessibleDescription(m_live->toolTip());
}

void DspBar::showDenoise(bool on)
{
    m_tabs.at(denoiseTab)->setLit(on);
}

void DspBar::applyPlan(const AreaPlan &plan)
{
    m_summary->setVisible(plan.showsSummary);
    setToolTip(plan.showsSummary ? QString() : m_summary->whole());
}
