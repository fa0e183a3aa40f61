/// \file
/// The window's memory for devices.
#pragma once

#include "engine/engine_probe.h"

#include <QComboBox>
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
    /// All device combos: the primary one first, then one a channel. Same rows in the same order; the data of
    /// a row is the engine's id, empty for the system's default. Owned by their parents.
    QList<QComboBox *> deviceCombos;
    bool devicesRestored = false;            ///< the remembered selection is read once
    bool populatingDevices = false;          ///< rows are being rebuilt: their signals are no choices
    QString lastBusyDevice;                  ///< the engine reported it as held exclusively by somebody else
    QString lastMissingDevice;               ///< the engine reported it as not found
    std::future<DeviceListing> firstListing; ///< valid while the window is being built
    bool refreshPending = false;             ///< a listing is at the probe worker
};
