// The commands that the module offers to the host.
#pragma once

#include "host/kernel/command.h"

namespace kv
{

// The module object's protocol extension for CZtCommandSource; lives as long as the process.
[[nodiscard]] CZtCommandSource* ModuleCommands();

} // namespace kv
