/// \file
/// The one store of the user's choices.
#pragma once

#include "platform/qsettings_access.h"

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

/// One choice of the user's, by the table of settings; opens the store and closes it.
template<class Value>
Value readUserSetting(const Setting<Value> &setting)
{
    SettingsStore file;
    return readSetting(QSettingsAccess(file), setting);
}

template<class Value>
void writeUserSetting(const Setting<Value> &setting, const std::type_identity_t<Value> &value)
{
    SettingsStore file;
    QSettingsAccess access(file);
    writeSetting(access, setting, value);
}

/// Redirects the store to the directory that KELP_SETTINGS_DIR names, for both scopes. True when it did.
/// Unset, empty or blank leaves everything as it is. A directory that cannot be made is set all the same:
/// reads then give defaults.
bool applySettingsDirOverride();
