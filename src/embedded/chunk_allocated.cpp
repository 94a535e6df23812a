// Chunks are aligned to their size, so that the address of an object tells its chunk.
#include "embedded/chunk_allocated.h"

#include <atomic>
#include <cstdint>
#include <new>
#include <utility>

#if defined(__linux__)
#include <sys/mman.h>
#endif

namespace kv
{
namespace
{
constexpr std::size_t ChunkSize = std::size_t(1) << 21;
constexpr std::size_t Alignment = alignof(std::max_align_t);

struct alignas(Alignment) Chunk
{
    std::atomic<std::size_t> users = 1; // the objects in it, and the thread that takes objects from it
    std::size_t used = sizeof(Chunk);

    void release() noexcept
    {
        if (users.fetch_sub(1, std::memory_order_acq_rel) == 1)
        {
            this->~Chunk();
            ::operator delete(this, std::align_val_t(ChunkSize));
        }
    }
};

Chunk* newChunk()
{
    void* memory = ::operator new(ChunkSize, std::align_val_t(ChunkSize));
#if defined(__linux__)
    // A chunk has the size of a huge page; faulting in small ones took a third of the time of reading.
    madvise(memory, ChunkSize, MADV_HUGEPAGE);
#endif
    return new (memory) Chunk;
}

// The chunk that this thread takes objects from.
class CurrentChunk
{
public:
    CurrentChunk() = default;
    ~CurrentChunk() { replace(nullptr); }
    CurrentChunk(const CurrentChunk&) = delete;
    CurrentChunk& operator=(const CurrentChunk&) = delete;

    void* take(std::size_t size)
    {
        const std::size_t rounded = (size + Alignment - 1) / Alignment * Alignment;
        if (chunk_ == nullptr || ChunkSize - chunk_->used < rounded)
        {
            replace(newChunk());
        }
        chunk_->users.fetch_add(1, std::memory_order_relaxed);
        return reinterpret_cast<char*>(chunk_) + std::exchange(chunk_->used, chunk_->used + rounded);
    }

private:
    void replace(Chunk* next) noexcept
    {
        if (Chunk* previous = std::exchange(chunk_, next))
        {
            previous->release();
        }
    }

    Chunk* chunk_ = nullptr;
};

thread_local CurrentChunk currentChunk;
} // namespace

void* ChunkAllocated::operator new(std::size_t size)
{
    return currentChunk.take(size);
}

void ChunkAllocated::operator delete(void* object) noexcept
{
    const auto address = reinterpret_cast<std::uintptr_t>(object) & ~std::uintptr_t(ChunkSize - 1);
    reinterpret_cast<Chunk*>(address)->release(); // NOLINT(performance-no-int-to-ptr): the chunk is found so
}
} // namespace kv
