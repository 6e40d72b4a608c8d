// The text of a file, in UTF-8 whatever encoding it has.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace survey {

/// The bytes of a file, of standard input for "-"; an InputError if it can't be read.
std::string fileContent(const std::string& path);

struct FileText
{
    std::string text;
    std::string remark; ///< on an encoding that was guessed; empty for UTF-8
};

/// The content as UTF-8 without a byte order mark. Where no encoding is named (by a name that iconv knows), UTF-16 and
/// UTF-32 are known from a byte order mark, UTF-16 also from its zero bytes, and what isn't UTF-8 is taken for
/// Windows-1252, the Latin-1 of most programs. An InputError tells about a spreadsheet or compressed file, about zero
/// bytes, and about what isn't in the encoding named.
FileText textOf(std::string content, const std::string& file, const std::optional<std::string>& encoding);

/// The first byte that is no part of a character in UTF-8; the size of the text where all are.
std::size_t firstInvalid(std::string_view text);

} // namespace survey
