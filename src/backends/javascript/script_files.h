// The script library that the page of a macro loads from the application.
#pragma once

#include <span>

namespace kv
{

/// The names of the library's files, in the order in which the page loads them.
[[nodiscard]] std::span<const char* const> ScriptFiles();

} // namespace kv
