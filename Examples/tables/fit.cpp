// Fit: polynomials by weighted least squares, with the standard errors of their coefficients.
#include "example.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int points = 9;
constexpr int highest = 3;

// The density of water, in kg/m3, from 0 to 16 degrees Celsius.
double temperature[points] = {0, 2, 4, 6, 8, 10, 12, 14, 16};
double density[points] = {999.84, 999.94, 999.97, 999.94, 999.85, 999.70, 999.50, 999.25, 998.95};

double largestError(matrix& fitted)
{
    double largest = 0.0;
    for (int i = 1; i <= points; ++i)
        largest = std::max(largest, std::fabs(density[i - 1] - fitted.vbget(i, 1)));
    return largest;
}

/// Where the slope of a cubic falls through 0. Its coefficients are those of x, x^2 and x^3, then the constant.
double maximumOf(matrix& beta)
{
    const double b1 = beta.vbget(1, 1), b2 = beta.vbget(2, 1), b3 = beta.vbget(3, 1);
    return (-b2 - std::sqrt(b2 * b2 - 3.0 * b3 * b1)) / (3.0 * b3);
}

} // namespace

int main()
{
    matrix x(points, 1, temperature, true); // views: the cells stay in the arrays
    matrix y(points, 1, density, true);
    matrix weights(points, 1, 1.0);
    const short interactions = 0, noIntercept = 0;
    const double tolerance = 1e-10; // a power enters if the lower ones leave more than this part of it unexplained

    matrix curves(points, 1 + highest, 0.0); // the measured values, then the fitted ones
    curves.copyCol(&y, 0, 0);
    printNames("", {"x", "x^2", "x^3", "constant"});
    for (int degree = 1; degree <= highest; ++degree) {
        Result<> beta, errors, fitted;
        OLSBasic2(points, 1, &x, &y, &weights, degree, interactions, noIntercept, tolerance, beta.table, errors.table,
                  fitted.table);
        curves.copyCol(fitted.table, 0, degree);

        matrix shown(2, highest + 1, vecmat::missingValue);
        for (int k = 1; k <= degree + 1; ++k) {
            const int place = k <= degree ? k : highest + 1; // the constant is the last of all degrees
            shown.vbset(1, place, beta.table->vbget(k, 1));
            shown.vbset(2, place, errors.table->vbget(k, 1));
        }
        printRow("degree " + std::to_string(degree), shown, 1, highest + 1, 6);
        printRow("  standard errors", shown, 2, highest + 1, 6);
        std::printf("  largest error %.4f\n", largestError(*fitted.table));
        if (degree == 3)
            std::printf("  densest at %.2f degrees\n", maximumOf(*beta.table));
    }
    std::printf("\n");
    Names rows;
    for (const double celsius : temperature)
        rows.push_back(std::to_string(static_cast<int>(celsius)));
    printTable("degrees Celsius", rows, {"measured", "degree 1", "degree 2", "degree 3"}, curves, 3);
}
