// A caller's array between guard cells, to show that nothing is written outside it.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <initializer_list>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/asan_interface.h>
#endif

namespace vecmat::test {

/// An array of plain values between guard bytes that are checked when it is destroyed. Under the address sanitizer the
/// guards may not be read either. A moved-from array may only be destroyed.
template <class T>
class Guarded
{
    static_assert(std::is_trivially_copyable_v<T>);

public:
    explicit Guarded(const std::vector<T>& values)
        : size_(values.size()), original_(values), block_(new unsigned char[blockBytes()])
    {
        std::fill_n(block_.get(), blockBytes(), guardPattern);
        if (size_ > 0)
            std::memcpy(data(), values.data(), size_ * sizeof(T));
        forbidGuards();
    }
    Guarded(std::initializer_list<T> values) : Guarded(std::vector<T>(values)) {}
    /// `size` cells of one value.
    Guarded(std::size_t size, T value) : Guarded(std::vector<T>(size, value)) {}

    Guarded(Guarded&& other) noexcept = default;
    Guarded& operator=(Guarded&&) = delete;

    ~Guarded()
    {
        if (block_ == nullptr)
            return;
        allowGuards();
        EXPECT_TRUE(guardIsWhole(0)) << "written before the start of an array of " << size_;
        EXPECT_TRUE(guardIsWhole(guardBytes + size_ * sizeof(T))) << "written past the end of an array of " << size_;
    }

    T* data() { return reinterpret_cast<T*>(block_.get() + guardBytes); }
    const T* data() const { return reinterpret_cast<const T*>(block_.get() + guardBytes); }
    operator T*() { return data(); }
    std::size_t size() const { return size_; }
    std::vector<T> values() const { return std::vector<T>(data(), data() + size_); }

    /// Whether every cell still has the bits it was made with.
    bool untouched() const { return size_ == 0 || std::memcmp(data(), original_.data(), size_ * sizeof(T)) == 0; }

private:
    static constexpr std::size_t guardBytes = 256;
    static constexpr unsigned char guardPattern = 0xA5;

    std::size_t blockBytes() const { return 2 * guardBytes + size_ * sizeof(T); }

    bool guardIsWhole(std::size_t offset) const
    {
        const unsigned char* const guard = block_.get() + offset;
        return std::all_of(guard, guard + guardBytes, [](unsigned char byte) { return byte == guardPattern; });
    }

#if defined(__SANITIZE_ADDRESS__)
    void forbidGuards()
    {
        __asan_poison_memory_region(block_.get(), guardBytes);
        __asan_poison_memory_region(block_.get() + guardBytes + size_ * sizeof(T), guardBytes);
    }
    void allowGuards()
    {
        __asan_unpoison_memory_region(block_.get(), blockBytes());
    }
#else
    void forbidGuards() {}
    void allowGuards() {}
#endif

    std::size_t size_;
    std::vector<T> original_;
    std::unique_ptr<unsigned char[]> block_;
};

} // namespace vecmat::test
