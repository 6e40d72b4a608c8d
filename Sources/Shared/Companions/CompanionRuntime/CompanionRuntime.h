// CompanionRuntime: strings between a Visual Basic caller and native code, and the reading of a number.
//
// A BSTR is a pointer to 16-bit characters that end with a NUL and are preceded, directly, by their length in bytes
// (NUL not counted) as a 32-bit number. Arrays of them are declared `wchar_t**` by those who only pass them on. Wide
// strings have characters of 32 bits; on Windows these have 16 as well, and a text is UTF-16 on both sides.
//
// WHO FREES A STRING must free it where it was allocated. A macro host frees the strings that it is given by its own
// allocator, and a string from another one damages its heap.
//
//   On Windows the strings come from OLE Automation (SysAllocStringByteLen), as every macro host there expects.
//   Elsewhere they come from operator new, and only `SysFreeString2` frees them. A host that frees strings itself must
//   hand over its allocator by `SetBstrAllocator` BEFORE it calls anything that makes a string.
//
// Every library with these functions can take this one's place; `SysFreeString2` and `SetBstrAllocator` are needed only
// by native callers.
#pragma once

#if !defined(_WIN32)
#define COMPANION_RUNTIME_API __attribute__((visibility("default")))
#elif defined(CompanionRuntime_EXPORTS)
#define COMPANION_RUNTIME_API __declspec(dllexport)
#else
#define COMPANION_RUNTIME_API __declspec(dllimport)
#endif

extern "C" {

/// Makes a BSTR of the given length in bytes: the length before it and the NUL behind it written, the characters left
/// to the caller where `characters` is null, else copied from there. Null where there is no memory. The form is that of
/// OLE Automation's SysAllocStringByteLen.
using BstrAllocate = wchar_t* (*)(const char* characters, unsigned int bytes);

/// Frees a BSTR, which is not null.
using BstrRelease = void (*)(wchar_t* bstr);

/// From now on strings are made by `allocate`, and `SysFreeString2` frees them by `release`, in all threads of the
/// process. Two null pointers bring the allocator of the platform back. Returns -1, or 0 where just one of the two is
/// null and nothing changes. A host calls this once, before it calls anything else, while no other thread makes or
/// frees strings; a string is never freed by another allocator than the one that made it.
COMPANION_RUNTIME_API short SetBstrAllocator(BstrAllocate allocate, BstrRelease release);

/// The text of a BSTR, up to its first NUL, in wide characters. A surrogate pair becomes one character; a surrogate
/// without its partner stays as it is. A null pointer gives the empty text. The result belongs to this library and is
/// valid up to the same thread's next call.
COMPANION_RUNTIME_API const wchar_t* CW162W32(const void* bstr);

/// A new BSTR with the text, which the caller owns, from the allocator told above. Characters above 0xFFFF become surrogate pairs, numbers that are no
/// character (above 0x10FFFF) the replacement character 0xFFFD. An empty text gives a BSTR of length 0, a null pointer
/// gives null. Exhausted memory is the exception std::bad_alloc.
COMPANION_RUNTIME_API wchar_t* SysAllocString2(const wchar_t* text);

/// Frees a BSTR made by `SysAllocString2`, by the allocator that is in use now; null is allowed.
COMPANION_RUNTIME_API void SysFreeString2(wchar_t* bstr);

/// The number with which the text begins, whatever the locale: blanks (space, tab, line and page breaks), a sign,
/// decimal digits with at most one point among, before or behind them, and an exponent (e or E, a sign, digits). What
/// follows is ignored, and so is an exponent without digits: "1e" is 1. The result is the nearest double; beyond the
/// range it is an infinity, and too near to 0 it is a zero, both with the sign of the text. Where no number leads it is
/// 0.0: a text without a digit in that place, the words for infinity and NaN, an empty text, null. "0x10" is 0.
COMPANION_RUNTIME_API double _wtof(const wchar_t* text);
}
