#include "replacement.h"

#include "../access/cells.h"
#include "../base/missing_value.h"

using vecmat::block;
using vecmat::cells;
using vecmat::isMissing;
using vecmat::isMissingOrBelow;
using vecmat::missingValue;
using vecmat::onBlocks;
using vecmat::triangle;

namespace {

template <class Storage, class Test, class Value>
void replaceWhere(Storage storage, int rows, int cols, Test test, const Value& value)
{
    onBlocks(
        [&](auto x) {
            for (int j = 0; j < cols; ++j)
                for (int i = 0; i < rows; ++i)
                    if (test(x.get(i, j)))
                        x.set(i, j, value);
        },
        block(storage, rows, cols));
}

} // namespace

void M_ReplaceMissingByVal(matrix* a, int nRows, int nCols, double value)
{
    replaceWhere(cells(a), nRows, nCols, isMissingOrBelow, value);
}

void M_ReplaceMissingByValSPV(matrix** a, int nRows, int nCols, double value)
{
    replaceWhere(cells(a), nRows, nCols, isMissingOrBelow, value);
}

void M_ReplaceMissingByValSPV_T(matrix** a, int nRows, int nCols, double value)
{
    replaceWhere(triangle(a), nRows, nCols, isMissingOrBelow, value);
}

void M_ReplaceMissingByStr(Smatrix* a, int nRows, int nCols, std::wstring value)
{
    replaceWhere(
        cells(a), nRows, nCols, [](const std::wstring& text) { return text.empty(); }, value);
}

void M_ReplaceByMissing(matrix* a, int nRows, int nCols, matrixInt* mask, int nMaskCols, short wholeRow)
{
    const auto table = cells(a);
    onBlocks(
        [=](auto marks) {
            for (int j = 0; j < nMaskCols; ++j)
                for (int i = 0; i < nRows; ++i) {
                    if (marks.get(i, j) != 1)
                        continue;
                    if (wholeRow != -1)
                        table.set(i, j, missingValue);
                    else
                        for (int k = 0; k < nCols; ++k)
                            table.set(i, k, missingValue);
                }
        },
        block(cells(mask), nRows, nMaskCols));
}

void M_SetWeightsToZeroForMissing(matrix* data, int nRows, int nCols, matrix*& weights, int nWeightCols)
{
    const bool onePerRow = nWeightCols == 1;
    const auto weight = cells(weights);
    onBlocks(
        [=](auto x) {
            for (int j = 0; j < nCols; ++j)
                for (int i = 0; i < nRows; ++i)
                    if (isMissing(x.get(i, j)))
                        weight.set(i, onePerRow ? 0 : j, 0.0);
        },
        block(cells(data), nRows, nCols));
}
