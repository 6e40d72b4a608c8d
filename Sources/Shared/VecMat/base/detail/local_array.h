// Working memory for the duration of a call.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <memory>
#include <type_traits>
#include <utility>

namespace vecmat {

/// Room for a few elements.
#ifdef __SANITIZE_ADDRESS__
// On the heap, at the exact size, where the sanitizer sees a step outside. Not by `new`, whose calls tests count.
template <class Number>
class FewElements
{
public:
    explicit FewElements(std::size_t count) : first_(static_cast<Number*>(std::malloc(count * sizeof(Number)))) {}

    Number* data() const { return first_.get(); }

private:
    static_assert(std::is_trivially_default_constructible_v<Number>);

    struct Free
    {
        void operator()(Number* block) const { std::free(block); }
    };

    std::unique_ptr<Number, Free> first_;
};
#else
template <class Number>
class FewElements
{
public:
    explicit FewElements(std::size_t) {}

    Number* data() const { return elements_; }

private:
    mutable Number elements_[32]; // writable in a constant array, too
};
#endif

/// A fixed number of elements: a few are stored in the object itself, which needs no allocation. Elements are
/// uninitialised unless a value is given. Throws if allocation fails.
template <class Number>
class LocalArray
{
public:
    explicit LocalArray(std::size_t count)
        : many_(count > few ? new Number[count] : nullptr), count_(count), few_(count > few ? 0 : count)
    {
    }
    LocalArray(std::size_t count, Number value) : LocalArray(count) { std::fill_n(data(), count, value); }
    /// `other` is left unusable.
    LocalArray(LocalArray&& other) noexcept
        : many_(std::move(other.many_)), count_(other.count_), few_(many_ != nullptr ? 0 : count_)
    {
        if (many_ == nullptr)
            std::copy_n(other.few_.data(), count_, few_.data());
    }
    LocalArray& operator=(LocalArray&&) = delete;

    std::size_t size() const { return count_; }
    Number* data() { return many_ != nullptr ? many_.get() : few_.data(); }
    const Number* data() const { return many_ != nullptr ? many_.get() : few_.data(); }
    Number& operator[](std::size_t i) { return data()[i]; }
    const Number& operator[](std::size_t i) const { return data()[i]; }

private:
    static constexpr std::size_t few = 32;

    std::unique_ptr<Number[]> many_;
    std::size_t count_;
    FewElements<Number> few_;
};

} // namespace vecmat
