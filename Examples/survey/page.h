// What every section of the output is laid out with.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <vector>

namespace survey {

inline constexpr std::size_t lineWidth = 100;

/// More groups, categories or columns than these are counted and not listed one by one.
inline constexpr std::size_t mostListed = 50;

void printTitle(std::ostream& out, const std::string& title);

/// A note below what it explains, which ends the section.
void printNote(std::ostream& out, const std::string& note);

/// "1 row", "2 rows".
std::string counted(std::size_t count, const std::string& thing);

/// A name as it stands in a list.
std::string listed(const std::string& name);

/// The items behind a label, with commas between them; nothing where there are none.
void printList(std::ostream& out, const std::string& label, std::vector<std::string> items);

} // namespace survey
