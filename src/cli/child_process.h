// Runs the program once more in a process of its own, and keeps signals from ending this one untidily.
#pragma once

#include <csignal>
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

    // Runs this program with the arguments, the first being its own name, and waits for its end. Gives its exit status;
    // throws Failure when it can't be started or ends by a signal, Interrupted, with the process ended, when a signal
    // comes first.
    [[nodiscard]] int RunSelf(const std::vector<std::string>& arguments) const;

private:
    sigset_t interruptions_;
    sigset_t previous_;
};

// To be called by a process that RunSelf started: it ends when the process that started it does.
void EndWithParent();

// Ends the program as the signal would have done.
[[noreturn]] void EndBySignal(int signal);

} // namespace kv::cli
