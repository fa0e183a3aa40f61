/// \file
/// A window with three tracks in its list and two devices to choose from.
#pragma once

#include "app/settings_store.h"
#include "platform/settings_table.h"
#include "playback/playlist_widget.h"
#include "window_fixture.h"

#include "tests/support/patience.h"

#include <QTest>

class PlaybackTest : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        m_deviceList = QStringLiteral("[default] One\n[2] Two");
        // Whatever waits for a time in these tests is not to wait long.
        m_times.stop = m_times.stopKill = m_times.noAudio = 20;
        m_times.sleepMinute = m_times.sleepFadeStep = 1;
    }
    /// A fresh window over the same settings.
    void open(int tracks = 3)
    {
        m_window.reset();
        makeWindow();
        // The list of the former window has come back.
        m_window->clearPlaylist();
        addFiles(tracks);
        takeLog();
    }
    TrackStartState &start() { return WindowInspector::start(*m_window); }
    TransportState &transport() { return WindowInspector::transport(*m_window); }
    TrackProgressState &progress() { return WindowInspector::progress(*m_window); }
    const WindowWidgets &ui() { return m_window->widgets(); }

    void say(const QString &line)
    {
        m_engine.current->say(line);
        settle();
    }
    void end(int code, bool crashed = false)
    {
        m_engine.current->endWith(code, crashed);
        settle();
    }
    /// A position in a track of 100 seconds.
    void at(double seconds) { say(QStringLiteral("PG %1 %1 100").arg(seconds)); }
    /// The control lines since the last call.
    QStringList takeLines()
    {
        const QStringList lines = m_engine.lines().replaceInStrings(QStringLiteral("write "), QString());
        const QStringList fresh = lines.mid(m_linesTaken);
        m_linesTaken = lines.size();
        return fresh;
    }
    /// Adds the tracks of a sheet of the first file behind what is listed.
    /// \return the last of them
    PlaylistEntry appendSheet(int tracks)
    {
        PlaylistEntry entry;
        entry.path = fileAt(0);
        entry.cuePath = m_root.filePath(QStringLiteral("a.cue"));
        for (entry.track = 1; entry.track <= tracks; ++entry.track)
            ui().playlist->appendEntry(entry);
        entry.track = tracks;
        return entry;
    }
    QString load(int row) const { return QStringLiteral("load ") + fileAt(row); }
    bool eventually(const std::function<bool()> &condition)
    {
        return QTest::qWaitFor(condition, kelp_test::patienceMs);
    }

private:
    qsizetype m_linesTaken = 0;
};

/// The same in both kinds of session; the parameter tells whether it is inside this process.
class BothKinds : public PlaybackTest, public testing::WithParamInterface<bool>
{
protected:
    void SetUp() override
    {
        PlaybackTest::SetUp();
        m_engine.inProcess = GetParam();
        open();
    }
};

inline std::string kindName(const testing::TestParamInfo<bool> &info)
{
    return info.param ? "InProcess" : "ChildProcess";
}
