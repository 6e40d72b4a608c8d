#include "string_arrays.h"

#include "utf8.h"

#include <CompanionRuntime/CompanionRuntime.h>

#include <cstring>
#include <functional>
#include <memory>

namespace vecmat::r {

namespace {

constexpr std::size_t lengthBytes = 8; // 4 of them the length; the text that follows begins at a multiple of 4

struct Release
{
    void operator()(wchar_t* bstr) const { SysFreeString2(bstr); }
};

// The string in UTF-8, whatever encoding R holds it in. R's own memory, which lives until R's call is done.
const char* utf8Of(SEXP string)
{
    const cetype_t encoding = Rf_getCharCE(string);
    if (encoding == CE_UTF8)
        return CHAR(string);
    const char* text = nullptr;
    guarded([&] {
        text = Rf_translateCharUTF8(string);
        return R_NilValue;
    });
    return text;
}

// Appends one text, length first, and says where it begins.
std::size_t append(std::vector<char>& memory, SEXP string)
{
    const std::u16string text = toUtf16(utf8Of(string));
    const std::size_t bytes = text.size() * sizeof(char16_t);
    const std::size_t begin = memory.size() + lengthBytes;
    memory.resize((begin + bytes + 2 + 7) / 8 * 8);
    const auto length = static_cast<std::uint32_t>(bytes);
    std::memcpy(memory.data() + begin - 4, &length, 4);
    std::memcpy(memory.data() + begin, text.data(), bytes);
    return begin;
}

std::string utf8Text(const wchar_t* bstr)
{
    if (!bstr)
        return {};
    std::uint32_t bytes = 0;
    std::memcpy(&bytes, reinterpret_cast<const char*>(bstr) - 4, 4);
    std::u16string text(bytes / sizeof(char16_t), u'\0');
    std::memcpy(text.data(), bstr, text.size() * sizeof(char16_t));
    return toUtf8(text);
}

SEXP stringOf(const std::string& text)
{
    return Rf_mkCharLenCE(text.data(), static_cast<int>(text.size()), CE_UTF8);
}

} // namespace

StringArray::StringArray(Call& call, const Wanted& wanted, SEXP given)
{
    const Parameter& parameter = wanted.parameter;
    const char* const which = wanted.which.c_str();
    const std::int64_t cells = wanted.cells();
    if (given == R_NilValue) {
        if (cells > (std::int64_t{1} << 40))
            call.fail(parameter, "%lld strings are more than fit in memory", static_cast<long long>(cells));
        given = call.keep(guarded([&] { return Rf_allocVector(STRSXP, cells); }));
        object_ = given;
    }
    if (TYPEOF(given) != STRSXP)
        call.fail(parameter, "%sexpected a character vector, got %s", which, described(given).c_str());
    if (parameter.atLeast ? XLENGTH(given) < cells : XLENGTH(given) != cells)
        call.fail(parameter, "%sexpected %s%lld strings (%s), got %lld", which, parameter.atLeast ? "at least " : "",
                  static_cast<long long>(cells), parameter.shape, static_cast<long long>(XLENGTH(given)));
    takeIn(given);
    if (parameter.isHandedBack() && object_ == R_NilValue)
        object_ = call.keep(guarded([&] { return Rf_shallow_duplicate(given); }));
}

// NA is a null pointer, which the library takes for an empty string.
void StringArray::takeIn(SEXP given)
{
    constexpr std::size_t none = ~std::size_t{0};
    std::vector<std::size_t> begins(static_cast<std::size_t>(XLENGTH(given)), none);
    for (std::size_t i = 0; i < begins.size(); ++i) {
        SEXP string = STRING_ELT(given, static_cast<R_xlen_t>(i));
        if (string != NA_STRING)
            begins[i] = append(memory_, string);
    }
    pointers_.resize(begins.size());
    for (std::size_t i = 0; i < pointers_.size(); ++i)
        pointers_[i] = begins[i] == none ? nullptr : reinterpret_cast<wchar_t*>(memory_.data() + begins[i]);
}

StringArray::~StringArray()
{
    for (wchar_t* text : pointers_)
        if (text && !isOwn(text))
            SysFreeString2(text);
}

bool StringArray::isOwn(const wchar_t* text) const
{
    const auto* address = reinterpret_cast<const char*>(text);
    return !std::less<>{}(address, memory_.data()) && std::less<>{}(address, memory_.data() + memory_.size());
}

void StringArray::handBack() const
{
    if (object_ == R_NilValue)
        return;
    for (std::size_t i = 0; i < pointers_.size(); ++i) {
        const std::string text = utf8Text(pointers_[i]);
        guarded([&] {
            SET_STRING_ELT(object_, static_cast<R_xlen_t>(i), stringOf(text));
            return R_NilValue;
        });
    }
}

std::vector<char> lengthPrefixed(SEXP string)
{
    std::vector<char> memory;
    append(memory, string);
    return memory;
}

wchar_t* textOf(std::vector<char>& lengthPrefixedString)
{
    return reinterpret_cast<wchar_t*>(lengthPrefixedString.data() + lengthBytes);
}

const wchar_t* wideText(Call& call, SEXP given)
{
    const std::wstring text = toWide(utf8Of(STRING_ELT(given, 0)));
    auto* wide = static_cast<wchar_t*>(call.hold((text.size() + 1) * sizeof(wchar_t)));
    std::memcpy(wide, text.c_str(), (text.size() + 1) * sizeof(wchar_t));
    return wide;
}

SEXP takenText(wchar_t* bstr)
{
    const std::unique_ptr<wchar_t, Release> owned(bstr);
    const std::string text = utf8Text(bstr);
    return guarded([&] {
        SEXP string = PROTECT(stringOf(text));
        SEXP vector = Rf_ScalarString(string);
        UNPROTECT(1);
        return vector;
    });
}

} // namespace vecmat::r
