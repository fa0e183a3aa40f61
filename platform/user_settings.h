/// \file
/// The user's settings file.
#pragma once

#include "platform/settings_store.h"

#include <QSettings>

/// Opens the store of this user for as long as it lives. Made, used and dropped inside one function: two
/// that are open at once, in this program or another, would not see each other's writes.
/// GUI thread; the override of the settings folder has been applied before.
class UserSettings final : public SettingsStore
{
public:
    UserSettings();

    QVariant value(QLatin1StringView key) const override;
    void setValue(QLatin1StringView key, const QVariant &value) override;
    void remove(QLatin1StringView key) override;
    /// Writes to the file at once, for choices that a crash must not undo.
    void sync();
    /// The keys directly below \p group.
    QStringList childKeys(QLatin1StringView group);

private:
    QSettings m_settings;
};
