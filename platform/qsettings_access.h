/// \file
/// Typed access to an opened settings file.
#pragma once

#include "platform/settings_access.h"

class QSettings;

/// Reads and writes \p file, which is opened, used and closed inside one function and outlives this object.
class QSettingsAccess final : public SettingsAccess
{
public:
    explicit QSettingsAccess(QSettings &file)
        : m_file(file)
    {
    }

    QVariant value(QLatin1StringView key) const override;
    void setValue(QLatin1StringView key, const QVariant &value) override;
    void remove(QLatin1StringView key) override;

private:
    QSettings &m_file;
};
