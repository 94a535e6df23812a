// The object types of the automation API, which the script library knows by number only.
#pragma once

#include <span>

namespace kv
{

/// The names of the object types; the number of each is its place, counted from 0.
[[nodiscard]] std::span<const char* const> ObjectTypeNames();

} // namespace kv
