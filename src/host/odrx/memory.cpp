// The allocator of the drawing library.
#include "host/odrx/memory.h"

#include <cstdlib>

void* odrxAlloc(std::size_t size) noexcept
{
    return std::malloc(size);
}

void odrxFree(void* memory) noexcept
{
    std::free(memory);
}
