#include "regression.h"

#include "inference.h"
#include "number_format.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace survey {

namespace {

struct Fit
{
    std::vector<Coefficient> coefficients; ///< the intercept last
    std::vector<double> fitted;
    std::vector<bool> entered; ///< for each term
};

Fit fit(const std::vector<const Column*>& terms, const Column& response, std::vector<double> weights)
{
    constexpr int straight = 1;          // no powers
    constexpr double determined = 1e-10; // what the other columns leave of the variance of one that they determine
    const int n = static_cast<int>(response.numbers.size());
    const int p = static_cast<int>(terms.size());
    FlatTable x = numbersOf(terms, n);
    FlatTable y = numbersOf({&response}, n);
    FlatTable beta(p + 1, 1), errors(p + 1, 1), fitted(n, 1), swept(p + 1, p + 1), means(p + 1, 1),
        deviations(p + 1, 1);
    RunOLSBasic3(n, p, x.data(), y.data(), weights.data(), straight, no, no, determined, beta.data(), errors.data(),
                 fitted.data(), swept.data(), means.data(), deviations.data());
    Fit result{{}, std::move(fitted.cells), {}};
    for (int k = 0; k <= p; ++k)
        result.coefficients.push_back({beta.at(k, 0), errors.at(k, 0)});
    for (int k = 0; k < p; ++k)
        result.entered.push_back(deviations.at(k, 0) != 0.0);
    return result;
}

/// Moves the terms that didn't enter to the others.
bool moveLeftOut(const std::vector<bool>& entered, std::vector<const Column*>& terms,
                 std::vector<const Column*>& leftOut)
{
    std::vector<const Column*> all;
    terms.swap(all);
    for (std::size_t k = 0; k < all.size(); ++k)
        (entered[k] ? terms : leftOut).push_back(all[k]);
    return terms.size() < all.size();
}

/// As far as it can be told: down to the fourth digit of its error.
std::string shown(double number, double error)
{
    const int decimals = decimalsFor(error, 4);
    return error > 0.0 && decimals < 10 ? withDecimals(number, decimals) : withDigits(number, 5);
}

TextTable coefficientsOf(const Regression& regression)
{
    TextTable text({{"term", Align::left},
                    {"coefficient", Align::point},
                    {"standard error", Align::point},
                    {"95 % from", Align::point},
                    {"to", Align::point},
                    {"t", Align::point},
                    {"p", Align::point}},
                   1);
    const double reach = intervalReach(regression.freedom);
    for (std::size_t k = 0; k < regression.coefficients.size(); ++k) {
        const auto& [value, error] = regression.coefficients[k];
        const bool isKnown = error > 0.0;
        text.addRow({k < regression.terms.size() ? regression.terms[k]->name : "(intercept)", shown(value, error),
                     shown(error, error), isKnown ? shown(value - reach * error, error) : "-",
                     isKnown ? shown(value + reach * error, error) : "-",
                     isKnown ? withDecimals(value / error, 2) : "-",
                     isKnown ? shownP(twoSidedP(value / error, regression.freedom)) : "-"});
    }
    return text;
}

TextTable fitOf(const Regression& regression)
{
    TextTable text({{"R squared", Align::right},
                    {"residual std dev", Align::right},
                    {"degrees of freedom", Align::right},
                    {"F", Align::right},
                    {"p", Align::right}},
                   0);
    text.addRow({withDecimals(regression.determination, 4),
                 NumberFormat(*regression.response).statistic(regression.residualDeviation),
                 std::to_string(regression.freedom), withDecimals(regression.f, 2),
                 shownP(upperP(regression.f, static_cast<double>(regression.terms.size()), regression.freedom))});
    return text;
}

/// The residuals beside the fitted values, and in their order beside the quantiles of a normal distribution; of many
/// rows some.
std::vector<Picture> picturesOf(const Regression& regression)
{
    const int n = static_cast<int>(regression.residuals.size());
    DataTable residuals{"residuals", {{"fitted", "residual"}}};
    for (int i = 0; i < n; i += thinning(n)) {
        const auto place = static_cast<std::size_t>(i);
        residuals.records.push_back(
            {withAllDigits(regression.fitted[place]), withAllDigits(regression.residuals[place])});
    }
    std::vector<double> sorted = regression.residuals;
    std::sort(sorted.begin(), sorted.end());
    DataTable quantiles{"residual_quantiles", {{"normal", "residual"}}};
    const double shift = n <= 10 ? 0.375 : 0.5; // as R's ppoints has it
    const int outer = 100;                      // the ends, which tell most, are drawn in full
    for (int i = 0; i < n; i += i < outer || i >= n - outer ? 1 : std::min(thinning(n), n - outer - i)) {
        const double p = (i + 1 - shift) / (n + 1 - 2.0 * shift);
        quantiles.records.push_back(
            {withAllDigits(normalQuantile(p)),
             withAllDigits(sorted[static_cast<std::size_t>(i)] / regression.residualDeviation)});
    }
    return {{"residuals", {std::move(residuals)}}, {"residual_quantiles", {std::move(quantiles)}}};
}

} // namespace

std::optional<Regression> regressionOf(const Table& complete)
{
    std::vector<const Column*> terms = varyingColumns(complete);
    const std::vector<const Column*> numeric = complete.ofKind(Kind::numeric);
    if (terms.empty() || terms.back() != numeric.back())
        return std::nullopt;
    Regression result{numeric.back(), {}, {}, {}, 0.0, 0.0, 0};
    terms.pop_back();
    // A column that stays out counts in the degrees of freedom all the same, so that the errors come from a fit without.
    Fit fit = survey::fit(terms, *result.response, weightsOf(complete));
    if (moveLeftOut(fit.entered, terms, result.leftOut))
        fit = survey::fit(terms, *result.response, weightsOf(complete));
    result.freedom = complete.rows - static_cast<int>(terms.size()) - 1;
    if (terms.empty() || result.freedom < 1)
        return std::nullopt;

    FlatTable y = numbersOf({result.response}, complete.rows);
    std::vector<double> weights = weightsOf(complete);
    const double total = VB_V_Var(y.data(), y.rows, noMask, weights.data(), yes, areFrequencies) * (y.rows - 1);
    result.fitted = fit.fitted;
    for (std::size_t i = 0; i < weights.size() && complete.isWeighted(); ++i) {
        y.cells[i] *= std::sqrt(weights[i]);
        fit.fitted[i] *= std::sqrt(weights[i]);
    }
    const double residual = VB_V_DiffSq(y.data(), y.rows, fit.fitted.data());
    for (std::size_t i = 0; i < weights.size(); ++i)
        result.residuals.push_back(y.cells[i] - fit.fitted[i]);
    result.determination = 1.0 - residual / total;
    result.residualDeviation = std::sqrt(residual / result.freedom);
    result.f = (total - residual) / static_cast<double>(terms.size()) / (residual / result.freedom);
    result.terms = std::move(terms);
    result.coefficients = std::move(fit.coefficients);
    return result;
}

void addRegression(Document& document, const Regression& regression)
{
    Section& section = document.add("regression", "Regression of " + regression.response->name,
                                    "By least squares on the other numeric columns, their gaps filled: these explain " +
                                        percentage(regression.determination, 1.0) + " of its variance.");
    section.addTable("regression_coefficients", coefficientsOf(regression));
    section.addTable("regression_fit", fitOf(regression));
    if (regression.residualDeviation > 0.0)
        section.pictures = picturesOf(regression);
    section.note =
        "t is the coefficient in standard errors, p how likely one so far from 0 is by chance. F compares what "
        "the terms explain with what they leave. Filled cells count like any other, so that the errors are "
        "told somewhat too small where many are.";
    if (!regression.leftOut.empty()) {
        section.note += " Left out, as the columns before determine them:";
        for (const Column* column : regression.leftOut)
            section.note += (column == regression.leftOut.front() ? " " : ", ") + listed(column->name);
        section.note += '.';
    }
}

} // namespace survey
