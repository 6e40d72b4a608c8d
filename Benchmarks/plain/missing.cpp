#include "plain.h"
#include "table.h"

#include "support/constants.h"

#include <cstddef>

namespace vecmat::bench::plain {

void census(const double* x, int n, int p, int* counts)
{
    for (int j = 0; j < p; ++j, x += n) {
        int missing = 0;
        for (int i = 0; i < n; ++i)
            if (x[i] == test::M)
                ++missing;
        counts[j] = missing;
    }
}

namespace {

bool lacks(double x)
{
    return test::M >= x;
}

/// The unflagged row nearest to row t over all columns; -1 if there is none.
int nearestRow(Table<double> X, int n, int p, int t, int j, const short* mask, const Cells& variances)
{
    int best = -1;
    double shortest = test::positiveTwin;
    for (int c = 0; c < n; ++c) {
        if (c == t || mask[c] != 0)
            continue;
        double sum = 0.0;
        bool anyTerm = false;
        bool rejected = false;
        for (int k = 0; k < p && !rejected; ++k) {
            if (k != j && lacks(X(c, k))) {
                rejected = true;
            } else if (variances[static_cast<std::size_t>(k)] > 0.0 && !lacks(X(t, k))) {
                const double d = X(t, k) - X(c, k);
                sum += d * d / variances[static_cast<std::size_t>(k)];
                anyTerm = true;
            }
        }
        if (!rejected && sum < shortest && anyTerm) {
            best = c;
            shortest = sum;
        }
    }
    return best;
}

} // namespace

void nearestNeighbour(double* x, int n, int p, const short* mask, const double* w)
{
    const Table<double> X{x, n};
    Cells means, variances;
    for (int j = 0; j < p; ++j) {
        double W = 0.0, mean = 0.0, squares = 0.0;
        for (int i = 0; i < n; ++i) {
            if (X(i, j) == test::M)
                continue;
            W += w[i];
            if (w[i] == 0.0)
                continue;
            const double d = X(i, j) - mean;
            squares += d * d * (w[i] - w[i] * w[i] / W);
            mean += d * w[i] / W;
        }
        means.push_back(mean);
        variances.push_back(W - 1.0 > 0.0 ? squares / (W - 1.0) : test::M);
    }
    for (int t = 0; t < n; ++t) {
        if (mask[t] == 0)
            continue;
        for (int j = 0; j < p; ++j) {
            if (!lacks(X(t, j)))
                continue;
            const int neighbour = nearestRow(X, n, p, t, j, mask, variances);
            X(t, j) = neighbour >= 0 ? X(neighbour, j) : means[static_cast<std::size_t>(j)];
        }
    }
}

} // namespace vecmat::bench::plain
