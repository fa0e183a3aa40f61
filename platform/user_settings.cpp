#include "platform/user_settings.h"

using namespace Qt::StringLiterals;

UserSettings::UserSettings()
    : m_settings(QSettings::IniFormat, QSettings::UserScope, u"KELP"_s, u"KelpPlayer"_s)
{
}

QVariant UserSettings::value(QLatin1StringView key) const
{
    return m_settings.value(QString(key));
}

void UserSettings::setValue(QLatin1StringView key, const QVariant &value)
{
    m_settings.setValue(QString(key), value);
}

void UserSettings::remove(QLatin1StringView key)
{
    m_settings.remove(QString(key));
}

void UserSettings::sync()
{
    m_settings.sync();
}

QStringList UserSettings::childKeys(QLatin1StringView group)
{
    m_settings.beginGroup(QString(group));
    const QStringList keys = m_settings.childKeys();
    m_settings.endGroup();
    return keys;
}
