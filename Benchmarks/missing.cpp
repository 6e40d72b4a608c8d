// Counts of missing cells, and imputation from the nearest neighbour.
#include "contest.h"
#include "plain/plain.h"

#include "missing/missing_counts.h"
#include "missing/nearest_neighbour.h"

namespace vecmat::bench {

namespace {

struct Census
{
    static constexpr int cols = 10;
    int n;
    Cells x;
    std::vector<int> counts;

    explicit Census(int rows)
        : n(rows), x(RandomData(110).withMissing(RandomData(111).normals(count(n, cols)), 0.05)), counts(count(cols))
    {
    }
    void enter(Contest& contest)
    {
        const Result result = [this] { return Cells(counts.begin(), counts.end()); };
        contest.reset([this] { counts.assign(counts.size(), -1); });
        contest.share("x", x);
        contest.ours([this] { VB_M_NbMissing(x.data(), n, cols, counts.data()); }, result);
        contest.plain([this] { plain::census(x.data(), n, cols, counts.data()); }, result);
    }
};

struct NearestNeighbour
{
    static constexpr int cols = 20;
    int n;
    Cells data, x, w;
    std::vector<short> mask;

    explicit NearestNeighbour(int rows)
        : n(rows), data(RandomData(112).withMissing(RandomData(113).normals(count(n, cols)), 0.05)), x(data),
          w(count(n), 1.0), mask(count(n), 0)
    {
        for (std::size_t k = 0; k < data.size(); ++k)
            if (data[k] == M)
                mask[k % mask.size()] = -1;
    }
    void enter(Contest& contest)
    {
        contest.outputs({&x});
        contest.reset([this] { x = data; });
        contest.share("x", data);
        contest.ours(
            [this] { VB_EstimateRowsWithMissingNN(x.data(), n, cols, mask.data(), nullptr, 0, nullptr, 0, w.data()); });
        contest.plain([this] { plain::nearestNeighbour(x.data(), n, cols, mask.data(), w.data()); });
    }
};

} // namespace

void addMissing(Suite& suite)
{
    suite.add<Census>("census", {10'000, 100'000, 1'000'000}).alsoAt({10'000'000});
    suite.add<NearestNeighbour>("nearest-neighbour", {500, 1'000, 2'000});
}

} // namespace vecmat::bench
