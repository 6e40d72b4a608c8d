// Strings on their way through the border: 16-bit characters behind a length, as the library expects them.
#pragma once

#include "call.h"

namespace vecmat::r {

// An array of strings. What the library has stored is freed with it.
class StringArray
{
public:
    StringArray(Call& call, const Wanted& wanted, SEXP given);
    ~StringArray();
    StringArray(const StringArray&) = delete;
    StringArray& operator=(const StringArray&) = delete;

    wchar_t** pointers() { return pointers_.empty() ? reinterpret_cast<wchar_t**>(noCells) : pointers_.data(); }
    // The character vector that is handed back; R_NilValue where the call only reads.
    SEXP object() const { return object_; }
    // Puts the strings as they are now into that vector.
    void handBack() const;

private:
    void takeIn(SEXP given);
    bool isOwn(const wchar_t* text) const;

    SEXP object_ = R_NilValue;
    std::vector<char> memory_; // all strings that came in, one after the other
    std::vector<wchar_t*> pointers_;
};

// One string behind its length; what comes before the length makes the address even.
std::vector<char> lengthPrefixed(SEXP string);
wchar_t* textOf(std::vector<char>& lengthPrefixedString);

// A single string in wide characters, which live until the call is done.
const wchar_t* wideText(Call& call, SEXP given);

// The text of a string that the library made; frees it.
SEXP takenText(wchar_t* bstr);

} // namespace vecmat::r
