// Sampling with replacement against the plain walk where the order of the writes can be seen: a sample that is, or
// shares a column with, its population, and tables of other sizes than the sample.
#include "randomisation/sampling_with_repeats.h"

#include "randomisation/scripted_draws.h"
#include "support/bits.h"
#include "support/random_data.h"
#include "support/strings.h"
#include "support/tables.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <string>
#include <vector>

namespace vecmat::test {
namespace {

using Texts = std::vector<std::wstring>;

std::wstring read(Smatrix* table, int i, int j)
{
    return table->vbget(i, j);
}
std::wstring read(Smatrix** columns, int i, int j)
{
    return columns[j - 1]->vbget(i, 1);
}
void write(Smatrix* table, int i, int j, const std::wstring& text)
{
    table->vbset(i, j, text);
}
void write(Smatrix** columns, int i, int j, const std::wstring& text)
{
    if (i >= 1)
        columns[j - 1]->vbset(i, 1, text);
}

/// Row by row as drawn, then a sort of whole rows by their numbers.
template <class Rows>
void plainSample(Rows S, int N, int p, int n, Rows Z, matrix* ids, const std::vector<double>& draws)
{
    for (int i = 1; i <= n; ++i) {
        const double row = std::floor(draws[static_cast<std::size_t>(i - 1)] * N) + 1.0;
        ids->vbset(i, 1, row);
        for (int j = 1; j <= p; ++j)
            write(Z, i, j, read(S, static_cast<int>(row), j));
    }
    std::vector<int> order(static_cast<std::size_t>(n));
    std::iota(order.begin(), order.end(), 1);
    std::vector<double> keys;
    std::vector<Texts> rows;
    for (int i = 1; i <= n; ++i) {
        keys.push_back(ids->vbget(i, 1));
        rows.emplace_back();
        for (int j = 1; j <= p; ++j)
            rows.back().push_back(read(Z, i, j));
    }
    const auto at = [](int number) { return static_cast<std::size_t>(number - 1); };
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) { return keys[at(a)] < keys[at(b)]; });
    for (int i = 1; i <= n; ++i) {
        ids->vbset(i, 1, keys[at(order[at(i)])]);
        for (int j = 1; j <= p; ++j)
            write(Z, i, j, rows[at(order[at(i)])][at(j)]);
    }
}

Texts texts(RandomData& data, std::size_t count)
{
    Texts cells(count);
    for (std::wstring& cell : cells)
        cell = data.chance(0.1) ? L"" : L"a longer name " + std::to_wstring(data.integer(1, 99));
    return cells;
}

std::size_t product(int rows, int cols)
{
    return static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols);
}

struct Draw
{
    explicit Draw(RandomData& data)
        : N(data.integer(1, 9)), p(data.integer(1, 3)), n(data.integer(1, 12)),
          draws(data.uniforms(static_cast<std::size_t>(n)))
    {
    }

    template <class Rows>
    void run(Rows S, Rows Z, matrix* ids) const
    {
        int seed = 1;
        int seedOut = 0;
        script.begin(draws);
        if constexpr (std::is_same_v<Rows, Smatrix*>)
            M_SamplingWithReplacement(S, N, p, n, Z, ids, &seed, -1, &seedOut);
        else
            M_SamplingWithReplacementSPV(S, N, p, n, Z, ids, &seed, -1, &seedOut);
        EXPECT_EQ(script.series().size(), 1u);
    }

    int N, p, n;
    std::vector<double> draws;
};

TEST(SamplingInOrder, TablesOfOtherSizes)
{
    for (std::uint64_t seed = 1; seed <= 400; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        const Draw draw(data);
        const int populationRows = std::max(0, draw.N + data.integer(-2, 2));
        const int sampleRows = std::max(0, draw.n + data.integer(-3, 2));
        const Texts cells = texts(data, product(populationRows, draw.p));
        const int sampleCols = draw.p + data.integer(0, 1);
        const Texts before = texts(data, product(sampleRows, sampleCols));
        const auto numbers = data.leftovers(static_cast<std::size_t>(std::max(1, draw.n + data.integer(-2, 2))));
        const auto S = stringTable(populationRows, draw.p, cells);
        const auto expected = stringTable(sampleRows, sampleCols, before);
        const auto actual = stringTable(sampleRows, sampleCols, before);
        const auto expectedIds = column(numbers);
        const auto ids = column(numbers);
        plainSample<Smatrix*>(S, draw.N, draw.p, draw.n, expected, expectedIds, draw.draws);
        draw.run<Smatrix*>(S, actual, ids);
        ASSERT_EQ(cellsOf(actual), cellsOf(expected));
        ASSERT_THAT(cellsOf(ids), SameBits(cellsOf(expectedIds)));
        ASSERT_EQ(cellsOf(S), cells);
    }
}

TEST(SamplingInOrder, IntoThePopulationItself)
{
    for (std::uint64_t seed = 1; seed <= 200; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        const Draw draw(data);
        const Texts cells = texts(data, product(draw.N, draw.p));
        const auto expected = stringTable(draw.N, draw.p, cells);
        const auto actual = stringTable(draw.N, draw.p, cells);
        const auto expectedIds = column(std::vector<double>(static_cast<std::size_t>(draw.n), M));
        const auto ids = column(std::vector<double>(static_cast<std::size_t>(draw.n), M));
        plainSample<Smatrix*>(expected, draw.N, draw.p, draw.n, expected, expectedIds, draw.draws);
        draw.run<Smatrix*>(actual, actual, ids);
        ASSERT_EQ(cellsOf(actual), cellsOf(expected));
        ASSERT_THAT(cellsOf(ids), SameBits(cellsOf(expectedIds)));
    }
}

TEST(SamplingInOrder, ColumnsSharedWithThePopulation)
{
    for (std::uint64_t seed = 1; seed <= 200; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        const Draw draw(data);
        const int rows = std::max(1, draw.n + data.integer(-1, 1));
        const Texts cells = texts(data, product(rows, 6));
        // Columns 1 to 3 for the population, 4 to 6 for the sample; one of the sample's may be one of the population's.
        const int shared = data.integer(0, 2);
        const int source = data.integer(0, 3);
        const auto run = [&](auto sample) {
            std::vector<Owned<Smatrix>> tables;
            std::vector<Smatrix*> columns;
            for (int k = 0; k < 6; ++k) {
                const auto first = cells.begin() + k * rows;
                tables.push_back(stringColumn(Texts(first, first + rows)));
                columns.push_back(tables.back().get());
            }
            if (source < 3)
                columns[static_cast<std::size_t>(3 + shared)] = columns[static_cast<std::size_t>(source)];
            const auto ids = column(std::vector<double>(static_cast<std::size_t>(draw.n), M));
            sample(columns.data(), columns.data() + 3, ids);
            Texts result;
            for (const auto& table : tables)
                for (const std::wstring& cell : cellsOf(table))
                    result.push_back(cell);
            return std::pair(result, cellsOf(ids));
        };
        const auto expected = run([&](Smatrix** S, Smatrix** Z, matrix* ids) {
            plainSample<Smatrix**>(S, draw.N, draw.p, draw.n, Z, ids, draw.draws);
        });
        const auto actual = run([&](Smatrix** S, Smatrix** Z, matrix* ids) { draw.run<Smatrix**>(S, Z, ids); });
        ASSERT_EQ(actual.first, expected.first);
        ASSERT_THAT(actual.second, SameBits(expected.second));
    }
}

} // namespace
} // namespace vecmat::test
