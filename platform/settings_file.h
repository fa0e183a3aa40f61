/// \file
/// The settings file as the program sees it: read from memory, written behind.
#pragma once

#include <QHash>
#include <QString>
#include <QVariant>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

class QSettings;

/// By key; an invalid value takes the key away.
using SettingsChanges = QHash<QString, QVariant>;

/// One file and one thread that writes it. The file is always written whole, and it holds the saved playlist
/// too: with many rows one writing takes as long as a frame, or as a second, and a QSettings that another
/// thread writes through is locked meanwhile. So nobody but the writing thread opens it: what is read here
/// is what was written here last, whether or not it is on the disk already. Changes by others are seen as
/// soon as the file has changed; at a key that both have changed, this program's change stays.
///
/// Any thread. What cannot be read is absent, and what cannot be written is lost.
class SettingsFile
{
public:
    /// Called on both threads; each object it makes is used up within one call.
    using Open = std::function<std::unique_ptr<QSettings>()>;

    explicit SettingsFile(Open open);
    /// Waits for what is still to be written.
    ~SettingsFile();
    SettingsFile(const SettingsFile &) = delete;
    SettingsFile &operator=(const SettingsFile &) = delete;

    const QString &path() const { return m_path; }
    /// Never waits for a writing. Invalid when absent.
    QVariant value(const QString &key);
    /// Takes the changes for reading at once and has them written: the first at once, the ones of a burst in
    /// few writings, each at least a quarter of a second and nineteen times the last writing's time after it:
    /// with hundreds of thousands of rows saved, a position noted every few seconds keeps neither a core nor
    /// the disk busy. All of one call are written together, and the latest value of a key wins.
    void apply(const SettingsChanges &changes);
    /// Returns when nothing is left to write, and does not let it rest before.
    void flush();

private:
    struct Stamp ///< of the file on the disk
    {
        qint64 inode = 0;
        qint64 size = -1;
        qint64 changedNs = 0;

        friend bool operator==(const Stamp &, const Stamp &) = default;
    };

    static Stamp stampOf(const QString &path);
    void seeOthersChanges(); ///< under the mutex
    void writeUntilTheEnd();
    /// Opens the file, puts the changes into it and reads what it then holds.
    std::pair<SettingsChanges, Stamp> exchangeWithDisk(const SettingsChanges &changes) const;

    const Open m_open;
    QString m_path;

    std::mutex m_mutex;                ///< guards all of the following but the thread
    std::condition_variable m_work;    ///< there is something to write, or the end has come
    std::condition_variable m_hurried; ///< the thread is not to rest
    std::condition_variable m_idle;    ///< it has nothing left to do
    SettingsChanges m_values;          ///< with the ones that wait
    SettingsChanges m_waiting;         ///< not yet given to the disk
    Stamp m_stamp;                     ///< that m_values were read at
    bool m_writing = false;            ///< something is not yet written, or the thread rests after it
    int m_flushing = 0;                ///< how many wait for the end
    bool m_ending = false;

    std::thread m_thread; ///< since the first change
};
