// R's strings have 8-bit units, the library's have 16 or are wide.
#pragma once

#include <string>
#include <string_view>

namespace vecmat::r {

// Bytes that are no UTF-8 become U+FFFD, the replacement character, one for each.
std::u16string toUtf16(std::string_view text);
std::wstring toWide(std::string_view text);

// A surrogate without its partner becomes U+FFFD.
std::string toUtf8(std::u16string_view text);

} // namespace vecmat::r
