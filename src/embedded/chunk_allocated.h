// Allocation for small objects that come in millions and live about equally long: the events and their properties.
#pragma once

#include <cstddef>

namespace kv
{
// A base for classes whose objects are taken one behind the other from large chunks. A chunk is given back when its
// last object ends. Objects may be ended by any thread.
class ChunkAllocated
{
public:
    [[nodiscard]] static void* operator new(std::size_t size);
    static void operator delete(void* object) noexcept;

protected:
    ~ChunkAllocated() = default;
};
} // namespace kv
