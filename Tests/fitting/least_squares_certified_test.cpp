// The least squares fits against the certified values of the Statistical Reference Datasets of the National Institute
// of Standards and Technology (linear regression, https://www.itl.nist.gov/div898/strd/lls/lls.shtml), as published
// there to fifteen digits. The values of Longley and NoInt1 were also computed with exact fractions from the data
// below, and are the same in all digits.
#include "fitting/regression_calls.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace vecmat::test {
namespace {

constexpr double exact = std::numeric_limits<double>::infinity();

/// How many decimal digits of the certified value the result has: the negative logarithm of the relative error.
double digits(double actual, double certified)
{
    if (actual == certified)
        return exact;
    const double error = std::fabs(actual - certified);
    return -std::log10(certified == 0.0 ? error : error / std::fabs(certified));
}

double fewestDigits(const std::vector<double>& actual, const std::vector<double>& certified)
{
    EXPECT_EQ(actual.size(), certified.size());
    double fewest = exact;
    for (std::size_t i = 0; i < std::min(actual.size(), certified.size()); ++i)
        fewest = std::min(fewest, digits(actual[i], certified[i]));
    return fewest;
}

// ---- Longley: six nearly collinear columns --------------------------------------------------------------------------

/// Employment of the United States, 1947 to 1962: the deflator of prices, the gross national product, unemployed, armed
/// forces, population, year; then the employed. (Longley, J. W. (1967), An appraisal of least squares programs for the
/// electronic computer from the point of view of the user, Journal of the American Statistical Association 62,
/// 819-841.)
Problem longley()
{
    return Problem::of(
        {{83.0, 88.5, 88.2, 89.5, 96.2, 98.1, 99.0, 100.0, 101.2, 104.6, 108.4, 110.8, 112.6, 114.2, 115.7, 116.9},
         {234289, 259426, 258054, 284599, 328975, 346999, 365385, 363112, 397469, 419180, 442769, 444546, 482704,
          502601, 518173, 554894},
         {2356, 2325, 3682, 3351, 2099, 1932, 1870, 3578, 2904, 2822, 2936, 4681, 3813, 3931, 4806, 4007},
         {1590, 1456, 1616, 1650, 3099, 3594, 3547, 3350, 3048, 2857, 2798, 2637, 2552, 2514, 2572, 2827},
         {107608, 108632, 109773, 110929, 112075, 113270, 115094, 116219, 117388, 118734, 120445, 121950, 123366,
          125368, 127852, 130081},
         {1947, 1948, 1949, 1950, 1951, 1952, 1953, 1954, 1955, 1956, 1957, 1958, 1959, 1960, 1961, 1962}},
        {60323, 61122, 60171, 61187, 63221, 63639, 64989, 63761, 66019, 67857, 68169, 66513, 68655, 69564, 69331,
         70551});
}

/// The certified values list the intercept first; here it is last.
const std::vector<double> longleyCoefficients = {15.0618722713733,  -0.358191792925910E-01, -2.02022980381683,
                                                 -1.03322686717359, -0.511041056535807E-01, 1829.15146461355,
                                                 -3482258.63459582};
const std::vector<double> longleyErrors = {84.9149257747669,  0.334910077722432E-01, 0.488399681651699,
                                           0.214274163161675, 0.226073200069370,     455.478499142212,
                                           890420.383607373};
constexpr double longleyResidualDeviation = 304.854073561965;
constexpr double longleyRSquared = 0.995479004577296;

// The product's squared multiple correlation with the others is 0.99944, which costs three of the sixteen digits at its
// sweep.
TEST(CertifiedValues, Longley)
{
    const Problem problem = longley();
    const Solution fit = fitted(problem);
    EXPECT_GT(fewestDigits(fit.beta, longleyCoefficients), 11.0);
    EXPECT_GT(fewestDigits(fit.se, longleyErrors), 12.5);

    double squares = 0.0;
    for (std::size_t i = 0; i < problem.y.size(); ++i)
        squares += (problem.y[i] - fit.fitted[i]) * (problem.y[i] - fit.fitted[i]);
    EXPECT_GT(digits(std::sqrt(squares / 9.0), longleyResidualDeviation), 12.0);
    // What the sweeps leave of the response is the share that is not explained.
    EXPECT_GT(digits(1.0 - fit.swept.back(), longleyRSquared), 13.0);
}

TEST(CertifiedValues, LongleyFromFiveTables)
{
    for (const std::vector<int>& widths :
         std::vector<std::vector<int>>{{1, 1, 1, 1, 2}, {0, 4, 0, 2, 0}, {6, 0, 0, 0, 0}}) {
        const Solution fit = fittedByBlocks(longley(), widths);
        EXPECT_GT(fewestDigits(fit.beta, longleyCoefficients), 11.0);
        EXPECT_GT(fewestDigits(fit.se, longleyErrors), 12.5);
    }
}

// ---- Wampler1: y = 1 + x + x^2 + x^3 + x^4 + x^5, without error -----------------------------------------------------

Problem wampler1()
{
    std::vector<double> x(21), y(21);
    std::iota(x.begin(), x.end(), 0.0);
    for (std::size_t i = 0; i < x.size(); ++i)
        y[i] = 1.0 + x[i] * (1.0 + x[i] * (1.0 + x[i] * (1.0 + x[i] * (1.0 + x[i]))));
    EXPECT_EQ(y.back(), 3368421.0);
    Problem problem = Problem::of({x}, y);
    problem.degree = 5;
    problem.tol = 1e-12;
    return problem;
}

// The fifth power keeps 2.6e-5 of its spread besides the others, and the first moves the response by a few millionths
// of its spread: together they take nine of the sixteen digits. The standard errors are certified as 0.
TEST(CertifiedValues, Wampler1)
{
    const Solution fit = fitted(wampler1());
    EXPECT_GT(fewestDigits(fit.beta, std::vector<double>(6, 1.0)), 6.5);
    EXPECT_THAT(fit.se, SameBits(std::vector<double>(6, 0.0)));
    EXPECT_EQ(fit.swept.back(), 0.0);
}

// ---- NoInt1: a line through the origin ------------------------------------------------------------------------------

Problem noInt1()
{
    std::vector<double> x(11), y(11);
    std::iota(x.begin(), x.end(), 60.0);
    std::iota(y.begin(), y.end(), 130.0);
    Problem problem = Problem::of({x}, y);
    problem.noIntercept = -1;
    return problem;
}

TEST(CertifiedValues, NoInt1)
{
    const Solution fit = fitted(noInt1());
    ASSERT_EQ(fit.beta.size(), 2u);
    EXPECT_GT(digits(fit.beta[0], 2.07438016528926), 13.5);
    EXPECT_THAT(fit.beta[1], SameBits(0.0));
    // The certified error has 10 degrees of freedom; here an intercept that isn't fitted still takes one.
    EXPECT_GT(digits(fit.se[0] * std::sqrt(9.0 / 10.0), 0.165289256198347E-01), 12.5);
    EXPECT_THAT(fit.se[1], SameBits(0.0));

    const Solution five = fittedByBlocks(noInt1(), {0, 0, 1, 0, 0});
    EXPECT_THAT(five.beta, SameBits(fit.beta));
    EXPECT_THAT(five.se, SameBits(fit.se));
}

} // namespace
} // namespace vecmat::test
