/// \file
/// The one store of the user's choices.
#pragma once

#include <QSettings>

/// Opened, used and closed inside each function that needs it; nothing keeps one. GUI thread: a worker that
/// needs a value gets it passed.
class SettingsStore final : public QSettings
{
public:
    SettingsStore()
        : QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("KELP"),
                    QStringLiteral("KelpPlayer"))
    {
    }
};

/// Redirects the store to the directory that KELP_SETTINGS_DIR names, for both scopes. True when it did.
/// Unset, empty or blank leaves everything as it is. A directory that cannot be made is set all the same:
/// reads then give defaults.
bool applySettingsDirOverride();
