#include "letter_groups.h"

#include "../access/cells.h"
#include "../base/detail/numbers.h"
#include "../base/missing_value.h"
#include "../frame/services.h"
#include "../sorting/sort.h"
#include "../sorting/sort_apply.h"
#include "detail/pair_differences.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace {

using namespace vecmat;

constexpr int mostGroups = 256;
constexpr int codeOfA = 65;

/// The current letter.
class Letter
{
public:
    explicit Letter(int code) : code_(code), text_(ChrSp(code)) {}

    void advance() { *this = Letter(code_ + 1); }
    int code() const { return code_; }
    const std::wstring& text() const { return text_; }

private:
    int code_;
    std::wstring text_;
};

/// One pass over the sorted places, from 0.
class LetterGrouping
{
public:
    LetterGrouping(matrix& means, int n, PairDifferences& differences, Smatrix* labels, int* nGroups)
        : means_(means), n_(n), differences_(differences), labels_(labels), nGroups_(nGroups),
          letter_(isMissingOrBelow(mean(0)) ? codeOfA - 1 : codeOfA)
    {
    }

    /// Whether the groups are free of contradictions.
    bool run()
    {
        *nGroups_ = 1;
        // After a missing first mean the code is before the first letter, but the place itself is empty.
        label(0, letter_.code() < codeOfA ? emptyText : letter_.text());
        for (;;) {
            extend();
            if (last_ + 1 >= n_)
                break;
            checkOrderAfter();
            checkWithin([this](int s, int t) { return differences_.magnitude(s, t) > 0; });
            if (!openNext())
                return clean_;
        }
        checkWithin([this](int s, int t) { return differences_.signedValue(s, t) > 0; });
        return clean_;
    }

private:
    double mean(int place) const { return linear(&means_).get(place); }
    void label(int place, const std::wstring& text) { cells(labels_).set(place, zeroBased(*nGroups_), text); }

    /// Adds the following places that do not differ from the first of the group.
    void extend()
    {
        while (last_ + 1 < n_ && differences_.magnitudeInForwardRun(first_, last_ + 1) == 0)
            label(++last_, letter_.text());
    }

    /// The place after the group differs from its first; all later ones should, too.
    void checkOrderAfter()
    {
        for (int t = last_ + 2; t < n_; ++t)
            if (differences_.magnitude(first_, t) == 0)
                clean_ = false;
    }

    /// Checks the pairs of the group. Pairs already in the previous group were checked there, and any that differs is
    /// already marked: they are skipped, which keeps the work proportional to the number of pairs. Not so if a look-up
    /// may find nothing, as the outcome then depends on the one before.
    template <class Differ>
    void checkWithin(Differ differ)
    {
        const int firstNew = differences_.complete() ? checkedUpTo_ + 1 : 0;
        for (int s = first_; s < last_; ++s)
            for (int t = std::max(s + 1, firstNew); t <= last_; ++t)
                if (differ(s, t))
                    clean_ = false;
        checkedUpTo_ = last_;
    }

    /// Begins the next group with the place after this one, and goes back over the places that do not differ from it.
    /// False if there are too many groups.
    bool openNext()
    {
        const int opening = last_ + 1;
        const bool hasMean = mean(opening) > missingValue;
        if (hasMean && letter_.code() >= codeOfA && ++*nGroups_ > mostGroups)
            return false;
        if (hasMean)
            letter_.advance();
        label(opening, hasMean ? letter_.text() : emptyText);

        ++first_;
        for (int t = last_; t >= first_; --t) {
            if (differences_.magnitude(t, opening) > 0) {
                first_ = t + 1;
                break;
            }
            label(t, letter_.text());
        }
        last_ = opening;
        return true;
    }

    matrix& means_;
    int n_;
    PairDifferences& differences_;
    Smatrix* labels_;
    int* nGroups_;
    Letter letter_;
    int first_ = 0;
    int last_ = 0;
    int checkedUpTo_ = -1;
    bool clean_ = true;
};

/// The pairs of n items, 2-1, 3-1, 3-2, 4-1, ..., with the number of each decoded from its place; and the cells of the
/// lower triangle of the comparisons in the same order.
void listPairs(matrixInt* comp, int nPairs, matrix& pairs, matrixInt& diff)
{
    for (int k = 1; k <= nPairs; ++k) {
        const int a = truncated(std::sqrt(2.0 * k + 0.25) + 0.499999999999);
        const int b = truncated(static_cast<double>(a) * (a - 1.0) * -0.5 + k);
        pairs.vbset(k, 1, a + 1.0);
        pairs.vbset(k, 2, b);
        diff.vbset(k, 1, comp->vbget(a + 1, b));
    }
}

/// Empties the n by n cells at the top left, as far as the table has them.
void clearLabels(Smatrix* labels, int n)
{
    const int cols = std::min(n, labels->nCols); // there are no cells beyond, and n columns could be very many
    for (int j = 0; j < cols; ++j)
        for (int i = 0; i < n; ++i)
            cells(labels).set(i, j, emptyText);
}

} // namespace

short BuildGroupingForDiffs(matrix* means, int nCarried, matrix* pairs, int n, matrixInt* diff, Smatrix* labels,
                            int* nGroups, matrix* perm, int colA, int colB, short* sorted, short descending)
{
    if (n < 1)
        return booleanOf(true);
    matrix sortedMeans(n, 1, 0.0);
    for (int i = 0; i < n; ++i)
        linear(&sortedMeans).set(i, linear(means).get(i));
    if (*sorted == 0) {
        matrix* key = &sortedMeans;
        SortQ(perm, n, 1, 1, n, key, means, nCarried, descending, -1);
    }
    *sorted = -1;
    PairDifferences differences(pairs, colA, colB, perm, n, diff);
    return booleanOf(LetterGrouping(sortedMeans, n, differences, labels, nGroups).run());
}

void GetCompMatrices(matrix* X, int n, int col, matrixInt* comp, short keepOrder, matrixInt* order, Smatrix* labels,
                     int* nGroups)
{
    if (n < 1)
        return;
    matrix perm(n, 1, 0.0);
    matrix means(n, 1, 0.0);
    for (int i = 0; i < n; ++i) {
        linear(order).set(i, i + 1);
        linear(&perm).set(i, i + 1.0);
        linear(&means).set(i, cells(X).get(i, col == 0 ? 0 : zeroBased(col)));
    }
    const int nPairs = truncated((n - 1.0) * n * 0.5);
    matrix pairs(nPairs, 2, 0.0);
    matrixInt diff(nPairs, 1, 0);
    listPairs(comp, nPairs, pairs, diff);
    clearLabels(labels, n);

    short sorted = 0;
    BuildGroupingForDiffs(&means, 1, &pairs, n, &diff, labels, nGroups, &perm, 1, 2, &sorted, 0);
    if (keepOrder == 0) {
        SortApply2(X, n, col == 0 ? 1 : col, &perm);
        SortApply2(order, n, 1, &perm);
    } else {
        matrix* key = &perm;
        matrix* noCompanion = nullptr;
        SortQ(labels, n, labels->nCols, 1, n, key, noCompanion, 0, 0, 0);
    }
}
