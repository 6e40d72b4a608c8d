// Whole numbers for sizes of arrays: they stop at a bound that no array reaches, and never wrap.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace vecmat::binding {

class Whole
{
public:
    static constexpr std::int64_t bound = std::int64_t{1} << 60;

    constexpr Whole(std::int64_t value) : value_(std::clamp(value, -bound, bound)) {}
    constexpr std::int64_t value() const { return value_; }
    constexpr explicit operator bool() const { return value_ != 0; }

    friend constexpr Whole operator+(Whole a, Whole b) { return a.value_ + b.value_; }
    friend constexpr Whole operator-(Whole a, Whole b) { return a.value_ - b.value_; }
    friend constexpr Whole operator*(Whole a, Whole b)
    {
        std::int64_t product = 0;
        if (__builtin_mul_overflow(a.value_, b.value_, &product))
            return (a.value_ < 0) == (b.value_ < 0) ? bound : -bound;
        return product;
    }
    // Towards zero, as in C; by zero there is nothing.
    friend constexpr Whole operator/(Whole a, Whole b) { return b.value_ == 0 ? 0 : a.value_ / b.value_; }
    friend constexpr Whole operator%(Whole a, Whole b) { return b.value_ == 0 ? 0 : a.value_ % b.value_; }
    friend constexpr Whole operator==(Whole a, Whole b) { return a.value_ == b.value_ ? 1 : 0; }
    friend constexpr Whole operator!=(Whole a, Whole b) { return a.value_ != b.value_ ? 1 : 0; }
    friend constexpr Whole operator<(Whole a, Whole b) { return a.value_ < b.value_ ? 1 : 0; }
    friend constexpr Whole operator>(Whole a, Whole b) { return a.value_ > b.value_ ? 1 : 0; }
    friend constexpr Whole operator<=(Whole a, Whole b) { return a.value_ <= b.value_ ? 1 : 0; }
    friend constexpr Whole operator>=(Whole a, Whole b) { return a.value_ >= b.value_ ? 1 : 0; }

private:
    std::int64_t value_;
};

// The functions that the expressions of arguments.tsv know.

constexpr Whole choose(Whole condition, Whole a, Whole b)
{
    return condition ? a : b;
}
constexpr Whole span(Whole first, Whole last)
{
    return std::max<std::int64_t>((last - first + 1).value(), 0);
}
constexpr Whole packed(Whole n)
{
    return n.value() > 0 ? n * (n + 1) / 2 : Whole(0);
}
template <class... More>
constexpr Whole largestOf(Whole first, More... more)
{
    return std::max({first.value(), Whole(more).value()...});
}
template <class... More>
constexpr Whole smallestOf(Whole first, More... more)
{
    return std::min({first.value(), Whole(more).value()...});
}

inline Whole largest(const int* cells, Whole n)
{
    int most = 0;
    for (std::int64_t i = 0; i < n.value(); ++i)
        most = std::max(most, cells[i]);
    return most;
}
inline Whole sum(const double* cells, Whole n)
{
    constexpr double missing = -0x1.fffffffffffe2p+1023;
    double total = 0.0;
    for (std::int64_t i = 0; i < n.value(); ++i)
        if (cells[i] != missing)
            total += cells[i];
    return total > -2147483649.0 && total < 2147483648.0 ? static_cast<std::int64_t>(total) : -2147483648LL;
}
inline Whole clampedSum(const double* cells, Whole n, Whole most)
{
    Whole total = 0;
    for (std::int64_t i = 0; i < n.value() && most.value() > 0; ++i)
        if (cells[i] >= 1.0)
            total = total + static_cast<std::int64_t>(std::min(std::floor(cells[i]), double(most.value())));
    return total;
}

} // namespace vecmat::binding
