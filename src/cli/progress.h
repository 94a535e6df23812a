// Shows how far a conversion is.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace kv::cli
{

// A percentage on standard error, shown only on a terminal and after the first second, and erased at the end.
class Progress
{
public:
    // The label says what is going on; total is the number of steps.
    Progress(std::string label, std::int64_t total);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    // One more step is done.
    void Step();

private:
    void Show();

    using Clock = std::chrono::steady_clock;

    std::string label_;
    std::int64_t total_;
    std::int64_t done_ = 0;
    bool terminal_;
    bool shown_ = false;
    Clock::time_point next_;
};

} // namespace kv::cli
