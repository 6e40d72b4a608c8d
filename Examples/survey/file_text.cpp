#include "file_text.h"

#include "input_error.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <memory>
#include <utility>

namespace survey {

namespace {

struct CloseFile
{
    void operator()(std::FILE* file) const
    {
        if (file != stdin)
            std::fclose(file);
    }
};

struct CloseConverter
{
    void operator()(void* converter) const { iconv_close(converter); }
};

int lineAt(std::string_view text, std::size_t place)
{
    return 1 + static_cast<int>(std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(place), '\n'));
}

std::string converted(std::string& content, const std::string& encoding, const std::string& file)
{
    iconv_t const opened = iconv_open("UTF-8", encoding.c_str());
    if (reinterpret_cast<std::intptr_t>(opened) == -1)
        throw InputError({.file = file}, "the encoding " + quoted(encoding) + " is not known (iconv -l lists them)");
    const std::unique_ptr<void, CloseConverter> converter(opened);
    std::string result;
    char buffer[1 << 16];
    char* from = content.data();
    std::size_t left = content.size();
    while (left > 0) {
        char* to = buffer;
        std::size_t room = sizeof buffer;
        const std::size_t status = iconv(opened, &from, &left, &to, &room);
        result.append(buffer, sizeof buffer - room);
        if (status == static_cast<std::size_t>(-1) && errno != E2BIG)
            throw InputError({.file = file, .line = lineAt(result, result.size())},
                             "a character here is not in the encoding " + quoted(encoding));
    }
    return result;
}

/// The encoding that a byte order mark tells, or the zero bytes of UTF-16 without one; null for none.
const char* wideEncodingOf(std::string_view content)
{
    using namespace std::string_view_literals;
    if (content.starts_with("\xFF\xFE\0\0"sv) || content.starts_with("\0\0\xFE\xFF"sv))
        return "UTF-32";
    if (content.starts_with("\xFF\xFE"sv) || content.starts_with("\xFE\xFF"sv))
        return "UTF-16";
    const std::string_view start = content.substr(0, 200);
    if (start.size() < 4 || start.size() % 2 != 0)
        return nullptr;
    std::size_t zeros[2] = {0, 0};
    for (std::size_t i = 0; i < start.size(); ++i)
        zeros[i % 2] += start[i] == '\0' ? 1 : 0;
    if (zeros[0] == 0 && zeros[1] > start.size() / 4)
        return "UTF-16LE";
    return zeros[1] == 0 && zeros[0] > start.size() / 4 ? "UTF-16BE" : nullptr;
}

void refuseOtherFiles(std::string_view content, const std::string& file)
{
    using namespace std::string_view_literals;
    if (content.starts_with("PK\x03\x04"sv) || content.starts_with("\xD0\xCF\x11\xE0"sv))
        throw InputError({.file = file}, "this is a spreadsheet or an archive: save the table as CSV first");
    if (content.starts_with("\x1F\x8B"sv) || content.starts_with("BZh"sv) ||
        content.starts_with("\xFD"
                            "7zXZ"sv))
        throw InputError({.file = file},
                         "this is a compressed file: unpack it, or pass it on as in zcat FILE | survey -");
}

/// Continuation bytes that a lead byte asks for, and the least and the most that the first of them may be.
struct Lead
{
    std::size_t more;
    unsigned least;
    unsigned most;
};

/// None (more = 0) for a byte that begins no character.
Lead leadOf(unsigned byte)
{
    if (byte >= 0xC2 && byte < 0xE0)
        return {1, 0x80, 0xBF};
    if (byte >= 0xE0 && byte < 0xF0)
        return {2, byte == 0xE0 ? 0xA0U : 0x80U, byte == 0xED ? 0x9FU : 0xBFU}; // no surrogates
    if (byte >= 0xF0 && byte < 0xF5)
        return {3, byte == 0xF0 ? 0x90U : 0x80U, byte == 0xF4 ? 0x8FU : 0xBFU};
    return {0, 0, 0};
}

} // namespace

std::string fileContent(const std::string& path)
{
    const std::unique_ptr<std::FILE, CloseFile> file(path == "-" ? stdin : std::fopen(path.c_str(), "rb"));
    std::string content;
    if (file && std::fseek(file.get(), 0, SEEK_END) == 0) {
        const long size = std::ftell(file.get());
        std::rewind(file.get());
        if (size > 0 && size < std::numeric_limits<long>::max()) // which a directory has
            content.reserve(static_cast<std::size_t>(size));
    }
    const auto buffer = std::make_unique<std::array<char, 1 << 20>>();
    while (file) {
        const std::size_t count = std::fread(buffer->data(), 1, buffer->size(), file.get());
        content.append(buffer->data(), count);
        if (count < buffer->size())
            break;
    }
    if (!file || std::ferror(file.get()))
        throw InputError({.file = path}, std::strerror(errno));
    return content;
}

FileText textOf(std::string content, const std::string& file, const std::optional<std::string>& encoding)
{
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    FileText result;
    refuseOtherFiles(content, file);
    if (encoding) {
        result.text = converted(content, *encoding, file);
    } else if (const char* const wide = wideEncodingOf(content)) {
        result.text = converted(content, wide, file);
        result.remark = std::string("The file is in ") + wide + ".";
    } else {
        result.text = std::move(content);
    }
    if (result.text.starts_with(byteOrderMark))
        result.text.erase(0, byteOrderMark.size());
    if (const std::size_t zero = result.text.find('\0'); zero != std::string::npos)
        throw InputError({.file = file, .line = lineAt(result.text, zero)},
                         "a zero byte stands here: this is no text, or in an encoding to be named by --encoding");
    if (const std::size_t place = firstInvalid(result.text); place < result.text.size()) {
        const int line = lineAt(result.text, place);
        // Five bytes of Windows-1252 have no character; Latin-1 has one for each.
        const bool isWindows = result.text.find_first_of("\x81\x8D\x8F\x90\x9D") == std::string::npos;
        result.text = converted(result.text, isWindows ? "WINDOWS-1252" : "LATIN1", file);
        result.remark = std::string("The file is not in UTF-8 (line ") + std::to_string(line) + ") and was read as " +
                        (isWindows ? "Windows-1252" : "Latin-1") + "; --encoding names another one.";
    }
    return result;
}

std::size_t firstInvalid(std::string_view text)
{
    const auto byteAt = [&](std::size_t place) {
        return static_cast<unsigned>(static_cast<unsigned char>(text[place]));
    };
    std::size_t i = 0;
    while (i < text.size()) {
        for (std::uint64_t eight = 0; i + 8 <= text.size(); i += 8) { // most texts are all ASCII
            std::memcpy(&eight, text.data() + i, 8);
            if ((eight & 0x8080808080808080U) != 0)
                break;
        }
        while (i < text.size() && byteAt(i) < 0x80)
            ++i;
        if (i == text.size())
            break;
        const auto [more, least, most] = leadOf(byteAt(i));
        if (more == 0 || i + more >= text.size() || byteAt(i + 1) < least || byteAt(i + 1) > most)
            return i;
        for (std::size_t k = 2; k <= more; ++k)
            if ((byteAt(i + k) & 0xC0U) != 0x80U)
                return i;
        i += more + 1;
    }
    return text.size();
}

} // namespace survey
