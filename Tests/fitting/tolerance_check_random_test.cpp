// The tolerance check against a plain second implementation, bit by bit.
#include "fitting/tolerance_check.h"

#include "decompositions/sweep.h"
#include "support/bits.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace vecmat::test {
namespace {

struct Question
{
    int p = 0;
    std::vector<double> corr;
    std::vector<int> selected, group;
    double tol = 0;
    short pairCheck = 0, keepGoing = 0, fromLast = 0, otherGroupsOnly = 0;
};

struct Answer
{
    std::vector<int> status;
    std::vector<double> tolerance, vif;
};

int place(int i, int j)
{
    return i < j ? place(j, i) : i * (i - 1) / 2 + j;
}

/// The steps in their order, all indices from 1.
Answer reference(const Question& q)
{
    const int p = q.p;
    const auto corr = [&](int i, int j) { return q.corr.at(static_cast<std::size_t>(i - 1 + (j - 1) * p)); };
    const auto group = [&](int i) { return q.group.at(static_cast<std::size_t>(i - 1)); };
    const auto cells = static_cast<std::size_t>(p) + 1;
    std::vector<int> status(cells, -1); // from 1
    std::vector<double> tolerance(cells, 77.0), vif(cells, 77.0);
    const auto set = [&](int i, int state, double t, double v) {
        const auto at = static_cast<std::size_t>(i);
        if (state != 0)
            status[at] = state;
        tolerance[at] = t;
        vif[at] = v;
    };
    const auto statusOf = [&](int i) { return status[static_cast<std::size_t>(i)]; };

    std::vector<double> clean(static_cast<std::size_t>(place(p + 1, p + 1)), 0.0);
    for (int i = 1; i <= p; ++i)
        for (int j = 1; j <= i; ++j)
            clean[static_cast<std::size_t>(place(i, j) - 1)] = corr(i, j);
    for (int i = 1; i <= p; ++i) {
        if (std::fabs(corr(i, i)) < 1e-12)
            set(i, 50000, 0.0, M);
        else if (q.pairCheck != 0)
            for (int j = i + 1; j <= p; ++j)
                if (std::fabs(corr(i, j)) > 0.999999999999)
                    set(j, 60000, 0.0, M);
    }

    const auto test = [&](int v) {
        if (statusOf(v) > 0)
            return;
        const Owned<matrix> a = column(clean);
        for (int j = 1; j <= p; ++j)
            a->vbset(place(p + 1, j), 1, corr(v, j));
        a->vbset(place(p + 1, v), 1, 1.0);
        a->vbset(place(p + 1, p + 1), 1, 1.0);
        for (int k = p; k >= 1; --k) {
            if (k == v)
                continue;
            if (statusOf(k) > 0 && q.keepGoing != -1)
                continue;
            if (statusOf(k) == 50000)
                continue;
            if (q.otherGroupsOnly == -1 && group(k) == group(v))
                continue;
            const double t = a->vbget(place(k, k), 1);
            if (t > q.tol) {
                M_Sweep(a, p + 1, k);
                const double left = 1 - (1 - a->vbget(place(p + 1, p + 1), 1));
                if (left < q.tol) {
                    set(v, q.keepGoing == 0 ? 60000 : 0, left, left > 0 ? 1 / left : M);
                    break;
                }
                set(v, 0, left, 1 / left);
            } else if (q.pairCheck == -1 && std::fabs(a->vbget(place(k, k), 1)) < q.tol) {
                set(k, 60000, t, t > 0 ? 1 / t : M);
            }
        }
    };
    for (int g = static_cast<int>(q.selected.size()); g >= 1; --g) {
        if (q.selected[static_cast<std::size_t>(g - 1)] != 1)
            continue;
        int lo = 1;
        while (lo < p && group(lo) != g)
            ++lo;
        int hi = lo;
        while (hi < p && group(hi + 1) == group(lo))
            ++hi;
        if (q.fromLast == -1)
            for (int v = hi; v >= lo; --v)
                test(v);
        else
            for (int v = lo; v <= hi; ++v)
                test(v);
    }
    status.erase(status.begin());
    tolerance.erase(tolerance.begin());
    vif.erase(vif.begin());
    return {status, tolerance, vif};
}

/// Correlations of drawn columns, of which some repeat others; or any numbers at all.
std::vector<double> drawnTable(RandomData& data, int p)
{
    const auto size = static_cast<std::size_t>(p * p);
    if (data.chance(0.1))
        return data.withSpecials(data.uniforms(size, -1.0, 1.0), data.chance(0.5) ? 0.1 : 0.0);
    const int n = 12;
    std::vector<std::vector<double>> columns;
    for (int j = 0; j < p; ++j) {
        columns.push_back(data.normals(static_cast<std::size_t>(n)));
        if (j > 0 && data.chance(0.4)) { // the one before, with or without something of its own
            const double share = data.chance(0.5) ? 0.0 : data.uniform(0.0, 0.5);
            for (std::size_t i = 0; i < columns.back().size(); ++i)
                columns.back()[i] = columns[columns.size() - 2][i] + share * columns.back()[i];
        }
    }
    const auto product = [](const std::vector<double>& x, const std::vector<double>& y) {
        double sum = 0.0;
        for (std::size_t i = 0; i < x.size(); ++i)
            sum += x[i] * y[i];
        return sum;
    };
    std::vector<double> corr;
    for (const auto& y : columns)
        for (const auto& x : columns)
            corr.push_back(product(x, y) / std::sqrt(product(x, x) * product(y, y)));
    for (int j = 0; j < p; ++j)
        if (data.chance(0.1))
            for (int i = 0; i < p; ++i)
                corr[static_cast<std::size_t>(i + p * j)] = corr[static_cast<std::size_t>(j + p * i)] = 0.0;
    return corr;
}

Question drawn(RandomData& data)
{
    Question q;
    q.p = data.integer(1, 7);
    q.corr = drawnTable(data, q.p);
    const int groups = data.integer(1, 4);
    q.selected = data.integers(static_cast<std::size_t>(groups), 0, 2);
    q.group = data.integers(static_cast<std::size_t>(q.p), 1, groups);
    if (data.chance(0.8))
        std::sort(q.group.begin(), q.group.end());
    const double tolerances[] = {1e-4, 1e-4, 0.1, 0.5, 0.0, -1.0};
    q.tol = tolerances[data.integer(0, 5)];
    const auto option = [&] { return static_cast<short>(data.integer(-1, 1)); };
    q.pairCheck = option();
    q.keepGoing = option();
    q.fromLast = option();
    q.otherGroupsOnly = option();
    return q;
}

TEST(CheckTolerance, FollowsThePlainStepsBitByBit)
{
    int kept = 0, constant = 0, collinear = 0;
    for (std::uint64_t seed = 1; seed <= 5000 && !HasFailure(); ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        const Question q = drawn(data);
        const Answer expected = reference(q);
        const int groups = static_cast<int>(q.selected.size());
        const Owned<matrix> corr = table(q.p, q.p, q.corr), tolerance = filled(q.p, 1, 77.0),
                            vif = filled(q.p, 1, 77.0), otherTolerance = filled(q.p, 1, 77.0),
                            otherVif = filled(q.p, 1, 77.0), otherStatus = filled(q.p, 1, 55.0);
        const Owned<matrixInt> status = intColumn(std::vector<int>(q.group.size(), 55));
        CheckTolerance(corr, q.p, groups, intColumn(q.selected), intColumn(q.group), q.tol, q.pairCheck, q.keepGoing,
                       q.fromLast, q.otherGroupsOnly, status, tolerance, vif);
        EXPECT_EQ(cellsOf(status), expected.status);
        EXPECT_THAT(cellsOf(tolerance), SameBits(expected.tolerance));
        EXPECT_THAT(cellsOf(vif), SameBits(expected.vif));
        EXPECT_THAT(cellsOf(corr), SameBits(q.corr));

        CheckTolerance(corr, q.p, groups, column({q.selected.begin(), q.selected.end()}),
                       column({q.group.begin(), q.group.end()}), q.tol, q.pairCheck, q.keepGoing, q.fromLast,
                       q.otherGroupsOnly, otherStatus, otherTolerance, otherVif);
        EXPECT_THAT(cellsOf(otherStatus),
                    SameBits(std::vector<double>(expected.status.begin(), expected.status.end())));
        EXPECT_THAT(cellsOf(otherTolerance), SameBits(expected.tolerance));
        EXPECT_THAT(cellsOf(otherVif), SameBits(expected.vif));
        for (const int state : expected.status)
            ++(state == -1 ? kept : state == 50000 ? constant : collinear);
    }
    // All kinds are what the cases are for.
    EXPECT_GT(kept, 5000);
    EXPECT_GT(constant, 1000);
    EXPECT_GT(collinear, 1000);
}

} // namespace
} // namespace vecmat::test
