// How the areas share the window's size.
#include "ui/window/player_gui_window.h"

#include "app/settings_rules.h"
#include "app/settings_store.h"
#include "platform/settings_table.h"
#include "playback/chain_panel.h"
#include "ui/display_panel.h"
#include "ui/dock_bar.h"
#include "ui/dsp_bar.h"
#include "ui/fitted_button.h"
#include "ui/glyph_icons.h"
#include "ui/instrument_panel.h"
#include "ui/library_panel.h"
#include "ui/log_pane.h"
#include "ui/stage.h"
#include "ui/title_bar.h"
#include "ui/window_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int logHeight = 150;
constexpr int lowLogHeight = 96;
constexpr int lowWindow = 760;
constexpr int checkGap = 4;
constexpr QSize initialSize(1280, 860);

} // namespace

void PlayerGuiWindow::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    applyAreaPlan();
}

void PlayerGuiWindow::applyAreaPlan()
{
    const int paneHeight = height() < lowWindow ? lowLogHeight : logHeight;
    if (m_ui.log)
        m_ui.log->setFixedHeight(paneHeight);
    const AreaFacts facts{width(), height(), m_ui.logSwitch->isChecked() ? paneHeight : 0, m_sideWidth};
    const AreaPlan plan = planAreas(facts);
    if (m_areaPlan == plan)
        return;
    m_areaPlan = plan;
    logGeometry(u"areas"_s);
    m_ui.title->applyPlan(plan);
    m_ui.library->applyPlan(plan);
    m_ui.stage->applyPlan(plan, width() - plan.leftWidth - plan.sideWidth);
    m_ui.display->applyPlan(plan);
    m_ui.instruments->setCompact(plan.compact);
    m_ui.instruments->setVisible(plan.showsInstruments);
    m_ui.lyrics->setFixedHeight(plan.lyricHeight);
    m_ui.lyrics->setVisible(plan.showsInstruments);
    m_ui.chain->setCardsVisible(plan.showsInstruments);
    m_ui.dock->applyPlan(plan);
    m_ui.dsp->applyPlan(plan);
    m_ui.side->setFixedWidth(plan.sideWidth);
    for (QWidget *column : {m_ui.centre, m_ui.side}) {
        column->layout()->setContentsMargins(plan.padding, plan.padding, plan.padding,
                                             column == m_ui.centre ? 0 : plan.padding);
    }
    m_ui.centre->layout()->setSpacing(plan.groupGap);
    const int besides = m_ui.report->width() + checkGap + 2 * plan.padding + 1;
    fitButton(*m_ui.selfCheck, plan.sideWidth - besides);
}

void PlayerGuiWindow::tellSideWidthClamped(int wanted)
{
    logLine(tr("布局: 侧栏宽度 %1 超出范围, 已夹到 %2 px").arg(wanted).arg(m_sideWidth), true);
}

void PlayerGuiWindow::setSideWidth(int width, bool log)
{
    m_sideWidth = sideWidthFromUser(width);
    if (m_sideWidth != width)
        tellSideWidthClamped(width);
    else if (log)
        logLine(tr("布局: 侧栏宽度 %1 px").arg(m_sideWidth));
    writeUserSetting(settings::sideWidth, m_sideWidth);
    applyAreaPlan();
}

void PlayerGuiWindow::resetLayout()
{
    m_sideWidth = settings::sideWidth.fallback.value();
    UserSettings store;
    writeSetting(store, settings::sideWidth, m_sideWidth);
    store.remove(settings::geometry.key);
    if (isMaximized())
        showNormal();
    // Its place belongs to the layout as well.
    resize(initialSize);
    move(centredPlace(size(), screen()->availableGeometry()).topLeft());
    applyAreaPlan();
    logLine(tr("布局已重置(窗口大小/位置/侧栏宽度)"));
}

void PlayerGuiWindow::restorePlace()
{
    resize(initialSize);
    const int stored = readUserSetting(settings::sideWidth);
    m_sideWidth = sideWidthFromStored(stored);
    // Below 1 stands for the usual width and is no mistake.
    if (stored >= 1 && stored != m_sideWidth) {
        tellSideWidthClamped(stored);
        writeUserSetting(settings::sideWidth, m_sideWidth);
    }
    const QByteArray geometry = readUserSetting(settings::geometry);
    if (geometry.isEmpty())
        return;
    if (!restoreGeometry(geometry)) {
        logLine(tr("窗口位置: 存下的记录读不出来, 用默认大小"), true);
        return;
    }
    QList<QRect> screens;
    for (const QScreen *screen : QGuiApplication::screens())
        screens.append(screen->availableGeometry());
    if (screens.isEmpty() || isMaximized())
        return;
    const QRect place = reachablePlace(QRect(pos(), size()), screens);
    if (place != QRect(pos(), size())) {
        setGeometry(place);
        logLine(tr("窗口位置: 原来的屏幕不在了, 移到主屏幕中间"));
    }
}

void PlayerGuiWindow::logGeometry(const QString &when)
{
    if (!qEnvironmentVariableIsSet("KELP_GUI_GEO"))
        return;
    const QRect place = geometry();
    logLine(u"[geo %1] %2,%3 %4x%5 side=%6 maximised=%7"_s.arg(when)
                .arg(place.x())
                .arg(place.y())
                .arg(place.width())
                .arg(place.height())
                .arg(m_sideWidth)
                .arg(isMaximized() ? 1 : 0));
}

void PlayerGuiWindow::openLog(bool open)
{
    if (open && !m_ui.log) {
        m_ui.log = new LogPane(centralWidget());
        m_logPlace->addWidget(m_ui.log);
        setTabOrder(m_ui.logSwitch, m_ui.log);
        flushLog();
    }
    m_ui.logSwitch->setIcon(glyphIcon(open ? Glyph::ChevronDown : Glyph::ChevronUp));
    m_ui.logSwitch->setText(open ? tr("收起日志面板") : tr("显示日志面板"));
    // The areas give way before the pane takes its height.
    applyAreaPlan();
    if (m_ui.log)
        m_ui.log->setVisible(open);
}
