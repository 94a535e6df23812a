// Runs the program once more in a process of its own, and keeps signals from ending this one untidily.
#pragma once

#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

namespace kv::cli
{

// The user or the system asks the program to end.
struct Interrupted
{
    int signal;
};

// While it lives, SIGINT, SIGTERM and SIGHUP wait until somebody asks for them, except those that the program was
// started to ignore.
class HeldSignals
{
public:
    HeldSignals();
    ~HeldSignals();
    HeldSignals(const HeldSignals&) = delete;
    HeldSignals& operator=(const HeldSignals&) = delete;

    // Throws Interrupted when one of them has come.
    void ThrowIfInterrupted() const;

    // From now on they change nothing: the work is done, and the exit status has to say so.
    void Ignore() const;

    // Runs this program with its command line and more options, among them the folder in which that process is to work
    // (--staged), and waits for its end. Gives its exit status; throws Failure when it can't be started or ends by a
    // signal, Interrupted, with the process ended, when a signal comes first.
    [[nodiscard]] int RunSelf(const std::vector<std::string>& commandLine, const std::filesystem::path& folder,
                              const std::vector<std::string>& more = {}) const;

private:
    sigset_t interruptions_ = {};
    sigset_t previous_ = {};
};

// To be called by a process that RunSelf started, with the number of the process that did: it ends when that one does,
// and at once when that one is gone.
void EndWithParent(int parent);

// Ends the program as the signal would have done.
[[noreturn]] void EndBySignal(int signal);

} // namespace kv::cli
