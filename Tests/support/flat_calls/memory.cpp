#include "support/flat_calls/memory.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <sys/mman.h>
#include <unistd.h>
#endif

#include <cstdlib>
#include <new>
#include <utility>

namespace vecmat::flat {

namespace {

#ifdef _WIN32

std::size_t pageBytes()
{
    SYSTEM_INFO system;
    GetSystemInfo(&system);
    return system.dwPageSize;
}

/// Pages that can be neither read nor written, or null.
void* reservePages(std::size_t bytes)
{
    return VirtualAlloc(nullptr, bytes, MEM_RESERVE | MEM_COMMIT, PAGE_NOACCESS);
}

bool allow(void* pages, std::size_t bytes, bool writing)
{
    DWORD before;
    return VirtualProtect(pages, bytes, writing ? PAGE_READWRITE : PAGE_READONLY, &before) != 0;
}

void releasePages(void* pages, std::size_t /*bytes*/)
{
    VirtualFree(pages, 0, MEM_RELEASE);
}

#else

std::size_t pageBytes()
{
    static const auto bytes = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    return bytes;
}

/// Pages that can be neither read nor written, or null.
void* reservePages(std::size_t bytes)
{
    void* const pages = mmap(nullptr, bytes, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    return pages != MAP_FAILED ? pages : nullptr;
}

bool allow(void* pages, std::size_t bytes, bool writing)
{
    return mprotect(pages, bytes, writing ? PROT_READ | PROT_WRITE : PROT_READ) == 0;
}

void releasePages(void* pages, std::size_t bytes)
{
    munmap(pages, bytes);
}

#endif

} // namespace

Block::Block(std::size_t bytes, Placement placement, std::string label) : size_(bytes), label_(std::move(label))
{
    if (placement == Placement::plain) {
        data_ = std::calloc(bytes > 0 ? bytes : 1, 1);
        if (data_ == nullptr)
            throw std::bad_alloc();
        return;
    }
    const std::size_t page = pageBytes();
    const std::size_t inside = (bytes + page - 1) / page * page;
    mappedBytes_ = inside + 2 * page;
    mapped_ = static_cast<unsigned char*>(reservePages(mappedBytes_));
    if (mapped_ == nullptr || (inside > 0 && !allow(mapped_ + page, inside, true)))
        throw std::bad_alloc();
    data_ = placement == Placement::behindGuard ? mapped_ + page : mapped_ + page + inside - bytes;
}

Block::Block(Block&& other) noexcept
    : size_(other.size_), label_(std::move(other.label_)), mapped_(std::exchange(other.mapped_, nullptr)),
      mappedBytes_(other.mappedBytes_), data_(std::exchange(other.data_, nullptr))
{
}

Block& Block::operator=(Block&& other) noexcept
{
    std::swap(size_, other.size_);
    std::swap(label_, other.label_);
    std::swap(mapped_, other.mapped_);
    std::swap(mappedBytes_, other.mappedBytes_);
    std::swap(data_, other.data_);
    return *this;
}

Block::~Block()
{
    if (mapped_ != nullptr)
        releasePages(mapped_, mappedBytes_);
    else
        std::free(data_);
}

void Block::forbidWriting()
{
    const std::size_t page = pageBytes();
    if (mapped_ != nullptr && mappedBytes_ > 2 * page)
        allow(mapped_ + page, mappedBytes_ - 2 * page, false);
}

bool Block::isNear(const void* address) const
{
    const auto* const byte = static_cast<const unsigned char*>(address);
    return mapped_ != nullptr && byte >= mapped_ && byte < mapped_ + mappedBytes_;
}

std::ptrdiff_t Block::offsetOf(const void* address) const
{
    return static_cast<const unsigned char*>(address) - static_cast<const unsigned char*>(data_);
}

} // namespace vecmat::flat
