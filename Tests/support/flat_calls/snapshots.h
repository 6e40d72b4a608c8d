// What the arguments of a call hold: to compare, to hash, and to write down for other programs.
#pragma once

#include "support/flat_calls/arguments.h"

#include <cstdint>
#include <iosfwd>
#include <vector>

namespace vecmat::flat {

/// The cells of one array, column after column.
struct Cells
{
    Type type = Type::nothing;        // numbers, integers, flags or strings
    std::vector<unsigned char> bytes; // of numbers
    std::vector<Text> texts;          // of strings
    std::vector<std::size_t> lengths; // of the columns of an array of columns, or of the whole array

    std::size_t size() const;
    /// Whether cell k is the same in both, bit for bit. A null string is the empty one.
    bool sameAt(const Cells& other, std::size_t k) const;
    bool operator==(const Cells& other) const;
};

std::size_t cellBytes(Type type);

/// What one argument holds now; nothing for a number, a single string and a null pointer.
Cells cellsOf(const Arguments& arguments, std::size_t argument);

/// The cells of all arguments.
std::vector<Cells> snapshotOf(const Arguments& arguments);

/// A digest of what the call has returned and written. Every NaN counts as the same number: its bits are nobody's.
std::uint64_t digestOf(const Arguments& arguments, const Result& result);
std::uint64_t digestOf(const Cells& cells, std::uint64_t start = 0xCBF29CE484222325u);

/// Writes a call down as one line of JSON, with what its arguments held before and after it. Doubles stand as the 16
/// hexadecimal digits of their bits, all cells of a column in one string; ints and flags are lists of numbers, strings
/// lists of strings or nulls. An array of columns is a list of columns; every other array is one. Example:
///
///     {"call": "VB_V_Sum2Dbl", "arguments": [{"name": "x", "before": "3ff0...", "after": "3ff0..."},
///      {"name": "n", "value": 2}], "returns": "4008000000000000"}
void writeCall(std::ostream& out, const Arguments& arguments, const std::vector<Cells>& before, const Result& result);

} // namespace vecmat::flat
