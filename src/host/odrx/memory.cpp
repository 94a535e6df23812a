// The allocator of the drawing library.
#include "host/odrx/memory.h"

#include <cstdlib>

void* odrxAlloc(std::size_t size) noexcept
{
    return std::malloc(size); // NOLINT(cppcoreguidelines-no-malloc): the allocator itself
}

void odrxFree(void* memory) noexcept
{
    std::free(memory); // NOLINT(cppcoreguidelines-no-malloc): the allocator itself
}
