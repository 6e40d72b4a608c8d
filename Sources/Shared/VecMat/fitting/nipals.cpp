#include "nipals.h"

#include "../access/cells.h"
#include "../base/detail/companions.h"
#include "../base/detail/numbers.h"
#include "../base/missing_value.h"
#include "../kernels/regression_kernels.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

using namespace vecmat;

namespace {

/// At or below this a standard deviation counts as that of a constant; below it a sum of squares is too small to divide
/// by.
constexpr double vanishing = 1e-6;

/// Limit on the passes for a component that does not settle.
constexpr int passLimit = 100000;

enum Outcome : int { done = 0, degenerate = 1, tooManyMissing = -6 };

using Column = std::vector<double>;

/// A column before it is centred.
struct ColumnSummary
{
    double mean = 0.0;
    int missingCells = 0;
};

/// The residual table, with the missing value in missing cells. It is held twice, in columns and in strips of columns,
/// for regressing the rows and for regressing the columns; rows and columns of missing cells pad it to the width of
/// these passes.
class Residual
{
public:
    Residual(int rows, int cols)
        : rowCount_(countOf(rows)), height_(roundedUp(countOf(rows), RegressionKernels::blockHeight)),
          width_(roundedUp(countOf(cols), RegressionKernels::stripWidth)),
          columns_(height_ * countOf(cols), missingValue), strips_(height_ * width_, missingValue),
          summaries_(countOf(cols))
    {
    }

    std::size_t height() const { return height_; }
    std::size_t width() const { return width_; }
    std::size_t cols() const { return summaries_.size(); }

    const ColumnSummary& summary(std::size_t j) const { return summaries_[j]; }
    const double* column(std::size_t j) const { return columns_.data() + j * height_; }

    template <class Cells>
    void copy(Cells x, int n)
    {
        constexpr int rowsAtOnce = 64; // of a strip, while its columns are filled one by one
        for (int first = 0; first < n; first += rowsAtOnce)
            for (std::size_t j = 0; j < cols(); ++j)
                for (int i = first; i < std::min(n, first + rowsAtOnce); ++i)
                    set(static_cast<std::size_t>(i), j, x.get(i, static_cast<int>(j)));
    }
    /// Sums the columns of a copy and centres them. False if a column is constant.
    bool centre(const Column& w);

    /// Sums for the regression of each column on the scores, of `width` numbers each.
    void regressColumns(const Column& scores, Column& squares, Column& products) const
    {
        regressionKernels().onScores(rows(), strips(), strips_.data(), scores.data(), squares.data(), products.data());
    }
    void regressRows(const Column& loadings, Column& scores) const
    {
        regressionKernels().onLoadings(rows(), columns_.data(), static_cast<std::ptrdiff_t>(cols()), loadings.data(),
                                       scores.data());
    }
    /// `loadings` has `width` numbers.
    void deflate(const Column& scores, const Column& loadings)
    {
        for (std::size_t j = 0; j < cols(); ++j)
            regressionKernels().deflateColumn(rows(), columns_.data() + j * height_, scores.data(), loadings[j]);
        for (std::size_t j = 0; j < width_; j += stripWidth)
            regressionKernels().deflateStrip(rows(), strip(j), scores.data(), loadings.data() + j);
    }

private:
    static constexpr std::size_t stripWidth = RegressionKernels::stripWidth;

    static std::size_t roundedUp(std::size_t n, std::size_t step) { return (n + step - 1) / step * step; }

    std::ptrdiff_t rows() const { return static_cast<std::ptrdiff_t>(height_); }
    int strips() const { return static_cast<int>(width_ / stripWidth); }
    double* strip(std::size_t j) { return strips_.data() + j / stripWidth * stripWidth * height_; }
    void set(std::size_t i, std::size_t j, double cell)
    {
        columns_[j * height_ + i] = cell;
        strip(j)[i * stripWidth + j % stripWidth] = cell;
    }

    std::size_t rowCount_;
    std::size_t height_;
    std::size_t width_;
    Column columns_;
    Column strips_;
    std::vector<ColumnSummary> summaries_;
};

struct Component
{
    Column scores;   // one for each row of the residual; missing for a row without present cells
    Column loadings; // one for each column, of length 1, padded with 0.0
};

// ---- sums and centring ----------------------------------------------------------------------------------------------

bool Residual::centre(const Column& w)
{
    std::vector<RegressionKernels::ColumnSums> found(countOf(strips()));
    regressionKernels().sumColumns(rows(), strips(), strips_.data(), w.data(), found.data());
    Column means(width_);
    for (std::size_t j = 0; j < cols(); ++j) {
        const RegressionKernels::ColumnSums& sums = found[j / stripWidth];
        const std::size_t lane = j % stripWidth;
        const double total = sums.weights[lane];
        means[j] = sums.sums[lane] / total;
        if (squareRoot((sums.squares[lane] - means[j] * means[j] * total) / (total - 1.0)) <= vanishing)
            return false;
        // Padding rows do not belong to the table.
        summaries_[j] = {means[j], static_cast<int>(sums.missing[lane]) - static_cast<int>(height_ - rowCount_)};
    }
    // The weight is applied before the mean is subtracted; the imputation divides by it again.
    for (std::size_t j = 0; j < cols(); ++j)
        regressionKernels().centreColumn(rows(), columns_.data() + j * height_, w.data(), means[j]);
    for (std::size_t j = 0; j < width_; j += stripWidth)
        regressionKernels().centreStrip(rows(), strip(j), w.data(), means.data() + j);
    return true;
}

/// The table, centred; none if a column is constant.
template <class Cells, class Weights>
std::optional<Residual> centredTable(Cells x, Weights w, int n, int p)
{
    Residual residual(n, p);
    residual.copy(x, n);
    Column weights(residual.height());
    for (int i = 0; i < n; ++i)
        weights[countOf(i)] = w.get(i);
    if (!residual.centre(weights))
        return std::nullopt;
    return residual;
}

double missingTotal(const Residual& residual)
{
    double total = 0.0;
    for (std::size_t j = 0; j < residual.cols(); ++j)
        total += residual.summary(j).missingCells;
    return total;
}

bool withinShares(const Residual& residual, int n, double maxColumnShare, double maxTotalShare)
{
    for (std::size_t j = 0; j < residual.cols(); ++j)
        if (residual.summary(j).missingCells > n * maxColumnShare)
            return false;
    return !(missingTotal(residual) > n * maxTotalShare * static_cast<double>(residual.cols()));
}

// ---- one component --------------------------------------------------------------------------------------------------

/// Loadings: each column regressed on the scores, then all scaled to length 1.
class Loadings
{
public:
    explicit Loadings(const Residual& residual) : squares_(residual.width()), products_(residual.width()) {}

    /// False if the scores vanish for a column.
    bool regress(const Residual& residual, const Column& scores, Column& loadings)
    {
        residual.regressColumns(scores, squares_, products_);
        double norm = 0.0;
        for (std::size_t j = 0; j < residual.cols(); ++j) {
            if (squares_[j] < vanishing)
                return false;
            loadings[j] = products_[j] / squares_[j];
            norm += loadings[j] * loadings[j];
        }
        const double length = squareRoot(norm);
        for (std::size_t j = 0; j < residual.cols(); ++j)
            loadings[j] /= length;
        return true;
    }

private:
    Column squares_;
    Column products_;
};

/// The variance of the change in the loadings; NaN for one column.
double varianceOfChange(const Column& previous, const Column& loadings, std::size_t cols)
{
    double sum = 0.0;
    double squares = 0.0;
    for (std::size_t j = 0; j < cols; ++j) {
        const double change = previous[j] - loadings[j];
        sum += change;
        squares += change * change;
    }
    const auto count = static_cast<double>(cols);
    return (squares - sum * sum / count) / (count - 1.0);
}

/// The leading component of the residual; none if scores vanish.
std::optional<Component> leadingComponent(const Residual& residual, double tol)
{
    Component component{Column(residual.column(0), residual.column(0) + residual.height()), Column(residual.width())};
    Loadings loadings(residual);
    Column previous;
    for (int pass = 1; pass <= passLimit; ++pass) {
        if (!loadings.regress(residual, component.scores, component.loadings))
            return std::nullopt;
        // The denominators are not tested.
        residual.regressRows(component.loadings, component.scores);
        // A NaN variance ends the passes: it comes from a single column, whose loading cannot change, or from loadings
        // that are NaN and stay so.
        if (pass > 1 && !(varianceOfChange(previous, component.loadings, residual.cols()) > tol))
            break;
        previous = component.loadings;
    }
    return component;
}

/// None if scores vanish before all components are found.
std::optional<std::vector<Component>> extract(Residual& residual, int count, double tol)
{
    std::vector<Component> components;
    for (int h = 0; h < count; ++h) {
        std::optional<Component> component = leadingComponent(residual, tol);
        if (!component)
            return std::nullopt;
        residual.deflate(component->scores, component->loadings);
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
    for (std::size_t j = 0; j < residual.cols(); ++j) {
        const int col = static_cast<int>(j);
        int left = residual.summary(j).missingCells;
        for (int i = 0; left > 0 && i < n; ++i) {
            if (!isMissing(x.get(i, col)))
                continue;
            --left;
            x.set(i, col, 0.0);
            const double weight = w.get(i);
            if (weight != 0.0)
                x.set(i, col,
                      (rebuilt(components, static_cast<std::size_t>(i), j) + residual.summary(j).mean) / weight);
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
