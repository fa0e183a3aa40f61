#include "app/settings_store.h"

#include <QDir>

bool applySettingsDirOverride()
{
    const QString directory = QString::fromLocal8Bit(qgetenv("KELP_SETTINGS_DIR")).trimmed();
    if (directory.isEmpty())
        return false;
    QDir().mkpath(directory);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, directory);
    QSettings::setPath(QSettings::IniFormat, QSettings::SystemScope, directory);
    return true;
}
