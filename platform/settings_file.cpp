#include "platform/settings_file.h"

#include <QFile>
#include <QSettings>
#include <chrono>
#include <sys/stat.h>

namespace {

/// A slider that is drawn makes sixty changes in a second.
constexpr std::chrono::milliseconds shortestRest(250);
constexpr int restsPerWriting = 19; ///< so that a long file's writings take a twentieth of the time at most

void put(SettingsChanges &values, const SettingsChanges &changes)
{
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        if (change.value().isValid())
            values.insert(change.key(), change.value());
        else
            values.remove(change.key());
    }
}

} // namespace

SettingsFile::SettingsFile(Open open)
    : m_open(std::move(open))
    , m_path(m_open()->fileName())
{
    std::tie(m_values, m_stamp) = exchangeWithDisk({});
}

SettingsFile::~SettingsFile()
{
    flush();
    if (!m_thread.joinable())
        return;
    {
        const std::lock_guard lock(m_mutex);
        m_ending = true;
    }
    m_work.notify_all();
    m_thread.join();
}

QVariant SettingsFile::value(const QString &key)
{
    const std::lock_guard lock(m_mutex);
    seeOthersChanges();
    return m_values.value(key);
}

void SettingsFile::apply(const SettingsChanges &changes)
{
    if (changes.isEmpty())
        return;
    const std::lock_guard lock(m_mutex);
    seeOthersChanges();
    put(m_values, changes);
    m_waiting.insert(changes);
    m_writing = true;
    if (m_thread.joinable())
        m_work.notify_all();
    else
        m_thread = std::thread([this] { writeUntilTheEnd(); });
}

void SettingsFile::seeOthersChanges()
{
    // While this program writes it knows best; afterwards the writing thread has read it all anew.
    if (!m_writing && stampOf(m_path) != m_stamp)
        std::tie(m_values, m_stamp) = exchangeWithDisk({});
}

void SettingsFile::flush()
{
    std::unique_lock lock(m_mutex);
    ++m_flushing;
    m_hurried.notify_all();
    m_idle.wait(lock, [this] { return !m_writing; });
    --m_flushing;
}

SettingsFile::Stamp SettingsFile::stampOf(const QString &path)
{
    struct stat facts = {};
    if (::stat(QFile::encodeName(path).constData(), &facts) != 0)
        return {};
    constexpr qint64 nanoseconds = 1'000'000'000;
    return {static_cast<qint64>(facts.st_ino), static_cast<qint64>(facts.st_size),
            facts.st_mtim.tv_sec * nanoseconds + facts.st_mtim.tv_nsec};
}

std::pair<SettingsChanges, SettingsFile::Stamp>
SettingsFile::exchangeWithDisk(const SettingsChanges &changes) const
{
    const std::unique_ptr<QSettings> file = m_open();
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        if (change.value().isValid())
            file->setValue(change.key(), change.value());
        else
            file->remove(change.key());
    }
    file->sync();
    // Of before the reading: what others change from here on is noticed.
    const Stamp stamp = stampOf(m_path);
    file->sync();
    SettingsChanges values;
    for (const QString &key : file->allKeys())
        values.insert(key, file->value(key));
    return {std::move(values), stamp};
}

void SettingsFile::writeUntilTheEnd()
{
    std::unique_lock lock(m_mutex);
    while (true) {
        m_work.wait(lock, [this] { return m_ending || !m_waiting.isEmpty(); });
        if (m_ending)
            return;
        while (!m_waiting.isEmpty()) {
            const SettingsChanges batch = std::exchange(m_waiting, {});
            lock.unlock();
            const auto began = std::chrono::steady_clock::now();
            auto [values, stamp] = exchangeWithDisk(batch);
            const auto took = std::chrono::steady_clock::now() - began;
            lock.lock();
            m_values = std::move(values);
            m_stamp = stamp;
            put(m_values, m_waiting);
            const auto rest = std::max<std::chrono::nanoseconds>(shortestRest, restsPerWriting * took);
            m_hurried.wait_for(lock, rest, [this] { return m_flushing > 0; });
        }
        m_writing = false;
        m_idle.notify_all();
    }
}
