// Missing cells: count them, drop the rows that have any, or fill them in; and what each choice does to the means.
#include "example.h"

namespace {

constexpr int rows = 8;
constexpr int columns = 3;
constexpr double unknown = vecmat::missingValue;

// Eight springs, column by column.
double measured[] = {
    7.1, 7.3, unknown, 6.2, 7.4,     6.1, 7.2, 6.3,     // pH
    410, 455, 440,     120, unknown, 105, 430, 130,     // conductivity
    9.8, 9.5, 9.6,     7.1, 9.4,     6.9, 9.9, unknown, // temperature
};

const Names measurements = {"pH", "uS/cm", "deg C"};

void printMeans(const char* title, matrix& table, int n)
{
    matrix weights(n, 1, 1.0);
    Result<> mean;
    M_Mean(&table, n, columns, mean.table, &weights); // leaves out missing cells
    matrix asRow(1, columns, 0.0);
    mean.table->transposeTo(&asRow);
    printRow(title, asRow, 1, columns, 2);
}

} // namespace

int main()
{
    matrix springs(rows, columns, measured, true); // a view: the cells stay in the array

    int missing[columns];
    M_NbMissing(&springs, rows, columns, missing);
    std::printf("Missing: %d of pH, %d of conductivity, %d of temperature\n", missing[0], missing[1], missing[2]);

    int missingInRow[rows];
    short incomplete[rows]; // a mask: any value but 0 marks the row
    int dropped = 0;
    M_NbMissingPerRow(&springs, rows, columns, missingInRow);
    for (int i = 0; i < rows; ++i) {
        incomplete[i] = missingInRow[i] > 0 ? -1 : 0;
        dropped += missingInRow[i] > 0;
    }
    std::printf("Complete rows: %d of %d\n\n", rows - dropped, rows);

    matrix kept(springs), mean(springs), nearest(springs); // copies
    matrix weights(rows, 1, 1.0);
    matrix* target = &kept;
    RemoveRowsWithMissing(target, rows, columns, incomplete); // the others move up; the table keeps its size

    target = &mean;
    EstimateRowsWithMissingMean(&springs, rows, target, rows, columns, incomplete, &weights);

    target = &nearest;           // a cell from the most similar complete row
    matrix* noNumbers = nullptr; // further blocks of the same rows: none here
    Smatrix* noTexts = nullptr;
    EstimateRowsWithMissingNN(&springs, rows, target, rows, columns, incomplete, noNumbers, noNumbers, 0, noTexts,
                              noTexts, 0, &weights);

    printNames("means", measurements);
    printMeans("present cells", springs, rows);
    printMeans("complete rows", kept, rows - dropped);
    printMeans("filled, means", mean, rows);
    printMeans("filled, nearest", nearest, rows);
    std::printf("\n");

    const Names numbers = {"1", "2", "3", "4", "5", "6", "7", "8"};
    printTable("as measured", numbers, measurements, springs, 1);
    printTable("filled, nearest", numbers, measurements, nearest, 1);
}
