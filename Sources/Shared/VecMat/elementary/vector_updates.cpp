#include "vector_updates.h"

#include "../access/cells.h"
#include "../base/detail/companions.h"
#include "../base/detail/masks.h"
#include "../base/missing_value.h"
#include "vector_sums.h"

using namespace vecmat;

namespace {

/// Cell i becomes change(cell, i).
template <class Change>
void update(matrix* x, int n, Change change)
{
    onBlocks(
        [=](auto cells) {
            for (int i = 0; i < n; ++i)
                cells.set(i, change(cells.get(i), i));
        },
        block(linear(x), n));
}

void divide(matrix* x, int n, double divisor)
{
    update(x, n, [divisor](double cell, int /*i*/) { return cell / divisor; });
}

void multiply(matrix* x, int n, double factor)
{
    update(x, n, [factor](double cell, int /*i*/) { return cell * factor; });
}

} // namespace

void V_Norm(matrix*& x, int n)
{
    divide(x, n, squareRoot(V_SumSq(x, n)));
}

void V_NormToVal(matrix*& x, int n, double val)
{
    multiply(x, n, squareRoot(val / V_SumSq(x, n)));
}

void V_NormW(matrix*& x, int n, matrix* w)
{
    divide(x, n, squareRoot(V_SumSqW(x, n, w)));
}

void V_NormToValW(matrix*& x, int n, double val, matrix* w)
{
    multiply(x, n, squareRoot(val / V_SumSqW(x, n, w)));
}

void V_PlusVal(matrix* x, int n, double val, short* mask)
{
    update(x, n, [val, kept = Mask(mask)](double cell, int i) {
        return kept.keeps(i) && !isMissing(cell) ? cell + val : missingValue;
    });
}

void V_PlusVal2(matrix* x, int n, double val)
{
    update(x, n, [val](double cell, int /*i*/) { return isMissing(cell) ? cell : cell + val; });
}

void V_ReplaceVal(matrix* x, int n, double from, double to, matrix* out)
{
    onBlocks(
        [=](auto cells, auto results) {
            for (int i = 0; i < n; ++i)
                results.set(i, cells.get(i) == from ? to : cells.get(i));
        },
        block(linear(x), n), block(linear(out), n));
}
