// Section: the regression of the last numeric column on the others.
#pragma once

#include "document.h"
#include "flat_call.h"

#include <optional>
#include <vector>

namespace survey {

struct Coefficient
{
    double value;
    double standardError;
};

/// `fitted` and `residuals` have an entry for each row, the latter times the root of its weight.
struct Regression
{
    const Column* response;
    std::vector<const Column*> terms;
    std::vector<Coefficient> coefficients; ///< of the terms, and the intercept last
    std::vector<const Column*> leftOut;    ///< columns that those before them determine
    double determination;                  ///< R squared
    double residualDeviation;
    int freedom;    ///< of the residuals
    double f = 0.0; ///< what the terms explain, over what they leave, each by its degrees of freedom
    std::vector<double> fitted{};
    std::vector<double> residuals{};
};

/// By least squares over all rows of a table without gaps, on the columns that vary. None where the response has no
/// other column beside it, or there are too few rows to tell the errors.
std::optional<Regression> regressionOf(const Table& complete);

void addRegression(Document& document, const Regression& regression);

} // namespace survey
