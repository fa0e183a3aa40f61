// How the window is put together.
#include "ui/window/player_gui_window.h"

#include "net/remote_controls.h"
#include "output/engine_controls.h"
#include "playback/playlist_widget.h"
#include "ui/display_panel.h"
#include "ui/dock_bar.h"
#include "ui/glyph_icons.h"
#include "ui/log_pane.h"
#include "ui/progress_row.h"
#include "ui/style_sheet.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int titleHeight = 56;
constexpr int panelWidth = 320;
constexpr int sideWidth = 240;
constexpr int statusHeight = 26;
constexpr int logHeight = 150;
/// In a lower window there is room for the log or for the engine's settings, not for both.
constexpr int bothPanelsHeight = 760;
constexpr int captionPixels = 11;
constexpr int areaPadding = 16;
constexpr int displayHeight = 220;

QFrame *area(QWidget *parent, QLatin1StringView objectName)
{
    auto *frame = new QFrame(parent);
    frame->setObjectName(objectName);
    return frame;
}

QLabel *caption(QWidget *parent, QLatin1StringView objectName, const QString &text)
{
    auto *label = new QLabel(text, parent);
    label->setObjectName(objectName);
    label->setFont(figureFont(captionPixels));
    return label;
}

} // namespace

void PlayerGuiWindow::buildLayout()
{
    auto *root = new QWidget(this);
    root->setObjectName("vesperRoot"_L1);
    // Nothing is marked as focused before a key has been pressed.
    root->setFocusPolicy(Qt::ClickFocus);
    root->setFocus();
    setCentralWidget(root);
    auto *rows = new QVBoxLayout(root);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(buildTitleLine());

    auto *body = new QHBoxLayout;
    body->setSpacing(0);
    body->addWidget(buildPlaylistPanel());
    body->addWidget(buildCentre(), 1);
    body->addWidget(buildDevicePanel());
    rows->addLayout(body, 1);

    m_ui.log = new LogPane(root);
    m_ui.log->setFixedHeight(logHeight);
    m_ui.log->hide();
    rows->addWidget(m_ui.log);
    m_ui.progress = new ProgressRow(root);
    rows->addWidget(m_ui.progress);
    m_ui.dock = new DockBar(root);
    rows->addWidget(m_ui.dock);
    rows->addWidget(buildStatusLine());
    orderTabs();
}

QWidget *PlayerGuiWindow::buildTitleLine()
{
    QFrame *bar = area(centralWidget(), "vesperTitleBar"_L1);
    bar->setFixedHeight(titleHeight);
    auto *row = new QHBoxLayout(bar);
    row->setContentsMargins(areaPadding, 0, areaPadding, 0);
    auto *brand = new QLabel(u"PLAYER · DSD"_s, bar);
    brand->setObjectName("vesperBrand"_L1);
    brand->setFont(figureFont(captionPixels + 1));
    brand->setFixedHeight(28);
    m_ui.sourceInfo = caption(bar, "vesperModel"_L1, {});
    m_ui.sourceInfo->setAccessibleName(tr("音频数据"));
    row->addWidget(brand);
    row->addStretch();
    row->addWidget(m_ui.sourceInfo);
    return bar;
}

QWidget *PlayerGuiWindow::buildPlaylistPanel()
{
    QFrame *panel = area(centralWidget(), "vesperPanel"_L1);
    panel->setFixedWidth(panelWidth);
    auto *rows = new QVBoxLayout(panel);
    rows->setContentsMargins(areaPadding, areaPadding, areaPadding, areaPadding);
    rows->setSpacing(8);

    auto *head = new QHBoxLayout;
    head->addWidget(caption(panel, "vesperPanelTitle"_L1, tr("播放列表")));
    head->addStretch();
    m_ui.playlistCount = caption(panel, "vesperPanelMeta"_L1, u"0 / 0"_s);
    head->addWidget(m_ui.playlistCount);
    rows->addLayout(head);

    m_ui.playlist = new PlaylistWidget(panel);
    m_ui.playlist->setAccessibleName(tr("播放列表"));
    rows->addWidget(m_ui.playlist, 1);

    auto *buttons = new QHBoxLayout;
    m_ui.importFiles = new QPushButton(tr("导入"), panel);
    m_ui.importFiles->setObjectName("vesperLoadBtn"_L1);
    m_ui.importFiles->setToolTip(tr("把音频文件加到列表末尾"));
    buttons->addWidget(m_ui.importFiles);
    m_ui.analyze = new QPushButton(tr("分析曲目"), panel);
    m_ui.analyze->setObjectName("vesperLoadBtn"_L1);
    m_ui.analyze->setToolTip(tr("测出选中曲目的速度和调性；不改动文件"));
    buttons->addWidget(m_ui.analyze);
    buttons->addStretch();
    rows->addLayout(buttons);
    return panel;
}

QWidget *PlayerGuiWindow::buildCentre()
{
    auto *centre = new QWidget(centralWidget());
    auto *rows = new QVBoxLayout(centre);
    rows->setContentsMargins(areaPadding, areaPadding, areaPadding, areaPadding);
    rows->setSpacing(12);

    m_ui.display = new DisplayPanel(centre);
    m_ui.display->setMinimumHeight(displayHeight);
    rows->addWidget(m_ui.display, 1);

    m_ui.engineSwitch = new QToolButton(centre);
    m_ui.engineSwitch->setObjectName("vesperSwitch"_L1);
    m_ui.engineSwitch->setText(tr("引擎设置"));
    m_ui.engineSwitch->setToolTip(tr("下次建会话时交给引擎的设置"));
    m_ui.engineSwitch->setCheckable(true);
    m_ui.engineSwitch->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_ui.engineSwitch->setArrowType(Qt::RightArrow);
    m_ui.engineSwitch->setFocusPolicy(Qt::StrongFocus);
    m_ui.engineSwitch->setFixedHeight(28);
    rows->addWidget(m_ui.engineSwitch, 0, Qt::AlignLeading);

    m_ui.engine = new EngineControls(centre);
    auto *scroller = new QScrollArea(centre);
    scroller->setWidget(m_ui.engine);
    scroller->setWidgetResizable(true);
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroller->setFocusPolicy(Qt::NoFocus);
    scroller->hide();
    rows->addWidget(scroller, 2);
    rows->addWidget(m_ui.remote = new RemoteControls(centre));
    m_ui.remote->hide();
    connect(m_ui.engineSwitch, &QToolButton::toggled, m_ui.remote, &QWidget::setVisible);
    connect(m_ui.engineSwitch, &QToolButton::toggled, scroller, [this, scroller](bool open) {
        scroller->setVisible(open);
        if (open && height() < bothPanelsHeight)
            m_ui.logSwitch->setChecked(false);
        m_ui.engineSwitch->setArrowType(open ? Qt::DownArrow : Qt::RightArrow);
    });
    return centre;
}

QWidget *PlayerGuiWindow::buildDevicePanel()
{
    QFrame *panel = area(centralWidget(), "vesperSide"_L1);
    panel->setFixedWidth(sideWidth);
    auto *rows = new QVBoxLayout(panel);
    rows->setContentsMargins(areaPadding, areaPadding, areaPadding, areaPadding);
    rows->setSpacing(8);
    rows->addWidget(caption(panel, "vesperPanelTitle"_L1, tr("输出设备")));
    m_ui.device = new QComboBox(panel);
    m_ui.device->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_ui.device->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_ui.device->setAccessibleName(tr("输出设备"));
    m_ui.device->setToolTip(tr("播放用的输出设备"));
    rows->addWidget(m_ui.device);
    m_ui.refreshDevices = new QPushButton(tr("刷新设备"), panel);
    m_ui.refreshDevices->setToolTip(tr("从 KelpPlayer -list 重新读取设备列表"));
    rows->addWidget(m_ui.refreshDevices);
    rows->addStretch();
    m_devices.deviceCombos = QList<QComboBox *>{m_ui.device} + m_ui.engine->channelDevices;
    return panel;
}

QWidget *PlayerGuiWindow::buildStatusLine()
{
    QFrame *line = area(centralWidget(), "vesperStatusLine"_L1);
    line->setFixedHeight(statusHeight);
    auto *row = new QHBoxLayout(line);
    row->setContentsMargins(areaPadding, 0, 8, 0);
    m_ui.message = new QLabel(line);
    m_ui.message->setObjectName("vesperMessage"_L1);
    m_ui.message->setTextFormat(Qt::PlainText);
    m_ui.message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_ui.logSwitch = new QToolButton(line);
    m_ui.logSwitch->setObjectName("vesperSwitch"_L1);
    m_ui.logSwitch->setText(tr("显示日志面板"));
    m_ui.logSwitch->setToolTip(tr("程序做了什么决定、为什么"));
    m_ui.logSwitch->setCheckable(true);
    m_ui.logSwitch->setFocusPolicy(Qt::StrongFocus);
    row->addWidget(m_ui.message, 1);
    row->addWidget(m_ui.logSwitch);
    connect(m_ui.logSwitch, &QToolButton::toggled, this, [this](bool open) {
        m_ui.log->setVisible(open);
        if (open && height() < bothPanelsHeight)
            m_ui.engineSwitch->setChecked(false);
        m_ui.logSwitch->setText(open ? tr("收起日志面板") : tr("显示日志面板"));
    });
    return line;
}

void PlayerGuiWindow::orderTabs()
{
    const QList<QWidget *> order = {m_ui.playlist,     m_ui.importFiles,    m_ui.analyze,
                                    m_ui.engineSwitch, m_ui.device,         m_ui.refreshDevices,
                                    m_ui.dock->stop,   m_ui.dock->previous, m_ui.dock->start,
                                    m_ui.dock->next,   m_ui.dock->volume,   m_ui.logSwitch,
                                    m_ui.log};
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order.at(i - 1), order.at(i));
    // The engine's settings keep their own order, behind the switch that opens them.
    setTabOrder(m_ui.engineSwitch, m_ui.engine->outputPath);
    setTabOrder(m_ui.engine->extDecoder, m_ui.remote->enable);
    setTabOrder(m_ui.remote->enable, m_ui.remote->port);
    setTabOrder(m_ui.remote->port, m_ui.remote->addresses);
    setTabOrder(m_ui.remote->addresses, m_ui.device);
}

void PlayerGuiWindow::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    if (height() < bothPanelsHeight && m_ui.logSwitch->isChecked())
        m_ui.engineSwitch->setChecked(false);
}
