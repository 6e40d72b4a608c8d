#include "interval_sampling.h"

#include "../access/cells.h"
#include "../base/detail/numbers.h"
#include "../frame/detail/borrowed_texts.h"
#include "../frame/detail/handles.h"
#include "detail/random_series.h"
#include "detail/sampled_rows.h"
#include "detail/text_samples.h"
#include "permutations.h"

#include <cmath>

using namespace vecmat;

namespace {

/// The distance between the rows of a sample, and how many rows at the start of the population they can start from.
struct Interval
{
    int step;
    int margin;

    Interval(int N, int n)
        : step(truncated(std::floor((N - 1.0) / (n - 1.0)))),
          margin(static_cast<int>(static_cast<unsigned>(N) -
                                  (static_cast<unsigned>(n) - 1u) * static_cast<unsigned>(step)))
    {
    }

    int middle() const { return truncated(std::floor((margin + 1.0) * 0.5)); }
    int offset(double draw) const { return truncated(std::floor(margin * draw)); }
};

constexpr double notTaken(int N)
{
    return N + 1.0;
}

/// 0 is the only multiple of a step of 0.
constexpr bool isMultiple(long long distance, int step)
{
    return step == 0 ? distance == 0 : distance % step == 0;
}

/// Takes at most `n` rows, from row `start` on.
template <class Rows>
void sampleSystematically(Rows S, int N, int p, int n, Rows Z, matrix* ids, int step, long long start)
{
    const auto id = linear(ids);
    int taken = 0;
    for (long long row = 1; row <= N; ++row) {
        const int number = static_cast<int>(row);
        if (row >= start && taken < n && isMultiple(row - start, step))
            copyRow(cells(S), number, cells(Z), ++taken, p);
        else
            id.set(zeroBased(number), notTaken(N));
    }
}

} // namespace

template <class Rows>
void vecmat::takeFromRandomStart(Rows S, int N, int p, int n, Rows Z, matrix* ids, int* seed, short seedFlag,
                                 int* seedOut)
{
    const Interval interval(N, n);
    const int rowsBefore = interval.offset(GenerateRandom01(seed, seedFlag, seedOut));
    sampleSystematically(S, N, p, n, Z, ids, interval.step, rowsBefore + 1LL);
}

template <class Rows>
void vecmat::takeFromMiddle(Rows S, int N, int p, int n, Rows Z, matrix* ids)
{
    const Interval interval(N, n);
    sampleSystematically(S, N, p, n, Z, ids, interval.step, interval.middle());
}

/// One row per interval. Stops at the end of the population, or after `n` rows if it would never get there.
template <class Rows>
void vecmat::drawOnePerInterval(Rows S, int N, int p, int n, Rows Z, matrix* ids, int* seed, short seedFlag,
                                int* seedOut)
{
    const Interval interval(N, n);
    const TableHandle taken = fresh(N, 1);
    const auto takenLabel = linear<matrix>(taken);
    for (int i = 0; i < N; ++i)
        takenLabel.set(i, notTaken(N));

    const auto label = linear(ids);
    {
        SeedFrame series(seed, seedFlag, seedOut);
        const long long start = interval.middle();
        int drawn = 0;
        for (long long row = start; row <= N && (interval.step >= 1 || drawn < n); row += interval.step) {
            const auto number = static_cast<int>(row - start + 1 + interval.offset(series.draw()));
            takenLabel.set(drawn, label.get(zeroBased(number)));
            copyRow(cells(S), number, cells(Z), ++drawn, p);
        }
    }
    for (int i = 0; i < N; ++i)
        label.set(i, takenLabel.get(i));
}

template void vecmat::takeFromRandomStart(BorrowedTexts*, int, int, int, BorrowedTexts*, matrix*, int*, short, int*);
template void vecmat::takeFromRandomStart(BorrowedTexts**, int, int, int, BorrowedTexts**, matrix*, int*, short, int*);
template void vecmat::takeFromMiddle(BorrowedTexts*, int, int, int, BorrowedTexts*, matrix*);
template void vecmat::takeFromMiddle(BorrowedTexts**, int, int, int, BorrowedTexts**, matrix*);
template void vecmat::drawOnePerInterval(BorrowedTexts*, int, int, int, BorrowedTexts*, matrix*, int*, short, int*);
template void vecmat::drawOnePerInterval(BorrowedTexts**, int, int, int, BorrowedTexts**, matrix*, int*, short, int*);

void M_SamplingSystematicRdStart(Smatrix* S, int N, int p, int n, Smatrix* Z, matrix* ids, int* seed, short seedFlag,
                                 int* seedOut)
{
    takeFromRandomStart(S, N, p, n, Z, ids, seed, seedFlag, seedOut);
}

void M_SamplingSystematicRdStartSPV(Smatrix** S, int N, int p, int n, Smatrix** Z, matrix* ids, int* seed,
                                    short seedFlag, int* seedOut)
{
    takeFromRandomStart(S, N, p, n, Z, ids, seed, seedFlag, seedOut);
}

void M_SamplingSystematicCentered(Smatrix* S, int N, int p, int n, Smatrix* Z, matrix* ids)
{
    takeFromMiddle(S, N, p, n, Z, ids);
}

void M_SamplingSystematicCenteredSPV(Smatrix** S, int N, int p, int n, Smatrix** Z, matrix* ids)
{
    takeFromMiddle(S, N, p, n, Z, ids);
}

void M_SamplingRandomStratified(Smatrix* S, int N, int p, int n, Smatrix* Z, matrix* ids, int* seed, short seedFlag,
                                int* seedOut)
{
    drawOnePerInterval(S, N, p, n, Z, ids, seed, seedFlag, seedOut);
}

void M_SamplingRandomStratifiedSPV(Smatrix** S, int N, int p, int n, Smatrix** Z, matrix* ids, int* seed,
                                   short seedFlag, int* seedOut)
{
    drawOnePerInterval(S, N, p, n, Z, ids, seed, seedFlag, seedOut);
}
