// The signal chain: its panel, its report, and the self-check.
#include "ui/window/player_gui_window.h"

#include "playback/chain_panel.h"
#include "playback/chain_report_text.h"
#include "playback/playlist_widget.h"
#include "playback/report_dialog.h"
#include "playback/self_check_dialog.h"
#include "ui/dock_bar.h"
#include "ui/stage.h"

#include <QFileDialog>
#include <QPushButton>
#include <QSaveFile>
#include <QSlider>
#include <QStandardPaths>
#include <QTime>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

/// An engine that does not answer leaves the button for another try.
constexpr int reportWaitMs = 3000;

/// What takes an engine's effects out of the way, in this order.
constexpr std::array pureEffectLines = {"fx eq off"_L1,     "fx reverb off"_L1,  "fx hrtf off"_L1,
                                        "fx tone off"_L1,   "fx denoise off"_L1, "fx plugins off"_L1,
                                        "fx balance 50"_L1, "fx width 100"_L1};

void raiseDialog(QDialog *dialog)
{
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}

} // namespace

void PlayerGuiWindow::beginTrackFacts(bool playedOn)
{
    const int before = m_lines.chain.track;
    beginChainTrack(m_lines.chain, playedOn);
    if (m_lines.chain.track != before)
        forgetTrackFacts();
}

void PlayerGuiWindow::forgetTrackFacts()
{
    m_signal.bits = {};
    m_signal.bitsToolTip.clear();
    m_signal.chain = {};
    m_signal.chainToolTip.clear();
    m_chain.cards = {};
    m_ui.stage->showAudioLine({});
    refreshChainPanel();
}

void PlayerGuiWindow::refreshChainPanel()
{
    if (!m_ui.chain)
        return;
    const QString text = chainLabelsText(currentChainLabels(m_lines.chain));
    m_ui.chain->showRows(buildChainRows(text));
    m_ui.chain->showCards(m_chain.cards);
    m_ui.chain->showVerdict(chainLampNow());
    // Its words follow the lamp.
    refreshSignalText();
}

ChainLampView PlayerGuiWindow::chainLampNow() const
{
    ChainLampFacts facts;
    facts.playing = m_start.uiPlaying;
    facts.labels = currentChainLabels(m_lines.chain);
    facts.chain = m_signal.chain;
    facts.chainLine = m_signal.chainToolTip;
    facts.checkPassed = m_chain.check.passedFor(m_lines.chain.track);
    return chainLamp(facts);
}

void PlayerGuiWindow::showChainBlock()
{
    // Its lines stand in the log one by one already.
    m_signal.chainReport = std::exchange(m_lines.chain.chainBuffer, {});
    if (m_chain.reportDialog && m_chain.reportDialog->isVisible())
        m_chain.reportDialog->append(m_signal.chainReport);
    offerReport(true);
}

void PlayerGuiWindow::offerReport(bool on)
{
    const bool focused = focusWidget() == m_ui.report;
    m_ui.report->setEnabled(on);
    // A disabled button hands its focus on to its neighbour, where the next key would do something else.
    if (focused && !on)
        m_chain.focusFromReport = focusWidget();
    else if (on && std::exchange(m_chain.focusFromReport, nullptr) == focusWidget() && focusWidget())
        m_ui.report->setFocus(Qt::TabFocusReason);
}

void PlayerGuiWindow::openChainReport()
{
    if (!m_chain.reportDialog) {
        m_chain.reportDialog = new ReportDialog(this);
        connect(m_chain.reportDialog, &ReportDialog::saveRequested, this, &PlayerGuiWindow::saveChainReport);
        connect(m_chain.reportDialog, &ReportDialog::refreshRequested, this,
                &PlayerGuiWindow::openChainReport);
    }
    raiseDialog(m_chain.reportDialog);
    if (!sessionRuns()) {
        logLine(tr("信号链报告：没有播放会话，只显示上一次的报告。"));
        if (m_chain.reportDialog->lines().isEmpty())
            m_chain.reportDialog->append(m_signal.chainReport);
        return;
    }
    offerReport(false);
    QTimer::singleShot(reportWaitMs, this, [this] { offerReport(true); });
    sendCmd(u"report"_s);
}

void PlayerGuiWindow::saveChainReport()
{
    QStringList lines = m_chain.reportDialog ? m_chain.reportDialog->lines() : QStringList();
    if (lines.isEmpty())
        lines = m_signal.chainReport;
    lines += m_chain.check.lines;
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString path = m_options.askSavePath(this, tr("保存信号链报告"),
                                               chainReportPath(folder, QDateTime::currentDateTime()));
    if (path.isEmpty())
        return;
    QSaveFile file(path);
    const QByteArray bytes = chainReportBytes(lines);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        logLine(tr("信号链报告已保存：%1").arg(path));
    else
        logLine(tr("保存信号链报告失败：%1").arg(path), true);
}

void PlayerGuiWindow::startBitPerfectCheck()
{
    if (!sessionRuns()) {
        logLine(tr("位完美自检：没有播放会话 —— 请先开始播放（没有音频流就无从判断）"));
        return;
    }
    if (!m_chain.verifyDialog) {
        m_chain.verifyDialog = new SelfCheckDialog(this);
        m_chain.verifyList = m_chain.verifyDialog->list();
        colourSelfCheck();
        connect(m_chain.verifyDialog, &QDialog::finished, this,
                [this] { m_chain.check.verifyActive = false; });
        connect(m_chain.verifyDialog, &SelfCheckDialog::saveRequested, this,
                &PlayerGuiWindow::saveChainReport);
    }
    m_chain.check = {};
    m_chain.check.verifyActive = true;
    m_chain.check.track = m_lines.chain.track;
    const QString title = m_ui.playlist->entryAt(m_start.playingRow).text;
    m_chain.verifyDialog->begin(
        QStringList{title, m_ui.device->currentText(), QTime::currentTime().toString(u"HH:mm:ss"_s)}.join(
            u" · "_s));
    raiseDialog(m_chain.verifyDialog);
    sendCmd(u"verify"_s);
    logLine(tr("位完美自检：已请引擎逐项检查"));
    refreshChainPanel();
}

void PlayerGuiWindow::onVerifyLine(const QString &text)
{
    SelfCheckState &check = m_chain.check;
    const std::optional<VerifyLine> line = parseVerifyLine(text);
    if (!check.verifyActive || !line || check.lines.size() >= mostVerifyLines)
        return;
    check.lines.append(text);
    logFileOnly(text);
    if (line->item) {
        check.items.append(*line->item);
        m_chain.verifyDialog->addItem(*line->item, check.items);
        return;
    }
    check.verdict = line->verdict;
    check.verifyGotVerdict = true;
    m_chain.verifyDialog->showVerdict(*check.verdict, check.items);
    logLine(tr("位完美自检的结论：%1").arg(check.verdict->line));
    if (const QString sentence = firstBreakSentence(check.items); !sentence.isEmpty())
        logLine(sentence);
    refreshChainPanel();
}

void PlayerGuiWindow::restorePureDefaults()
{
    resetEffects();
    for (const QLatin1StringView line : pureEffectLines)
        sendCmd(line);
    setSpeed(1.0);
    EngineChoices choices = m_choices;
    choices.crossfadeSec = 0.;
    choices.replayGainMode = 0;
    applyChoices(choices);
    m_ui.dock->volume->setValue(100);
    choices.channelCount = EngineChoices().channelCount;
    applyChoices(choices);
    showChoices();
    setThemeIndex(0);
    startBitPerfectCheck();
    logLine(
        tr("已恢复纯净默认（效果全关 / 1.0x / 无交叉淡化 / 音量 100 / 布局与主题复位），并已开始位完美自检"));
}
