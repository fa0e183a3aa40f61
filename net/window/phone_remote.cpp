// The phone remote: a browser on the same network drives the player.
#include "ui/window/player_gui_window.h"

#include "app/settings_store.h"
#include "net/remote_addresses.h"
#include "net/remote_controls.h"
#include "net/remote_listener.h"
#include "platform/settings_table.h"
#include "playback/playlist_roles.h"
#include "playback/playlist_widget.h"
#include "ui/dock_bar.h"

#include <QFileInfo>
#include <QSpinBox>

namespace {

/// A number that is no port stands for the usual one.
quint16 remotePortFrom(int stored)
{
    constexpr int mostPort = 65535;
    return static_cast<quint16>(stored >= 1 && stored <= mostPort ? stored
                                                                  : settings::remotePort.fallback.value());
}

} // namespace

void PlayerGuiWindow::restoreRemote()
{
    m_remote.remotePort = remotePortFrom(readUserSetting(settings::remotePort));
    setRemoteEnabled(readUserSetting(settings::remoteOn));
}

void PlayerGuiWindow::switchRemote(bool on)
{
    m_remote.remotePort = static_cast<quint16>(m_ui.remote->port->value());
    writeUserSetting(settings::remotePort, m_remote.remotePort);
    writeUserSetting(settings::remoteOn, on);
    setRemoteEnabled(on);
    // What was refused just now is not tried again at the next start.
    if (on && !m_remote.remoteEnabled)
        writeUserSetting(settings::remoteOn, false);
}

void PlayerGuiWindow::showRemote()
{
    if (!m_ui.remote)
        return;
    m_ui.remote->showPort(m_remote.remotePort);
    m_ui.remote->showSwitch(m_remote.remoteEnabled);
    if (m_remote.remoteEnabled)
        showRemoteAddresses();
    else
        m_ui.remote->showOff();
}

void PlayerGuiWindow::showRemoteAddresses()
{
    if (m_remote.remoteEnabled)
        m_ui.remote->showListening(remoteAddresses());
}

void PlayerGuiWindow::setRemoteEnabled(bool on)
{
    if (on && !offlineAllows(tr("手机遥控(监听端口)")))
        on = false;
    else if (on)
        on = startRemote();
    if (!on && m_remote.remoteServer) {
        const bool listened = m_remote.remoteServer->isListening();
        m_remote.remoteServer->close();
        // Later: a request of this very server may have led here.
        m_remote.remoteServer->deleteLater();
        m_remote.remoteServer = nullptr;
        if (listened)
            logLine(tr("手机遥控：已关闭（端口不再监听）"));
    }
    m_remote.remoteEnabled = on;
    showRemote();
}

bool PlayerGuiWindow::startRemote()
{
    QString error;
    if (!m_remote.remoteServer) {
        const RemoteHost host{
            [this] { return remoteState(); },
            [this](int limit) { return remoteLibrary(limit); },
            [this](const RemoteCommand &command) { runRemoteCommand(command); },
            [this](const std::string &path) {
                logLine(tr("手机遥控：拒绝了一个令牌不对的请求（%1）").arg(QString::fromStdString(path)));
            },
        };
        m_remote.remoteServer = m_options.makeRemote(host, this, error);
    }
    RemoteListener *const server = m_remote.remoteServer;
    if (!server || !server->listen(m_remote.remotePort)) {
        logLine(tr("手机遥控：无法监听端口 %1（%2）")
                    .arg(m_remote.remotePort)
                    .arg(server ? server->errorText() : error),
                true);
        return false;
    }
    logLine(tr("手机遥控：已打开，端口 %1，令牌 %2").arg(m_remote.remotePort).arg(server->token()));
    for (const QString &url : remoteAddresses())
        logLine(tr("手机遥控地址：%1").arg(url));
    return true;
}

QStringList PlayerGuiWindow::remoteAddresses() const
{
    if (!m_remote.remoteServer)
        return {};
    return remoteUrls(m_remote.remoteServer->addresses(), m_remote.remotePort, remoteToken());
}

QString PlayerGuiWindow::remoteToken() const
{
    return m_remote.remoteServer ? m_remote.remoteServer->token() : QString();
}

RemoteTags PlayerGuiWindow::remoteTags(const QString &path) const
{
    // A request reads no file: what has been shown once is known.
    const TagSummary *summary = m_tagSummaries.kept(path);
    if (!summary)
        return {};
    // Where a file names no artist its folder groups it; a phone has no use for a folder.
    const bool isFolder = summary->artist == QFileInfo(path).absolutePath();
    return {summary->title, isFolder ? QString() : summary->artist, summary->album};
}

RemoteState PlayerGuiWindow::remoteState() const
{
    RemoteState state;
    // An idle session at the end of the list holds the device and plays nothing.
    state.playing = sessionRuns() && m_start.uiPlaying;
    state.paused = state.playing && m_start.paused;
    state.volume = m_ui.dock->volume->value();
    state.muted = state.volume == 0;
    state.total = m_ui.playlist->count();
    const int row = sessionRuns() ? m_start.playingRow : m_ui.playlist->currentRow();
    // pos and dur stay at 0.00. Kept: clients show a time only above 0, and one that moves at each poll alone
    // would look like music that stutters.
    if (!m_ui.playlist->hasRow(row))
        return state;
    state.track = row;
    const PlaylistEntry entry = m_ui.playlist->entryAt(row);
    const RemoteTags tags = remoteTags(entry.path);
    state.title = (tags.title.isEmpty() ? entry.text : tags.title).toStdString();
    state.artist = tags.artist.toStdString();
    state.album = tags.album.toStdString();
    state.format = QFileInfo(entry.path).suffix().toUpper().toStdString();
    return state;
}

RemoteLibrary PlayerGuiWindow::remoteLibrary(int limit) const
{
    RemoteLibrary library;
    library.total = m_ui.playlist->count();
    const int playing = sessionRuns() ? m_start.playingRow : -1;
    for (int row = 0; row < library.total && std::ssize(library.items) < limit; ++row) {
        const QListWidgetItem &item = *m_ui.playlist->item(row);
        if (item.isHidden())
            continue;
        const RemoteTags tags = remoteTags(item.data(playlist_role::path).toString());
        library.items.push_back({item.text().toStdString(), tags.artist.toStdString(), row == playing});
    }
    return library;
}

void PlayerGuiWindow::runRemoteCommand(const RemoteCommand &command)
{
    const bool playing = sessionRuns() && m_start.uiPlaying;
    if (remoteActionToggles(command.action, playing, m_start.paused)) {
        togglePause();
        return;
    }
    switch (command.action) {
    case RemoteAction::Stop:
        stopPlayback();
        break;
    case RemoteAction::Next:
        stepRow(1);
        break;
    case RemoteAction::Prev:
        stepRow(-1);
        break;
    case RemoteAction::Vol:
        m_ui.dock->volume->setValue(command.value);
        saveParams();
        break;
    case RemoteAction::PlayAt:
        jumpToRow(command.value);
        break;
    default:
        break;
    }
}
