// The command that writes macros.
#pragma once

#include "cli/options.h"

#include <string>
#include <vector>

namespace kv::cli
{

// Converts in processes of their own, one for each language, into a staging folder, and moves the files in place when
// all have succeeded. Gives the exit status; throws Failure, and Interrupted with nothing left behind.
[[nodiscard]] int Convert(const ConvertOptions& options, const std::vector<std::string>& commandLine);

// What such a process does.
[[nodiscard]] int ConvertStaged(const ConvertOptions& options);

} // namespace kv::cli
