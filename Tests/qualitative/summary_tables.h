// Category summaries for the tests: their results held together, and the same results found by plain walks.
#pragma once

#include "qualitative/categories.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/strings.h"
#include "support/tables.h"

#include "base/detail/companions.h"

#include <string>
#include <vector>

namespace vecmat::test {

using Texts = std::vector<std::wstring>;
using Doubles = std::vector<double>;
using Ints = std::vector<int>;

/// What a summary gives. All null at first, so that the function makes every table.
struct SummaryTables
{
    Owned<Smatrix> modes{};
    Owned<matrix> modeWeights{};
    Owned<matrixInt> nCats{};
    Owned<Smatrix> categories{};
    Owned<matrix> catWeights{};
    int total = 987654;
};

inline SummaryTables summaryOf(Smatrix* data, int nRows, int nCols, matrix* weights, short sortCats = 0)
{
    SummaryTables result;
    M_InfoQuali(data, nRows, nCols, result.modes, result.modeWeights, result.nCats, result.categories,
                result.catWeights, weights, &result.total, sortCats);
    return result;
}

/// The categories of a variable, 1-based, and their weights, up to `count`.
inline Texts categoriesOf(const SummaryTables& summary, int variable, int count)
{
    Texts texts;
    for (int place = 1; place <= count; ++place)
        texts.push_back(summary.categories->vbget(variable, place));
    return texts;
}
inline Doubles weightsOf(const SummaryTables& summary, int variable, int count)
{
    Doubles sums;
    for (int place = 1; place <= count; ++place)
        sums.push_back(summary.catWeights->vbget(variable, place));
    return sums;
}

inline Owned<matrix> unitWeights(int n)
{
    return filled(n, 1, 1.0);
}

// ---- plain walks ----------------------------------------------------------------------------------------------------

inline bool plainIsNumeric(Smatrix* categories, int j, int count)
{
    for (int c = 1; c <= count; ++c) {
        const std::wstring text = categories->vbget(j, c);
        const float value = static_cast<float>(_wtof(text.c_str()));
        if (value == 0.0f) {
            const float again = static_cast<float>(_wtof((text + L"1").c_str()));
            if (again == 0.0f)
                return false;
        }
    }
    return true;
}

inline void plainSort(Smatrix* categories, matrix* catWeights, int j, int count)
{
    const bool numeric = plainIsNumeric(categories, j, count);
    const auto isBefore = [&](int c, int d) {
        const std::wstring left = categories->vbget(j, c);
        const std::wstring right = categories->vbget(j, d);
        return numeric ? static_cast<float>(_wtof(left.c_str())) < static_cast<float>(_wtof(right.c_str()))
                       : left < right;
    };
    for (int i = 1; i < count; ++i) {
        int smallest = i;
        for (int c = i + 1; c <= count; ++c)
            if (isBefore(c, smallest))
                smallest = c;
        const std::wstring text = categories->vbget(j, i);
        categories->vbset(j, i, categories->vbget(j, smallest));
        categories->vbset(j, smallest, text);
        const double weight = catWeights->vbget(j, i);
        catWeights->vbset(j, i, catWeights->vbget(j, smallest));
        catWeights->vbset(j, smallest, weight);
    }
}

/// Both summaries: with the counts given, or found and stored where `given` is null.
inline void plainSummary(Smatrix* data, int nRows, int nCols, int places, matrixInt* given, SummaryTables& result,
                         matrix* weights, short sortCats)
{
    if (given == nullptr)
        matrixInt::matCheck(result.nCats, nCols, 1, 0);
    Smatrix::matCheck(result.modes, nCols, 1);
    matrix::matCheck(result.modeWeights, nCols, 1, 0.0);
    Smatrix::matCheck(result.categories, nCols, places);
    matrix::matCheck(result.catWeights, nCols, places, 0.0);
    Smatrix* const categories = result.categories;
    matrix* const catWeights = result.catWeights;
    matrixInt* const counts = given != nullptr ? given : static_cast<matrixInt*>(result.nCats);
    result.total = 0;
    for (int j = 1; j <= nCols; ++j) {
        int i = 1;
        while (i <= nRows && data->vbget(i, j).empty())
            ++i;
        int found = 1;
        categories->vbset(j, 1, data->vbget(i, j));
        catWeights->vbset(j, 1, weights->vbget(i, 1));
        for (++i; i <= nRows; ++i) {
            const std::wstring text = data->vbget(i, j);
            if (text.empty())
                continue;
            int c = found;
            while (c >= 1 && categories->vbget(j, c) != text)
                --c;
            if (c >= 1) {
                catWeights->vbset(j, c, catWeights->vbget(j, c) + weights->vbget(i, 1));
            } else {
                ++found;
                categories->vbset(j, found, text);
                catWeights->vbset(j, found, weights->vbget(i, 1));
            }
        }
        if (given == nullptr)
            counts->vbset(j, 1, found);
        const int count = counts->vbget(j, 1);
        int mode = 1;
        for (int c = 2; c <= count; ++c)
            if (catWeights->vbget(j, c) > catWeights->vbget(j, mode))
                mode = c;
        result.modes->vbset(j, 1, categories->vbget(j, mode));
        result.modeWeights->vbset(j, 1, catWeights->vbget(j, mode));
        result.total += count;
    }
    if (sortCats != 0)
        for (int j = 1; j <= nCols; ++j)
            plainSort(categories, catWeights, j, counts->vbget(j, 1));
}

// ---- random inputs --------------------------------------------------------------------------------------------------

/// Texts of one of three kinds of variables: words, numbers of which some agree in single precision, or both.
inline Texts randomTexts(RandomData& data, std::size_t count, double emptyShare)
{
    static const Texts words{L"a", L"A", L"b", L"ab", L"é", L"zebra", L"\U0001F427", L" ", L"1e-60", L"none"};
    static const Texts numbers{L"1",        L"1.0",      L"9",           L"10",    L"-3",     L"0",   L"00", L"7 up",
                               L"16777216", L"16777217", L"1677721.6e1", L"1e300", L"-1e300", L"2.5", L".5", L"+4"};
    const int kind = data.integer(0, 2);
    Texts texts(count);
    for (std::wstring& text : texts) {
        if (data.chance(emptyShare))
            continue;
        const Texts& pool = kind == 0 || (kind == 2 && data.chance(0.1)) ? words : numbers;
        text = pool[static_cast<std::size_t>(data.integer(0, static_cast<int>(pool.size()) - 1))];
    }
    return texts;
}

/// A table of such variables, a few of them without data.
inline Texts randomTable(RandomData& data, int rows, int cols)
{
    Texts cells;
    for (int j = 0; j < cols; ++j) {
        const double emptyShare = data.chance(0.15) ? 1.0 : data.uniform(0.0, 0.4);
        const Texts column = randomTexts(data, static_cast<std::size_t>(rows), emptyShare);
        cells.insert(cells.end(), column.begin(), column.end());
    }
    return cells;
}

/// Weights with zeros, negative ones and, here and there, any special value.
inline Doubles randomWeights(RandomData& data, std::size_t count)
{
    Doubles weights = data.chance(0.5) ? data.wholes(count, -1, 2) : data.uniforms(count, -0.5, 2.0);
    return data.chance(0.3) ? data.withSpecials(weights, 0.1) : weights;
}

/// What stood in a table of strings before the call.
inline Texts textLeftovers(RandomData& data, std::size_t count)
{
    Texts texts(count);
    for (std::wstring& text : texts)
        text = L"left over " + std::to_wstring(data.integer(0, 9));
    return texts;
}

} // namespace vecmat::test
