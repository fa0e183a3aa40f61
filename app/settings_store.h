/// \file
/// The one store of the user's choices.
#pragma once

#include "platform/qsettings_access.h"
#include "platform/settings_file.h"

/// The user's settings file, made at the first use. GUI thread: a worker that needs a value gets it passed.
SettingsFile &userSettingsFile();

/// Opened, used and closed inside each function that needs it; nothing keeps one. Reading never waits for the
/// disk. What was written is read at once by everybody, and written to the disk together when the object
/// goes.
class UserSettings final : public SettingsAccess
{
public:
    UserSettings() = default;
    ~UserSettings() override { userSettingsFile().apply(m_changes); }

    QVariant value(QLatin1StringView key) const override;
    void setValue(QLatin1StringView key, const QVariant &value) override { m_changes.insert(key, value); }
    void remove(QLatin1StringView key) override { m_changes.insert(key, QVariant()); }
    /// Returns when all of it is in the file.
    void flush();

private:
    SettingsChanges m_changes; ///< not yet handed on
};

/// One choice of the user's, by the table of settings; opens the store and closes it.
template<class Value>
Value readUserSetting(const Setting<Value> &setting)
{
    return readSetting(UserSettings(), setting);
}

template<class Value>
void writeUserSetting(const Setting<Value> &setting, const std::type_identity_t<Value> &value)
{
    UserSettings store;
    writeSetting(store, setting, value);
}

/// Redirects the store to the directory that KELP_SETTINGS_DIR names, for both scopes. True when it did.
/// Unset, empty or blank leaves everything as it is. A directory that cannot be made is set all the same:
/// reads then give defaults. What was still to be written goes to where it belongs.
bool applySettingsDirOverride();
