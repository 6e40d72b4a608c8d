// The functions that the library calls in its three companion libraries. It contains none of their code and links them
// dynamically, so that another build of a companion can replace the one in this repository.
#pragma once

#include <string>

extern "C" {

/// CompanionRandom: opens a series. Called once before the first draw.
void GetSeed(int* seed, int seedFlag);
/// The next uniform number of the series, at least 0 and below 1.
double Random01(void);
/// Closes a series, even one without draws, and stores the seed from which a later one continues.
void GetSeedUpdate(int* seedOut);

/// CompanionRuntime: the text of a 16-bit BSTR in 32-bit characters; valid up to the thread's next call.
const wchar_t* CW162W32(const void* bstr);
/// A new BSTR owned by the caller, even for an empty text.
wchar_t* SysAllocString2(const wchar_t* text);
/// Frees a BSTR that was never handed over. Another build of the companion may lack it, where weak references are known.
#ifndef _WIN32
[[gnu::weak]]
#endif
void SysFreeString2(wchar_t* bstr);
/// The number that the text spells; 0.0 if it does not start with a number.
#ifdef __MINGW32__ // whose C library has another of this name, declared as its own
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wattributes"
#endif
double _wtof(const wchar_t* text);
#ifdef __MINGW32__
#pragma GCC diagnostic pop
#endif

/// CompanionBasics: the square root, not the square.
double sqr(double x);
/// The magnitude of a with the sign of b; a zero b counts as positive.
double FSign(double a, double b);
/// -1 if x has no fractional part, otherwise 0.
short IsLong(double x);
double Log10(double x);
int Mod(int a, int b);

} // extern "C"

/// How many times c occurs in s, without overlap.
int cChrCount(const std::wstring& s, const std::wstring& c);
/// The part of s between two delimiters.
std::wstring cStrBetweenChrAndChr(const std::wstring& s, const std::wstring& left, const std::wstring& right);
/// The library's string for a caller's BSTR.
std::wstring convToWstring(const void* text);

namespace vecmat {

/// The companion's root, under a name that cannot be mistaken for a square.
inline double squareRoot(double x)
{
    return sqr(x);
}

/// Frees a text that the caller will never see; without the companion's help it stays allocated.
inline void discardText(wchar_t* bstr)
{
#ifndef _WIN32
    if (SysFreeString2 == nullptr)
        return;
#endif
    SysFreeString2(bstr);
}

} // namespace vecmat
