// Questions to the engine beside the session.
#include "ui/window/player_gui_window.h"

#include "engine/track_analysis.h"
#include "playback/playlist_widget.h"

#include <QFileInfo>
#include <QMessageBox>

using namespace Qt::StringLiterals;

void PlayerGuiWindow::askEngine(const QStringList &args, int timeoutMs, ProbeWorker::Deliver deliver)
{
    // The probe speaks on the worker, and is done speaking when its answer is delivered.
    auto said = std::make_shared<QList<LogEntry>>();
    m_link.probes->run(
        [probe = m_options.probe, playerBin = m_link.playerBin, args, timeoutMs, said] {
            return probe(playerBin, args, timeoutMs, [said](const QString &text, bool isError) {
                said->append({text, isError});
            });
        },
        this,
        [this, said, deliver = std::move(deliver)](const PlayerProbeResult &result) {
            for (const LogEntry &entry : *said)
                logLine(entry.text, entry.isError);
            deliver(result);
        });
}

void PlayerGuiWindow::analyzeTrack()
{
    if (m_analysisRuns)
        return;
    const int row = m_ui.playlist->currentRow();
    if (const QString refusal = analysisRefusal(row >= 0, sessionRuns()); !refusal.isEmpty()) {
        logLine(refusal, true);
        showMessage(refusal);
        return;
    }
    const QString path = m_ui.playlist->entryAt(row).path;
    m_analysisRuns = true;
    showMessage(tr("正在分析 %1 …").arg(QFileInfo(path).fileName()));
    askEngine({u"-analyze"_s, path}, analysisTimeoutMs, [this, path](const PlayerProbeResult &result) {
        m_analysisRuns = false;
        const TrackAnalysisReport report = analysisReport(result.rc, result.text, QFileInfo(path).fileName());
        logLine(report.logText, report.isError);
        showMessage(report.logText);
        if (report.boxText.isEmpty())
            return;
        // Opened and not executed: the window goes on while the answer is read.
        auto *box =
            new QMessageBox(QMessageBox::Information, report.boxTitle, report.boxText, QMessageBox::Ok, this);
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->open();
    });
}
