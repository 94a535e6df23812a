// The command that runs a command of the module on the drawing of a journal.
#pragma once

#include "cli/options.h"

namespace kv::cli
{

// Asks at the terminal or reads answers from standard input. Gives the exit status; saves only when the command ended
// well. Throws Failure.
[[nodiscard]] int RunCommand(const RunOptions& options);

} // namespace kv::cli
