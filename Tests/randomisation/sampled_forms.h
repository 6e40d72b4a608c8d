// A sampling design in its four forms, side by side: on tables, on arrays of columns, and over the caller's arrays of
// both kinds.
#pragma once

#include "randomisation/scripted_draws.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/safearrays.h"
#include "support/strings.h"
#include "support/tables.h"

#include <string>
#include <vector>

namespace vecmat::test {

using Cells = std::vector<double>;
using Texts = std::vector<std::wstring>;

/// A table of strings, column after column.
struct Population
{
    int N;
    int p;
    Texts cells;
};

/// Cells a1, a2, ... in the first column, b1, b2, ... in the second, and so on.
inline Population population(int N, int p)
{
    Population result{N, p, {}};
    for (int j = 0; j < p; ++j)
        for (int i = 1; i <= N; ++i)
            result.cells.push_back(static_cast<wchar_t>(L'a' + j) + std::to_wstring(i));
    return result;
}

/// What a design wrote.
struct Sample
{
    Texts cells; // column after column
    Cells ids;
};

inline void expectSame(const Sample& actual, const Sample& expected)
{
    EXPECT_EQ(actual.cells, expected.cells);
    EXPECT_THAT(actual.ids, SameBits(expected.ids));
}

/// The functions of one design.
template <class Plain, class Columns, class Flat, class FlatColumns>
struct Forms
{
    Plain* plain;
    Columns* columns;
    Flat* flat;
    FlatColumns* flatColumns;
};
template <class A, class B, class C, class D>
Forms(A*, B*, C*, D*) -> Forms<A, B, C, D>;

struct BothStorages
{
    Sample table;
    Sample columns;
};

inline Texts textsOf(const ArrayOfColumns& array)
{
    Texts all;
    for (std::size_t j = 0; j < array.count(); ++j) {
        const Texts one = array.strings(j);
        all.insert(all.end(), one.begin(), one.end());
    }
    return all;
}

/// The value of every cell of the sample before the call.
inline const std::wstring before = L"before";

/// Calls `call(function, population, sample, ids)` for each form, with a sample of `n` rows, and checks that each flat
/// form agrees with the one that it wraps and leaves the caller's population alone. The forms on tables may rearrange
/// theirs, so that it becomes `populationAfter`.
template <class Design, class Call>
BothStorages inBothStorages(const Design& design, const Population& S, const Texts& populationAfter, int n,
                            const Cells& ids, Call call)
{
    const Texts unwritten(static_cast<std::size_t>(n) * static_cast<std::size_t>(S.p), before);
    BothStorages result;
    {
        auto from = stringTable(S.N, S.p, S.cells);
        auto to = stringTable(n, S.p, unwritten);
        auto rows = column(ids);
        call(design.plain, from.get(), to.get(), rows.get());
        EXPECT_EQ(cellsOf(from), populationAfter);
        result.table = {cellsOf(to), cellsOf(rows)};
    }
    {
        StringColumns from(S.N, S.p, S.cells);
        StringColumns to(n, S.p, unwritten);
        auto rows = column(ids);
        call(design.columns, from.get(), to.get(), rows.get());
        EXPECT_EQ(from.cells(), populationAfter);
        result.columns = {to.cells(), cellsOf(rows)};
    }
    {
        BstrArray from(S.cells);
        BstrArray to(unwritten);
        Guarded<double> rows(ids);
        call(design.flat, from.get(), to.get(), rows.data());
        EXPECT_EQ(from.countNew(), 0u);
        EXPECT_EQ(from.texts(), S.cells);
        EXPECT_EQ(to.countNew(), to.size());
        expectSame({to.texts(), rows.values()}, result.table);
    }
    {
        ArrayOfColumns from(columnsOf(S.N, S.p, S.cells));
        ArrayOfColumns to(columnsOf(n, S.p, unwritten));
        Guarded<double> rows(ids);
        call(design.flatColumns, from.get(), to.get(), rows.data());
        for (std::size_t j = 0; j < from.count(); ++j) {
            EXPECT_EQ(from.stringArray(j).countNew(), 0u);
            EXPECT_EQ(to.stringArray(j).countNew(), to.stringArray(j).size());
        }
        EXPECT_EQ(textsOf(from), S.cells);
        expectSame({textsOf(to), rows.values()}, result.columns);
    }
    return result;
}

template <class Design, class Call>
BothStorages inBothStorages(const Design& design, const Population& S, int n, const Cells& ids, Call call)
{
    return inBothStorages(design, S, S.cells, n, ids, call);
}

/// Where both storages are to give the same.
inline Sample agreed(const BothStorages& result)
{
    expectSame(result.columns, result.table);
    return result.table;
}

/// A design of one series of draws: all of them are used up, in one frame.
template <class Design>
BothStorages drawnInBothStorages(const Design& design, const Population& S, int n, const Cells& ids, const Cells& draws,
                                 short flag = -1)
{
    const auto call = [&](auto sample, auto from, auto to, auto rows) {
        script.begin(draws);
        SeedArguments s;
        s.flag = flag;
        sample(from, S.N, S.p, n, to, rows, &s.seed, s.flag, &s.out);
        s.expectOneSeries(static_cast<int>(draws.size()));
    };
    return inBothStorages(design, S, n, ids, call);
}

template <class Design>
Sample drawn(const Design& design, const Population& S, int n, const Cells& ids, const Cells& draws, short flag = -1)
{
    return agreed(drawnInBothStorages(design, S, n, ids, draws, flag));
}

/// Rows of a population, by their numbers, as the cells of a sample of just these rows.
inline Texts rowsOf(const Population& S, const std::vector<int>& rows)
{
    Texts cells;
    for (int j = 0; j < S.p; ++j)
        for (const int row : rows)
            cells.push_back(S.cells.at(static_cast<std::size_t>(S.N * j + row - 1)));
    return cells;
}

} // namespace vecmat::test
