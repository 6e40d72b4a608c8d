// The survey on a terminal.
#pragma once

#include "document.h"

#include <cstddef>
#include <iosfwd>

namespace survey {

inline constexpr std::size_t lineWidth = 100;

/// The names at the head of a document where it has a title, and its sections.
void print(std::ostream& out, const Document& document);
void print(std::ostream& out, const Section& section);

} // namespace survey
