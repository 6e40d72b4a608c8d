// Covariance in the presence of missing cells: which rows enter, what divides, and how to mend a table of correlations
// that no complete data could have.
#include "example.h"

namespace {

constexpr int students = 9;
constexpr int papers = 3;
constexpr double absent = vecmat::missingValue;

// Marks in three papers, column by column. Only the first three students sat all of them.
double marks[] = {
    52, 61, 70, 40,     55,     78,     absent, absent, absent, // algebra
    58, 60, 66, 44,     57,     80,     45,     63,     81,     // geometry
    60, 57, 64, absent, absent, absent, 70,     55,     42,     // history
};

const Names names = {"algebra", "geometry", "history"};

void printSmallestEigenvalue(matrix& table)
{
    Result<> values, vectors;
    M_Eigen(&table, values.table, vectors.table, papers, -1); // in descending order
    std::printf("Smallest eigenvalue: %.2g\n\n", values.table->vbget(papers, 1));
}

} // namespace

int main()
{
    matrix data(students, papers, marks, true);
    matrix* table = &data;
    matrix weights(students, 1, 1.0);
    short incomplete[students] = {0, 0, 0, -1, -1, -1, -1, -1, -1};
    short* everyRow = nullptr;
    const short sample = -1, frequencies = -1; // divide by the sum of weights less 1

    Result<> complete, pairwise, correlations;
    M_CovCorr(table, students, papers, complete.table, 0, incomplete, &weights, sample, frequencies, 0);
    printTable("complete rows", names, names, *complete.table, 1);

    // Without a mask each pair takes all the rows in which both cells are present.
    M_CovCorr(table, students, papers, pairwise.table, 0, everyRow, &weights, sample, frequencies, 0);
    printTable("pair by pair", names, names, *pairwise.table, 1);

    M_CovCorr(table, students, papers, correlations.table, 1, everyRow, &weights, sample, frequencies, 0);
    printTable("correlations", names, names, *correlations.table, 3);
    printSmallestEigenvalue(*correlations.table);

    // Each pair comes from other rows, so the three can contradict each other: an eigenvalue is negative. The nearest
    // correlation matrix has none, but for the tolerance of the iteration.
    M_CorrMatFromSymMat(correlations.table, papers);
    printTable("nearest ones", names, names, *correlations.table, 3);
    printSmallestEigenvalue(*correlations.table);
}
