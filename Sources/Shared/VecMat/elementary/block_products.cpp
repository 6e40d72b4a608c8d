#include "block_products.h"

#include "../access/adaptors.h"
#include "../access/cells.h"
#include "../access/prepared_result.h"
#include "../access/product.h"
#include "../access/structured_product.h"
#include "../access/tiled_product.h"
#include "../base/detail/numbers.h"

using namespace vecmat;

namespace {

int sizeOfBlock(matrix* sizes, int k)
{
    return truncated(linear(sizes).get(k));
}

int sizeOfBlock(matrixInt* sizes, int k)
{
    return linear(sizes).get(k);
}

/// Calls body(block, size, offset) for each block.
template <class Sizes, class Body>
void forEachBlock(matrix** blocks, int nBlocks, Sizes* sizes, Body body)
{
    unsigned offset = 0;
    for (int k = 0; k < nBlocks; ++k) {
        const int size = sizeOfBlock(sizes, k);
        if (size > 0)
            body(blocks[k], size, static_cast<int>(offset));
        offset += static_cast<unsigned>(size);
    }
}

/// The plain product in a table that the caller keeps: it is cleared only if it is large enough, and never replaced.
template <class Left, class Right>
void plainProduct(Left left, Right right, const ProductShape& shape, matrix* out)
{
    if (holds(out, shape.rows, shape.cols))
        matrix::matCheck(out, shape.rows, shape.cols, 0.0);
    multiply(left, right, shape, cells(out));
}

template <class Sizes>
void productBckA(matrix** blocks, int nBlocks, Sizes* sizes, matrix* a, int cols, matrix* out)
{
    if (nBlocks == 1) {
        const int size = sizeOfBlock(sizes, 0);
        plainProduct(cells(blocks[0]), cells(a), {size, size, cols}, out);
        return;
    }
    forEachBlock(blocks, nBlocks, sizes, [=](matrix* one, int size, int offset) {
        multiplyByStructure(cells(one), structureOf(one, size, size), shifted(cells(a), offset, 0),
                            structureOf(a, size, cols, offset, 0), {size, size, cols}, shifted(cells(out), offset, 0));
    });
}

template <class Sizes>
void productABck(matrix* a, int rows, matrix** blocks, int nBlocks, Sizes* sizes, matrix* out)
{
    if (nBlocks == 1) {
        const int size = sizeOfBlock(sizes, 0);
        plainProduct(cells(a), cells(blocks[0]), {rows, size, size}, out);
        return;
    }
    // A row of the left operand counts as diagonal only where rows and size agree, so never beyond the block.
    forEachBlock(blocks, nBlocks, sizes, [=](matrix* one, int size, int offset) {
        multiplyByStructure(shifted(cells(a), 0, offset), structureOf(a, rows, size, 0, offset), cells(one),
                            structureOf(one, size, size), {rows, size, size}, shifted(cells(out), 0, offset));
    });
}

template <class Sizes>
void productATrBck(matrix* a, int rows, matrix** blocks, int nBlocks, Sizes* sizes, matrix* out)
{
    if (nBlocks == 1) {
        const int size = sizeOfBlock(sizes, 0);
        plainProduct(cells(a), transposed(cells(blocks[0])), {rows, size, size}, out);
        return;
    }
    forEachBlock(blocks, nBlocks, sizes, [=](matrix* one, int size, int offset) {
        multiply(shifted(cells(a), 0, offset), transposed(cells(one)), {rows, size, size},
                 shifted(cells(out), 0, offset));
    });
}

// A single block needs no special case: the plain product by a vector is written in place too.
template <class Sizes>
void productBckVect(matrix** blocks, int nBlocks, Sizes* sizes, matrix* v, matrix* out)
{
    forEachBlock(blocks, nBlocks, sizes, [=](matrix* one, int size, int offset) {
        multiply(cells(one), shifted(cells(v), offset, 0), {size, size, 1}, shifted(cells(out), offset, 0));
    });
}

} // namespace

void M_BlockProductBckA(matrix** blocks, int nBlocks, matrix* sizes, matrix* a, int cols, matrix* out)
{
    productBckA(blocks, nBlocks, sizes, a, cols, out);
}

void M_BlockProductBckA(matrix** blocks, int nBlocks, matrixInt* sizes, matrix* a, int cols, matrix* out)
{
    productBckA(blocks, nBlocks, sizes, a, cols, out);
}

void M_BlockProductABck(matrix* a, int rows, matrix** blocks, int nBlocks, matrix* sizes, matrix* out)
{
    productABck(a, rows, blocks, nBlocks, sizes, out);
}

void M_BlockProductABck(matrix* a, int rows, matrix** blocks, int nBlocks, matrixInt* sizes, matrix* out)
{
    productABck(a, rows, blocks, nBlocks, sizes, out);
}

void M_BlockProductATrBck(matrix* a, int rows, matrix** blocks, int nBlocks, matrix* sizes, matrix* out)
{
    productATrBck(a, rows, blocks, nBlocks, sizes, out);
}

void M_BlockProductATrBck(matrix* a, int rows, matrix** blocks, int nBlocks, matrixInt* sizes, matrix* out)
{
    productATrBck(a, rows, blocks, nBlocks, sizes, out);
}

void M_BlockProductBckVect(matrix** blocks, int nBlocks, matrix* sizes, matrix* v, matrix* out)
{
    productBckVect(blocks, nBlocks, sizes, v, out);
}

void M_BlockProductBckVect(matrix** blocks, int nBlocks, matrixInt* sizes, matrix* v, matrix* out)
{
    productBckVect(blocks, nBlocks, sizes, v, out);
}
