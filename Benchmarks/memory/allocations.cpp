#include "allocations.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <malloc.h>

// The C library's own, under the names that it has for callers who replace malloc.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* block);
}

namespace vecmat::bench {

namespace {

// Blocks are given back that were allocated before these start to count, so the numbers have signs.
std::atomic<std::ptrdiff_t> allocated{0};
std::atomic<std::ptrdiff_t> peak{0};
std::atomic<std::ptrdiff_t> before{0};

std::ptrdiff_t sizeOf(void* block)
{
    return block != nullptr ? static_cast<std::ptrdiff_t>(malloc_usable_size(block)) : 0;
}

void* taken(void* block)
{
    const std::ptrdiff_t now = allocated += sizeOf(block);
    peak = std::max<std::ptrdiff_t>(peak, now);
    return block;
}

} // namespace

void resetPeak()
{
    before = allocated.load();
    peak = allocated.load();
}

std::size_t bytesAtPeak()
{
    return static_cast<std::size_t>(peak - before);
}

} // namespace vecmat::bench

using vecmat::bench::allocated;
using vecmat::bench::sizeOf;
using vecmat::bench::taken;

extern "C" {

void* malloc(std::size_t size)
{
    return taken(__libc_malloc(size));
}

void* calloc(std::size_t count, std::size_t size)
{
    return taken(__libc_calloc(count, size));
}

void* realloc(void* block, std::size_t size)
{
    const std::ptrdiff_t old = sizeOf(block);
    void* moved = __libc_realloc(block, size);
    if (moved != nullptr || size == 0)
        allocated -= old;
    return taken(moved);
}

void* memalign(std::size_t alignment, std::size_t size)
{
    return taken(__libc_memalign(alignment, size));
}

void* aligned_alloc(std::size_t alignment, std::size_t size)
{
    return taken(__libc_memalign(alignment, size));
}

int posix_memalign(void** block, std::size_t alignment, std::size_t size)
{
    *block = taken(__libc_memalign(alignment, size));
    return *block != nullptr ? 0 : ENOMEM;
}

void free(void* block)
{
    allocated -= sizeOf(block);
    __libc_free(block);
}

} // extern "C"
