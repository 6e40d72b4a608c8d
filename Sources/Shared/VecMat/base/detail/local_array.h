// Working memory for the duration of a call.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>

namespace vecmat {

/// A fixed number of elements: a few are stored in the object itself, which needs no allocation. Elements are
/// uninitialised unless a value is given. Throws if allocation fails.
template <class Number>
class LocalArray
{
public:
    explicit LocalArray(std::size_t count) : many_(count > few ? new Number[count] : nullptr), count_(count) {}
    LocalArray(std::size_t count, Number value) : LocalArray(count) { std::fill_n(data(), count, value); }
    /// `other` is left unusable.
    LocalArray(LocalArray&& other) noexcept : many_(std::move(other.many_)), count_(other.count_)
    {
        if (many_ == nullptr)
            std::copy_n(other.few_, count_, few_);
    }
    LocalArray& operator=(LocalArray&&) = delete;

    std::size_t size() const { return count_; }
    Number* data() { return many_ != nullptr ? many_.get() : few_; }
    const Number* data() const { return many_ != nullptr ? many_.get() : few_; }
    Number& operator[](std::size_t i) { return data()[i]; }
    const Number& operator[](std::size_t i) const { return data()[i]; }

private:
    static constexpr std::size_t few = 32;

    std::unique_ptr<Number[]> many_;
    std::size_t count_;
    mutable Number few_[few]; // writable in a constant array, too
};

} // namespace vecmat
