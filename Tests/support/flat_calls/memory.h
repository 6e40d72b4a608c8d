// Memory for the arrays of a call, with pages around it that must not be touched.
#pragma once

#include <cstddef>
#include <string>

namespace vecmat::flat {

enum class Placement {
    plain,       // as the allocator gives it
    beforeGuard, // the last byte lies before an unreadable page
    behindGuard, // the first byte lies behind one
};

/// A run of bytes, cleared. The guard pages of a block take the place of neighbours: a stray read there ends in SIGSEGV.
class Block
{
public:
    /// `label` says in a report whose memory this is.
    Block(std::size_t bytes, Placement placement, std::string label);
    Block(Block&& other) noexcept;
    Block& operator=(Block&& other) noexcept; // the two change places
    ~Block();

    void* data() const { return data_; }
    template <class T>
    T* as() const
    {
        return static_cast<T*>(data_);
    }
    std::size_t size() const { return size_; }
    const std::string& label() const { return label_; }

    /// Makes the block read-only. A plain one stays as it is.
    void forbidWriting();

    /// Whether the address lies in the block or in a guard page of it.
    bool isNear(const void* address) const;
    /// The offset of an address from the first byte, which may be below 0 or beyond the end.
    std::ptrdiff_t offsetOf(const void* address) const;

private:
    std::size_t size_;
    std::string label_;
    unsigned char* mapped_ = nullptr; // null where the memory is plain
    std::size_t mappedBytes_ = 0;
    void* data_ = nullptr;
};

} // namespace vecmat::flat
