// The allocator of the drawing library, through which objects that cross the loader are allocated.
#pragma once

#include "host/export.h"

#include <cstddef>

// Memory for size bytes, or null when there is none.
[[nodiscard]] KVHOST_API void* odrxAlloc(std::size_t size) noexcept;

// Gives memory of odrxAlloc back; null is allowed.
KVHOST_API void odrxFree(void* memory) noexcept;
