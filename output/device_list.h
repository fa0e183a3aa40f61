/// \file
/// The grammar of the engine's device listing.
#pragma once

#include <QList>
#include <QString>

struct ListedDevice
{
    QString id;    ///< what the engine is told
    QString label; ///< what people read
    bool isDefault = false;

    bool operator==(const ListedDevice &) const = default;
};

/// The devices of a `-list` text in its order, each id once. Lines of other forms are skipped in silence.
QList<ListedDevice> parseDeviceList(const QString &text);

/// The row for a remembered device: an exact match of its id, or -1.
int rowOfDevice(const QList<ListedDevice> &devices, const QString &id);
