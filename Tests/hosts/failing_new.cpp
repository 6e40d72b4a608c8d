// Loaded before everything else into a host, this lets it say which allocation of the library fails. The library's own
// operator new is the program's, which is this one.
#include <cstdlib>
#include <new>

namespace {

int countdown = 0;

} // namespace

/// The n-th allocation from now on fails, and only that one. With 0 none does.
extern "C" void fail_allocation(int n)
{
    countdown = n;
}

/// Whether the failure is still to come.
extern "C" int failure_pending()
{
    return countdown > 0 ? 1 : 0;
}

void* operator new(std::size_t bytes)
{
    void* const block = countdown > 0 && --countdown == 0 ? nullptr : std::malloc(bytes == 0 ? 1 : bytes);
    if (block == nullptr)
        throw std::bad_alloc();
    return block;
}

void* operator new[](std::size_t bytes)
{
    return operator new(bytes);
}

// Who asks in this way goes on without: no failure that a host would see.
void* operator new(std::size_t bytes, const std::nothrow_t&) noexcept
{
    return std::malloc(bytes == 0 ? 1 : bytes);
}

void operator delete(void* block) noexcept
{
    std::free(block);
}

void operator delete[](void* block) noexcept
{
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept
{
    std::free(block);
}

void operator delete[](void* block, std::size_t) noexcept
{
    std::free(block);
}
