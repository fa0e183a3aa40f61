#include "platform/system_scheme.h"

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

using namespace Qt::StringLiterals;

namespace {

const auto service = u"org.freedesktop.portal.Desktop"_s;
const auto path = u"/org/freedesktop/portal/desktop"_s;
const auto interface = u"org.freedesktop.portal.Settings"_s;
const auto appearance = u"org.freedesktop.appearance"_s;
const auto colourScheme = u"color-scheme"_s;
constexpr int mostWrappings = 4;

} // namespace

SystemScheme::SystemScheme(QObject *parent)
    : QObject(parent)
{
    readPalette();
    qGuiApp->installEventFilter(this);
    ask();
}

void SystemScheme::ask()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(service, path, interface, u"SettingChanged"_s, this,
                SLOT(onSettingChanged(QString, QString, QDBusVariant)));
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, u"Read"_s);
    call << appearance << colourScheme;
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (!reply.isError())
            set(preferenceOf(reply.value().variant()));
    });
}

SystemScheme::Preference SystemScheme::preferenceOf(const QVariant &value)
{
    QVariant inner = value;
    for (int i = 0; i < mostWrappings && inner.canConvert<QDBusVariant>(); ++i)
        inner = inner.value<QDBusVariant>().variant();
    bool isNumber = false;
    const uint number = inner.toUInt(&isNumber);
    if (!isNumber || number > static_cast<uint>(Preference::Light))
        return Preference::None;
    return static_cast<Preference>(number);
}

void SystemScheme::onSettingChanged(const QString &space, const QString &key, const QDBusVariant &value)
{
    if (space == appearance && key == colourScheme)
        set(preferenceOf(value.variant()));
}

void SystemScheme::set(Preference preference)
{
    if (preference == m_preference)
        return;
    m_preference = preference;
    Q_EMIT changed();
}

bool SystemScheme::prefersLight() const
{
    return m_preference == Preference::None ? m_paletteIsLight : m_preference == Preference::Light;
}

bool SystemScheme::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange && watched == qGuiApp && !m_readingPalette) {
        const bool before = m_paletteIsLight;
        readPalette();
        if (before != m_paletteIsLight && m_preference == Preference::None)
            Q_EMIT changed();
    }
    return false;
}

void SystemScheme::readPalette()
{
    // The program's own palette hides the platform's: it is lifted for a moment.
    m_readingPalette = true;
    const QPalette own = QGuiApplication::palette();
    QGuiApplication::setPalette(QPalette());
    constexpr int middle = 128;
    m_paletteIsLight = QGuiApplication::palette().color(QPalette::Window).lightness() >= middle;
    QGuiApplication::setPalette(own);
    m_readingPalette = false;
}
