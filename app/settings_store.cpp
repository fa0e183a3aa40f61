#include "app/settings_store.h"

#include <QDir>
#include <QSettings>

namespace {

constexpr QLatin1StringView organisation("KELP");
constexpr QLatin1StringView application("KelpPlayer");

std::unique_ptr<SettingsFile> &fileInUse()
{
    static std::unique_ptr<SettingsFile> file;
    return file;
}

std::unique_ptr<QSettings> openFile()
{
    return std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope, QString(organisation),
                                       QString(application));
}

} // namespace

SettingsFile &userSettingsFile()
{
    std::unique_ptr<SettingsFile> &file = fileInUse();
    if (!file)
        file = std::make_unique<SettingsFile>(&openFile);
    return *file;
}

QVariant UserSettings::value(QLatin1StringView key) const
{
    const auto change = m_changes.find(key);
    return change != m_changes.end() ? change.value() : userSettingsFile().value(key);
}

void UserSettings::flush()
{
    userSettingsFile().apply(std::exchange(m_changes, {}));
    userSettingsFile().flush();
}

bool applySettingsDirOverride()
{
    const QString directory = QString::fromLocal8Bit(qgetenv("KELP_SETTINGS_DIR")).trimmed();
    if (directory.isEmpty())
        return false;
    fileInUse().reset();
    QDir().mkpath(directory);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, directory);
    QSettings::setPath(QSettings::IniFormat, QSettings::SystemScope, directory);
    return true;
}
