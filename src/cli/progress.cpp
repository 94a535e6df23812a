// Shows how far a conversion is.
#include "cli/progress.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include <unistd.h>

namespace kv::cli
{

namespace
{

constexpr std::int64_t stepsPerLook = 64; // the clock is read this seldom
constexpr auto firstShown = std::chrono::seconds(1);
constexpr auto pause = std::chrono::milliseconds(200);

} // namespace

Progress::Progress(std::string label, std::int64_t total)
    : label_(std::move(label)), total_(std::max<std::int64_t>(total, 1)), terminal_(isatty(STDERR_FILENO) == 1),
      next_(Clock::now() + firstShown)
{
}

Progress::~Progress()
{
    if (shown_)
    {
        std::fputs("\r\x1b[K", stderr);
        std::fflush(stderr);
    }
}

void Progress::Step()
{
    ++done_;
    if (terminal_ && done_ % stepsPerLook == 0 && Clock::now() >= next_)
    {
        Show();
    }
}

void Progress::Show()
{
    const std::int64_t percent = std::min<std::int64_t>(100, done_ * 100 / total_);
    std::fprintf(stderr, "\r\x1b[K%s: %d %%", label_.c_str(), static_cast<int>(percent));
    std::fflush(stderr);
    shown_ = true;
    next_ = Clock::now() + pause;
}

} // namespace kv::cli
