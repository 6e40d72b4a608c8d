// Strings on their way through the border: 16-bit characters behind a length, as the library expects them.
#pragma once

#include "call.h"

#include <string>
#include <vector>

namespace vecmat::python {

// An array of strings. What the library has stored is freed with it.
class StringArray
{
public:
    StringArray(const Call& call, const Parameter& parameter, PyObject* given, std::int64_t cells, const char* which);
    ~StringArray();
    StringArray(const StringArray&) = delete;
    StringArray& operator=(const StringArray&) = delete;

    wchar_t** pointers() { return pointers_.empty() ? reinterpret_cast<wchar_t**>(noCells) : pointers_.data(); }
    std::int64_t count() const { return static_cast<std::int64_t>(pointers_.size()); }
    // Puts the strings as they are now into the caller's list; false with Python's error set.
    bool handBack() const;

private:
    bool isOwn(const wchar_t* text) const;

    PyObject* list_ = nullptr; // the caller's, where it is to be written
    std::vector<char> memory_; // all strings that came in, one after the other
    std::vector<wchar_t*> pointers_;
};

// One string behind its length; what comes before the length makes the address even.
std::vector<char> lengthPrefixed(const Call& call, const Parameter& parameter, PyObject* given);
wchar_t* textOf(std::vector<char>& lengthPrefixedString);

// The text of a string that the library made; frees it.
PyObject* takenText(wchar_t* bstr);

} // namespace vecmat::python
