#include "nipals.h"

#include "../frame/cells.h"
#include "../frame/companions.h"

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

using namespace vecmat;

namespace {

/// At or below this a standard deviation is that of a constant; below it a sum of squares is no denominator.
constexpr double vanishing = 1e-6;

/// Where the passes for a component end that does not settle.
constexpr int passLimit = 100000;

enum Outcome : int { done = 0, degenerate = 1, tooManyMissing = -6 };

using Column = std::vector<double>;

/// A column of the residual table: its cells, the missing value where the cell is missing, and what the census found.
struct ResidualColumn
{
    Column cells;
    double mean = 0.0;
    int missingCells = 0;
};

using Residual = std::vector<ResidualColumn>;

struct Component
{
    Column scores;   // one for each row; missing for a row without cells
    Column loadings; // one for each column, of length 1
};

// ---- census and centring --------------------------------------------------------------------------------------------

/// Column j, centred; none where it is constant.
template <class Cells, class Weights>
std::optional<ResidualColumn> centredColumn(Cells x, Weights w, int n, int j)
{
    ResidualColumn column{Column(countOf(n), missingValue)};
    double total = 0.0;
    double sum = 0.0;
    double squares = 0.0;
    for (int i = 0; i < n; ++i) {
        const double cell = x.get(i, j);
        if (isMissing(cell)) {
            ++column.missingCells;
            continue;
        }
        const double weight = w.get(i);
        total += weight;
        sum += weight * cell;
        squares += weight * cell * cell;
    }
    column.mean = sum / total;
    const double deviation = sqr((squares - column.mean * column.mean * total) / (total - 1.0));
    if (deviation <= vanishing)
        return std::nullopt;

    for (int i = 0; i < n; ++i) {
        const double cell = x.get(i, j);
        // The weight comes before the mean is taken off; the imputation divides it out again.
        if (!isMissing(cell))
            column.cells[static_cast<std::size_t>(i)] = w.get(i) * cell - column.mean;
    }
    return column;
}

/// The table, centred; none where a column is constant.
template <class Cells, class Weights>
std::optional<Residual> centredTable(Cells x, Weights w, int n, int p)
{
    Residual residual;
    for (int j = 0; j < p; ++j) {
        std::optional<ResidualColumn> column = centredColumn(x, w, n, j);
        if (!column)
            return std::nullopt;
        residual.push_back(std::move(*column));
    }
    return residual;
}

double missingTotal(const Residual& residual)
{
    double total = 0.0;
    for (const ResidualColumn& column : residual)
        total += column.missingCells;
    return total;
}

bool withinShares(const Residual& residual, int n, double maxColumnShare, double maxTotalShare)
{
    for (const ResidualColumn& column : residual)
        if (column.missingCells > n * maxColumnShare)
            return false;
    return !(missingTotal(residual) > n * maxTotalShare * static_cast<double>(residual.size()));
}

// ---- one component --------------------------------------------------------------------------------------------------

/// Loadings: each column regressed on the scores, then all scaled to length 1. False where a column meets scores that
/// vanish.
bool regressOnScores(const Residual& residual, const Column& scores, Column& loadings)
{
    double norm = 0.0;
    for (std::size_t j = 0; j < residual.size(); ++j) {
        const Column& z = residual[j].cells;
        double squares = 0.0;
        double product = 0.0;
        for (std::size_t i = 0; i < z.size(); ++i)
            if (!isMissing(z[i]) && !isMissing(scores[i])) {
                squares += scores[i] * scores[i];
                product += z[i] * scores[i];
            }
        if (squares < vanishing)
            return false;
        loadings[j] = product / squares;
        norm += loadings[j] * loadings[j];
    }
    const double length = sqr(norm);
    for (double& loading : loadings)
        loading /= length;
    return true;
}

/// Scores: each row regressed on the loadings. The denominator is not tested. Column by column, in which each row's
/// sums still run in the order of the columns.
void regressOnLoadings(const Residual& residual, const Column& loadings, Column& scores)
{
    Column squares(scores.size(), 0.0);
    scores.assign(scores.size(), missingValue);
    for (std::size_t j = 0; j < residual.size(); ++j) {
        const Column& z = residual[j].cells;
        const double loading = loadings[j];
        for (std::size_t i = 0; i < z.size(); ++i) {
            if (isMissing(z[i]))
                continue;
            squares[i] += loading * loading;
            scores[i] = isMissing(scores[i]) ? z[i] * loading : scores[i] + z[i] * loading;
        }
    }
    for (std::size_t i = 0; i < scores.size(); ++i)
        if (!isMissing(scores[i]))
            scores[i] /= squares[i];
}

/// The variance of the change in the loadings; not a number for one column.
double varianceOfChange(const Column& previous, const Column& loadings)
{
    double sum = 0.0;
    double squares = 0.0;
    for (std::size_t j = 0; j < loadings.size(); ++j) {
        const double change = previous[j] - loadings[j];
        sum += change;
        squares += change * change;
    }
    const auto count = static_cast<double>(loadings.size());
    return (squares - sum * sum / count) / (count - 1.0);
}

/// The leading component of the residual; none where scores vanish.
std::optional<Component> leadingComponent(const Residual& residual, double tol)
{
    Component component{residual.front().cells, Column(residual.size())};
    Column previous;
    for (int pass = 1; pass <= passLimit; ++pass) {
        if (!regressOnScores(residual, component.scores, component.loadings))
            return std::nullopt;
        regressOnLoadings(residual, component.loadings, component.scores);
        // A variance that is no number ends the passes: it comes from a single column, whose loading cannot change, or
        // from loadings that are no numbers and stay so.
        if (pass > 1 && !(varianceOfChange(previous, component.loadings) > tol))
            break;
        previous = component.loadings;
    }
    return component;
}

void deflate(Residual& residual, const Component& component)
{
    for (std::size_t j = 0; j < residual.size(); ++j) {
        Column& z = residual[j].cells;
        for (std::size_t i = 0; i < z.size(); ++i)
            if (!isMissing(component.scores[i]) && !isMissing(z[i]))
                z[i] -= component.scores[i] * component.loadings[j];
    }
}

/// None where scores vanish before all components are found.
std::optional<std::vector<Component>> extract(Residual& residual, int count, double tol)
{
    std::vector<Component> components;
    for (int h = 0; h < count; ++h) {
        std::optional<Component> component = leadingComponent(residual, tol);
        if (!component)
            return std::nullopt;
        deflate(residual, *component);
        components.push_back(std::move(*component));
    }
    return components;
}

// ---- imputation -----------------------------------------------------------------------------------------------------

double rebuilt(const std::vector<Component>& components, std::size_t i, std::size_t j)
{
    double sum = 0.0;
    for (const Component& component : components)
        if (!isMissing(component.scores[i]))
            sum += component.scores[i] * component.loadings[j];
    return sum;
}

template <class Cells, class Weights>
void impute(Cells x, Weights w, int n, const Residual& residual, const std::vector<Component>& components)
{
    for (std::size_t j = 0; j < residual.size(); ++j) {
        const int col = static_cast<int>(j);
        int left = residual[j].missingCells;
        for (int i = 0; left > 0 && i < n; ++i) {
            if (!isMissing(x.get(i, col)))
                continue;
            --left;
            x.set(i, col, 0.0);
            const double weight = w.get(i);
            if (weight != 0.0)
                x.set(i, col, (rebuilt(components, static_cast<std::size_t>(i), j) + residual[j].mean) / weight);
        }
    }
}

} // namespace

int NIPALS(int n, int p, matrix* X, matrix* w, double tol, int components, double maxColumnShare, double maxTotalShare)
{
    return onBlocks(
        [=](auto x, auto weights) -> int {
            std::optional<Residual> residual = centredTable(x, weights, n, p);
            if (!residual)
                return degenerate;
            if (missingTotal(*residual) == 0.0)
                return done;
            if (!withinShares(*residual, n, maxColumnShare, maxTotalShare))
                return tooManyMissing;
            const auto found = extract(*residual, components, tol);
            if (!found)
                return degenerate;
            impute(x, weights, n, *residual, *found);
            return done;
        },
        block(cells(X), n, p), block(linear(w), n));
}
