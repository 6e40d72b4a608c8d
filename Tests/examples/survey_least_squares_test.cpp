// The least squares fits of the survey's penguins against R's lm.
//
// The numbers come from R 4.2.2, on the 342 complete rows of the four measurements:
//     d <- na.omit(read.csv("penguins.csv")[, c("body_mass_g", "bill_length_mm", "bill_depth_mm", "flipper_length_mm")])
//     summary(lm(...))$coefficients, printed with 17 digits; the intercept is moved to the end
#include "fitting/least_squares.h"
#include "fitting/least_squares_blocks.h"
#include "read_table.h"
#include "support/bits.h"

#include <cmath>
#include <string>
#include <vector>

namespace survey {
namespace {

using vecmat::test::M;

/// Coefficients and standard errors, the intercept last, and the first and last fitted value.
struct Fit
{
    std::vector<double> beta, se;
    double first, last;
};

constexpr int rowCount = 342;

/// A measurement of the penguins that have all four.
std::vector<double> measured(const std::string& name)
{
    static const Table table = readTable(SURVEY_DATA "/penguins.csv", {.grouping = "species"});
    std::vector<double> cells;
    for (std::size_t i = 0; i < static_cast<std::size_t>(table.rows); ++i) {
        bool complete = true;
        for (const char* const each : {"body_mass_g", "bill_length_mm", "bill_depth_mm", "flipper_length_mm"})
            complete = complete && table.named(each)->numbers[i] != M;
        if (complete)
            cells.push_back(table.named(name)->numbers[i]);
    }
    EXPECT_EQ(cells.size(), static_cast<std::size_t>(rowCount));
    return cells;
}

/// The measurements side by side.
std::vector<double> tableOf(const std::vector<std::string>& names)
{
    std::vector<double> cells;
    for (const std::string& name : names) {
        const std::vector<double> column = measured(name);
        cells.insert(cells.end(), column.begin(), column.end());
    }
    return cells;
}

Fit bodyMass(const std::vector<std::string>& names, int degree, short interactions, std::vector<double> w)
{
    std::vector<double> X = tableOf(names), y = measured("body_mass_g");
    const int p = static_cast<int>(names.size());
    const auto c = static_cast<std::size_t>(degree * p + 1 + (interactions == -1 ? p * (p - 1) / 2 : 0));
    Fit fit{std::vector<double>(c), std::vector<double>(c), 0, 0};
    std::vector<double> values(y.size());
    EXPECT_EQ(RunOLSBasic2(rowCount, p, X.data(), y.data(), w.data(), degree, interactions, 0, 1e-8, fit.beta.data(),
                           fit.se.data(), values.data()),
              0);
    fit.first = values.front();
    fit.last = values.back();
    return fit;
}

/// Within 1e-9 of R's numbers, relative to them.
void expectClose(const Fit& actual, const Fit& expected)
{
    ASSERT_EQ(actual.beta.size(), expected.beta.size());
    for (std::size_t k = 0; k < expected.beta.size(); ++k) {
        EXPECT_NEAR(actual.beta[k], expected.beta[k], 1e-9 * std::fabs(expected.beta[k])) << "coefficient " << k;
        EXPECT_NEAR(actual.se[k], expected.se[k], 1e-9 * expected.se[k]) << "error " << k;
    }
    EXPECT_NEAR(actual.first, expected.first, 1e-9 * expected.first);
    EXPECT_NEAR(actual.last, expected.last, 1e-9 * expected.last);
}

/// lm(body_mass_g ~ bill_length_mm + bill_depth_mm + flipper_length_mm, d)
const Fit onThree = {{4.161820470411512, 20.049533131443916, 50.269221638240481, -6424.764698098605550},
                     {5.3290876764332733, 13.6939248564421110, 2.4771432542179870, 561.4692568775217296},
                     3211.6178683741082,
                     4813.0518357364035};

TEST(PenguinsRegression, OnThreeMeasurements)
{
    expectClose(
        bodyMass({"bill_length_mm", "bill_depth_mm", "flipper_length_mm"}, 1, 0, std::vector<double>(rowCount, 1.0)),
        onThree);
}

TEST(PenguinsRegression, OnThreeMeasurementsFromFiveTables)
{
    std::vector<double> length = measured("bill_length_mm"), depth = measured("bill_depth_mm"),
                        flipper = measured("flipper_length_mm"), y = measured("body_mass_g"), w(rowCount, 1.0), beta(4),
                        se(4), values(rowCount);
    EXPECT_EQ(RunOLSBasic2Lg(rowCount, 1, length.data(), 0, nullptr, 1, depth.data(), 1, flipper.data(), 0, nullptr,
                             y.data(), w.data(), 1, 0, 0, 1e-8, beta.data(), se.data(), values.data()),
              0);
    expectClose({beta, se, values.front(), values.back()}, onThree);
}

// lm(body_mass_g ~ b + e + I(b^2) + I(e^2) + I(b * e), d) with b the length and e the depth of the bill.
TEST(PenguinsRegression, OnAQuadraticSurface)
{
    expectClose(bodyMass({"bill_length_mm", "bill_depth_mm"}, 2, -1, std::vector<double>(rowCount, 1.0)),
                {{6.5157322458001977e+02, 7.4984165263329373e+02, 5.1324134981486091e-01, 2.0296842280955907e+01,
                  -3.5162943696528750e+01, -1.7932287525358279e+04},
                 {96.9492009521830624, 292.0304634028432815, 0.9099477702561849, 6.9519828243815995, 3.2902964416392355,
                  4057.9981148249398757},
                 3738.4262026104511,
                 4943.2302333256102});
}

// Weights of 2, 3, 1, 2, 3, 1, ... are counts of equal penguins: for R each row is repeated, which makes 684 of them:
//     f <- lm(body_mass_g ~ bill_length_mm + flipper_length_mm, r <- d[rep(1:342, 1 + 1:342 %% 3), ])
// Its slopes have 681 degrees of freedom; here they have those of the 342 rows, and with them the squares of their parts
// in the intercept's error, while its other parts have 681:
//     V <- vcov(f); m <- colMeans(r[, c(2, 4)]); q <- 681/339
//     sqrt(sigma(f)^2/684 + q*(m[1]^2*V[2,2] + m[2]^2*V[3,3]) + 2*m[1]*m[2]*V[2,3])
TEST(PenguinsRegression, OnPenguinsThatCountSeveralTimes)
{
    std::vector<double> w(rowCount);
    for (std::size_t i = 0; i < w.size(); ++i)
        w[i] = 1.0 + static_cast<double>((i + 1) % 3);
    const double ratio = std::sqrt(681.0 / 339.0);
    expectClose(bodyMass({"bill_length_mm", "flipper_length_mm"}, 1, 0, w),
                {{2.6516987987218203, 49.2395027809455428, -5809.9183587963661921},
                 {3.5156619873716073 * ratio, 1.3556817828068981 * ratio, 377.64284104970341},
                 3206.1130675847735,
                 4810.4155036012526});
}

} // namespace
} // namespace survey
