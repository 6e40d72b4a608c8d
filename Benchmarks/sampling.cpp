// Random permutations and samples. Each run draws the same series.
#include "contest.h"
#include "plain/plain.h"
#include "texts.h"

#include "matrix.h"
#include "randomisation/permutations.h"
#include "randomisation/sampling_with_repeats.h"

#include <algorithm>
#include <memory>
#include <numeric>
#include <random>

namespace vecmat::bench {

namespace {

constexpr int seed = 12345;
constexpr short fromSeed = -1;

struct Shuffle
{
    Cells numbers, x;

    explicit Shuffle(int n) : numbers(count(n)), x(numbers) { std::iota(numbers.begin(), numbers.end(), 1.0); }
    void enter(Contest& contest)
    {
        contest.outputs({&x});
        contest.reset([this] { x = numbers; });
        contest.share("x", numbers);
        contest.ours([this] {
            int start = seed;
            int next = 0;
            Cpp_V_Shuffle(x.data(), lengthOf(x), &start, fromSeed, &next);
        });
        contest.plain([this] { plain::shuffle(x.data(), lengthOf(x), seed); });
        contest.peer("std::shuffle", incomparable,
                     [this] { std::shuffle(x.begin(), x.end(), std::mt19937(static_cast<unsigned>(seed))); });
    }
};

struct Sample
{
    static constexpr int cols = 5;
    int n;
    Texts texts, out;
    std::unique_ptr<Smatrix> population, sample;
    matrix ids;
    Cells plainIds;
    BstrArray bstrs, flatSample;

    explicit Sample(int rows)
        : n(rows), texts(drawnTexts(count(n, cols), 1000, 120)), out(texts.size()), population(tableOf(texts, n, cols)),
          sample(std::make_unique<Smatrix>(n, cols)), ids(n, 1, 0.0), plainIds(count(n)), bstrs(texts),
          flatSample(texts.size())
    {
    }
    void enter(Contest& contest)
    {
        contest.outputs({&plainIds});
        contest.share("x", texts);
        contest.reset([this] { flatSample.clear(); });
        contest.ours(
            [this] {
                int start = seed;
                int next = 0;
                M_SamplingWithReplacement(population.get(), n, cols, n, sample.get(), &ids, &start, fromSeed, &next);
            },
            [this] { return Cells(ids.X, ids.X + n); });
        contest.plain([this] { plain::sample(population->X, n, cols, n, out.data(), plainIds.data(), seed); },
                      [this] { return std::equal(out.begin(), out.end(), sample->X) ? plainIds : Cells{}; });
        contest.oursToo("VB_M_SamplingWithReplacement, strings converted", [this] {
            int start = seed;
            int next = 0;
            VB_M_SamplingWithReplacement(bstrs.data(), n, cols, n, flatSample.data(), plainIds.data(), &start, fromSeed,
                                         &next);
        });
    }
};

} // namespace

void addSampling(Suite& suite)
{
    suite.add<Shuffle>("shuffle", {10'000, 100'000, 1'000'000});
    suite.add<Sample>("sample", {1'000, 10'000, 100'000});
}

} // namespace vecmat::bench
