// What the tests of nearest-neighbour imputation share: data in three blocks, and every form run over it.
#pragma once

#include "missing/nearest_neighbour.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/safearrays.h"
#include "support/strings.h"
#include "support/tables.h"

#include <gmock/gmock.h>

#include <cstddef>
#include <string>
#include <vector>

namespace vecmat::test {

using Texts = std::vector<std::wstring>;
using Numbers = std::vector<double>;

/// One table: cells column after column. A primary block holds numbers or strings; the other of the two is empty.
struct NeighbourTable
{
    int rows = 0;
    Numbers x;
    Texts p;
    Numbers y;
    Texts s;
};

struct NeighbourCase
{
    NeighbourTable target;
    int colsX = 0; ///< of the primary block, of either kind
    int colsY = 0;
    int colsS = 0;
    std::vector<short> mask;
    Numbers weights; ///< one for each row of the statistics
};

/// The case with unit weights for `rows` rows.
inline NeighbourCase neighbourCase(std::vector<short> mask)
{
    NeighbourCase c;
    c.target.rows = static_cast<int>(mask.size());
    c.weights = Numbers(mask.size(), 1.0);
    c.mask = std::move(mask);
    return c;
}

inline void expectSame(const NeighbourTable& actual, const NeighbourTable& expected, const char* form)
{
    SCOPED_TRACE(form);
    EXPECT_THAT(actual.x, SameBits(expected.x));
    EXPECT_EQ(actual.p, expected.p);
    EXPECT_THAT(actual.y, SameBits(expected.y));
    EXPECT_EQ(actual.s, expected.s);
}

// ---- the four functions ---------------------------------------------------------------------------------------------

inline NeighbourTable filledByTables(const NeighbourCase& c, const NeighbourTable& statistics)
{
    const NeighbourTable& t = c.target;
    auto X = table(t.rows, c.colsX, t.x);
    auto Y = table(t.rows, c.colsY, t.y);
    auto S = stringTable(t.rows, c.colsS, t.s);
    Guarded<short> mask(c.mask);
    EstimateRowsWithMissingNN(table(statistics.rows, c.colsX, statistics.x), statistics.rows, X, t.rows, c.colsX, mask,
                              table(statistics.rows, c.colsY, statistics.y), Y, c.colsY,
                              stringTable(statistics.rows, c.colsS, statistics.s), S, c.colsS, column(c.weights));
    EXPECT_TRUE(mask.untouched());
    return {t.rows, cellsOf(X), {}, cellsOf(Y), cellsOf(S)};
}

inline NeighbourTable filledByStrings(const NeighbourCase& c, const NeighbourTable& statistics)
{
    const NeighbourTable& t = c.target;
    auto P = stringTable(t.rows, c.colsX, t.p);
    auto Y = table(t.rows, c.colsY, t.y);
    auto S = stringTable(t.rows, c.colsS, t.s);
    Guarded<short> mask(c.mask);
    EstimateRowsWithMissingNNStr(stringTable(statistics.rows, c.colsX, statistics.p), statistics.rows, P, t.rows,
                                 c.colsX, mask, table(statistics.rows, c.colsY, statistics.y), Y, c.colsY,
                                 stringTable(statistics.rows, c.colsS, statistics.s), S, c.colsS, column(c.weights));
    EXPECT_TRUE(mask.untouched());
    return {t.rows, {}, cellsOf(P), cellsOf(Y), cellsOf(S)};
}

inline NeighbourTable filledByColumns(const NeighbourCase& c, const NeighbourTable& statistics)
{
    const NeighbourTable& t = c.target;
    TableColumns X(t.rows, c.colsX, t.x);
    auto Y = table(t.rows, c.colsY, t.y);
    auto S = stringTable(t.rows, c.colsS, t.s);
    Guarded<short> mask(c.mask);
    EstimateRowsWithMissingNNSPV(X, t.rows, c.colsX, mask, table(statistics.rows, c.colsY, statistics.y), Y, c.colsY,
                                 stringTable(statistics.rows, c.colsS, statistics.s), S, c.colsS, column(c.weights));
    return {t.rows, X.cells(), {}, cellsOf(Y), cellsOf(S)};
}

inline NeighbourTable filledByColumns2(const NeighbourCase& c, const NeighbourTable& statistics)
{
    const NeighbourTable& t = c.target;
    TableColumns X(t.rows, c.colsX, t.x);
    TableColumns Y(t.rows, c.colsY, t.y);
    TableColumns statY(statistics.rows, c.colsY, statistics.y);
    auto S = stringTable(t.rows, c.colsS, t.s);
    Guarded<short> mask(c.mask);
    EstimateRowsWithMissingNNSPV2(X, t.rows, c.colsX, mask, statY, Y, c.colsY,
                                  stringTable(statistics.rows, c.colsS, statistics.s), S, c.colsS, column(c.weights));
    return {t.rows, X.cells(), {}, Y.cells(), cellsOf(S)};
}

// ---- the flat forms -------------------------------------------------------------------------------------------------

/// The caller's arrays of one call.
struct FlatArrays
{
    explicit FlatArrays(const NeighbourTable& t) : rows(t.rows), x(t.x), p(t.p), y(t.y), s(t.s) {}

    NeighbourTable values() const { return {rows, x.values(), p.texts(), y.values(), s.texts()}; }

    int rows;
    Guarded<double> x;
    BstrArray p;
    Guarded<double> y;
    BstrArray s;
};

/// The flat forms whose data are their own statistics, against what the function gave. Every string comes back new.
inline void expectFlatForms(const NeighbourCase& c, const NeighbourTable& expected, bool stringPrimary)
{
    const NeighbourTable& t = c.target;
    Guarded<short> mask(c.mask);
    Guarded<double> weights(c.weights);
    FlatArrays flat(t);
    if (stringPrimary) {
        VB_EstimateRowsWithMissingNNStr(flat.p, t.rows, c.colsX, mask, flat.y, c.colsY, flat.s, c.colsS, weights);
        expectSame(flat.values(), expected, "VB_EstimateRowsWithMissingNNStr");
        EXPECT_EQ(flat.p.countNew(), flat.p.size());
    } else {
        VB_EstimateRowsWithMissingNN(flat.x, t.rows, c.colsX, mask, flat.y, c.colsY, flat.s, c.colsS, weights);
        expectSame(flat.values(), expected, "VB_EstimateRowsWithMissingNN");

        ArrayOfColumns X = numberColumns(t.rows, c.colsX, t.x);
        FlatArrays others(t);
        VB_EstimateRowsWithMissingNNSPV(X, t.rows, c.colsX, mask, others.y, c.colsY, others.s, c.colsS, weights);
        expectSame({t.rows, X.numbers(), {}, others.y.values(), others.s.texts()}, expected,
                   "VB_EstimateRowsWithMissingNNSPV");

        ArrayOfColumns X2 = numberColumns(t.rows, c.colsX, t.x);
        ArrayOfColumns Y2 = numberColumns(t.rows, c.colsY, t.y);
        BstrArray S2(t.s);
        VB_EstimateRowsWithMissingNNSPV2(X2, t.rows, c.colsX, mask, Y2, c.colsY, S2, c.colsS, weights);
        expectSame({t.rows, X2.numbers(), {}, Y2.numbers(), S2.texts()}, expected, "VB_EstimateRowsWithMissingNNSPV2");
    }
    EXPECT_EQ(flat.s.countNew(), flat.s.size());
    EXPECT_TRUE(mask.untouched() && weights.untouched());
}

/// The forms for a table that is not its own statistics.
inline void expectPrediction(const NeighbourCase& c, const NeighbourTable& statistics, const NeighbourTable& expected,
                             bool stringPrimary)
{
    Guarded<short> mask(c.mask);
    Guarded<double> weights(c.weights);
    FlatArrays sample(statistics);
    FlatArrays flat(c.target);
    if (stringPrimary)
        VB_EstimateRowsWithMissingNNStrPred(sample.p, sample.rows, flat.p, flat.rows, c.colsX, mask, sample.y, flat.y,
                                            c.colsY, sample.s, flat.s, c.colsS, weights);
    else
        VB_EstimateRowsWithMissingNNPred(sample.x, sample.rows, flat.x, flat.rows, c.colsX, mask, sample.y, flat.y,
                                         c.colsY, sample.s, flat.s, c.colsS, weights);
    expectSame(flat.values(), expected, "prediction");
    EXPECT_TRUE(sample.x.untouched() && sample.y.untouched() && mask.untouched() && weights.untouched());
    EXPECT_EQ(sample.p.countNew() + sample.s.countNew(), 0u);
    EXPECT_EQ(flat.p.countNew() + flat.s.countNew(), flat.p.size() + flat.s.size());
}

/// A primary block of numbers whose data are their own statistics, filled by every form of which all agree.
inline NeighbourTable filledNumbers(const NeighbourCase& c)
{
    const NeighbourTable result = filledByTables(c, c.target);
    expectSame(filledByColumns(c, c.target), result, "EstimateRowsWithMissingNNSPV");
    expectSame(filledByColumns2(c, c.target), result, "EstimateRowsWithMissingNNSPV2");
    expectFlatForms(c, result, false);
    expectPrediction(c, c.target, result, false);
    return result;
}

/// The same for a primary block of strings.
inline NeighbourTable filledTexts(const NeighbourCase& c)
{
    const NeighbourTable result = filledByStrings(c, c.target);
    expectFlatForms(c, result, true);
    expectPrediction(c, c.target, result, true);
    return result;
}

} // namespace vecmat::test
