#include "CompanionRuntime.h"

#include "../utf16.h"

#include <atomic>
#include <cstdint>
#include <cwchar>
#include <new>
#include <vector>

#ifdef _WIN32
// OLE Automation's own functions, declared here because its header would pull in those of the whole system.
extern "C" {
__declspec(dllimport) wchar_t* __stdcall SysAllocStringByteLen(const char* characters, unsigned int bytes);
__declspec(dllimport) void __stdcall SysFreeString(wchar_t* bstr);
}
#endif

namespace {

using LengthPrefix = std::uint32_t;

#ifdef _WIN32

wchar_t* allocateByPlatform(const char* characters, unsigned int bytes)
{
    return SysAllocStringByteLen(characters, bytes);
}

void releaseByPlatform(wchar_t* bstr)
{
    SysFreeString(bstr);
}

#else

wchar_t* allocateByPlatform(const char* characters, unsigned int bytes)
{
    const LengthPrefix length = bytes;
    char* const block = static_cast<char*>(::operator new(sizeof length + length + sizeof(char16_t)));
    char* const text = block + sizeof length;
    std::memcpy(block, &length, sizeof length);
    if (characters != nullptr)
        std::memcpy(text, characters, length);
    std::memset(text + length, 0, sizeof(char16_t));
    return reinterpret_cast<wchar_t*>(text);
}

void releaseByPlatform(wchar_t* bstr)
{
    ::operator delete(reinterpret_cast<char*>(bstr) - sizeof(LengthPrefix));
}

#endif

// A host sets both before anything else runs: it is enough that threads started later see them.
constinit std::atomic<BstrAllocate> allocateBstr{allocateByPlatform};
constinit std::atomic<BstrRelease> releaseBstr{releaseByPlatform};

constexpr char32_t lastCharacter = 0x10FFFF;
constexpr char32_t replacementCharacter = 0xFFFD;

/// Needs a second unit.
bool isBeyondOneUnit(char32_t character)
{
    return character > 0xFFFF && character <= lastCharacter;
}

std::size_t unitsOf(const wchar_t* text)
{
    std::size_t units = 0;
    for (; *text != L'\0'; ++text)
        units += isBeyondOneUnit(static_cast<char32_t>(*text)) ? 2 : 1;
    return units;
}

/// Writes bytes, just as they are read.
char* append(char16_t unit, char* to)
{
    std::memcpy(to, &unit, sizeof unit);
    return to + sizeof unit;
}

/// Writes the text with its NUL.
void writeUnits(const wchar_t* text, char* to)
{
    for (; *text != L'\0'; ++text) {
        const auto character = static_cast<char32_t>(*text);
        if (isBeyondOneUnit(character)) {
            to = append(static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10)), to);
            to = append(static_cast<char16_t>(0xDC00 + ((character - 0x10000) & 0x3FF)), to);
        } else {
            to = append(static_cast<char16_t>(character > lastCharacter ? replacementCharacter : character), to);
        }
    }
    append(u'\0', to);
}

/// Holds the text converted last, and what remains of an earlier, longer one. A separate function, so that the address
/// is looked up once per text: inlined, the compiler looks it up again at each use.
[[gnu::noinline]] std::vector<wchar_t>& lastConverted()
{
    thread_local std::vector<wchar_t> text;
    return text;
}

} // namespace

const wchar_t* CW162W32(const void* bstr)
{
    const std::size_t length = bstr != nullptr ? companions::lengthOf(bstr) : 0;
    std::vector<wchar_t>& text = lastConverted();
    if (text.size() <= length)
        text.resize(2 * length + 1);
    *companions::widen(bstr, length, text.data()) = L'\0';
    return text.data();
}

short SetBstrAllocator(BstrAllocate allocate, BstrRelease release)
{
    if ((allocate == nullptr) != (release == nullptr))
        return 0;
    allocateBstr = allocate != nullptr ? allocate : allocateByPlatform;
    releaseBstr = release != nullptr ? release : releaseByPlatform;
    return -1;
}

wchar_t* SysAllocString2(const wchar_t* text)
{
    if (text == nullptr)
        return nullptr;
    const auto bytes = static_cast<unsigned int>(unitsOf(text) * sizeof(char16_t));
    wchar_t* const bstr = allocateBstr.load()(nullptr, bytes);
    if (bstr == nullptr)
        throw std::bad_alloc();
    writeUnits(text, reinterpret_cast<char*>(bstr));
    return bstr;
}

void SysFreeString2(wchar_t* bstr)
{
    if (bstr != nullptr)
        releaseBstr.load()(bstr);
}
