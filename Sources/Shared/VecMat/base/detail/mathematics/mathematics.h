// The elementary functions of the library, rounded correctly: each result is the double nearest to the exact value, of
// two that are equally near the even one. So it is the same on every machine, whatever its C library does. The rounding
// mode is taken to be to nearest.
//
// Zeros, infinities and NaNs are treated as C23 tells in Annex F; neither errno nor the exception flags mean anything
// afterwards. A NaN that no argument brought is the positive quiet one.
#pragma once

namespace vecmat {

double exp(double x);
double log(double x);
double log10(double x);
double pow(double x, double y);

/// pow(x, 3) and pow(x, 4), by whole numbers. For many numbers at once there is a kernel.
double cube(double x);
double fourthPower(double x);

} // namespace vecmat
