// CompanionBasics: small functions on numbers and texts.
//
// Every library with these functions can take this one's place. The functions of numbers have plain names, those of
// texts decorated ones.
#pragma once

#include <string>

#if !defined(_WIN32)
#define COMPANION_BASICS_API __attribute__((visibility("default")))
#elif defined(CompanionBasics_EXPORTS)
#define COMPANION_BASICS_API __declspec(dllexport)
#else
#define COMPANION_BASICS_API __declspec(dllimport)
#endif

extern "C" {

/// The square ROOT of x, correctly rounded, not its square. NaN for x below 0; -0.0 for -0.0.
COMPANION_BASICS_API double sqr(double x);

/// The absolute value of a with the sign of b: |a| where b >= 0.0, else -|a|. A zero b counts as positive whichever its
/// sign (unlike std::copysign), and a NaN b as negative.
COMPANION_BASICS_API double FSign(double a, double b);

/// Whether x is a whole number: -1 where it has no fractional part, however large it is (the missing value included),
/// else 0. 0 for infinities and NaN. "Long" tells the question, not the range: no conversion to an integer is made.
COMPANION_BASICS_API short IsLong(double x);

/// The logarithm to base 10: minus infinity for a zero, NaN below 0.
COMPANION_BASICS_API double Log10(double x);

/// The remainder of a divided by b, with the sign of a. A divisor of 0 gives a.
COMPANION_BASICS_API int Mod(int a, int b);
}

/// How many times `part` occurs in `text`, counted from left to right without overlap: 2 times "aa" in "aaaaa".
/// An empty `part` occurs 0 times.
COMPANION_BASICS_API int cChrCount(const std::wstring& text, const std::wstring& part);

/// The part of `text` from behind the first `left` to the first `right` after it; both may be the same.
/// Without `left` in the text it is empty, without `right` behind that it is the rest of the text.
/// An empty delimiter is found at once: as `left` at the start of the text, as `right` directly behind `left`.
COMPANION_BASICS_API std::wstring cStrBetweenChrAndChr(const std::wstring& text, const std::wstring& left,
                                                       const std::wstring& right);

/// The text of a BSTR, that is of 16-bit characters up to their NUL. A surrogate pair becomes one character; a
/// surrogate without its partner stays as it is. A null pointer gives the empty text.
COMPANION_BASICS_API std::wstring convToWstring(const void* bstr);
