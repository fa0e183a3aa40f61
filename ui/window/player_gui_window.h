/// \file
/// The main window: the one object that every subsystem meets in.
#pragma once

#include "app/log_state.h"
#include "engine/command_line.h"
#include "engine/engine_line_state.h"
#include "engine/link_state.h"
#include "engine/progress_display.h"
#include "net/phone_remote_state.h"
#include "output/device_state.h"
#include "output/engine_choices.h"
#include "playback/chain_view_state.h"
#include "playback/now_playing.h"
#include "playback/playback_state.h"
#include "playback/playlist_state.h"
#include "playback/transport_state.h"
#include "tags/tag_summary.h"
#include "ui/area_plan.h"
#include "ui/cover_state.h"
#include "ui/instrument_state.h"
#include "ui/window/window_options.h"
#include "ui/window/window_widgets.h"

#include <QMainWindow>
#include <exception>

class HistoryStore;
class QMenu;
class QVBoxLayout;
class ToolsMenu;
enum class Tool;
struct ComboItem;
class SystemScheme;
struct RemoteCommand;
struct RemoteLibrary;
struct RemoteState;
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
    /// Runs a top-level handler. What it throws ends it, is logged and goes no further: an exception in the
    /// event loop would end the program. \return whether it ran to its end
    template<class Handler>
    bool guarded(const QString &functionName, const Handler &handler)
    {
        try {
            handler();
            return true;
        } catch (const std::exception &exception) {
            crashGuard(functionName, &exception);
        } catch (...) {
            crashGuard(functionName, nullptr);
        }
        return false;
    }

    // ── settings (app/window) ──
    void loadParams();
    void saveParams();
    /// What was chosen for the engine.
    const EngineChoices &choices() const { return m_choices; }
    /// The controls of those choices, built at the first call.
    EngineControls &engineControls();
    RemoteControls &remoteControls();
    void openSetup();

    // ── the link to the engine (engine/window) ──
    void locateEngine();
    bool isInProcessPreferred() const;
    /// Puts a fresh session in the place of the present one.
    void ensureSession();
    /// A session that has ended makes room where the next start wants one of the other kind.
    void dropSessionOfOtherKind();
    void checkControlClosure();
    /// The one door for control lines, also of the worker that sends the effects'.
    /// \return whether a session took the line
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
    /// 0 sequential, 1 random.
    void setOrderAxis(int axis);
    /// 0 none, 1 list, 2 track.
    void setRepeatAxis(int axis);
    void cycleOrder();
    void cycleRepeat();
    /// Marks an end of the A/B loop where the track is now; the second mark starts the loop.
    void markA();
    void markB();
    void clearAbLoop();
    /// \param ratio clamped to 0.5 … 3
    /// \param quiet without a line in the log
    void setSpeed(double ratio, bool quiet = false);
    /// \param minutes 0 switches it off
    void setSleepTimer(int minutes);
    /// Tells the controls of order, loop, speed and sleep what to show, by the signals below.
    void showPlayModes();
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

    // ── the window's shape (ui/window) ──
    /// The right column's width, kept in its limits and remembered.
    void setSideWidth(int width, bool log);
    void resetLayout();
    /// Shows the row that plays, or the chosen one, in the middle of the list.
    void showPlayingRow();
    /// Builds the panel from what the engine has told of the present track.
    void refreshChainPanel();
    void showChainBlock();
    /// Opens the report dialog and asks the engine for a report.
    void openChainReport();
    /// Lets the report be asked for, or not while one is on its way.
    void offerReport(bool on);
    void saveChainReport();
    void startBitPerfectCheck();
    void onVerifyLine(const QString &text);
    /// Everything that could touch the samples off, then a self-check.
    void restorePureDefaults();

    // ── devices (output/window) ──
    void populateDevices();
    void populateDevicesBlocking();
    QString currentDeviceName() const;

    // ── the look (ui/window) ──
    /// Palette and sheet in the colours of theme.h, which have been settled before.
    void applyTheme();
    /// Settles the look anew from the settings, shows it and logs which one it is.
    void changeTheme();
    /// The accent of a cover, where the listener wants that; the chosen one without a cover.
    void useCoverAccent(const QPixmap &cover);
    /// The accent of the settings.
    void loadUserAccent();
    // ── the network (net/window) ──
    /// The one test at the door of everything that talks to a network: false, with a line in the log that
    /// names what was refused, while offline mode is on.
    bool offlineAllows(const QString &label);
    /// Puts the stored switch and port of the phone remote into force.
    void restoreRemote();
    /// Starts the phone remote on its port with a token made anew, or ends it. Refused in offline mode.
    void setRemoteEnabled(bool on);
    /// What a phone opens: a URL for each address of this machine, none while the remote is off.
    QStringList remoteAddresses() const;
    /// What a phone has to bring; empty while the remote is off.
    QString remoteToken() const;

    // ── named places that later subsystems fill ──
    void startUpdateCheck(bool manual);
    void applyLibraryFilter();
    void runRigReport();
    void resetEffects();
    void setThemeIndex(int index);

    // ── what hooks and the self-check ask ──
    bool trackAnnounced() const { return m_lines.sourceInfo.has_value(); }
    const TrackStartState &trackStart() const { return m_start; }
    const WindowWidgets &widgets() const { return m_ui; }
    /// Rows that could not be restored.
    int skippedAtRestore() const { return m_start.skippedAtRestore; }
    int lastPlayedRow() const;
    /// Called once, when the window has been shown.
    void noteShown();

    // ── the cover (ui/window) ──
    /// Looks for the present track's cover beside the GUI thread, and shows it or none.
    void refreshCover();
    /// The place where covers arrive; a null image for none.
    void showCover(const QImage &image);
Q_SIGNALS:
    /// What the controls of the play modes are to show. No control may answer with a change of its own.
    void playOrderShown(int orderAxis, int repeatAxis, const QString &text);
    /// Seconds, below 0 for an end that is not marked.
    void abLoopShown(double pointA, double pointB);
    void speedShown(double ratio);
    void sleepTimerShown(int minutes, const QString &text);

public Q_SLOTS:
    void debugAutoplay(const QString &path, const QString &device);
    void debugNext();
    void debugStop();
    void jumpToRow(int row);
    /// Ends the program as closing the window does, without a question: the desktop session or a terminal
    /// ends. whose: who wants it, for the log.
    void endOnDemand(const QString &whose);
    /// What has to be settled when the application is about to quit.
    void shutdown();

protected:
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    friend struct LineActions;     // what is done about each effect of a line
    friend struct WindowInspector; // the tests' view of the state below

    // ── ui/window ──
    void buildLayout();
    QWidget *buildCentre();
    QWidget *buildSide();
    QWidget *buildStatusLine();
    void orderTabs();
    void connectControls();
    void connectTransport();
    void connectList();
    void buildShortcuts();
    void pressOrToggle();
    void applyAreaPlan();
    void restorePlace();
    void tellSideWidthClamped(int wanted);
    void openLog(bool open);
    void buildSetup();
    void showRemote();
    void connectLook();
    void showLook();
    void applyLook(const struct LookChoices &look);
    /// Tells a running session, and empties the views of what is switched off.
    void changeVizMode(int former, int wanted);
    void openTools();
    void useTool(Tool tool);
    void clearLog();
    void showHelp();
    void toggleMute();
    void turnVolume(int steps); ///< of keys and wheel
    void showMessage(const QString &text);
    /// \param barValue 0 to progressBarMaximum
    void showPlace(int barValue);
    void showIdle();
    void loadTheme();
    void colourSelfCheck(); ///< where it has been opened
    bool wantsLightTheme();
    void showLevelReadings();
    void releaseClip();
    void showSpectrumFrame();
    void showScopeFrame();
    void clearInstruments();
    void tellWhyScopeIsEmpty();
    bool confirmClose();
    bool trayActive() const;
    /// A line with the window's place, for whoever looks into it with KELP_GUI_GEO.
    void logGeometry(const QString &when);

    // ── app/window ──
    void flushLog();
    void reportStartupMetrics();
    int restoredItem(const QString &stored, const QList<ComboItem> &items);
    /// Finds the stored text among a combo's items and takes its code; keeps the code where none matches.
    void restoreCombo(const QString &stored, const QList<ChoiceItem> &choices, QString &code);
    void applyChoices(const EngineChoices &choices);
    void showChoices(); ///< in their controls, where these have been built
    void showPcmFilter(const QString &name, bool automatic);

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
    void stopSession();
    void logElapsed(const QString &stage, qint64 elapsedMs);
    /// A start came to nothing.
    void leaveUnstarted();
    bool skipMissingFiles();
    bool canBeNamed(const PlaylistEntry &entry) const;
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
    /// Of the row, or with -1 of the one that the buttons for the next and previous track go out from; of
    /// that only what is known without a look into its file.
    void refreshNowPlaying(int row = -1);
    void showNowPlaying(const NowPlayingLabels &labels);
    void refreshStartButton();
    void refreshNavButtons();
    void resetTrackState(double startSec);
    bool closeLeftoverSession();
    void noteStarted(const PlaylistEntry &entry);
    void saveLastPlayedSoon();
    void saveLastPlayed();
    /// Where the track that was started stands now, -1 when it has left the list.
    int startedRow() const;
    int baseRow() const;

    void onEngineDone(int exitCode, bool crashed, int startIndex);
    void retryWithoutExclusive();
    void onDoneLine(const QString &file);
    void onFailedLine(const QString &line);
    void trackFinished();
    bool advanceRow();
    int peekNextRow() const;
    QString orderText() const;
    void tellPlayOrder();
    void showPlayOrder();
    RepeatAxis chosenRepeat() const;
    void markAbPoint(double AbLoopState::*point, const QString &name);
    void setAbLoop();
    void dropAbLoop();
    void discardAbLoopOfOtherTrack();
    void applyAbLoop();
    void showAbLoop();
    void showSleepTimer();
    void sleepExpired();
    void sleepFadeStep();
    void endSleepFade();
    void noAudioWatchdog();
    void checkPreload();
    void autoAdvanceTaken();
    void onProgress(const ProgressLine &progress);
    void updateProgress(double percent, double positionSec, double totalSec);
    void saveResumePosition();
    void saveResumePositionNow(double leastSec);
    void forgetResumePosition(const QString &path);
    void closeFinishedTrack();
    void segmentChanged(int number);
    void commitPlayStat();

    /// What the engine tells belongs to a track: another one begins.
    /// \param playedOn the engine went on by itself and may have told of it already
    void beginTrackFacts(bool playedOn);
    /// The worst of what is known of the present track's chain.
    struct ChainLampView chainLampNow() const;
    /// Shows all that belongs to a track as not known.
    void forgetTrackFacts();

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
    /// A row that had gone and is in the list again is what plays.
    void refindCurrentRow();

    // ── output/window ──
    void beginDeviceListing();
    void applyDeviceList(const DeviceListing &listing);
    void fillDeviceCombo(QComboBox *combo, const QString &chosen);
    void fillChannelDevices();
    void selectDevice(QComboBox *combo, const QString &id);
    void applyDeviceProfile();
    bool effectsAudible() const;

    // ── net/window ──
    void switchRemote(bool on);
    /// As they are now, while the phone remote listens.
    void showRemoteAddresses();
    bool startRemote();
    /// What is known of the file without reading it: /library asks for a thousand at once.
    RemoteTags remoteTags(const QString &path) const;
    RemoteState remoteState() const;
    RemoteLibrary remoteLibrary(int limit) const;
    void runRemoteCommand(const RemoteCommand &command);

    const WindowOptions m_options;
    WindowWidgets m_ui;
    LogState m_log;
    EngineLinkState m_link;
    EngineLineState m_lines;
    InstrumentState m_instruments;
    SignalState m_signal;
    SystemScheme *m_systemScheme = nullptr; ///< child of the window; made when it is followed first
    ChainViewState m_chain;
    CoverState m_cover;
    TrackStartState m_start;
    TransportState m_transport;
    PreloadState m_preload;
    TrackProgressState m_progress;
    TagSummaryCache m_tagSummaries;
    DeviceState m_devices;
    EngineChoices m_choices;
    PhoneRemoteState m_remote;
    /// What stands open above the window.
    enum class ToolPanel
    {
        Closed = 0,
        Menu = 2
    };
    ToolPanel m_toolPanel = ToolPanel::Closed;
    ToolsMenu *m_toolsMenu = nullptr;  ///< null until it is first opened
    QVBoxLayout *m_logPlace = nullptr; ///< where the log pane opens
    std::optional<AreaPlan> m_areaPlan;
    int m_sideWidth = 240; ///< of the right column, within its limits
    int m_volumeBeforeMute = 100;
    bool m_analysisRuns = false;
    bool m_volumeTouched = false; ///< the user has moved the volume since the program started
    bool m_closing = false;       ///< killProc has run on the way out
    bool m_endDemanded = false;   ///< the system wants the program to end: no question, no tray
    PlaylistState m_list;
    HistoryStore *m_historyStore = nullptr; ///< a child of the window, made with the list's actions
};
