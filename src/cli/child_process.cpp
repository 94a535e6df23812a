// Runs the program once more in a process of its own.
#include "cli/child_process.h"

#include "cli/failure.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <spawn.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kv::cli
{

namespace
{

constexpr std::array interrupting{SIGINT, SIGTERM, SIGHUP};
constexpr const char* ownFile = "/proc/self/exe";

int WaitForEnd(pid_t child)
{
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR)
    {
    }
    return status;
}

pid_t Start(const std::vector<std::string>& arguments, const sigset_t& signalMask)
{
    std::vector<char*> words;
    words.reserve(arguments.size() + 1);
    for (const std::string& argument : arguments)
    {
        words.push_back(
            const_cast<char*>(argument.c_str())); // NOLINT(cppcoreguidelines-pro-type-const-cast): not written
    }
    words.push_back(nullptr);

    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setsigmask(&attributes, &signalMask);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK);
    pid_t child = 0;
    const int error = posix_spawn(&child, ownFile, nullptr, &attributes, words.data(), environ);
    posix_spawnattr_destroy(&attributes);
    if (error != 0)
    {
        throw SystemFailure("the process that converts can't be started", error);
    }
    return child;
}

} // namespace

HeldSignals::HeldSignals()
{
    std::signal(SIGCHLD, SIG_DFL); // ignored, the end of the process could not be waited for
    sigemptyset(&interruptions_);
    for (const int signal : interrupting)
    {
        struct sigaction action = {};
        sigaction(signal, nullptr, &action);
        if (action.sa_handler != SIG_IGN)
        {
            sigaddset(&interruptions_, signal);
        }
    }
    sigset_t held = interruptions_;
    sigaddset(&held, SIGCHLD);
    sigprocmask(SIG_BLOCK, &held, &previous_);
}

HeldSignals::~HeldSignals()
{
    sigprocmask(SIG_SETMASK, &previous_, nullptr);
}

void HeldSignals::ThrowIfInterrupted() const
{
    const timespec now = {};
    const int signal = sigtimedwait(&interruptions_, nullptr, &now);
    if (signal > 0)
    {
        throw Interrupted{signal};
    }
}

void HeldSignals::Ignore() const
{
    for (const int signal : interrupting)
    {
        std::signal(signal, SIG_IGN); // discards those that wait, too
    }
}

int HeldSignals::RunSelf(const std::vector<std::string>& commandLine, const std::filesystem::path& folder,
                         const std::vector<std::string>& more) const
{
    std::vector<std::string> arguments{commandLine.at(0), commandLine.at(1), "--staged=" + folder.string(),
                                       "--staged-by=" + std::to_string(getpid())};
    arguments.insert(arguments.end(), more.begin(), more.end());
    arguments.insert(arguments.end(), commandLine.begin() + 2, commandLine.end());
    const pid_t child = Start(arguments, previous_);
    sigset_t awaited = interruptions_;
    sigaddset(&awaited, SIGCHLD);
    int status = 0;
    while (waitpid(child, &status, WNOHANG) == 0)
    {
        const int signal = sigwaitinfo(&awaited, nullptr);
        if (signal > 0 && signal != SIGCHLD)
        {
            kill(child, SIGKILL);
            WaitForEnd(child);
            throw Interrupted{signal};
        }
    }
    ThrowIfInterrupted(); // a terminal sends its signal to both processes
    if (WIFSIGNALED(status))
    {
        throw Failure(Failed,
                      std::string("the process that converts ended by a signal: ") + strsignal(WTERMSIG(status)));
    }
    return WEXITSTATUS(status);
}

void EndWithParent(int parent)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent) // it was killed before the line above
    {
        std::_Exit(128 + SIGKILL);
    }
}

void EndBySignal(int signal)
{
    std::signal(signal, SIG_DFL);
    std::raise(signal);
    std::_Exit(128 + signal);
}

} // namespace kv::cli
