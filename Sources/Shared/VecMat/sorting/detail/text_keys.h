// A caller's texts as keys of a sort. Internal to the library.
//
// Their order is that of the texts in wide characters. Each distinct text is turned once, by the companion, and gets a
// rank among the others: what is then sorted are numbers.
#pragma once

#include "stable_order.h"

#include <vector>

namespace vecmat {

struct TextKey
{
    wchar_t* text;
    int rank = 0; ///< set by the sort

    explicit TextKey(wchar_t* bstr = nullptr) : text(bstr) {}

    explicit operator wchar_t*() const { return text; }
    friend bool operator<(const TextKey& left, const TextKey& right) { return left.rank < right.rank; }
};

/// Sort keys, or records by their keys, and keep the order of equal texts.
void sortStably(std::vector<TextKey>& keys);
void sortStably(std::vector<KeyedPosition<TextKey>>& records);

} // namespace vecmat
