/// \file
/// A settings store in memory, which keeps account of what was read and written.
#pragma once

#include "platform/settings_access.h"

#include <QMap>

class MemorySettings final : public SettingsAccess
{
public:
    QVariant value(QLatin1StringView key) const override
    {
        readKeys += QString(key);
        return values.value(QString(key));
    }
    void setValue(QLatin1StringView key, const QVariant &value) override
    {
        if (!readOnly)
            values[QString(key)] = value;
    }
    void remove(QLatin1StringView key) override { values.remove(QString(key)); }

    QMap<QString, QVariant> values;
    bool readOnly = false;
    mutable QStringList readKeys;
};
