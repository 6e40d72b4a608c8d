// Strings as a macro caller has them: BSTRs, 16-bit characters after their length.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace vecmat::test {

/// The text of a BSTR, read by its length. Fails the test where the length is odd or no NUL follows the text. Null is
/// the empty text.
std::wstring textOf(const void* bstr);

/// The text of a BSTR that the library made and handed over: the string is freed.
std::wstring takenText(wchar_t* bstr);

/// A BSTR of the caller's own, never made or freed by the library.
class CallersText
{
public:
    explicit CallersText(const std::wstring& text);
    wchar_t* get() const;
    operator wchar_t*() const { return get(); }

private:
    std::unique_ptr<unsigned char[]> block_;
};

/// A caller's array of BSTRs, as `wchar_t**`. It keeps the strings it was made with and frees those that the library
/// has put in their place. Call `takeTexts` between two calls that write into the same array: the library never frees
/// what it overwrites.
class BstrArray
{
public:
    explicit BstrArray(const std::vector<std::wstring>& texts);
    /// `count` null pointers.
    explicit BstrArray(std::size_t count) : cells_(count, nullptr), own_(count, nullptr) {}
    BstrArray(BstrArray&&) noexcept = default;
    BstrArray& operator=(BstrArray&&) = delete;
    ~BstrArray();

    operator wchar_t**() { return cells_.data(); }
    wchar_t** get() { return cells_.data(); }
    std::size_t size() const { return cells_.size(); }

    void setNull(std::size_t position) { cells_.at(position) = nullptr; }

    std::vector<std::wstring> texts() const;
    std::wstring text(std::size_t position) const { return textOf(cells_.at(position)); }

    /// Whether the place holds a string that the library made, and in how many places it does.
    bool isNew(std::size_t position) const;
    std::size_t countNew() const;

    /// The texts; then the library's strings are freed, and the array holds what it was made with.
    std::vector<std::wstring> takeTexts();

private:
    std::vector<wchar_t*> cells_;
    std::vector<wchar_t*> own_;
    std::vector<CallersText> storage_;
};

} // namespace vecmat::test
