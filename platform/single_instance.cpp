#include "platform/single_instance.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto lockName = "KelpPlayerGui-single-instance.lock"_L1;
constexpr mode_t privateFile = S_IRUSR | S_IWUSR;
constexpr mode_t privateDirectory = S_IRWXU;

/// The temporary directory is shared: a directory that another user made there first is not ours to trust.
bool isOwnPrivateDirectory(const QByteArray &path)
{
    struct stat facts = {};
    return lstat(path.constData(), &facts) == 0 && S_ISDIR(facts.st_mode) && facts.st_uid == geteuid() &&
           (facts.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

} // namespace

SingleInstanceResult takeSingleInstance(const QString &directory)
{
    SingleInstanceResult result;
    if (directory.isEmpty()) {
        result.lastError = ENOENT;
        return result;
    }
    const QByteArray path = QFile::encodeName(directory + u'/' + lockName);
    result.descriptor = open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, privateFile);
    if (result.descriptor < 0) {
        result.lastError = static_cast<unsigned long>(errno);
        return result;
    }
    if (flock(result.descriptor, LOCK_EX | LOCK_NB) == 0)
        return result;
    if (errno == EWOULDBLOCK) {
        result.lastError = SingleInstanceResult::alreadyExists;
        return result;
    }
    // A file system without locks: no guard, but no refusal either.
    result.lastError = static_cast<unsigned long>(errno);
    close(result.descriptor);
    result.descriptor = -1;
    return result;
}

QString singleInstanceDirectory()
{
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    const QFileInfo facts(runtime);
    if (!runtime.isEmpty() && facts.isDir() && facts.isWritable())
        return runtime;
    const QString own = QDir::tempPath() + u"/kelp-player-%1"_s.arg(geteuid());
    const QByteArray path = QFile::encodeName(own);
    mkdir(path.constData(), privateDirectory);
    return isOwnPrivateDirectory(path) ? own : QString();
}

unsigned long processSessionId()
{
    return static_cast<unsigned long>(getsid(0));
}
