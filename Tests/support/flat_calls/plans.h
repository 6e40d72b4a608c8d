// What the arguments of one call are to be like: a few numbers from which all of them follow.
#pragma once

#include "support/flat_calls/bytes.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace vecmat::flat {

/// How large an input is. A name in arguments.tsv that counts cells, rows or columns takes one of these.
struct Size
{
    int count = 3;
    int rows = 3;
    int columns = 3;
    bool mixed = false; // each dimension one of its own, from 0 to the number above
};

/// What the cells of data are like.
enum class Style {
    plain,
    gaps,
    ties,
    constant,
    special,
    digits, // all digits of a double: a sum depends on its order
    any,    // any bits, characters and options
};

inline constexpr std::size_t noArgument = static_cast<std::size_t>(-1);

struct Plan
{
    Size size;
    std::uint64_t seed = 1;
    Style style = Style::plain;
    int textRepeats = 1;              // each text is so many times what it would be
    bool outside = false;             // positions and codes leave their range now and then
    std::size_t null = noArgument;    // a null pointer here, if it may stand
    std::size_t altered = noArgument; // other contents here, and nowhere else
    Bytes* bytes = nullptr;           // what is read comes from here, as far as it goes, and then from the seed
    long long mostCells = 4'000'000;  // an array of more is refused with std::length_error
};

/// For a report: "count 7, rows 7, columns 2, seed 3, gaps".
std::string textOf(const Plan& plan);

} // namespace vecmat::flat
