#include "judged.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

namespace vecmat::bench {

namespace {

bool haveSameBits(const Cells& left, const Cells& right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), [](double a, double b) {
        return (std::isnan(a) && std::isnan(b)) || std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
    });
}

/// The largest difference in units of the largest number; infinite if the shapes differ or a number is NaN.
double deviation(const Cells& expected, const Cells& actual)
{
    if (expected.size() != actual.size())
        return std::numeric_limits<double>::infinity();
    double largest = 0.0;
    double difference = 0.0;
    for (std::size_t k = 0; k < expected.size(); ++k) {
        if (expected[k] == actual[k])
            continue;
        const double apart = std::fabs(expected[k] - actual[k]);
        if (std::isnan(apart))
            return std::numeric_limits<double>::infinity();
        difference = std::max(difference, apart);
    }
    for (const double cell : expected)
        if (cell != M)
            largest = std::max(largest, std::fabs(cell));
    return difference == 0.0 ? 0.0 : difference / largest;
}

} // namespace

Judged::Judged(const Entry& entry, int size, const Choice& chosen) : stage_(entry.stage(size))
{
    const auto& contenders = contest().contenders();
    const Cells expected = contest().resultOf(contenders.front());
    for (const Contender& contender : contenders) {
        Verdict verdict;
        const bool exact = contender.tolerance == sameBits;
        if (exact || chosen(contender, verdicts_.size()))
            verdict = judged(contender, expected);
        // If the library and the plain loop differ, either may be wrong.
        if (exact && !verdict.error.empty() && !verdicts_.empty())
            verdicts_.front().error = verdict.error + " (" + contender.name + ")";
        verdicts_.push_back(verdict);
    }
}

Judged::Verdict Judged::judged(const Contender& contender, const Cells& expected) const
{
    const Cells actual = contest().resultOf(contender);
    Verdict verdict{deviation(expected, actual), {}};
    if (contender.tolerance == sameBits && !haveSameBits(expected, actual))
        verdict.error = "other bits";
    else if (contender.tolerance > sameBits && !(verdict.deviation <= contender.tolerance))
        verdict.error = "deviates by " + std::to_string(verdict.deviation);
    return verdict;
}

} // namespace vecmat::bench
