#include "regression.h"

#include "number_format.h"

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

Fit fit(const std::vector<const Column*>& terms, const Column& response)
{
    constexpr int straight = 1;          // no powers
    constexpr double determined = 1e-10; // what the other columns leave of the variance of one that they determine
    const int n = static_cast<int>(response.numbers.size());
    const int p = static_cast<int>(terms.size());
    FlatTable x = numbersOf(terms, n);
    FlatTable y = numbersOf({&response}, n);
    std::vector<double> weights = unitWeights(n);
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
    TextTable text(
        {{"term", Align::left}, {"coefficient", Align::point}, {"standard error", Align::point}, {"t", Align::point}},
        1);
    for (std::size_t k = 0; k < regression.coefficients.size(); ++k) {
        const auto& [value, error] = regression.coefficients[k];
        text.addRow({k < regression.terms.size() ? regression.terms[k]->name : "(intercept)", shown(value, error),
                     shown(error, error), error > 0.0 ? withDecimals(value / error, 2) : "-"});
    }
    return text;
}

TextTable fitOf(const Regression& regression)
{
    TextTable text(
        {{"R squared", Align::right}, {"residual std dev", Align::right}, {"degrees of freedom", Align::right}}, 0);
    text.addRow({withDecimals(regression.determination, 4),
                 NumberFormat(*regression.response).statistic(regression.residualDeviation),
                 std::to_string(regression.freedom)});
    return text;
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
    Fit fit = survey::fit(terms, *result.response);
    if (moveLeftOut(fit.entered, terms, result.leftOut))
        fit = survey::fit(terms, *result.response);
    result.freedom = complete.rows - static_cast<int>(terms.size()) - 1;
    if (terms.empty() || result.freedom < 1)
        return std::nullopt;

    FlatTable y = numbersOf({result.response}, complete.rows);
    std::vector<double> weights = unitWeights(complete.rows);
    const double residual = VB_V_DiffSq(y.data(), y.rows, fit.fitted.data());
    const double total = VB_V_Var(y.data(), y.rows, noMask, weights.data(), yes, yes) * (y.rows - 1);
    result.determination = 1.0 - residual / total;
    result.residualDeviation = std::sqrt(residual / result.freedom);
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
    section.note = "t is the coefficient in standard errors.";
    if (!regression.leftOut.empty()) {
        section.note += " Left out, as the columns before determine them:";
        for (const Column* column : regression.leftOut)
            section.note += (column == regression.leftOut.front() ? " " : ", ") + listed(column->name);
        section.note += '.';
    }
}

} // namespace survey
