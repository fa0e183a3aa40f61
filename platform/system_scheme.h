/// \file
/// Whether the desktop prefers light or dark windows.
#pragma once

#include <QDBusMessage>
#include <QDBusVariant>
#include <QObject>

/// Asks the desktop's settings portal without waiting for it and hears its changes. Where there is no portal,
/// or it has no preference, the palette counts that the platform gives a program of its own accord. GUI
/// thread.
class SystemScheme final : public QObject
{
    Q_OBJECT

public:
    explicit SystemScheme(QObject *parent = nullptr);

    bool prefersLight() const;

    /// The value of org.freedesktop.appearance color-scheme.
    enum class Preference
    {
        None = 0,
        Dark = 1,
        Light = 2,
    };
    /// Anything that is no number the portal defines means no preference. The value may be wrapped in
    /// variants, as the older of the portal's calls does.
    static Preference preferenceOf(const QVariant &value);

Q_SIGNALS:
    /// prefersLight() may have a new answer.
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void onSettingChanged(const QString &space, const QString &key, const QDBusVariant &value);

private:
    void ask();
    void set(Preference preference);
    void readPalette();

    Preference m_preference = Preference::None;
    bool m_paletteIsLight = true;
    bool m_readingPalette = false;
};
