// Memory for the intermediate results of a kernel.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <new>
#include <utility>

namespace vecmat {

/// Uninitialised doubles, aligned for the widest vectors. Empty if allocation fails: the caller then takes the path
/// that needs no scratch memory, with the same result.
class Scratch
{
public:
    explicit Scratch(std::size_t count)
    {
        // Aligned here: plain allocation is much faster than aligned allocation.
        if (count <= std::numeric_limits<std::size_t>::max() / (2 * sizeof(double)) - alignment)
            block_ = ::operator new(count * sizeof(double) + alignment, std::nothrow);
        if (block_ != nullptr) {
            const std::size_t beyond = reinterpret_cast<std::uintptr_t>(block_) % alignment;
            first_ = reinterpret_cast<double*>(static_cast<char*>(block_) + (alignment - beyond));
        }
    }
    ~Scratch()
    {
        // The analyzer destroys the contents of an optional a second time, with the optional's storage.
        ::operator delete(block_); // NOLINT(clang-analyzer-cplusplus.NewDelete)
    }
    Scratch(Scratch&& other) noexcept
        : block_(std::exchange(other.block_, nullptr)), first_(std::exchange(other.first_, nullptr))
    {
    }
    Scratch& operator=(Scratch&&) = delete;
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    explicit operator bool() const { return first_ != nullptr; }
    double* data() const { return first_; }

private:
    static constexpr std::size_t alignment = 64;

    void* block_ = nullptr;
    double* first_ = nullptr;
};

} // namespace vecmat
