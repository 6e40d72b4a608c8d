// The singular value decomposition over any storage. Rows, columns and places are 1-based throughout, as in the
// publication.
#pragma once

#include "../../base/detail/companions.h"
#include "../../base/missing_value.h"
#include "strided_vector.h"

#include <algorithm>
#include <cmath>

namespace vecmat {

/// Which singular vectors are wanted, from the decimal digits of `job`.
struct SingularVectors
{
    bool left;
    bool right;
    int leftColumns;

    SingularVectors(int job, int n, int p)
        : left(job % 100 >= 10), right(job % 10 != 0), leftColumns(job % 100 >= 20 ? std::min(n, p) : n)
    {
    }
};

// ---- the two reflections, column by column ----

/// Subtracts from columns `first` to `last` their components along the reflection stored in column `l` from `row` on;
/// calls `then(j)` after each.
template <class Store, class Then>
void reflectColumns(Store store, int l, int first, int last, int row, int count, Then then)
{
    const StridedVector reflection = store.from(row, l, count);
    for (int j = first; j <= last; ++j) {
        const StridedVector target = store.from(row, j, count);
        addMultiple(count, -innerProduct(count, reflection, target) / store.get(row, l), reflection, target);
        then(j);
    }
}

/// Subtracts from the rows of columns `first` to `last`, from row `first` on, their components along the reflection
/// stored in `e`.
template <class Store>
void reflectRows(Store store, int first, int last, int count, TableStore e, TableStore work)
{
    for (int i = 0; i < count; ++i)
        work.set(first + i, 1, 0.0);
    const StridedVector products = work.from(first, 1, count);
    for (int j = first; j <= last; ++j)
        addMultiple(count, e.get(j, 1), store.from(first, j, count), products);
    for (int j = first; j <= last; ++j)
        addMultiple(count, -e.get(j, 1) / e.get(first, 1), products, store.from(first, j, count));
}

/// Singular vectors that are updated as soon as this is requested.
template <class Store>
class DirectVectors
{
public:
    DirectVectors(Store store, int rows) : store_(store), rows_(rows) {}

    Store columns() const { return store_; }
    void rotate(int k, int other, Rotation rotation)
    {
        vecmat::rotate(rows_, store_.from(1, k, rows_), store_.from(1, other, rows_), rotation.c, rotation.s);
    }
    void negate(int k) { multiply(rows_, -1.0, store_.from(1, k, rows_)); }
    void exchangeWithNext(int k) { exchange(rows_, store_.from(1, k, rows_), store_.from(1, k + 1, rows_)); }

private:
    Store store_;
    int rows_;
};

/// `Vectors` are columns that an iteration rotates and sorts without reading them.
template <class Store, class Vectors>
class SvdIteration
{
public:
    SvdIteration(Store x, int n, int p, matrix* s, Vectors& u, Vectors& v, SingularVectors wanted)
        : x_(x), n_(n), p_(p), s_(s), u_(u), v_(v), wanted_(wanted), superdiagonal_(p, 1, 0.0), products_(n, 1, 0.0),
          e_(&superdiagonal_), work_(&products_), reducedColumns_(std::max(-1, std::min(std::max(n, 0) - 1, p))),
          reducedRows_(p > 2 ? std::max(0, std::min(p - 2, n)) : 0)
    {
    }

    /// Returns 0, or -m if the iteration for value m was given up.
    int run()
    {
        bidiagonalise();
        closeBidiagonal();
        if (wanted_.left)
            formLeft();
        if (wanted_.right)
            formRight();
        return iterate();
    }

private:
    static constexpr int passesForEachValue = 60;
    static constexpr int turnsForEachValue = 10000;

    static bool isNonZero(double value) { return std::fabs(value) > zeroNorm; }
    double s(int i) const { return s_.get(i, 1); }
    double e(int i) const { return e_.get(i, 1); }
    void setS(int i, double value) { s_.set(i, 1, value); }
    void setE(int i, double value) { e_.set(i, 1, value); }

    // ---- reduction to bidiagonal form ----

    void bidiagonalise()
    {
        for (int l = 1; l <= std::max(reducedColumns_, reducedRows_); ++l) {
            if (l <= reducedColumns_)
                makeColumnReflection(l);
            const auto takeRow = [&](int j) { setE(j, x_.get(l, j)); };
            if (l <= reducedColumns_ && isNonZero(s(l)))
                reflectColumns(x_, l, l + 1, p_, l, n_ - l + 1, takeRow);
            else
                for (int j = l + 1; j <= p_; ++j)
                    takeRow(j);
            if (wanted_.left && l <= reducedColumns_)
                for (int i = l; i <= n_; ++i)
                    u_.columns().set(i, l, x_.get(i, l));
            if (l <= reducedRows_)
                makeRowReflection(l);
        }
    }

    void makeColumnReflection(int l)
    {
        const int count = n_ - l + 1;
        setS(l, norm(count, x_.from(l, l, count)));
        if (isNonZero(s(l))) {
            // The sign is applied if the cell is exactly not 0: a tighter bound than that of the norms.
            if (x_.get(l, l) != 0.0)
                setS(l, FSign(s(l), x_.get(l, l)));
            multiply(count, 1.0 / s(l), x_.from(l, l, count));
            x_.set(l, l, x_.get(l, l) + 1.0);
        }
        setS(l, -s(l));
    }

    void makeRowReflection(int l)
    {
        const int next = l + 1;
        setE(l, norm(p_ - l, e_.from(next, 1, p_ - l)));
        if (isNonZero(e(l))) {
            if (isNonZero(e(next)))
                setE(l, FSign(e(l), e(next)));
            multiply(p_ - l, 1.0 / e(l), e_.from(next, 1, p_ - l));
            setE(next, e(next) + 1.0);
        }
        setE(l, -e(l));
        if (next <= n_ && isNonZero(e(l)))
            reflectRows(x_, next, p_, n_ - l, e_, work_);
        if (wanted_.right)
            for (int i = next; i <= p_; ++i)
                v_.columns().set(i, l, e(i));
    }

    void closeBidiagonal()
    {
        const int m = std::min(p_, n_ + 1);
        if (reducedColumns_ < p_)
            setS(reducedColumns_ + 1, x_.get(reducedColumns_ + 1, reducedColumns_ + 1));
        if (n_ < m)
            setS(m, 0.0);
        if (reducedRows_ + 1 < m)
            setE(reducedRows_ + 1, x_.get(reducedRows_ + 1, m));
        setE(m, 0.0);
    }

    // ---- singular vectors of the reduction ----

    static void setUnitColumn(Store store, int col, int rows)
    {
        for (int i = 1; i <= rows; ++i)
            store.set(i, col, 0.0);
        store.set(col, col, 1.0);
    }

    void formLeft()
    {
        const Store u = u_.columns();
        for (int j = reducedColumns_ + 1; j <= wanted_.leftColumns; ++j)
            setUnitColumn(u, j, n_);
        for (int l = reducedColumns_; l >= 1; --l) {
            if (!isNonZero(s(l))) {
                setUnitColumn(u, l, n_);
                continue;
            }
            const int count = n_ - l + 1;
            reflectColumns(u, l, l + 1, wanted_.leftColumns, l, count, [](int) {});
            multiply(count, -1.0, u.from(l, l, count));
            u.set(l, l, u.get(l, l) + 1.0);
            for (int i = 1; i < l; ++i)
                u.set(i, l, 0.0);
        }
    }

    void formRight()
    {
        const Store v = v_.columns();
        for (int l = p_; l >= 1; --l) {
            if (l <= reducedRows_ && isNonZero(e(l)))
                reflectColumns(v, l, l + 1, p_, l + 1, p_ - l, [](int) {});
            setUnitColumn(v, l, p_);
        }
    }

    // ---- iteration ----

    int iterate()
    {
        const int largest = std::min(p_, n_ + 1);
        int passes = 0;
        int turns = 0;
        for (int m = largest; m > 0;) {
            if (passes == passesForEachValue || turns == turnsForEachValue)
                return -m;
            ++turns;
            int l = splitBefore(m);
            if (l == m - 1) {
                settle(l + 1, largest);
                --m;
                passes = 0;
                turns = 0;
                continue;
            }
            const int zeroAt = negligibleValue(l, m);
            if (zeroAt == l) {
                qrStep(l + 1, m);
                ++passes;
            } else if (zeroAt == m) {
                deflateLast(l + 1, m);
            } else {
                splitAt(zeroAt + 1, m);
            }
        }
        return 0;
    }

    static bool addsNothing(double test, double size) { return std::fabs((test + size) - test) < negligible; }

    /// The last place before m whose superdiagonal entry is negligible, which is then cleared; 0 if none.
    int splitBefore(int m)
    {
        for (int l = m - 1; l >= 1; --l)
            if (addsNothing(std::fabs(s(l)) + std::fabs(s(l + 1)), std::fabs(e(l)))) {
                setE(l, 0.0);
                return l;
            }
        return 0;
    }

    /// The last place after l whose value is negligible, which is then cleared; l if none.
    int negligibleValue(int l, int m)
    {
        for (int ls = m; ls > l; --ls) {
            double test = 0.0;
            if (ls != m)
                test += std::fabs(e(ls));
            if (ls != l + 1)
                test += std::fabs(e(ls - 1));
            if (addsNothing(test, std::fabs(s(ls)))) {
                setS(ls, 0.0);
                return ls;
            }
        }
        return l;
    }

    Rotation rotateInto(int k, double& f)
    {
        double value = s(k);
        const Rotation rotation = makeRotation(value, f);
        setS(k, value);
        return rotation;
    }

    void rotateRight(int k, int other, Rotation rotation)
    {
        if (wanted_.right)
            v_.rotate(k, other, rotation);
    }

    void rotateLeft(int k, int other, Rotation rotation)
    {
        if (wanted_.left)
            u_.rotate(k, other, rotation);
    }

    /// The last value is negligible.
    void deflateLast(int l, int m)
    {
        double f = e(m - 1);
        setE(m - 1, 0.0);
        for (int k = m - 1; k >= l; --k) {
            const Rotation rotation = rotateInto(k, f);
            if (k != l) {
                f = -rotation.s * e(k - 1);
                setE(k - 1, rotation.c * e(k - 1));
            }
            rotateRight(k, m, rotation);
        }
    }

    /// The value before l is negligible.
    void splitAt(int l, int m)
    {
        double f = e(l - 1);
        setE(l - 1, 0.0);
        for (int k = l; k <= m; ++k) {
            const Rotation rotation = rotateInto(k, f);
            f = -rotation.s * e(k);
            setE(k, rotation.c * e(k));
            rotateLeft(k, l - 1, rotation);
        }
    }

    void qrStep(int l, int m)
    {
        const double scale =
            std::max({std::fabs(s(m)), std::fabs(s(m - 1)), std::fabs(e(m - 1)), std::fabs(s(l)), std::fabs(e(l))});
        const double sm = s(m) / scale;
        const double smm1 = s(m - 1) / scale;
        const double emm1 = e(m - 1) / scale;
        const double sl = s(l) / scale;
        const double el = e(l) / scale;
        const double b = ((smm1 + sm) * (smm1 - sm) + emm1 * emm1) * 0.5;
        const double c = (sm * emm1) * (sm * emm1);
        double shift = 0.0;
        if (b != 0.0 || c != 0.0) {
            shift = squareRoot(b * b + c);
            if (b < 0.0)
                shift = -shift;
            shift = c / (b + shift);
        }
        double f = (sl + sm) * (sl - sm) + shift;
        double g = sl * el;
        for (int k = l; k < m; ++k) {
            const Rotation right = makeRotation(f, g);
            if (k != l)
                setE(k - 1, f);
            f = right.c * s(k) + right.s * e(k);
            setE(k, right.c * e(k) - right.s * s(k));
            g = right.s * s(k + 1);
            setS(k + 1, right.c * s(k + 1));
            rotateRight(k, k + 1, right);

            const Rotation left = makeRotation(f, g);
            setS(k, f);
            f = left.c * e(k) + left.s * s(k + 1);
            setS(k + 1, left.c * s(k + 1) - left.s * e(k));
            g = left.s * e(k + 1);
            setE(k + 1, left.c * e(k + 1));
            if (k < n_)
                rotateLeft(k, k + 1, left);
        }
        setE(m - 1, f);
    }

    /// Value l has converged: makes it non-negative and moves it to its place among those found before.
    void settle(int l, int largest)
    {
        if (s(l) < 0.0) {
            setS(l, -s(l));
            if (wanted_.right)
                v_.negate(l);
        }
        for (; l != largest && s(l) < s(l + 1); ++l) {
            const double kept = s(l);
            setS(l, s(l + 1));
            setS(l + 1, kept);
            if (wanted_.right && l < p_)
                v_.exchangeWithNext(l);
            if (wanted_.left && l < n_)
                u_.exchangeWithNext(l);
        }
    }

    Store x_;
    int n_;
    int p_;
    TableStore s_;
    Vectors& u_;
    Vectors& v_;
    SingularVectors wanted_;
    matrix superdiagonal_;
    matrix products_;
    TableStore e_;
    TableStore work_;
    int reducedColumns_;
    int reducedRows_;
};

} // namespace vecmat
