// The C library's functions over runs of memory, in whose place these are called: they take a step for each word, as the
// compiler counts none there. Compiled without builtins, so that none of the loops becomes the function that it is.
#include "growth/steps.h"

#include <cstddef>
#include <cstdint>

namespace {

constexpr std::size_t word = sizeof(std::uint64_t);

template <class Element>
Element* copied(Element* to, const Element* from, std::size_t count)
{
    vecmat::growth::addSteps(count * sizeof(Element) / word);
    if (reinterpret_cast<std::uintptr_t>(to) <= reinterpret_cast<std::uintptr_t>(from)) {
        for (std::size_t k = 0; k < count; ++k)
            to[k] = from[k];
    } else {
        for (std::size_t k = count; k > 0; --k)
            to[k - 1] = from[k - 1];
    }
    return to;
}

template <class Element>
Element* filled(Element* to, Element value, std::size_t count)
{
    vecmat::growth::addSteps(count * sizeof(Element) / word);
    for (std::size_t k = 0; k < count; ++k)
        to[k] = value;
    return to;
}

template <class Element>
int compared(const Element* a, const Element* b, std::size_t count)
{
    std::size_t k = 0;
    while (k < count && a[k] == b[k])
        ++k;
    vecmat::growth::addSteps(k * sizeof(Element) / word);
    return k == count ? 0 : a[k] < b[k] ? -1 : 1;
}

using Byte = unsigned char;

} // namespace

extern "C" {

void* memcpy(void* to, const void* from, std::size_t count)
{
    return copied(static_cast<Byte*>(to), static_cast<const Byte*>(from), count);
}

void* memmove(void* to, const void* from, std::size_t count)
{
    return copied(static_cast<Byte*>(to), static_cast<const Byte*>(from), count);
}

void* memset(void* to, int value, std::size_t count)
{
    return filled(static_cast<Byte*>(to), static_cast<Byte>(value), count);
}

int memcmp(const void* a, const void* b, std::size_t count)
{
    return compared(static_cast<const Byte*>(a), static_cast<const Byte*>(b), count);
}

wchar_t* wmemcpy(wchar_t* to, const wchar_t* from, std::size_t count)
{
    return copied(to, from, count);
}

wchar_t* wmemmove(wchar_t* to, const wchar_t* from, std::size_t count)
{
    return copied(to, from, count);
}

wchar_t* wmemset(wchar_t* to, wchar_t value, std::size_t count)
{
    return filled(to, value, count);
}

int wmemcmp(const wchar_t* a, const wchar_t* b, std::size_t count)
{
    return compared(a, b, count);
}

const wchar_t* wmemchr(const wchar_t* text, wchar_t wanted, std::size_t count)
{
    std::size_t k = 0;
    while (k < count && text[k] != wanted)
        ++k;
    vecmat::growth::addSteps(k * sizeof(wchar_t) / word);
    return k == count ? nullptr : text + k;
}

std::size_t wcslen(const wchar_t* text)
{
    std::size_t length = 0;
    while (text[length] != 0)
        ++length;
    vecmat::growth::addSteps(length * sizeof(wchar_t) / word);
    return length;
}

} // extern "C"
