// How the window is put together.
#include "ui/window/player_gui_window.h"

#include "playback/chain_panel.h"
#include "playback/playlist_widget.h"
#include "ui/display_panel.h"
#include "ui/dock_bar.h"
#include "ui/dsp_bar.h"
#include "ui/edge_grips.h"
#include "ui/glyph_combo.h"
#include "ui/glyph_icons.h"
#include "ui/icon_button.h"
#include "ui/instrument_panel.h"
#include "ui/library_panel.h"
#include "ui/progress_row.h"
#include "ui/stage.h"
#include "ui/style_sheet.h"
#include "ui/title_bar.h"

#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize smallButton(24, 20);
constexpr QSize reportButton(30, 30);

} // namespace

void PlayerGuiWindow::buildLayout()
{
    auto *root = new QWidget(this);
    root->setObjectName("vesperRoot"_L1);
    // Nothing is marked as focused before a key has been pressed.
    root->setFocusPolicy(Qt::ClickFocus);
    root->setFocus();
    setCentralWidget(root);

    m_ui.title = new TitleBar(root);
    m_ui.playlist = new PlaylistWidget(root);
    m_ui.playlist->setAccessibleName(tr("播放列表"));
    m_ui.centre = buildCentre();
    m_ui.side = buildSide();
    m_ui.dock = new DockBar(root);
    m_ui.dsp = new DspBar(root);
    m_ui.progress = new ProgressRow(root);
    QWidget *status = buildStatusLine();
    // Behind the widgets: with the sheet in force each of them would be styled as often as it is set up.
    applyTheme();
    // They would ask for their rules when they are shown; but until now the fonts are still being listed.
    root->ensurePolished();
    // The last that is made, because its field measures text at once; but read out behind the title.
    m_ui.library = new LibraryPanel(m_ui.playlist, root);
    m_ui.library->stackUnder(m_ui.centre);

    auto *body = new QHBoxLayout;
    body->setSpacing(0);
    body->addWidget(m_ui.library);
    body->addWidget(m_ui.centre, 1);
    body->addWidget(m_ui.side);
    m_logPlace = new QVBoxLayout;
    auto *rows = new QVBoxLayout(root);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(m_ui.title);
    rows->addLayout(body, 1);
    // What opens takes its height from the body: the dial and the dock never move.
    rows->addLayout(m_logPlace);
    for (QWidget *area : {static_cast<QWidget *>(m_ui.dsp), static_cast<QWidget *>(m_ui.progress),
                          static_cast<QWidget *>(m_ui.dock), status})
        rows->addWidget(area);
    orderTabs();
    new EdgeGrips(this);
}

QWidget *PlayerGuiWindow::buildCentre()
{
    auto *centre = new QWidget(centralWidget());
    m_ui.stage = new Stage(centre);
    m_ui.display = new DisplayPanel(centre);
    m_ui.instruments = new InstrumentPanel(centre);
    m_ui.lyrics = new QLabel(centre);
    m_ui.lyrics->setObjectName("vesperLyrics"_L1);
    m_ui.lyrics->setAlignment(Qt::AlignCenter);

    auto *upper = new QHBoxLayout;
    upper->addWidget(m_ui.stage);
    upper->addWidget(m_ui.display, 1);
    auto *rows = new QVBoxLayout(centre);
    rows->addLayout(upper, 1);
    rows->addWidget(m_ui.instruments);
    rows->addWidget(m_ui.lyrics);
    return centre;
}

QWidget *PlayerGuiWindow::buildSide()
{
    auto *side = new QFrame(centralWidget());
    side->setObjectName("vesperSide"_L1);
    side->setProperty("mirrored", isRightToLeft());
    auto *rows = new QVBoxLayout(side);
    rows->setSpacing(8);
    m_ui.chain = new ChainPanel(side);
    rows->addWidget(m_ui.chain, 1);

    auto *head = new QHBoxLayout;
    auto *caption = new QLabel(tr("音频输出"), side);
    caption->setObjectName("vesperPanelTitle"_L1);
    caption->setFont(captionFont(caption->text()));
    m_ui.refreshDevices = new IconButton(Glyph::Refresh, tr("刷新设备"), side);
    m_ui.refreshDevices->setFixedSize(smallButton);
    m_ui.refreshDevices->setToolTip(tr("从 KelpPlayer -list 重新读取设备列表"));
    head->addWidget(caption);
    head->addStretch();
    head->addWidget(m_ui.refreshDevices);
    rows->addLayout(head);
    m_ui.device = new GlyphCombo(side);
    m_ui.device->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_ui.device->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_ui.device->setAccessibleName(tr("输出设备"));
    m_ui.device->setToolTip(tr("播放用的输出设备"));
    rows->addWidget(m_ui.device);
    rows->addSpacing(4);
    m_ui.selfCheck = new QPushButton(tr("位完美自检"), side);
    m_ui.selfCheck->setToolTip(tr("逐项检查现在的播放有没有改动样本"));
    m_ui.report = new IconButton(Glyph::Report, tr("信号链报告…"), side);
    m_ui.report->setFixedSize(reportButton);
    m_ui.report->setToolTip(tr("显示引擎自己对信号链的报告，可以保存"));
    auto *checks = new QHBoxLayout;
    checks->setSpacing(4);
    checks->addWidget(m_ui.selfCheck, 1);
    checks->addWidget(m_ui.report);
    rows->addLayout(checks);
    return side;
}

QWidget *PlayerGuiWindow::buildStatusLine()
{
    auto *line = new QFrame(centralWidget());
    line->setObjectName("vesperStatusLine"_L1);
    line->setFixedHeight(areas::statusLine);
    auto *row = new QHBoxLayout(line);
    row->setContentsMargins(8, 0, 8, 0);
    row->addSpacing(8);
    m_ui.message = new QLabel(line);
    m_ui.message->setObjectName("vesperMessage"_L1);
    m_ui.message->setTextFormat(Qt::PlainText);
    m_ui.message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_ui.logSwitch = new QToolButton(line);
    m_ui.logSwitch->setObjectName("vesperSwitch"_L1);
    m_ui.logSwitch->setText(tr("显示日志面板"));
    m_ui.logSwitch->setToolTip(tr("程序做了什么决定、为什么"));
    m_ui.logSwitch->setCheckable(true);
    m_ui.logSwitch->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_ui.logSwitch->setIcon(glyphIcon(Glyph::ChevronUp));
    // The sign stands behind the words.
    m_ui.logSwitch->setLayoutDirection(isRightToLeft() ? Qt::LeftToRight : Qt::RightToLeft);
    m_ui.logSwitch->setFocusPolicy(Qt::StrongFocus);
    row->addWidget(m_ui.message, 1);
    row->addWidget(m_ui.logSwitch);
    return line;
}

void PlayerGuiWindow::orderTabs()
{
    const LibraryPanel &library = *m_ui.library;
    QList<QWidget *> order = {library.search};
    for (QPushButton *chip : library.chips)
        order.append(chip);
    order.append({library.artist, library.album, m_ui.playlist, library.importFiles, library.importFolder,
                  library.removeRows, library.clearList, m_ui.refreshDevices, m_ui.device, m_ui.selfCheck,
                  m_ui.report, m_ui.progress->loopA, m_ui.progress->loopB});
    order.append(m_ui.dock->controls());
    order.append(m_ui.logSwitch);
    order.append(m_ui.title->brand);
    order.append(m_ui.title->windowButtons());
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order.at(i - 1), order.at(i));
}
