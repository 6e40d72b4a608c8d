// A caller's texts at their worst.
#pragma once

#include "Smatrix.h"
#include "support/random_data.h"
#include "support/strings.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace vecmat::test {

/// Texts as a caller may have them: any length around the steps of the hash, few characters, so that many are equal or
/// differ in the last place only; lone surrogates, pairs, NULs inside.
inline std::wstring randomText(RandomData& data)
{
    static const std::wstring characters = {L'a', L'b', L'\0', 0xD83D, 0xDE00, 0xFFFF, 0x1F600, L' '};
    std::wstring text;
    for (int n = data.integer(0, 9); n > 0; --n)
        text += characters[static_cast<std::size_t>(data.integer(0, 7))];
    return text;
}

struct Caller
{
    int rows;
    int cols;
    BstrArray bstrs;

    Caller(RandomData& data, int r, int c) : rows(r), cols(c), bstrs(drawn(data, r * c))
    {
        for (std::size_t k = 0; k < bstrs.size(); ++k)
            if (data.integer(0, 9) == 0)
                bstrs.setNull(k);
    }
    static std::vector<std::wstring> drawn(RandomData& data, int n)
    {
        std::vector<std::wstring> texts(static_cast<std::size_t>(n));
        for (std::wstring& text : texts)
            text = randomText(data);
        return texts;
    }
};

/// The array holds the texts of the table, each of them a new one.
inline void expectTexts(const BstrArray& actual, const Smatrix& expected)
{
    ASSERT_EQ(actual.texts(), std::vector<std::wstring>(expected.X, expected.X + expected.nElems));
    ASSERT_EQ(actual.countNew(), actual.size());
}

/// `flat(array)` over the caller's own array against `overTable(table)`.
template <class Case, class Flat, class OverTable>
void expectInPlace(Case& texts, Flat flat, OverTable overTable)
{
    const auto table = texts.table();
    Smatrix* expected = table.get();
    overTable(expected);
    flat(texts.bstrs.get());
    expectTexts(texts.bstrs, *expected);
    texts.bstrs.takeTexts();
}

} // namespace vecmat::test
