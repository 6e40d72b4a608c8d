#include "support/flat_calls/anything.h"

#include <cstdint>
#include <iterator>
#include <limits>

namespace vecmat::flat {

namespace {

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();

double limit(Steps& steps)
{
    using limits = std::numeric_limits<double>;
    constexpr double missing = -0x1.fffffffffffe2p+1023;
    constexpr double numbers[] = {0.0,
                                  -0.0,
                                  limits::infinity(),
                                  -limits::infinity(),
                                  limits::quiet_NaN(),
                                  missing,
                                  -missing,
                                  limits::max(),
                                  limits::lowest(),
                                  limits::denorm_min(),
                                  -limits::min(),
                                  0x1p31,
                                  -0x1p31,
                                  0x1p32,
                                  0x1p63,
                                  -0x1.8p63,
                                  0x1p-1022,
                                  1e-12,
                                  0x1.fffffffffffffp-2};
    return numbers[steps.below(std::size(numbers))];
}

wchar_t anyCharacter(Steps& steps)
{
    constexpr wchar_t ofAddresses[] = L"'!$:,AZaz09 .-";
    switch (steps.below(8)) {
    case 0:
        return static_cast<wchar_t>(steps.below(0x10000)); // surrogates among them, alone or not
    case 1:
        return static_cast<wchar_t>(0xD800 + steps.below(0x800));
    case 2:
        return static_cast<wchar_t>(0x10000 + steps.below(0x100000));
    case 3:
        return static_cast<wchar_t>(steps.below(0x80));
    default:
        return ofAddresses[steps.below(std::size(ofAddresses))]; // with its NUL
    }
}

} // namespace

double anyNumber(Steps& steps)
{
    switch (steps.below(8)) {
    case 0:
        return __builtin_bit_cast(double, steps.next()); // as not every standard library has std::bit_cast
    case 1:
    case 2:
        return limit(steps);
    case 3:
        return steps.between(-3, 3);
    default:
        return steps.between(-128, 127) / 8.0;
    }
}

int anyInteger(Steps& steps)
{
    switch (steps.below(8)) {
    case 0:
        return static_cast<int>(static_cast<std::uint32_t>(steps.next()));
    case 1: {
        constexpr int limits[] = {lowest, lowest + 1, highest, highest - 1, 0x8000, -0x8001, 0x10000, 0x40000000};
        return limits[steps.below(std::size(limits))];
    }
    default:
        return steps.between(-9, 9);
    }
}

std::wstring anyText(Steps& steps)
{
    std::wstring text;
    for (std::uint64_t left = steps.below(12); left > 0; --left)
        text += anyCharacter(steps);
    if (steps.onceIn(16))
        text += std::wstring(steps.below(1000), anyCharacter(steps));
    return text;
}

int strangerTo(Steps& steps, int first, int last)
{
    const int strangers[] = {0,
                             -1,
                             -7,
                             first > lowest ? first - 1 : first,
                             last < highest ? last + 1 : last,
                             lowest,
                             highest,
                             anyInteger(steps)};
    return strangers[steps.below(std::size(strangers))];
}

} // namespace vecmat::flat
