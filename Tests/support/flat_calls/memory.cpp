#include "support/flat_calls/memory.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <new>
#include <utility>

namespace vecmat::flat {

namespace {

std::size_t pageBytes()
{
    static const auto bytes = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    return bytes;
}

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
    void* const mapped = mmap(nullptr, mappedBytes_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (mapped == MAP_FAILED)
        throw std::bad_alloc();
    mapped_ = static_cast<unsigned char*>(mapped);
    if (inside > 0 && mprotect(mapped_ + page, inside, PROT_READ | PROT_WRITE) != 0)
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
        munmap(mapped_, mappedBytes_);
    else
        std::free(data_);
}

void Block::forbidWriting()
{
    const std::size_t page = pageBytes();
    if (mapped_ != nullptr && mappedBytes_ > 2 * page)
        mprotect(mapped_ + page, mappedBytes_ - 2 * page, PROT_READ);
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
