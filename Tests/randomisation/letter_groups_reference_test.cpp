// The letter groups against the steps taken one by one, with each pair searched for in the table.
#include "randomisation/letter_groups.h"

#include "frame/services.h"
#include "support/bits.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace vecmat::test {
namespace {

using Texts = std::vector<std::wstring>;

/// Indexed from 1, so that the steps read as published.
template <class T>
class From1
{
public:
    From1(std::vector<T> cells) : cells_(std::move(cells)) {}
    T& operator()(int i) { return cells_.at(static_cast<std::size_t>(i - 1)); }
    const std::vector<T>& all() const { return cells_; }

private:
    std::vector<T> cells_;
};

struct Steps
{
    int n;
    matrix* pairs;
    matrixInt* diff;
    int colA, colB;
    From1<double> means;
    From1<double> perm;
    From1<std::wstring> labels; // n by 256
    int nGroups = -5;
    double last = 0;

    enum class Kind { magnitude, withSign, forwardRun };

    double d(int s, int t, Kind kind = Kind::magnitude)
    {
        const auto u = static_cast<int>(perm(s));
        const auto v = static_cast<int>(perm(t));
        for (int k = 1; k <= n * (n - 1) / 2; ++k) {
            const double a = pairs->vbget(k, colA);
            const double b = pairs->vbget(k, colB);
            if ((a == u && b == v) || (a == v && b == u)) {
                const double value = diff->vbget(k, 1);
                last = kind == Kind::withSign ? value : std::fabs(value);
                if (kind == Kind::forwardRun && !(pairs->vbget(k, 2) > 0 || pairs->vbget(k, 1) == M))
                    last = 0;
                return last;
            }
        }
        return last;
    }

    std::wstring& label(int i, int g) { return labels(i + (g - 1) * n); }

    void sort(bool descending)
    {
        std::vector<std::pair<double, double>> rows;
        for (int i = 1; i <= n; ++i)
            rows.emplace_back(means(i), perm(i));
        std::stable_sort(rows.begin(), rows.end(), [descending](const auto& a, const auto& b) {
            return descending ? b.first < a.first : a.first < b.first;
        });
        for (int i = 1; i <= n; ++i) {
            means(i) = rows[static_cast<std::size_t>(i - 1)].first;
            perm(i) = rows[static_cast<std::size_t>(i - 1)].second;
        }
    }

    short group()
    {
        short result = -1;
        int code = means(1) <= M ? 64 : 65;
        label(1, 1) = code == 64 ? L"" : L"A";
        nGroups = 1;
        int i = 1;
        int j = 1;
        for (;;) {
            while (j < n && d(i, j + 1, Kind::forwardRun) == 0) {
                j += 1;
                label(j, nGroups) = ChrSp(code);
            }
            if (j == n)
                break;
            for (int t = j + 2; t <= n; ++t)
                if (d(i, t) == 0)
                    result = 0;
            for (int s = i; s <= j - 1; ++s)
                for (int t = s + 1; t <= j; ++t)
                    if (d(s, t) > 0)
                        result = 0;
            if (code >= 65 && means(j + 1) > M) {
                nGroups += 1;
                if (nGroups == 257)
                    return result;
            }
            if (means(j + 1) > M) {
                code += 1;
                label(j + 1, nGroups) = ChrSp(code);
            } else {
                label(j + 1, nGroups) = L"";
            }
            i += 1;
            for (int t = j; t >= i; --t) {
                if (d(t, j + 1) > 0) {
                    i = t + 1;
                    break;
                }
                label(t, nGroups) = ChrSp(code);
            }
            j += 1;
        }
        for (int s = i; s <= j - 1; ++s)
            for (int t = s + 1; t <= j; ++t)
                if (d(s, t, Kind::withSign) > 0)
                    result = 0;
        return result;
    }
};

/// A mean for each item, some of them missing, with ties.
std::vector<double> someMeans(RandomData& data, int n)
{
    return data.withMissing(data.wholes(static_cast<std::size_t>(n), 0, 6), data.chance(0.4) ? 0.3 : 0.0);
}

/// Differences that are mostly what a real comparison gives: far places differ, near ones do not.
int someDifference(RandomData& data, int distance, int reach)
{
    const bool differs = data.chance(0.15) ? data.chance(0.5) : distance > reach;
    return differs ? data.integer(0, 1) * 4 - 2 : 0;
}

TEST(BuildGroupingForDiffs, GivesWhatTheStepsGiveWhereAllPairsAreListed)
{
    RandomData data(741);
    SCOPED_TRACE(data);
    int clean = 0;
    const int rounds = 1500;
    for (int round = 0; round < rounds; ++round) {
        const int n = data.integer(1, 14);
        const int reach = data.integer(0, n);
        std::vector<std::vector<double>> rows;
        std::vector<int> differences;
        for (int a = 2; a <= n; ++a)
            for (int b = 1; b < a; ++b) {
                rows.push_back(data.chance(0.5) ? std::vector<double>{double(a), double(b)}
                                                : std::vector<double>{double(b), double(a)});
                differences.push_back(someDifference(data, a - b, reach));
            }
        const Owned<matrix> pairs = filled(static_cast<int>(rows.size()), 2, 0.0);
        for (std::size_t k = 0; k < rows.size(); ++k) {
            pairs->vbset(static_cast<int>(k) + 1, 1, rows[k][0]);
            pairs->vbset(static_cast<int>(k) + 1, 2, rows[k][1]);
        }
        const auto diff = intColumn(differences);
        const std::vector<double> means = someMeans(data, n);
        std::vector<double> items;
        for (int i = 1; i <= n; ++i)
            items.push_back(i);
        const auto count = static_cast<std::size_t>(n);
        const bool sortedBefore = data.chance(0.4);
        const bool descending = data.chance(0.3);

        Steps steps{n, pairs, diff, 1, 2, {means}, {items}, {Texts(count * 256, L"-")}};
        if (!sortedBefore)
            steps.sort(descending);
        const short expected = steps.group();

        const auto actualMeans = column(means);
        const auto perm = column(items);
        const auto labels = stringTable(n, 256, Texts(count * 256, L"-"));
        int nGroups = -5;
        short sorted = sortedBefore ? -1 : 0;
        ASSERT_EQ(BuildGroupingForDiffs(actualMeans, 1, pairs, n, diff, labels, &nGroups, perm, 1, 2, &sorted,
                                        descending ? -1 : 0),
                  expected);
        ASSERT_EQ(nGroups, steps.nGroups);
        ASSERT_THAT(cellsOf(actualMeans), SameBits(steps.means.all()));
        ASSERT_THAT(cellsOf(perm), SameBits(steps.perm.all()));
        ASSERT_EQ(cellsOf(labels), steps.labels.all());
        clean += expected != 0 ? 1 : 0;
    }
    EXPECT_GT(clean, rounds / 10);
    EXPECT_LT(clean, rounds - rounds / 10);
}

TEST(BuildGroupingForDiffs, GivesWhatTheStepsGiveForAnyTableOfPairs)
{
    // Pairs that repeat or match nothing, places that share an item, rows that do not count, items without a number:
    // what a look-up finds then depends on the one before.
    RandomData data(742);
    SCOPED_TRACE(data);
    for (int round = 0; round < 4000; ++round) {
        const int n = data.integer(1, 9);
        const auto count = static_cast<std::size_t>(n);
        const int np = n * (n - 1) / 2;
        const int rows = std::max(0, np + data.integer(-2, 2));
        const Owned<matrix> pairs = filled(rows, 4, 0.0);
        const int colA = data.integer(1, 4);
        const int colB = data.integer(1, 4);
        const double oddOnes[] = {M, -1, 0, 1.5, 1e300, std::nan("")};
        for (int k = 1; k <= rows; ++k)
            for (int c = 1; c <= 4; ++c)
                pairs->vbset(k, c, data.chance(0.1) ? oddOnes[data.integer(0, 5)] : data.integer(c == 2 ? 0 : 1, n));
        const auto diff = intColumn(data.integers(static_cast<std::size_t>(rows), -1, 1));
        std::vector<double> items;
        for (int i = 1; i <= n; ++i)
            items.push_back(data.chance(0.1) ? data.integer(-1, n) : i + (data.chance(0.2) ? 0.9 : 0.0));
        const std::vector<double> means = someMeans(data, n);

        Steps steps{n, pairs, diff, colA, colB, {means}, {items}, {Texts(count * 256, L"-")}};
        const short expected = steps.group();

        const auto labels = stringTable(n, 256, Texts(count * 256, L"-"));
        int nGroups = -5;
        short sorted = 1;
        ASSERT_EQ(BuildGroupingForDiffs(column(means), 1, pairs, n, diff, labels, &nGroups, column(items), colA, colB,
                                        &sorted, 0),
                  expected)
            << round;
        ASSERT_EQ(nGroups, steps.nGroups) << round;
        ASSERT_EQ(cellsOf(labels), steps.labels.all()) << round;
    }
}

TEST(GetCompMatrices, GivesWhatTheStepsGive)
{
    RandomData data(743);
    SCOPED_TRACE(data);
    for (int round = 0; round < 600; ++round) {
        const int n = round < 590 ? data.integer(2, 16) : 80;
        const auto count = static_cast<std::size_t>(n);
        const int reach = data.integer(0, n);
        const Owned<matrixInt> comp(new matrixInt(n, n, 5));
        const Owned<matrix> pairs = filled(n * (n - 1) / 2, 2, 0.0);
        const Owned<matrixInt> diff(new matrixInt(n * (n - 1) / 2, 1, 0));
        int k = 0;
        for (int a = 2; a <= n; ++a)
            for (int b = 1; b < a; ++b) {
                ++k;
                comp->vbset(a, b, someDifference(data, a - b, reach));
                pairs->vbset(k, 1, a);
                pairs->vbset(k, 2, b);
                diff->vbset(k, 1, comp->vbget(a, b));
            }
        const std::vector<double> means = someMeans(data, n);
        std::vector<double> items;
        for (int i = 1; i <= n; ++i)
            items.push_back(i);
        Steps steps{n, pairs, diff, 1, 2, {means}, {items}, {Texts(count * 256, L"")}};
        steps.sort(false);
        steps.group();

        const bool keepOrder = data.chance(0.5);
        const auto x = column(means);
        const auto order = intColumn(data.intLeftovers(count));
        const Owned<Smatrix> labels(new Smatrix(n, 256));
        int nGroups = -5;
        GetCompMatrices(x, n, data.integer(0, 1), comp, keepOrder ? -1 : 0, order, labels, &nGroups);
        ASSERT_EQ(nGroups, steps.nGroups);
        ASSERT_THAT(cellsOf(x), SameBits(keepOrder ? means : steps.means.all()));
        for (int place = 1; place <= n; ++place) {
            const int item = static_cast<int>(steps.perm(place));
            ASSERT_EQ(order->vbget(place, 1), keepOrder ? place : item);
            for (int g = 1; g <= 256; ++g)
                ASSERT_EQ(labels->vbget(keepOrder ? item : place, g), steps.label(place, g));
        }
    }
}

} // namespace
} // namespace vecmat::test
