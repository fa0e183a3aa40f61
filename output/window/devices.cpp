// The device combos and what is known of their devices.
#include "ui/window/player_gui_window.h"

#include "app/settings_store.h"
#include "output/engine_controls.h"
#include "platform/head_start.h"
#include "platform/settings_table.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int probeLimitMs = 5000;

DeviceListing listDevices(const WindowOptions::Probe &probe, const QString &playerBin)
{
    DeviceListing listing;
    listing.result = probe(playerBin, {u"-list"_s}, probeLimitMs, [&](const QString &text, bool isError) {
        listing.logLines.append({text, isError});
    });
    return listing;
}

} // namespace

void PlayerGuiWindow::beginDeviceListing()
{
    locateEngine();
    m_devices.firstListing =
        besideTheStart(WorkRank::Last, [probe = m_options.probe, playerBin = m_link.playerBin] {
            return listDevices(probe, playerBin);
        });
}

void PlayerGuiWindow::populateDevicesBlocking()
{
    if (!m_devices.firstListing.valid())
        beginDeviceListing();
    applyDeviceList(m_devices.firstListing.get());
}

void PlayerGuiWindow::populateDevices()
{
    if (sessionRuns()) {
        logLine(u"[gui] 播放中: 暂不重新探测设备 (碰端点会有轻微爆音), 停止播放后再刷新"_s);
        return;
    }
    if (std::exchange(m_devices.refreshPending, true))
        return;
    locateEngine();
    askEngine({u"-list"_s}, probeLimitMs, [this](const PlayerProbeResult &result) {
        m_devices.refreshPending = false;
        applyDeviceList({result, {}});
    });
}

void PlayerGuiWindow::applyDeviceList(const DeviceListing &listing)
{
    for (const auto &[text, isError] : listing.logLines)
        logLine(text, isError);
    m_devices.populatingDevices = true;
    const bool first = m_ui.device->count() == 0;
    if (listing.result.rc >= 0 || first) {
        m_devices.listed =
            listing.result.rc < 0 ? QList<ListedDevice>() : parseDeviceList(listing.result.text);
        fillDeviceCombo(m_ui.device, m_ui.device->currentData().toString());
        QStringList noted;
        for (const ListedDevice &device : std::as_const(m_devices.listed))
            noted.append((device.isDefault ? u"* "_s : QString()) + device.label);
        if (!noted.isEmpty())
            logLine(tr("设备列表 (-list): %1").arg(noted.join(u" | "_s)));
    }
    if (!std::exchange(m_devices.devicesRestored, true)) {
        QStringList stored = readUserSetting(settings::devices);
        if (!stored.isEmpty())
            selectDevice(m_ui.device, stored.takeFirst());
        m_choices.channelDevices = stored;
        m_choices = withinRanges(m_choices);
    }
    fillChannelDevices();
    m_devices.populatingDevices = false;
}

void PlayerGuiWindow::fillDeviceCombo(QComboBox *combo, const QString &chosen)
{
    combo->clear();
    combo->addItem(tr("(系统默认)"), QString());
    for (const ListedDevice &device : std::as_const(m_devices.listed)) {
        const bool marked = device.isDefault && combo == m_ui.device;
        combo->addItem(marked ? tr("%1  (默认)").arg(device.label) : device.label, device.id);
    }
    selectDevice(combo, chosen);
}

void PlayerGuiWindow::fillChannelDevices()
{
    if (!m_ui.engine)
        return;
    const QList<QComboBox *> &combos = m_ui.engine->channelDevices;
    for (qsizetype channel = 0; channel < combos.size(); ++channel) {
        // The listing is no choice of the listener's.
        const QSignalBlocker quiet(combos.at(channel));
        fillDeviceCombo(combos.at(channel), m_choices.channelDevices.value(channel));
    }
}

void PlayerGuiWindow::selectDevice(QComboBox *combo, const QString &id)
{
    if (id.isEmpty())
        return;
    int row = combo->findData(id);
    if (row < 0) {
        // A device that is not connected stays the listener's choice.
        combo->addItem(tr("%1  (未连接 —— 请插上后点“刷新设备”)").arg(id), id);
        row = combo->count() - 1;
    }
    combo->setCurrentIndex(row);
}

QString PlayerGuiWindow::currentDeviceName() const
{
    for (const QString &id : QStringList{m_ui.device->currentData().toString()} + m_choices.channelDevices) {
        if (!id.isEmpty())
            return id;
    }
    return {};
}

void PlayerGuiWindow::applyDeviceProfile() {}
