// Sorts and ranks.
#include "contest.h"
#include "plain/plain.h"

#include "sorting/ranks.h"
#include "sorting/sort.h"
#include "sorting/sort_apply.h"

#include <Eigen/Core>
#include <boost/sort/spinsort/spinsort.hpp>

#include <algorithm>
#include <numeric>

namespace vecmat::bench {

namespace {

constexpr int cols = 10;

struct SortVector
{
    Cells keys, x;

    explicit SortVector(int n) : keys(RandomData(1).normals(count(n))), x(keys) {}
    void enter(Contest& contest)
    {
        contest.outputs({&x});
        contest.reset([this] { x = keys; });
        contest.share("x", keys);
        contest.ours([this] { VB_SortQVectorDbl(x.data(), lengthOf(x), 1, lengthOf(x), 0); });
        contest.plain([this] { plain::sortVector(x.data(), lengthOf(x)); });
        contest.peer("std::stable_sort", sameBits, [this] { std::stable_sort(x.begin(), x.end()); });
        contest.peer("Boost spinsort", sameBits, [this] { boost::sort::spinsort(x.begin(), x.end()); });
    }
};

/// Keys with ties, whose rows must keep their order.
struct SortRows
{
    int n;
    Cells keys, cells, numbers, key, data, companion;

    explicit SortRows(int rows)
        : n(rows), keys(RandomData(2).wholes(count(n), 0, n / 2)), cells(RandomData(3).uniforms(count(n, cols))),
          numbers(count(n)), key(keys), data(cells), companion(count(n))
    {
        std::iota(numbers.begin(), numbers.end(), 1.0);
    }
    void enter(Contest& contest)
    {
        contest.outputs({&data, &key, &companion});
        contest.reset([this] {
            key = keys;
            data = cells;
            companion = numbers;
        });
        contest.share("key", keys);
        contest.share("data", cells);
        contest.ours([this] { VB_SortQDbl(data.data(), n, cols, 1, n, key.data(), companion.data(), 1, 0, -1); });
        contest.plain([this] { plain::sortRows(data.data(), n, cols, key.data(), companion.data()); });
        contest.peer("Boost spinsort, gather", sameBits, [this] { sortByBoost(); });
    }

private:
    struct Keyed
    {
        double key;
        int row;
        friend bool operator<(const Keyed& left, const Keyed& right) { return left.key < right.key; }
    };

    void sortByBoost()
    {
        std::vector<Keyed> order(count(n));
        for (int i = 0; i < n; ++i)
            order[count(i)] = {key[count(i)], i};
        boost::sort::spinsort(order.begin(), order.end());
        Cells column(count(n));
        const auto gather = [&](double* target) {
            for (std::size_t i = 0; i < order.size(); ++i)
                column[i] = target[order[i].row];
            std::copy(column.begin(), column.end(), target);
        };
        for (int j = 0; j < cols; ++j)
            gather(data.data() + count(n, j));
        gather(companion.data());
        gather(key.data());
    }
};

struct SortApplied
{
    int n;
    Cells cells, order, out;
    std::vector<int> rows;

    explicit SortApplied(int count_)
        : n(count_), cells(RandomData(4).uniforms(count(n, cols))), order(count(n)), out(cells.size()), rows(count(n))
    {
        std::iota(rows.begin(), rows.end(), 0);
        const Cells keys = RandomData(5).uniforms(count(n));
        std::sort(rows.begin(), rows.end(), [&](int a, int b) { return keys[count(a)] < keys[count(b)]; });
        for (int i = 0; i < n; ++i)
            order[count(i)] = rows[count(i)] + 1.0;
    }
    void enter(Contest& contest)
    {
        contest.outputs({&out});
        contest.share("data", cells);
        contest.share("order", order);
        contest.ours([this] { VB_SortApply(cells.data(), n, cols, order.data(), out.data()); });
        contest.plain([this] { plain::sortApply(cells.data(), n, cols, order.data(), out.data()); });
        contest.peer("Eigen", sameBits, [this] {
            const Eigen::Map<const Eigen::MatrixXd> source(cells.data(), n, cols);
            Eigen::Map<Eigen::MatrixXd>(out.data(), n, cols) = source(rows, Eigen::all);
        });
    }
};

struct TiedRanks
{
    Cells x, weights, ranks, tieSizes;
    int ties = 0;

    explicit TiedRanks(int n)
        : x(RandomData(6).wholes(count(n), 0, n / 4)), weights(x.size(), 1.0), ranks(x.size()), tieSizes(x.size())
    {
    }
    void enter(Contest& contest)
    {
        contest.outputs({&ranks});
        contest.share("x", x);
        contest.ours([this] {
            VB_V_GetRanksTiesDbl(x.data(), lengthOf(x), weights.data(), ranks.data(), &ties, tieSizes.data());
        });
        contest.plain([this] {
            ties = plain::ranksWithTies(x.data(), lengthOf(x), weights.data(), ranks.data(), tieSizes.data());
        });
    }
};

} // namespace

void addSorting(Suite& suite)
{
    suite.add<SortVector>("sort-vector", {10'000, 100'000, 1'000'000}).alsoAt({10'000'000, 100'000'000});
    suite.add<SortRows>("sort-rows", {10'000, 100'000, 1'000'000}).alsoAt({10'000'000});
    suite.add<SortApplied>("sort-apply", {10'000, 100'000, 1'000'000}).alsoAt({10'000'000});
    suite.add<TiedRanks>("ranks", {10'000, 100'000, 1'000'000}).alsoAt({10'000'000, 100'000'000});
}

} // namespace vecmat::bench
