/// \file
/// A real window on no display, with private settings and a session that plays nothing.
#pragma once

#include "fake_session.h"
#include "output/engine_controls.h"
#include "playback/playlist_widget.h"
#include "ui/window/player_gui_window.h"

#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

/// The tests' view of the window's private state.
struct WindowInspector
{
    static EngineLinkState &link(PlayerGuiWindow &window) { return window.m_link; }
    static TrackStartState &start(PlayerGuiWindow &window) { return window.m_start; }
    static TransportState &transport(PlayerGuiWindow &window) { return window.m_transport; }
    static bool volumeTouched(PlayerGuiWindow &window) { return window.m_volumeTouched; }
    static PreloadState &preload(PlayerGuiWindow &window) { return window.m_preload; }
    static TrackProgressState &progress(PlayerGuiWindow &window) { return window.m_progress; }
    static LogState &log(PlayerGuiWindow &window) { return window.m_log; }
    static EngineLineState &lines(PlayerGuiWindow &window) { return window.m_lines; }
    static InstrumentState &instruments(PlayerGuiWindow &window) { return window.m_instruments; }
    static SignalState &signal(PlayerGuiWindow &window) { return window.m_signal; }
    static ChainViewState &chain(PlayerGuiWindow &window) { return window.m_chain; }
    static CoverState &cover(PlayerGuiWindow &window) { return window.m_cover; }
    static DeviceState &devices(PlayerGuiWindow &window) { return window.m_devices; }
    static TagSummaryCache &tags(PlayerGuiWindow &window) { return window.m_tagSummaries; }
    static PhoneRemoteState &remote(PlayerGuiWindow &window) { return window.m_remote; }
};

class WindowTest : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    void makeWindow();
    /// Runs what is queued, until nothing is left.
    void settle();
    /// What the log file has got since the last call.
    QString takeLog();
    bool logHas(const QString &text);

    /// Files that exist, named a.wav, b.wav …, appended to the list.
    void addFiles(int count);
    QString fileAt(int row) const { return m_window->widgets().playlist->entryAt(row).path; }

    QTemporaryDir m_root;
    FakeEngine m_engine;
    QString m_deviceList;
    /// The engine's answer to everything but the device listing at the window's start; empty: the real probe.
    std::function<PlayerProbeResult(const QStringList &args)> m_probe = [](const QStringList &) {
        return PlayerProbeResult{};
    };
    bool m_asksBeforeClosing = false;
    TransportTimes m_times;
    WindowOptions::MakeSession m_makeSession; ///< empty: a fake one
    WindowOptions::MakeRemote m_makeRemote;   ///< empty: out of the program's library
    QString m_savePath;                       ///< the answer to every question for a file to be written
    QStringList m_saveAsked;                  ///< title and proposal of each
    std::unique_ptr<PlayerGuiWindow> m_window;
    QString m_log;
};
