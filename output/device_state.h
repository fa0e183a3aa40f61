/// \file
/// The window's memory for devices.
#pragma once

#include "engine/engine_probe.h"
#include "output/device_list.h"

#include <QList>
#include <QString>
#include <future>
#include <utility>

/// A listing that was begun in the background, with what it wants to have logged.
struct DeviceListing
{
    PlayerProbeResult result;
    QList<std::pair<QString, bool>> logLines; ///< text and whether it is an error
};

struct DeviceState
{
    QList<ListedDevice> listed;              ///< of the last listing that succeeded
    bool devicesRestored = false;            ///< the remembered selection is read once
    bool populatingDevices = false;          ///< rows are being rebuilt: their signals are no choices
    QString lastBusyDevice;                  ///< the engine reported it as held exclusively by somebody else
    QString lastMissingDevice;               ///< the engine reported it as not found
    std::future<DeviceListing> firstListing; ///< valid while the window is being built
    bool refreshPending = false;             ///< a listing is at the probe worker
};
