// Decomposition: the principal components of the planets, and the law that the last of them gives away.
#include "example.h"

#include <cmath>

namespace {

constexpr int planets = 8;
constexpr int columns = 3;

// Column by column, in units of the Earth.
const double measured[] = {
    0.383,  0.949, 1, 0.532, 11.21, 9.45,  4.01,  3.88,  // radius
    0.0553, 0.815, 1, 0.107, 317.8, 95.2,  14.5,  17.1,  // mass
    0.985,  0.951, 1, 0.713, 0.241, 0.125, 0.230, 0.297, // density
};

const Names names = {"log radius", "log mass", "log density"};
const Names bodies = {"Mercury", "Venus", "Earth", "Mars", "Jupiter", "Saturn", "Uranus", "Neptune"};
const Names axes = {"first", "second", "third"};

} // namespace

int main()
{
    matrix logs(planets, columns, 0.0);
    for (int k = 0; k < planets * columns; ++k)
        logs.X[k] = std::log10(measured[k]);

    matrix* table = &logs;
    matrix weights(planets, 1, 1.0);
    Result<> covariances, variances, directions;
    M_CovCorr(table, planets, columns, covariances.table, 0, nullptr, &weights, -1, -1, 0);
    if (M_Eigen(covariances.table, variances.table, directions.table, columns, -1) != 0)
        return 1;

    // How many components to keep: those that make up 99 % of the variance.
    int listed = 0, selected = 0;
    Result<> percent;
    FilterEigen(variances.table, columns, 0, 0.0, 99.0, 0, 0.0, listed, selected, percent.table);
    for (int k = 1; k <= columns; ++k)
        std::printf("The %-6s component: variance %8.5f, %6.2f %%\n", axes[k - 1].c_str(), variances.table->vbget(k, 1),
                    percent.table->vbget(k, 1));
    std::printf("Worth keeping: %d\n\n", selected);

    printTable("directions", names, axes, *directions.table, 3);

    logs.Center(); // by the column means, in place
    Result<> scores;
    M_ProductAB(&logs, planets, columns, directions.table, columns, scores.table);
    printTable("scores", bodies, axes, *scores.table, 3);

    // Along the last direction nothing varies: its coordinates are the coefficients of a law of the three columns.
    const double scale = directions.table->vbget(2, 3);
    std::printf("log mass = %.2f log radius + %.2f log density + constant\n", -directions.table->vbget(1, 3) / scale,
                -directions.table->vbget(3, 3) / scale);
}
