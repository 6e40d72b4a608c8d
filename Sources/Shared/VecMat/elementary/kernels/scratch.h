// Memory for the intermediate results of a kernel.
#pragma once

#include <cstddef>
#include <limits>
#include <new>
#include <utility>

namespace vecmat {

/// Doubles without a value, aligned for the widest vectors. Where memory is short it holds none: the caller then takes
/// the way that needs no scratch, and the result is the same.
class Scratch
{
public:
    explicit Scratch(std::size_t count)
    {
        if (count <= std::numeric_limits<std::size_t>::max() / (2 * sizeof(double)))
            first_ = static_cast<double*>(::operator new(count * sizeof(double), alignment, std::nothrow));
    }
    ~Scratch()
    {
        // The analyzer destroys what an optional held a second time, with the optional's storage.
        ::operator delete(first_, alignment); // NOLINT(clang-analyzer-cplusplus.NewDelete)
    }
    Scratch(Scratch&& other) noexcept : first_(std::exchange(other.first_, nullptr)) {}
    Scratch& operator=(Scratch&&) = delete;
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    explicit operator bool() const { return first_ != nullptr; }
    double* data() const { return first_; }

private:
    static constexpr std::align_val_t alignment{64};

    double* first_ = nullptr;
};

} // namespace vecmat
