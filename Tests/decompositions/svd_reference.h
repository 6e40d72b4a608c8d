// The singular value decomposition step by step in the published order, with indices from 1, on checked
// cells; and the variations of the published method from which it departs.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

namespace vecmat::test {

/// What may be done otherwise.
struct SvdVariant
{
    int passLimit = 60;
    double zeroNorm = 1e-31;   // a norm, and the entry whose sign a norm takes, is zero up to this
    double zeroDiagonal = 0.0; // the same for x(l, l)
    bool equalityTest = false; // an entry is negligible where adding it changes nothing
    int valueRows = -1;        // rows of s, min(n + 1, p) where it is below 0
    int turnLimit = 10000;     // of all turns for one value: what does not end is given up as at the limit of passes
};

/// Cells from 1, checked as the tables check them: by the linear position alone.
struct CheckedCells
{
    int rows;
    std::vector<double> cells;

    CheckedCells(int nRows, int nCols, double value)
        : rows(nRows), cells(static_cast<std::size_t>(nRows) * static_cast<std::size_t>(nCols), value)
    {
    }
    CheckedCells(int nRows, std::vector<double> values) : rows(nRows), cells(std::move(values)) {}

    double get(int i, int j) const
    {
        const long long k = i - 1LL + (j - 1LL) * rows;
        return k >= 0 && k < static_cast<long long>(cells.size()) ? cells[static_cast<std::size_t>(k)] : -1.0;
    }
    void set(int i, int j, double value)
    {
        const long long k = i - 1LL + (j - 1LL) * rows;
        if (k >= 0 && k < static_cast<long long>(cells.size()))
            cells[static_cast<std::size_t>(k)] = value;
    }
    double get(int i) const { return get(i, 1); }
    void set(int i, double value) { set(i, 1, value); }
};

struct ReferenceSvd
{
    std::vector<double> s;
    std::vector<double> u;
    std::vector<double> v;
    int info = 0;
    int mostPasses = 0; // of all values
    int turnsWithoutPass = 0;
};

/// `u` and `v` begin with what stood in them.
class SvdBySteps
{
public:
    SvdBySteps(const std::vector<double>& x, int n, int p, int job, CheckedCells u, CheckedCells v, SvdVariant variant)
        : n_(n), p_(p), wantU_(job % 100 >= 10), wantV_(job % 10 != 0), ncu_(job % 100 >= 20 ? std::min(n, p) : n),
          variant_(variant), x_(n, x), s_(variant.valueRows < 0 ? std::min(n + 1, p) : variant.valueRows, 1, 0.0),
          u_(std::move(u)), v_(std::move(v)), e_(p, 1, 0.0), work_(n, 1, 0.0), nct_(std::min(n - 1, p)),
          nrt_(std::max(0, std::min(p - 2, n)))
    {
    }

    ReferenceSvd run()
    {
        reduce();
        ReferenceSvd result;
        iterate(result);
        result.s = s_.cells;
        result.u = u_.cells;
        result.v = v_.cells;
        return result;
    }

private:
    static double withSign(double size, double sign) { return sign >= 0.0 ? std::fabs(size) : -std::fabs(size); }
    bool nonZero(double value) const { return std::fabs(value) > variant_.zeroNorm; }
    bool negligible(double test, double ztest) const
    {
        return variant_.equalityTest ? ztest == test : std::fabs(ztest - test) < 2.220446049250313e-16;
    }

    static double norm(const CheckedCells& x, int row, int col, int count)
    {
        if (count < 1)
            return 0.0;
        if (count == 1)
            return std::fabs(x.get(row, col));
        double scale = 0.0;
        double ssq = 1.0;
        for (int k = 0; k < count; ++k) {
            const double size = std::fabs(x.get(row + k, col));
            if (size == 0.0)
                continue;
            if (size > scale) {
                ssq = 1.0 + ssq * ((scale / size) * (scale / size));
                scale = size;
            } else {
                ssq = ssq + (size / scale) * (size / scale);
            }
        }
        return scale * std::sqrt(ssq);
    }
    static double dot(const CheckedCells& a, int i, int j, const CheckedCells& b, int i2, int j2, int count)
    {
        double sum = 0.0;
        for (int k = 0; k < count; ++k)
            sum += a.get(i + k, j) * b.get(i2 + k, j2);
        return sum;
    }
    static void add(double t, const CheckedCells& a, int i, int j, CheckedCells& b, int i2, int j2, int count)
    {
        if (t == 0.0)
            return;
        for (int k = 0; k < count; ++k)
            b.set(i2 + k, j2, b.get(i2 + k, j2) + t * a.get(i + k, j));
    }
    static void scaleBy(double t, CheckedCells& a, int i, int j, int count)
    {
        for (int k = 0; k < count; ++k)
            a.set(i + k, j, t * a.get(i + k, j));
    }
    static void turn(CheckedCells& a, int j, int j2, int count, double c, double s)
    {
        for (int k = 1; k <= count; ++k) {
            const double first = c * a.get(k, j) + s * a.get(k, j2);
            const double second = c * a.get(k, j2) - s * a.get(k, j);
            a.set(k, j2, second);
            a.set(k, j, first);
        }
    }
    static void givens(double& a, double& b, double& c, double& s)
    {
        const double roe = std::fabs(a) > std::fabs(b) ? a : b;
        const double scale = std::fabs(a) + std::fabs(b);
        double r = 0.0;
        double z = 0.0;
        c = 1.0;
        s = 0.0;
        if (scale != 0.0) {
            r = scale * std::sqrt((a / scale) * (a / scale) + (b / scale) * (b / scale)) * withSign(1.0, roe);
            c = a / r;
            s = b / r;
            z = std::fabs(a) > std::fabs(b) ? s : 1.0;
            if (std::fabs(b) >= std::fabs(a) && c != 0.0)
                z = 1.0 / c;
        }
        a = r;
        b = z;
    }

    void unitColumn(CheckedCells& a, int j, int rows)
    {
        for (int i = 1; i <= rows; ++i)
            a.set(i, j, 0.0);
        a.set(j, j, 1.0);
    }

    void reduce()
    {
        for (int l = 1; l <= std::max(nct_, nrt_); ++l) {
            const int lp1 = l + 1;
            if (l <= nct_) {
                s_.set(l, norm(x_, l, l, n_ - l + 1));
                if (nonZero(s_.get(l))) {
                    if (std::fabs(x_.get(l, l)) > variant_.zeroDiagonal || x_.get(l, l) != x_.get(l, l))
                        s_.set(l, withSign(s_.get(l), x_.get(l, l)));
                    scaleBy(1.0 / s_.get(l), x_, l, l, n_ - l + 1);
                    x_.set(l, l, x_.get(l, l) + 1.0);
                }
                s_.set(l, -s_.get(l));
            }
            for (int j = lp1; j <= p_; ++j) {
                if (l <= nct_ && nonZero(s_.get(l))) {
                    const double t = -dot(x_, l, l, x_, l, j, n_ - l + 1) / x_.get(l, l);
                    add(t, x_, l, l, x_, l, j, n_ - l + 1);
                }
                e_.set(j, x_.get(l, j));
            }
            if (wantU_ && l <= nct_)
                for (int i = l; i <= n_; ++i)
                    u_.set(i, l, x_.get(i, l));
            if (l <= nrt_) {
                e_.set(l, norm(e_, lp1, 1, p_ - l));
                if (nonZero(e_.get(l))) {
                    if (nonZero(e_.get(lp1)))
                        e_.set(l, withSign(e_.get(l), e_.get(lp1)));
                    scaleBy(1.0 / e_.get(l), e_, lp1, 1, p_ - l);
                    e_.set(lp1, e_.get(lp1) + 1.0);
                }
                e_.set(l, -e_.get(l));
                if (lp1 <= n_ && nonZero(e_.get(l))) {
                    for (int i = lp1; i <= n_; ++i)
                        work_.set(i, 0.0);
                    for (int j = lp1; j <= p_; ++j)
                        add(e_.get(j), x_, lp1, j, work_, lp1, 1, n_ - l);
                    for (int j = lp1; j <= p_; ++j)
                        add(-e_.get(j) / e_.get(lp1), work_, lp1, 1, x_, lp1, j, n_ - l);
                }
                if (wantV_)
                    for (int i = lp1; i <= p_; ++i)
                        v_.set(i, l, e_.get(i));
            }
        }

        const int m = std::min(p_, n_ + 1);
        if (nct_ < p_)
            s_.set(nct_ + 1, x_.get(nct_ + 1, nct_ + 1));
        if (n_ < m)
            s_.set(m, 0.0);
        if (nrt_ + 1 < m)
            e_.set(nrt_ + 1, x_.get(nrt_ + 1, m));
        e_.set(m, 0.0);

        if (wantU_) {
            for (int j = nct_ + 1; j <= ncu_; ++j)
                unitColumn(u_, j, n_);
            for (int l = nct_; l >= 1; --l) {
                if (nonZero(s_.get(l))) {
                    for (int j = l + 1; j <= ncu_; ++j) {
                        const double t = -dot(u_, l, l, u_, l, j, n_ - l + 1) / u_.get(l, l);
                        add(t, u_, l, l, u_, l, j, n_ - l + 1);
                    }
                    scaleBy(-1.0, u_, l, l, n_ - l + 1);
                    u_.set(l, l, u_.get(l, l) + 1.0);
                    for (int i = 1; i < l; ++i)
                        u_.set(i, l, 0.0);
                } else {
                    unitColumn(u_, l, n_);
                }
            }
        }
        if (wantV_)
            for (int l = p_; l >= 1; --l) {
                if (l <= nrt_ && nonZero(e_.get(l)))
                    for (int j = l + 1; j <= p_; ++j) {
                        const double t = -dot(v_, l + 1, l, v_, l + 1, j, p_ - l) / v_.get(l + 1, l);
                        add(t, v_, l + 1, l, v_, l + 1, j, p_ - l);
                    }
                unitColumn(v_, l, p_);
            }
    }

    void iterate(ReferenceSvd& result)
    {
        int m = std::min(p_, n_ + 1);
        const int mm = m;
        int passes = 0;
        int turns = 0;
        while (m > 0) {
            if (passes == variant_.passLimit || turns == variant_.turnLimit) {
                result.info = -m;
                return;
            }
            ++turns;
            int l = m - 1;
            for (; l >= 1; --l) {
                const double test = std::fabs(s_.get(l)) + std::fabs(s_.get(l + 1));
                if (negligible(test, test + std::fabs(e_.get(l)))) {
                    e_.set(l, 0.0);
                    break;
                }
            }
            l = std::max(l, 0);
            int which = 4;
            if (l != m - 1) {
                int ls = m;
                for (; ls >= l + 1; --ls) {
                    double test = 0.0;
                    if (ls != m)
                        test += std::fabs(e_.get(ls));
                    if (ls != l + 1)
                        test += std::fabs(e_.get(ls - 1));
                    if (negligible(test, test + std::fabs(s_.get(ls)))) {
                        s_.set(ls, 0.0);
                        break;
                    }
                }
                which = ls == l ? 3 : ls == m ? 1 : 2;
                if (which == 2)
                    l = ls;
            }
            ++l;
            if (which == 1)
                deflate(l, m);
            else if (which == 2)
                split(l, m);
            else if (which == 3)
                step(l, m);
            else
                settle(l, mm);
            if (which == 3) {
                ++passes;
                result.mostPasses = std::max(result.mostPasses, passes);
            } else if (which == 4) {
                --m;
                passes = 0;
                turns = 0;
            } else {
                ++result.turnsWithoutPass;
            }
        }
    }

    void deflate(int l, int m)
    {
        double f = e_.get(m - 1);
        e_.set(m - 1, 0.0);
        for (int k = m - 1; k >= l; --k) {
            double t = s_.get(k);
            double cs = 0.0;
            double sn = 0.0;
            givens(t, f, cs, sn);
            s_.set(k, t);
            if (k != l) {
                f = -sn * e_.get(k - 1);
                e_.set(k - 1, cs * e_.get(k - 1));
            }
            if (wantV_)
                turn(v_, k, m, p_, cs, sn);
        }
    }

    void split(int l, int m)
    {
        double f = e_.get(l - 1);
        e_.set(l - 1, 0.0);
        for (int k = l; k <= m; ++k) {
            double t = s_.get(k);
            double cs = 0.0;
            double sn = 0.0;
            givens(t, f, cs, sn);
            s_.set(k, t);
            f = -sn * e_.get(k);
            e_.set(k, cs * e_.get(k));
            if (wantU_)
                turn(u_, k, l - 1, n_, cs, sn);
        }
    }

    void step(int l, int m)
    {
        double scale = std::fabs(s_.get(m));
        for (const double other : {s_.get(m - 1), e_.get(m - 1), s_.get(l), e_.get(l)})
            if (scale < std::fabs(other))
                scale = std::fabs(other);
        const double sm = s_.get(m) / scale;
        const double smm1 = s_.get(m - 1) / scale;
        const double emm1 = e_.get(m - 1) / scale;
        const double sl = s_.get(l) / scale;
        const double el = e_.get(l) / scale;
        const double b = ((smm1 + sm) * (smm1 - sm) + emm1 * emm1) * 0.5;
        const double c = (sm * emm1) * (sm * emm1);
        double shift = 0.0;
        if (!(b == 0.0 && c == 0.0)) {
            shift = std::sqrt(b * b + c);
            if (b < 0.0)
                shift = -shift;
            shift = c / (b + shift);
        }
        double f = (sl + sm) * (sl - sm) + shift;
        double g = sl * el;
        for (int k = l; k <= m - 1; ++k) {
            double cs = 0.0;
            double sn = 0.0;
            givens(f, g, cs, sn);
            if (k != l)
                e_.set(k - 1, f);
            f = cs * s_.get(k) + sn * e_.get(k);
            e_.set(k, cs * e_.get(k) - sn * s_.get(k));
            g = sn * s_.get(k + 1);
            s_.set(k + 1, cs * s_.get(k + 1));
            if (wantV_)
                turn(v_, k, k + 1, p_, cs, sn);
            givens(f, g, cs, sn);
            s_.set(k, f);
            f = cs * e_.get(k) + sn * s_.get(k + 1);
            s_.set(k + 1, cs * s_.get(k + 1) - sn * e_.get(k));
            g = sn * e_.get(k + 1);
            e_.set(k + 1, cs * e_.get(k + 1));
            if (wantU_ && k < n_)
                turn(u_, k, k + 1, n_, cs, sn);
        }
        e_.set(m - 1, f);
    }

    void exchange(CheckedCells& a, int j, int rows)
    {
        for (int i = 1; i <= rows; ++i) {
            const double kept = a.get(i, j);
            a.set(i, j, a.get(i, j + 1));
            a.set(i, j + 1, kept);
        }
    }

    void settle(int l, int mm)
    {
        if (s_.get(l) < 0.0) {
            s_.set(l, -s_.get(l));
            if (wantV_)
                scaleBy(-1.0, v_, 1, l, p_);
        }
        while (l != mm && s_.get(l) < s_.get(l + 1)) {
            const double kept = s_.get(l);
            s_.set(l, s_.get(l + 1));
            s_.set(l + 1, kept);
            if (wantV_ && l < p_)
                exchange(v_, l, p_);
            if (wantU_ && l < n_)
                exchange(u_, l, n_);
            ++l;
        }
    }

    int n_;
    int p_;
    bool wantU_;
    bool wantV_;
    int ncu_;
    SvdVariant variant_;
    CheckedCells x_;
    CheckedCells s_;
    CheckedCells u_;
    CheckedCells v_;
    CheckedCells e_;
    CheckedCells work_;
    int nct_;
    int nrt_;
};

} // namespace vecmat::test
