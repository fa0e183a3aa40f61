#include "platform/single_instance.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// A process that takes the lock and keeps it until it is ended.
class Holder
{
public:
    explicit Holder(const QString &directory)
    {
        int ready[2] = {};
        if (pipe(ready) != 0)
            return;
        m_pid = fork();
        if (m_pid == 0) {
            const SingleInstanceResult taken = takeSingleInstance(directory);
            const char answer = taken.heldByOther() || taken.descriptor < 0 ? 'n' : 'y';
            if (write(ready[1], &answer, 1) == 1)
                pause();
            _exit(0);
        }
        close(ready[1]);
        char answer = 'n';
        m_took = read(ready[0], &answer, 1) == 1 && answer == 'y';
        close(ready[0]);
    }
    ~Holder() { killAndReap(); }

    bool took() const { return m_took; }
    void killAndReap()
    {
        if (m_pid > 0) {
            kill(m_pid, SIGKILL);
            waitpid(m_pid, nullptr, 0);
        }
        m_pid = -1;
    }

private:
    pid_t m_pid = -1;
    bool m_took = false;
};

} // namespace

TEST(SingleInstance, TheFirstProcessTakesTheLock)
{
    const QTemporaryDir directory;
    const SingleInstanceResult result = takeSingleInstance(directory.path());
    EXPECT_GE(result.descriptor, 0);
    EXPECT_EQ(result.lastError, 0UL);
    EXPECT_FALSE(result.heldByOther());
    close(result.descriptor);
}

TEST(SingleInstance, ASecondProcessIsToldThatItExists)
{
    const QTemporaryDir directory;
    const Holder holder(directory.path());
    ASSERT_TRUE(holder.took());
    const SingleInstanceResult result = takeSingleInstance(directory.path());
    EXPECT_TRUE(result.heldByOther());
    EXPECT_EQ(result.lastError, 183UL);
    close(result.descriptor);
}

TEST(SingleInstance, TheLockOfAKilledProcessDoesNotBlock)
{
    const QTemporaryDir directory;
    Holder holder(directory.path());
    ASSERT_TRUE(holder.took());
    holder.killAndReap();
    const SingleInstanceResult result = takeSingleInstance(directory.path());
    EXPECT_FALSE(result.heldByOther());
    EXPECT_EQ(result.lastError, 0UL);
    close(result.descriptor);
}

TEST(SingleInstance, AChildDoesNotInheritTheLock)
{
    const QTemporaryDir directory;
    const SingleInstanceResult first = takeSingleInstance(directory.path());
    const pid_t child = fork();
    if (child == 0) {
        execlp("sleep", "sleep", "60", nullptr);
        _exit(1);
    }
    // The child has run exec as soon as its name is another one.
    QByteArray name;
    while (name.trimmed() != "sleep") {
        QFile file(QStringLiteral("/proc/%1/comm").arg(child));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        name = file.readAll();
    }
    close(first.descriptor);
    const SingleInstanceResult again = takeSingleInstance(directory.path());
    EXPECT_FALSE(again.heldByOther());
    close(again.descriptor);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
}

TEST(SingleInstance, ALockThatCannotBeMadeRefusesNobody)
{
    const SingleInstanceResult result = takeSingleInstance(QStringLiteral("/nonexistent/directory"));
    EXPECT_LT(result.descriptor, 0);
    EXPECT_NE(result.lastError, 0UL);
    EXPECT_FALSE(result.heldByOther());
    EXPECT_FALSE(takeSingleInstance(QString()).heldByOther());
}

TEST(SingleInstance, ASymbolicLinkIsNotFollowed)
{
    const QTemporaryDir directory;
    const QString target = directory.filePath(QStringLiteral("elsewhere"));
    QFile::link(target, directory.filePath(QStringLiteral("KelpPlayerGui-single-instance.lock")));
    EXPECT_LT(takeSingleInstance(directory.path()).descriptor, 0);
    EXPECT_FALSE(QFile::exists(target));
}

TEST(SingleInstance, WithoutARuntimeDirectoryAPrivateOneIsMade)
{
    const QTemporaryDir temp;
    qunsetenv("XDG_RUNTIME_DIR");
    qputenv("TMPDIR", temp.path().toLocal8Bit());
    const QString directory = singleInstanceDirectory();
    EXPECT_TRUE(directory.startsWith(temp.path()));
    struct stat facts = {};
    ASSERT_EQ(stat(QFile::encodeName(directory).constData(), &facts), 0);
    EXPECT_EQ(facts.st_mode & 0777U, 0700U);
    ASSERT_EQ(chmod(QFile::encodeName(directory).constData(), 0777), 0);
    EXPECT_TRUE(singleInstanceDirectory().isEmpty()) << "a directory that others may write to is not trusted";
    qunsetenv("TMPDIR");
}
