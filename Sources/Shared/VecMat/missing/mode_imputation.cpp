#include "mode_imputation.h"

#include "../access/cells.h"
#include "../frame/detail/handles.h"
#include "../qualitative/categories.h"

using vecmat::block;
using vecmat::cells;
using vecmat::linear;
using vecmat::onBlocks;
using vecmat::StringTableHandle;

namespace {

StringTableHandle modesOfColumns(Smatrix* table, int rows, int cols, matrix* weights)
{
    StringTableHandle modes;
    vecmat::TableHandle modeWeights;
    vecmat::IntTableHandle nCats;
    StringTableHandle categories;
    vecmat::TableHandle catWeights;
    int total = 0;
    M_InfoQuali(table, rows, cols, modes.reference(), modeWeights.reference(), nCats.reference(),
                categories.reference(), catWeights.reference(), weights, &total, 0);
    return modes;
}

} // namespace

void EstimateRowsWithMissingMode(Smatrix* statS, int nStat, Smatrix*& S, int nRows, int nCols, matrix* weights)
{
    const StringTableHandle modes = modesOfColumns(statS, nStat, nCols, weights);
    onBlocks(
        [&](auto x) {
            for (int j = 0; j < nCols; ++j)
                for (int i = 0; i < nRows; ++i)
                    if (x.get(i, j).empty())
                        x.set(i, j, linear<Smatrix>(modes).get(j));
        },
        block(cells(S), nRows, nCols));
}
