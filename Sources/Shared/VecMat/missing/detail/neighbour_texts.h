// Nearest-neighbour imputation over a caller's texts. Each distinct text has a number, and the search compares and copies
// these. The contracts are those of the exported functions over tables of strings. Internal to the library.
#pragma once

#include "../../elementary/detail/texts.h"
#include "../../matrix.h"
#include "numbered_texts.h"

namespace vecmat {

/// A block of strings: the texts of its statistics, and the numbers of those that are filled. A block that is not there
/// has no table.
struct TextBlock
{
    TextNumbers& numbers;
    CallerTexts statistics;
    NumberedTexts* target;
    int cols;
};

void EstimateRowsWithMissingNN(matrix* statX, int nStat, matrix* X, int nRows, int nColsX, const short* mask,
                               matrix* statY, matrix* Y, int nColsY, const TextBlock& S, matrix* weights);
/// With strings in the primary block, too.
void EstimateRowsWithMissingNN(const TextBlock& X, int nStat, int nRows, const short* mask, matrix* statY, matrix* Y,
                               int nColsY, const TextBlock& S, matrix* weights);
/// Columns of a data set, whose statistics are its own.
void EstimateRowsWithMissingNN(matrix** X, int nRows, int nColsX, const short* mask, matrix* Y, int nColsY,
                               const TextBlock& S, matrix* weights);
void EstimateRowsWithMissingNN(matrix** X, int nRows, int nColsX, const short* mask, matrix** Y, int nColsY,
                               const TextBlock& S, matrix* weights);

} // namespace vecmat
