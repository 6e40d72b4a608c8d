#include "column_scaling.h"

#include "../access/cells.h"
#include "../base/detail/numbers.h"
#include "../base/missing_value.h"
#include "../frame/detail/handles.h"
#include "moments.h"

#include <cstddef>
#include <vector>

using namespace vecmat;

namespace {

// ---- what the members do with a cell --------------------------------------------------------------------------------

struct Centre
{
    static bool applies(double /*s*/) { return true; }
    static double cell(double x, double m, double /*s*/) { return x - m; }
    static double withoutSpread() { return 0.0; }
};

struct Reduce
{
    static bool applies(double s) { return s > 0.0; }
    static double cell(double x, double /*m*/, double s) { return x / s; }
    static double withoutSpread() { return 0.0; }
};

struct Standardise
{
    static bool applies(double s) { return s > 0.0; }
    static double cell(double x, double m, double s) { return isMissing(x) ? x : (x - m) / s; }
    static double withoutSpread() { return 0.0; }
};

struct Apply
{
    static bool applies(double s) { return s > 0.0; }
    static double cell(double x, double m, double s) { return (x - m) / s; }
    static double withoutSpread() { return missingValue; }
};

template <class Rule, class From, class To>
void transformColumns(From from, To to, int n, int p, matrix* mean, matrix* stdev)
{
    onBlocks(
        [&](auto x, auto z) {
            for (int j = 0; j < p; ++j) {
                const double m = linear(mean).get(j);
                const double s = linear(stdev).get(j);
                const bool applies = Rule::applies(s);
                for (int i = 0; i < n; ++i)
                    z.set(i, j, applies ? Rule::cell(x.get(i, j), m, s) : Rule::withoutSpread());
            }
        },
        block(from, n, p), block(to, n, p));
}

// ---- the statistics, and both together ------------------------------------------------------------------------------

struct Options
{
    short sample;
    short freqWeights;
};
constexpr Options onlyCentred{0, 0};

void statistics(matrix* X, int n, int p, matrix* w, Options options, matrix*& mean, matrix*& stdev)
{
    M_MeanStDev(X, n, p, mean, stdev, nullptr, w, options.sample, options.freqWeights, 0);
}

void statistics(matrix** X, int n, int p, matrix* w, Options options, matrix*& mean, matrix*& stdev)
{
    M_MeanStDevSPV(X, n, p, mean, stdev, nullptr, w, options.sample, options.freqWeights, 0);
}

/// Storage is `matrix*` or `matrix**`; a null w means weights of 1.
template <class Rule, class Storage, class To>
void scaleInto(Storage X, To to, int n, int p, matrix* w, Options options, matrix*& mean, matrix*& stdev)
{
    // Without a table to fill, the deviations would not be computed.
    matrix::matCheck(stdev, p, 1, 0.0);
    statistics(X, n, p, w, options, mean, stdev);
    transformColumns<Rule>(cells(X), to, n, p, mean, stdev);
}

template <class Rule, class Storage, class To>
void scaleInto(Storage X, To to, int n, int p, matrix* w, Options options)
{
    TableHandle mean;
    TableHandle stdev;
    scaleInto<Rule>(X, to, n, p, w, options, mean.reference(), stdev.reference());
}

template <class Rule>
void scaleToTable(matrix* X, int n, int p, matrix* w, matrix*& Z, Options options)
{
    matrix::matCheck(Z, n, p, 0.0);
    scaleInto<Rule>(X, cells(Z), n, p, w, options);
}

template <class Rule, class Storage>
void scaleInPlace(Storage X, int n, int p, matrix* w, Options options)
{
    scaleInto<Rule>(X, cells(X), n, p, w, options);
}

/// The row numbers of each group, in order; a row whose code matches no group is in none.
std::vector<std::vector<int>> rowsByGroup(matrix* g, int n, int nGroups)
{
    std::vector<std::vector<int>> groups(countOf(nGroups));
    for (int i = 0; i < n; ++i) {
        const double code = linear(g).get(i);
        if (code >= 1.0 && code <= nGroups && code == truncated(code))
            groups[static_cast<std::size_t>(truncated(code)) - 1].push_back(i);
    }
    return groups;
}

} // namespace

void M_Center(matrix* X, int n, int p, matrix*& Z)
{
    scaleToTable<Centre>(X, n, p, nullptr, Z, onlyCentred);
}

void M_CenterW(matrix* X, int n, int p, matrix* w, matrix*& Z)
{
    scaleToTable<Centre>(X, n, p, w, Z, onlyCentred);
}

void M_Center2(matrix*& X, int n, int p)
{
    scaleInPlace<Centre>(X, n, p, nullptr, onlyCentred);
}

void M_Center2SPV(matrix** X, int n, int p)
{
    scaleInPlace<Centre>(X, n, p, nullptr, onlyCentred);
}

void M_CenterW2(matrix*& X, int n, int p, matrix* w)
{
    scaleInPlace<Centre>(X, n, p, w, onlyCentred);
}

void M_CenterW2SPV(matrix** X, int n, int p, matrix* w)
{
    scaleInPlace<Centre>(X, n, p, w, onlyCentred);
}

void M_Reduce(matrix* X, int n, int p, matrix*& Z, short sample, short freqWeights)
{
    scaleToTable<Reduce>(X, n, p, nullptr, Z, {sample, freqWeights});
}

void M_ReduceW(matrix* X, int n, int p, matrix* w, matrix*& Z, short sample, short freqWeights)
{
    scaleToTable<Reduce>(X, n, p, w, Z, {sample, freqWeights});
}

void M_Reduce2(matrix*& X, int n, int p, short sample)
{
    scaleInPlace<Reduce>(X, n, p, nullptr, {sample, -1});
}

void M_ReduceW2(matrix*& X, int n, int p, matrix* w, short sample, short freqWeights)
{
    scaleInPlace<Reduce>(X, n, p, w, {sample, freqWeights});
}

void M_Standardize2(matrix*& X, int n, int p, short sample)
{
    scaleInPlace<Standardise>(X, n, p, nullptr, {sample, -1});
}

void M_Standardize2SPV(matrix** X, int n, int p, short sample)
{
    scaleInPlace<Standardise>(X, n, p, nullptr, {sample, -1});
}

void M_Standardize3(matrix*& X, int n, int p, matrix*& mean, matrix*& stdev, short sample, short freqWeights)
{
    scaleInto<Standardise>(X, cells(X), n, p, nullptr, {sample, freqWeights}, mean, stdev);
}

void M_StandardizeW2(matrix*& X, int n, int p, matrix* w, short sample, short freqWeights)
{
    scaleInPlace<Standardise>(X, n, p, w, {sample, freqWeights});
}

void M_StandardizeW3(matrix*& X, int n, int p, matrix* w, matrix*& mean, matrix*& stdev, short sample,
                     short freqWeights)
{
    scaleInto<Standardise>(X, cells(X), n, p, w, {sample, freqWeights}, mean, stdev);
}

void M_StandardizeW3SPV(matrix** X, int n, int p, matrix* w, matrix*& mean, matrix*& stdev, short sample,
                        short freqWeights)
{
    scaleInto<Standardise>(X, cells(X), n, p, w, {sample, freqWeights}, mean, stdev);
}

void M_StandardizeApply2(matrix* X, int n, int p, matrix* mean, matrix* stdev)
{
    transformColumns<Apply>(cells(X), cells(X), n, p, mean, stdev);
}

void M_StandardizeByGroup(matrix* X, int n, int p, matrix* g, int nGroups, short reduce, short sample)
{
    const auto table = cells(X);
    for (const std::vector<int>& rows : rowsByGroup(g, n, nGroups)) {
        const int count = static_cast<int>(rows.size());
        TableHandle group = fresh(count, p);
        for (int j = 0; j < p; ++j)
            for (int i = 0; i < count; ++i)
                cells<matrix>(group).set(i, j, table.get(rows[static_cast<std::size_t>(i)], j));
        if (reduce == -1)
            M_Standardize2(group.reference(), count, p, sample);
        else
            M_Center2(group.reference(), count, p);
        for (int i = 0; i < count; ++i)
            for (int j = 0; j < p; ++j)
                table.set(rows[static_cast<std::size_t>(i)], j, cells<matrix>(group).get(i, j));
    }
}
