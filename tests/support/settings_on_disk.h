/// \file
/// The user's settings file past everything that the program holds in memory.
#pragma once

#include "app/settings_store.h"

#include <QSettings>

/// Opening waits for everything that is to be written. What is set here counts as another program's change.
class SettingsOnDisk final : public QSettings
{
public:
    SettingsOnDisk()
        : QSettings(flushedPath(), QSettings::IniFormat)
    {
    }

private:
    static QString flushedPath()
    {
        userSettingsFile().flush();
        return userSettingsFile().path();
    }
};
