// The command that tells what a conversion would make of each event.
#pragma once

#include "cli/options.h"

#include <string>
#include <vector>

namespace kv::cli
{

// Converts in a process of its own into a folder that is thrown away. Gives the exit status; throws Failure and
// Interrupted.
[[nodiscard]] int Check(const std::vector<std::string>& commandLine);

// What that process does; prints the table of the events and the counts by kind to standard output.
[[nodiscard]] int CheckStaged(const CheckOptions& options);

} // namespace kv::cli
