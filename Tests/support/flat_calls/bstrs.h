// An array of BSTRs in the memory of a call.
#pragma once

#include "support/flat_calls/memory.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace vecmat::flat {

using Text = std::optional<std::wstring>; // nothing: a null pointer

/// The text of a BSTR, which may be null.
Text textOf(const wchar_t* bstr);

/// Bytes of a BSTR: the length, 16-bit characters, a 0. The pointer that is passed stands 4 bytes behind the first.
std::vector<unsigned char> bstrBytes(const std::wstring& text);

/// Pointers to the texts in one block, the texts in another that is read-only. Strings that the library has put there
/// are freed at the end.
class Bstrs
{
public:
    Bstrs(const std::vector<Text>& texts, Placement placement, const std::string& label);
    Bstrs(Bstrs&&) noexcept = default;
    Bstrs& operator=(Bstrs&& other) noexcept; // the two change places
    ~Bstrs();

    wchar_t** data() const { return pointers_.as<wchar_t*>(); }
    std::size_t size() const { return count_; }
    std::vector<Text> texts() const;
    void forbidWriting() { pointers_.forbidWriting(); }

    const Block& pointers() const { return pointers_; }
    const Block& characters() const { return characters_; }

private:
    std::size_t count_;
    Block pointers_;
    Block characters_;
};

} // namespace vecmat::flat
