#include "constrained_inverses.h"

#include "../base/missing_value.h"
#include "../frame/detail/handles.h"
#include "detail/retained_block.h"
#include "determinants.h"
#include "g2_inverse.h"
#include "generalised_inverses.h"
#include "inversion.h"

using namespace vecmat;

namespace {

constexpr double ofOneCell(double x)
{
    return 1.0 / (x == 0.0 ? zeroTolerance : x);
}

/// Writes the inverse of the block to `inverse`; returns 0, or 1 for a g2 inverse.
int invertOrGeneralise(matrix* block, int order, matrix* inverse)
{
    if (order == 1) {
        inverse->vbset(1, 1, ofOneCell(block->vbget(1, 1)));
        return 0;
    }
    short status = 0;
    if (block->inverse1(inverse, status, zeroTolerance) == 0)
        return 0;
    // The g2 inverse overwrites everything the first inverse writes: the order is fixed, and the second result counts.
    int rank = 0;
    M_InvGeneralized(block, order, inverse, zeroTolerance, &rank);
    M_InverseG2(block, order, zeroTolerance, inverse);
    return 1;
}

template <class Mask>
int cleanAndInvert(int n, Mask* constraints, matrix* a, matrix* out)
{
    const Retained retained = retainedBy(constraints, n);
    const TableHandle inverse = fresh(retained.order, retained.order);
    const int code = invertOrGeneralise(compressed(a, retained), retained.order, inverse);
    expand(inverse, retained, n, out);
    return code;
}

int invertTriangle(matrix* block, int order, short lower, matrix*& inverse)
{
    if (order == 1) {
        inverse->vbset(1, 1, ofOneCell(block->vbget(1, 1)));
        return 0;
    }
    return M_InverseTriang(block, order, lower, inverse, zeroTolerance);
}

template <class Mask>
int cleanAndInvertTriangle(int n, Mask* constraints, matrix* a, short lower, matrix* out)
{
    const Retained retained = retainedBy(constraints, n);
    TableHandle inverse = fresh(retained.order, retained.order);
    if (invertTriangle(compressed(a, retained), retained.order, lower, inverse.reference()) < 0)
        return -1;
    expand(inverse, retained, n, out);
    return 0;
}

template <class Mask>
double determinantOfRetained(matrix* a, int n, Mask* constraints, short* status)
{
    const Retained retained = retainedBy(constraints, n);
    const TableHandle block = compressed(a, retained);
    if (retained.order == 1)
        return block->vbget(1, 1);
    return M_Determinant(block, retained.order, status, 0);
}

} // namespace

int cCleanConstraintsAndInvert(int n, matrix* constraints, matrix* a, matrix*& out)
{
    return cleanAndInvert(n, constraints, a, out);
}

int cCleanConstraintsAndInvert(int n, matrixInt* constraints, matrix* a, matrix*& out)
{
    return cleanAndInvert(n, constraints, a, out);
}

int cCleanConstraintsAndInvertTriang(int n, matrix* constraints, matrix* a, short lower, matrix*& out)
{
    return cleanAndInvertTriangle(n, constraints, a, lower, out);
}

int cCleanConstraintsAndInvertTriang(int n, matrixInt* constraints, matrix* a, short lower, matrix*& out)
{
    return cleanAndInvertTriangle(n, constraints, a, lower, out);
}

double M_DeterminantCleaned(matrix* a, int n, matrix* constraints, short* status)
{
    return determinantOfRetained(a, n, constraints, status);
}

double M_DeterminantCleaned(matrix* a, int n, matrixInt* constraints, short* status)
{
    return determinantOfRetained(a, n, constraints, status);
}
