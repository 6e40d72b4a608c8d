// Which variables of a correlation table the others explain: tolerances and variance inflation factors by sweeping.
//
// The tolerance of a variable is one minus its squared multiple correlation with others, the diagonal element that
// their sweeps leave for it; its variance inflation factor is the reciprocal. All numbers of variables and groups are
// 1-based.
//
// @missing an ordinary number
// @empty no status is written
// @cost of the order p^3: p^2 for each variable that is swept
// @source Marquardt, D. W. (1970), Generalized inverses, ridge regression, biased linear estimation, and nonlinear
//     estimation, Technometrics 12 (3), 591-612
#pragma once

#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

/// Screens the p variables of `corr`, p by p, of which the lower triangle is swept; pairs and the correlations of a
/// variable that is being tested are read from its row. Results have p cells, exist, and are not prepared: `tolerance`
/// and `vif` of a variable that no other could be swept for are not written.
///
/// `status` becomes
///     -1       kept
///     50000    constant: the diagonal element is below 1e-12 in absolute terms
///     60000    collinear with others
/// The first pass marks the constant ones and, for a nonzero `pairCheck`, each variable that correlates by more than
/// 0.999999999999 in absolute terms with one before it that isn't constant. Both get tolerance 0.0 and a missing vif.
///
/// Then the selected groups from `groupCount` down to 1 are visited. `group` has the group of each variable; the
/// members are the run of equal entries from the first one that is g, and where there is none from the last entry,
/// whatever group that is; without entries there are no members. They are taken in order, from the last for `fromLast`
/// -1, those marked already left out. For each member the table is swept again on the other variables, from the last to
/// the first, as far as their diagonal element is above `tol`, until the member's own tolerance falls below `tol`: then
/// it is marked collinear, unless `keepGoing` is nonzero. Its tolerance and vif are those reached. Left out of the
/// sweeps are
///     - marked variables; with `keepGoing` exactly -1 only the constant ones
///     - for `otherGroupsOnly` -1 the variables of the member's own group
/// A variable that isn't swept and has a diagonal element below `tol` in absolute terms is marked collinear itself for
/// `pairCheck` -1 (here no other value will do), with that element as its tolerance.
///
/// A NaN is neither above nor below `tol`: it is not swept, and as a member's tolerance it does not end the sweeps. The
/// forms differ in the type of `selected`, `group` and `status`.
/// @mask `selected`, `groupCount` cells: exactly 1 visits a group
/// @divisor an element below 1e-12 in absolute terms is constant, a tolerance below `tol` collinear; a vif is missing
///     where the tolerance is not above 0
VECMAT_API void CheckTolerance(matrix* corr, int p, int groupCount, matrix* selected, matrix* group, double tol,
                               short pairCheck, short keepGoing, short fromLast, short otherGroupsOnly, matrix* status,
                               matrix* tolerance, matrix* vif);
VECMAT_API void CheckTolerance(matrix* corr, int p, int groupCount, matrixInt* selected, matrixInt* group, double tol,
                               short pairCheck, short keepGoing, short fromLast, short otherGroupsOnly,
                               matrixInt* status, matrix* tolerance, matrix* vif);

extern "C" {

/// The diagonal element k, from 1, of the packed symmetric table `a`: cell k(k+1)/2. `m` and `tol` have no effect.
/// @missing not tested
/// @empty -1.0 where the cell is outside the table
VECMAT_API double OLSCheckIfIn(matrix* a, int m, int k, double tol);

/// Flat form: `corr` p by p, `selected` of `groupCount` cells, the others of p. The results are written whole:
/// tolerance and vif of a variable that was not reached are 0.0.
VECMAT_API void VB_CheckTolerance(double* corr, int p, int groupCount, int* selected, int ignored, int* group,
                                  double tol, short pairCheck, short keepGoing, short fromLast, short otherGroupsOnly,
                                  int* status, double* tolerance, double* vif);

} // extern "C"
