#include "platform/qsettings_access.h"

#include <QSettings>

QVariant QSettingsAccess::value(QLatin1StringView key) const
{
    return m_file.value(QString(key));
}

void QSettingsAccess::setValue(QLatin1StringView key, const QVariant &value)
{
    m_file.setValue(QString(key), value);
}

void QSettingsAccess::remove(QLatin1StringView key)
{
    m_file.remove(QString(key));
}
