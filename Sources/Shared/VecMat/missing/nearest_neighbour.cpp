#include "nearest_neighbour.h"

#include "../access/cells.h"
#include "../base/detail/masks.h"
#include "../descriptive/moments.h"
#include "../elementary/detail/texts.h"
#include "../frame/detail/handles.h"
#include "../qualitative/detail/text_calls.h"
#include "detail/neighbour_search.h"
#include "detail/neighbour_texts.h"
#include "detail/numbered_texts.h"

#include <algorithm>
#include <vector>

using namespace vecmat;

namespace {

/// The variances of the primary and of the second block have different divisors: weights treated as frequencies, and
/// weights corrected by their mean.
enum class Divisor : short { frequencies = -1, meanWeight = 0 };

/// A block of numbers: where its cells are, and the statistics of its columns.
template <class Storage>
struct Numbers
{
    Storage table;
    int cols;
    TableHandle means;
    TableHandle variances;

    template <class Cells>
    NumericBlock<Cells> over(Cells cells) const
    {
        return {cells, cols, cols > 0 ? means->X : nullptr, cols > 0 ? variances->X : nullptr};
    }
};

/// The same for a block of strings, or of their numbers.
template <class Table>
struct Texts
{
    Table* table;
    int cols;
    std::vector<typename CellOf<Table>::Value> modes;

    template <class Cells>
    StringBlock<Cells> over(Cells cells) const
    {
        return {cells, cols, modes.data()};
    }
};

template <class Storage>
int columnsPresent(Storage table, int cols)
{
    return table != nullptr ? std::max(cols, 0) : 0;
}

void columnMoments(matrix* x, int n, int p, matrix*& mean, matrix*& variance, matrix* weights, Divisor divisor)
{
    matrix* noDeviations = nullptr;
    M_MeanStDevVar(x, n, p, mean, noDeviations, variance, nullptr, weights, -1, static_cast<short>(divisor));
}

void columnMoments(matrix** x, int n, int p, matrix*& mean, matrix*& variance, matrix* weights, Divisor divisor)
{
    matrix* noDeviations = nullptr;
    M_MeanStDevVarSPV(x, n, p, mean, noDeviations, variance, nullptr, weights, -1, static_cast<short>(divisor));
}

template <class Storage>
Numbers<Storage> numbers(Storage statistics, int nStat, Storage target, int cols, matrix* weights, Divisor divisor)
{
    Numbers<Storage> block{target, columnsPresent(target, cols), {}, {}};
    if (block.cols > 0)
        columnMoments(statistics, nStat, block.cols, block.means.reference(), block.variances.reference(), weights,
                      divisor);
    return block;
}

Texts<Smatrix> texts(Smatrix* statistics, int nStat, Smatrix* target, int cols, matrix* weights)
{
    const int present = columnsPresent(target, cols);
    return {target, present, modesOfColumns(TableTexts(statistics), nStat, present, weights)};
}

Texts<NumberedTexts> texts(const TextBlock& block, int nStat, matrix* weights)
{
    const int present = columnsPresent(block.target, block.cols);
    Texts<NumberedTexts> numbered{block.target, present, {}};
    for (const wchar_t* mode : modesOfColumns(block.statistics, nStat, present, weights))
        numbered.modes.push_back(block.numbers.of(mode));
    return numbered;
}

template <class Primary, class Second, class Strings>
void fillFromNeighbours(const Primary& primary, const Second& second, const Strings& strings, int nRows,
                        const short* mask)
{
    onBlocks(
        [&](auto p, auto y, auto s) {
            NeighbourImputation(primary.over(p), second.over(y), strings.over(s), nRows, Mask(mask)).run();
        },
        block(cells(primary.table), nRows, primary.cols), block(cells(second.table), nRows, second.cols),
        block(cells(strings.table), nRows, strings.cols));
}

} // namespace

// Over tables of strings, and over a caller's texts.

void EstimateRowsWithMissingNN(matrix* statX, int nStat, matrix*& X, int nRows, int nColsX, short* mask, matrix* statY,
                               matrix*& Y, int nColsY, Smatrix* statS, Smatrix*& S, int nColsS, matrix* weights)
{
    fillFromNeighbours(numbers<matrix*>(statX, nStat, X, nColsX, weights, Divisor::frequencies),
                       numbers<matrix*>(statY, nStat, Y, nColsY, weights, Divisor::meanWeight),
                       texts(statS, nStat, S, nColsS, weights), nRows, mask);
}

void vecmat::EstimateRowsWithMissingNN(matrix* statX, int nStat, matrix* X, int nRows, int nColsX, const short* mask,
                                       matrix* statY, matrix* Y, int nColsY, const TextBlock& S, matrix* weights)
{
    fillFromNeighbours(numbers<matrix*>(statX, nStat, X, nColsX, weights, Divisor::frequencies),
                       numbers<matrix*>(statY, nStat, Y, nColsY, weights, Divisor::meanWeight),
                       texts(S, nStat, weights), nRows, mask);
}

void EstimateRowsWithMissingNNStr(Smatrix* statX, int nStat, Smatrix*& X, int nRows, int nColsX, short* mask,
                                  matrix* statY, matrix*& Y, int nColsY, Smatrix* statS, Smatrix*& S, int nColsS,
                                  matrix* weights)
{
    fillFromNeighbours(texts(statX, nStat, X, nColsX, weights),
                       numbers<matrix*>(statY, nStat, Y, nColsY, weights, Divisor::meanWeight),
                       texts(statS, nStat, S, nColsS, weights), nRows, mask);
}

void vecmat::EstimateRowsWithMissingNN(const TextBlock& X, int nStat, int nRows, const short* mask, matrix* statY,
                                       matrix* Y, int nColsY, const TextBlock& S, matrix* weights)
{
    fillFromNeighbours(texts(X, nStat, weights),
                       numbers<matrix*>(statY, nStat, Y, nColsY, weights, Divisor::meanWeight),
                       texts(S, nStat, weights), nRows, mask);
}

void EstimateRowsWithMissingNNSPV(matrix** X, int nRows, int nColsX, short* mask, matrix* statY, matrix*& Y, int nColsY,
                                  Smatrix* statS, Smatrix*& S, int nColsS, matrix* weights)
{
    fillFromNeighbours(numbers<matrix**>(X, nRows, X, nColsX, weights, Divisor::frequencies),
                       numbers<matrix*>(statY, nRows, Y, nColsY, weights, Divisor::meanWeight),
                       texts(statS, nRows, S, nColsS, weights), nRows, mask);
}

void vecmat::EstimateRowsWithMissingNN(matrix** X, int nRows, int nColsX, const short* mask, matrix* Y, int nColsY,
                                       const TextBlock& S, matrix* weights)
{
    fillFromNeighbours(numbers<matrix**>(X, nRows, X, nColsX, weights, Divisor::frequencies),
                       numbers<matrix*>(Y, nRows, Y, nColsY, weights, Divisor::meanWeight), texts(S, nRows, weights),
                       nRows, mask);
}

void EstimateRowsWithMissingNNSPV2(matrix** X, int nRows, int nColsX, short* mask, matrix** statY, matrix** Y,
                                   int nColsY, Smatrix* statS, Smatrix*& S, int nColsS, matrix* weights)
{
    fillFromNeighbours(numbers<matrix**>(X, nRows, X, nColsX, weights, Divisor::frequencies),
                       numbers<matrix**>(statY, nRows, Y, nColsY, weights, Divisor::meanWeight),
                       texts(statS, nRows, S, nColsS, weights), nRows, mask);
}

void vecmat::EstimateRowsWithMissingNN(matrix** X, int nRows, int nColsX, const short* mask, matrix** Y, int nColsY,
                                       const TextBlock& S, matrix* weights)
{
    fillFromNeighbours(numbers<matrix**>(X, nRows, X, nColsX, weights, Divisor::frequencies),
                       numbers<matrix**>(Y, nRows, Y, nColsY, weights, Divisor::meanWeight), texts(S, nRows, weights),
                       nRows, mask);
}
