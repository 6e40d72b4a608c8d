// The exact phase: what the quick one leaves undecided, by fixed-point numbers of many limbs.
//
// A result and its error bound give two ends; where both round to the same double, that is the exact value's (Ziv, A.
// 1991, Fast evaluation of elementary mathematical functions with correctly rounded last bit, ACM Trans. Math. Softw. 17,
// 410-423). Exact results and middles between two doubles are told by arithmetic before: for the exponential and the
// logarithms there are none but exp(0), log(1) and log10 of the whole powers of ten, whose two ends round alike; those of
// the power are found by whole numbers. Every other value is irrational or has more digits than a middle, so that enough
// limbs decide.
//
// 288 places behind the point are taken first. The hardest arguments of exp, log and log10 ask for fewer than 160
// (Lefevre, V. and Muller, J.-M. 2001, Worst cases for correct rounding of the elementary functions in double precision,
// Proc. 15th IEEE Symp. Computer Arithmetic, 111-118). For the power no such list can be made: 1120 places follow.
#pragma once

namespace vecmat::mathematics {

/// Where to start: `many` is for tests, as no arguments are known that the first 288 places don't decide.
enum class Places { few, many };

/// For x between -746 and 710.
double exactExp(double x, Places places = Places::few);

/// For positive finite x other than 1.
double exactLog(double x, Places places = Places::few);
double exactLog10(double x, Places places = Places::few);

/// For positive finite x other than 1, |y| between 2^-65 and 2^65, and y log x between -746 and 710.
double exactPow(double x, double y, Places places = Places::few);

} // namespace vecmat::mathematics
