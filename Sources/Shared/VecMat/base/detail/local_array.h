// Working memory for the length of a call.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>

namespace vecmat {

/// Numbers of a fixed count: few of them stand in the object itself, which takes no call for memory. What is not asked
/// to have a value has none. A failing allocation throws.
template <class Number>
class LocalArray
{
public:
    explicit LocalArray(std::size_t count) : many_(count > few ? new Number[count] : nullptr), count_(count) {}
    LocalArray(std::size_t count, Number value) : LocalArray(count) { std::fill_n(data(), count, value); }
    /// The other one must not be looked at any more.
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
    mutable Number few_[few]; // of a constant array, too, they are written
};

} // namespace vecmat
