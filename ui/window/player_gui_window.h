/// \file
/// The main window: the one object that every subsystem meets in.
#pragma once

#include "app/log_state.h"
#include "engine/command_line.h"
#include "engine/engine_line_state.h"
#include "engine/link_state.h"
#include "engine/progress_display.h"
#include "output/device_state.h"
#include "playback/playback_state.h"
#include "playback/playlist_state.h"
#include "ui/instrument_state.h"
#include "ui/window/window_options.h"
#include "ui/window/window_widgets.h"

#include <QMainWindow>
#include <exception>

class HistoryStore;
class QMenu;
class QSettings;
struct AddOperation;
struct SessionEndVerdict;

/// Owns the widgets, the one current session and the timers. Its methods stand in files by topic, in the
/// folder `window` of the subsystem that the topic belongs to; each gathers facts, asks that subsystem's
/// logic what to do, and does it. GUI thread, except lineMailbox() and what it says of itself.
class PlayerGuiWindow final : public QMainWindow
{
    Q_OBJECT

public:
    explicit PlayerGuiWindow(const WindowOptions &options = {}, QWidget *parent = nullptr);
    ~PlayerGuiWindow() override;

    // ── log (app/window) ──
    void logLine(const QString &text, bool isError = false);
    /// For what is worth keeping and not worth showing.
    void logFileOnly(const QString &text);
    /// Names what the GUI thread is doing; an empty text clears the name. The former name comes back.
    QString markStage(const QString &label);
    /// Called in a catch block with the exception, or null for one of a foreign type.
    void crashGuard(const QString &functionName, const std::exception *exception);

    // ── settings (app/window) ──
    void loadParams();
    void saveParams();
    void restoreCombo(QSettings &store, QLatin1StringView key, QComboBox *combo);
    void restoreComboText(const QString &stored, QComboBox *combo);
    void saveCombo(QSettings &store, QLatin1StringView key, const QComboBox *combo);

    // ── the link to the engine (engine/window) ──
    void locateEngine();
    bool isInProcessPreferred() const;
    /// Puts a fresh session in the place of the present one.
    void ensureSession();
    void checkControlClosure();
    bool sendCmd(const QString &line);
    bool sessionRuns() const;
    void onEngineLine(const QString &line, bool isStderr);
    /// Runs a probe beside the GUI thread; its log lines and its answer come back here.
    void askEngine(const QStringList &args, int timeoutMs, ProbeWorker::Deliver deliver);
    /// Tempo and key of the current row, told in a message box. Nothing is written to the file.
    void analyzeTrack();

    // ── playback (playback/window) ──
    void startPlayback(int row = -1);
    void playCurrent();
    void stopPlayback();
    void killProc(bool quiet);
    void togglePause();
    bool moveRow(int from, int to);
    void stepRow(int delta);
    /// Appends one plain file, listed already or not; the row's number.
    int appendFile(const QString &path);
    /// Appends what is new of files and folders; a sheet or an image is spread into its tracks when the
    /// engine has listed them. \param done called once, when everything is in the list; may be empty
    void addPaths(const QStringList &paths, const std::function<void()> &done = {});
    /// \param path a sheet or an image, absolute
    /// \param done gets the number of rows that were appended, 0 after a failure; may be empty
    void expandContainerAsync(const QString &path, const std::function<void(int count)> &done);
    void removeSelectedRows();
    void clearPlaylist();
    /// Moves the selected rows to the top or to the bottom, in the order in which they stand.
    void moveSelectedRows(bool toTop);
    void undoPlaylist();
    void redoPlaylist();
    void savePlaylist();
    void restorePlaylist();
    /// Asks for files or for a folder to add.
    void chooseFiles();
    void chooseFolder();

    // ── devices (output/window) ──
    void populateDevices();
    void populateDevicesBlocking();
    QString currentDeviceName() const;

    // ── named places that later subsystems fill ──
    void startUpdateCheck(bool manual);
    void applyLibraryFilter();
    void runRigReport();

    // ── what hooks and the self-check ask ──
    bool trackAnnounced() const { return m_lines.sourceInfo.has_value(); }
    const TrackStartState &trackStart() const { return m_start; }
    const WindowWidgets &widgets() const { return m_ui; }
    /// Rows that could not be restored.
    int skippedAtRestore() const { return m_start.skippedAtRestore; }
    int lastPlayedRow() const;
    /// Called once, when the window has been shown.
    void noteShown();

public Q_SLOTS:
    void debugAutoplay(const QString &path, const QString &device);
    void debugNext();
    void debugStop();
    void jumpToRow(int row);
    /// What has to be settled when the application is about to quit.
    void shutdown();

protected:
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    friend struct LineActions;     // what is done about each effect of a line
    friend struct WindowInspector; // the tests' view of the state below

    // ── ui/window ──
    void buildLayout();
    QWidget *buildTitleLine();
    QWidget *buildPlaylistPanel();
    QWidget *buildCentre();
    QWidget *buildDevicePanel();
    QWidget *buildStatusLine();
    void orderTabs();
    void connectControls();
    void showMessage(const QString &text);
    bool confirmClose();

    // ── app/window ──
    void flushLog();
    void reportStartupMetrics();

    // ── engine/window ──
    void installSinks();
    void startSessionTimers();
    void addStallReporter();
    SessionOptions sessionOptions();
    EngineArgsInput engineArgsInput() const;
    void tellNotices(const QList<EngineArgsNotice> &notices);
    void prepareSessionLog();
    void startNoAudioTimer();
    void drainMailbox();
    // What is measured is shown when it is heard.
    void buildInstrumentTimers();
    void receiveLevels(const LevelLine &levels, double delayMs);
    void receiveSpectrum(const SpectrumFrame &frame, double delayMs);
    void releaseLevels();
    void releaseSpectra();
    void clearDelayedTelemetry();
    void showLevels(const LevelLine &levels);
    void refreshLevelText();
    void showSpectrum(const SpectrumFrame &frame);
    void refreshSignalText();

    // ── playback/window ──
    void playCurrentUnguarded();
    void logElapsed(const QString &stage, qint64 elapsedMs);
    bool skipMissingFiles();
    bool findEngine();
    void closeForRebuild();
    bool startSession(const struct TrackStartPlan &plan, const QStringList &args, const SessionShape &wanted);
    void logStart(const struct TrackStartPlan &plan, const PlaylistEntry &entry, const QStringList &args);
    void sendLoadLine(const struct TrackStartPlan &plan);
    void resendSessionDifferences();
    struct TrackStartFacts trackStartFacts(const PlaylistEntry &entry) const;
    SessionShape wantedShape() const;
    void setPlayingUi(bool on);
    void showTrackOf(int row);
    void refreshStartButton();
    void refreshNavButtons();
    void resetTrackState(double startSec);
    bool closeLeftoverSession();
    void setLastPlayed(const PlaylistEntry &entry);
    int baseRow() const;

    void onEngineDone(int exitCode, bool crashed, int startIndex);
    bool retryWithoutExclusive();
    void onDoneLine();
    void trackFinished();
    bool advanceRow();
    int peekNextRow() const;
    QString orderText() const;
    void noAudioWatchdog();
    void checkPreload();
    void autoAdvanceTaken();
    void onProgress(const ProgressLine &progress);
    void updateProgress(double percent, double positionSec, double totalSec);
    void saveResumePosition();
    void forgetResumePosition(const QString &path);
    void segmentChanged(int number);
    void commitPlayStat();

    void connectPlaylist();
    void addPlaylistActions();
    void fillPlaylistMenu(QMenu &menu);
    void showFilesOfSelection();
    void showRowProperties(int row);
    void showMessageFor(const QString &text, int forMs);
    void expandContainer(const QString &path, quint64 group, const std::function<void(int count)> &done);
    int addListedTracks(const QString &path, quint64 group, const PlayerProbeResult &result);
    void overlayRow(int row);
    void finishAdding(const AddOperation &adding);
    void recordChange(PlaylistChange change);
    bool applyChange(const PlaylistChange &change, QList<PlaylistEntry> &removed);
    void changeApplied(const QString &report);
    void forgetHistory();
    void loadHistory(const QStringList &savedRows);
    /// Waits until the history of the last run is there.
    void settleHistory();
    void noteDragKey();
    void orderChanged();
    void followRows(const PlaylistChange &change);

    // ── output/window ──
    void beginDeviceListing();
    void applyDeviceList(const DeviceListing &listing);
    void selectDevice(QComboBox *combo, const QString &id);
    void applyDeviceProfile();
    bool effectsAudible() const;

    const WindowOptions m_options;
    WindowWidgets m_ui;
    LogState m_log;
    EngineLinkState m_link;
    EngineLineState m_lines;
    InstrumentState m_instruments;
    SignalState m_signal;
    TrackStartState m_start;
    PreloadState m_preload;
    TrackProgressState m_progress;
    DeviceState m_devices;
    PlaylistState m_list;
    HistoryStore *m_historyStore = nullptr; ///< a child of the window, made with the list's actions
    bool m_pcmFilterExplicit = false;       ///< the user has taken a decode filter by hand
    bool m_volumeTouched = false;           ///< the user has moved the volume since the program started
    bool m_closing = false;                 ///< killProc has run on the way out
};
