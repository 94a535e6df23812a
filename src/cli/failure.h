// How the program ends: its exit statuses, and the exception that carries a message and a status to main.
#pragma once

#include <stdexcept>
#include <string>
#include <system_error>

namespace kv::cli
{

enum ExitStatus : int
{
    Done = 0,
    Failed = 1,   // the conversion gave another code than 5100, an exception left it, or a file can't be written
    BadInput = 2, // usage, the journal, or a file that is there already
};

class Failure : public std::runtime_error
{
public:
    Failure(ExitStatus status, const std::string& message) : std::runtime_error(message), status_(status) {}
    [[nodiscard]] ExitStatus Status() const noexcept { return status_; }

private:
    ExitStatus status_;
};

// A failure of the operating system; the message is "WHAT: the text of the error number".
[[nodiscard]] inline Failure SystemFailure(const std::string& what, int error)
{
    return {Failed, what + ": " + std::generic_category().message(error)};
}

} // namespace kv::cli
