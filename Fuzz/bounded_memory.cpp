// Memory for the fuzzers' process. The dimensions of a call may be any ints, and a result of nonsensical ones may ask for
// more than the machine has: that ends in std::bad_alloc, as it does without the sanitizers, which would end the process.
#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

constexpr std::size_t mostBytes = std::size_t{64} << 20;

void* allocated(std::size_t size) noexcept
{
    return size <= mostBytes ? std::malloc(size > 0 ? size : 1) : nullptr;
}

void* allocatedOrThrown(std::size_t size)
{
    if (void* const memory = allocated(size))
        return memory;
    throw std::bad_alloc();
}

} // namespace

void* operator new(std::size_t size)
{
    return allocatedOrThrown(size);
}
void* operator new[](std::size_t size)
{
    return allocatedOrThrown(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return allocated(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return allocated(size);
}
void operator delete(void* memory) noexcept
{
    std::free(memory);
}
void operator delete[](void* memory) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}
