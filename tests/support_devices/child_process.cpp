#include "support_devices/child_process.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <sstream>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char **environ;

namespace test_devices {

namespace {

constexpr std::chrono::milliseconds politeWait{2000};

}

std::string findProgram(const std::string &name)
{
    const char *path = std::getenv("PATH");
    std::istringstream folders(path ? path : "");
    for (std::string folder; std::getline(folders, folder, ':');)
        if (const std::string file = folder + "/" + name; ::access(file.c_str(), X_OK) == 0)
            return file;
    return {};
}

ChildProcess::ChildProcess(const std::vector<std::string> &command, const std::string &outputFile,
                           const std::string &logFile)
{
    std::vector<char *> arguments;
    for (const std::string &word : command)
        arguments.push_back(const_cast<char *>(word.c_str()));
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    const int flags = O_WRONLY | O_CREAT | O_TRUNC;
    posix_spawn_file_actions_addopen(&files, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&files, 1, outputFile.c_str(), flags, 0600);
    posix_spawn_file_actions_addopen(&files, 2, logFile.c_str(), flags, 0600);
    if (::posix_spawnp(&pid_, arguments[0], &files, nullptr, arguments.data(), environ) != 0)
        pid_ = -1;
    posix_spawn_file_actions_destroy(&files);
}

ChildProcess::~ChildProcess()
{
    end();
}

bool ChildProcess::reap(bool block)
{
    if (pid_ <= 0)
        return true;
    pid_t ended = 0;
    while ((ended = ::waitpid(pid_, nullptr, block ? 0 : WNOHANG)) < 0 && errno == EINTR) {
    }
    if (ended == 0)
        return false;
    pid_ = -1;
    return true;
}

bool ChildProcess::running()
{
    return !reap(false);
}

void ChildProcess::end()
{
    if (reap(false))
        return;
    ::kill(pid_, SIGTERM);
    if (!kelp_test::waitUntil([this] { return reap(false); }, politeWait))
        kill();
}

void ChildProcess::kill()
{
    if (reap(false))
        return;
    ::kill(pid_, SIGKILL);
    reap(true);
}

} // namespace test_devices
