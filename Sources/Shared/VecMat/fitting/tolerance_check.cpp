#include "tolerance_check.h"

#include "../access/cells.h"
#include "../access/packed_cells.h"
#include "../base/missing_value.h"
#include "../decompositions/sweep.h"

#include <algorithm>
#include <cmath>

using namespace vecmat;

namespace {

// The values of `status` for a variable.
constexpr int kept = -1;
constexpr int constant = 50000;
constexpr int collinear = 60000;

/// Two variables that correlate by more than this are treated as one.
constexpr double equalVariables = 0.999999999999;

struct Options
{
    double tol;
    short pairCheck;
    short keepGoing;
    short fromLast;
    short otherGroupsOnly;
};

/// A packed symmetric table of the given order, all 0.0.
matrix packedZeros(int order)
{
    return matrix(static_cast<int>(packedPosition(order, 0)), 1, 0.0);
}

double inflation(double tolerance)
{
    return tolerance > 0.0 ? 1.0 / tolerance : missingValue;
}

/// One run of the check. `Marks` is the type of the tables of groups and states. Variables are counted from 1.
template <class Marks>
class Check
{
public:
    Check(matrix* corr, int p, Marks* group, Marks* status, matrix* tolerance, matrix* vif, const Options& options)
        : corr_(corr), p_(p), response_(std::max(p, 0) + 1), group_(group), status_(status), tolerance_(tolerance),
          vif_(vif), options_(options), clean_(packedZeros(response_)), swept_(packedZeros(response_))
    {
        for (int i = 1; i <= p_; ++i)
            for (int j = 1; j <= i; ++j)
                cell(clean_, i, j) = corr_->vbget(i, j);
    }

    void markConstantsAndPairs()
    {
        for (int i = 1; i <= p_; ++i)
            status_->vbset(i, 1, kept);
        for (int i = 1; i <= p_; ++i) {
            if (std::fabs(corr_->vbget(i, i)) < zeroTolerance) {
                mark(i, constant, 0.0);
            } else if (options_.pairCheck != 0) {
                for (int j = i + 1; j <= p_; ++j)
                    if (std::fabs(corr_->vbget(i, j)) > equalVariables)
                        mark(j, collinear, 0.0);
            }
        }
    }

    void testGroup(int g)
    {
        const int first = firstMember(g);
        if (first < 1)
            return;
        int last = std::min(first, p_);
        while (last < p_ && group_->vbget(last + 1, 1) == group_->vbget(first, 1))
            ++last;
        for (int step = 0; step <= last - first; ++step) {
            const int v = options_.fromLast == -1 ? last - step : first + step;
            if (!isMarked(v))
                testMember(v);
        }
    }

private:
    static double& cell(matrix& packed, int i, int j) { return packed.X[packedPosition(i - 1, j - 1)]; }

    bool isMarked(int i) const { return status_->vbget(i, 1) > 0; }

    void mark(int i, int state, double tolerance)
    {
        status_->vbset(i, 1, state);
        setTolerance(i, tolerance, inflation(tolerance));
    }

    void setTolerance(int i, double tolerance, double vif)
    {
        tolerance_->vbset(i, 1, tolerance);
        vif_->vbset(i, 1, vif);
    }

    /// The last one if no entry is g.
    int firstMember(int g) const
    {
        int position = 1;
        while (position < group_->nRows && group_->vbget(position, 1) != g)
            ++position;
        return std::min(position, group_->nRows);
    }

    bool mayPredict(int k, int v) const
    {
        if (k == v || status_->vbget(k, 1) == constant || (isMarked(k) && options_.keepGoing != -1))
            return false;
        return options_.otherGroupsOnly != -1 || group_->vbget(k, 1) != group_->vbget(v, 1);
    }

    /// Sweeps the table afresh, with v as a response after the variables.
    void testMember(int v)
    {
        std::copy_n(clean_.X, clean_.nElems, swept_.X);
        for (int j = 1; j <= p_; ++j)
            cell(swept_, response_, j) = corr_->vbget(v, j);
        cell(swept_, response_, v) = 1.0;
        cell(swept_, response_, response_) = 1.0;

        for (int k = p_; k >= 1; --k) {
            if (!mayPredict(k, v))
                continue;
            const double t = OLSCheckIfIn(&swept_, p_, k, options_.tol);
            if (t > options_.tol) {
                M_Sweep(&swept_, response_, k);
                // Not the element itself: the round trip through its complement loses digits.
                const double remaining = 1.0 - (1.0 - cell(swept_, response_, response_));
                if (remaining < options_.tol) {
                    if (options_.keepGoing == 0)
                        status_->vbset(v, 1, collinear);
                    setTolerance(v, remaining, inflation(remaining));
                    return;
                }
                // Untested: a `tol` of 0 or below lets zeros and negative numbers through to the reciprocal.
                setTolerance(v, remaining, 1.0 / remaining);
            } else if (options_.pairCheck == -1 && std::fabs(t) < options_.tol) {
                mark(k, collinear, t);
            }
        }
    }

    matrix* corr_;
    int p_;
    int response_;
    Marks* group_;
    Marks* status_;
    matrix* tolerance_;
    matrix* vif_;
    Options options_;
    matrix clean_;
    matrix swept_;
};

template <class Marks>
void checkTolerance(matrix* corr, int p, int groupCount, Marks* selected, Marks* group, const Options& options,
                    Marks* status, matrix* tolerance, matrix* vif)
{
    Check<Marks> check(corr, p, group, status, tolerance, vif, options);
    check.markConstantsAndPairs();
    for (int g = groupCount; g >= 1; --g)
        if (selected->vbget(g, 1) == 1)
            check.testGroup(g);
}

} // namespace

double OLSCheckIfIn(matrix* a, int, int k, double)
{
    const long long position = k * (k + 1LL) / 2;
    return position >= 1 && position <= static_cast<long long>(a->nElems) ? a->X[position - 1] : outOfRangeValue;
}

void CheckTolerance(matrix* corr, int p, int groupCount, matrix* selected, matrix* group, double tol, short pairCheck,
                    short keepGoing, short fromLast, short otherGroupsOnly, matrix* status, matrix* tolerance,
                    matrix* vif)
{
    checkTolerance(corr, p, groupCount, selected, group, {tol, pairCheck, keepGoing, fromLast, otherGroupsOnly}, status,
                   tolerance, vif);
}

void CheckTolerance(matrix* corr, int p, int groupCount, matrixInt* selected, matrixInt* group, double tol,
                    short pairCheck, short keepGoing, short fromLast, short otherGroupsOnly, matrixInt* status,
                    matrix* tolerance, matrix* vif)
{
    checkTolerance(corr, p, groupCount, selected, group, {tol, pairCheck, keepGoing, fromLast, otherGroupsOnly}, status,
                   tolerance, vif);
}
