#include "copy_block.h"

#include "../access/block_copy.h"
#include "../base/detail/numbers.h"
#include "../frame/detail/borrowed_texts.h"
#include "detail/borrowed_rows.h"

namespace {

using namespace vecmat;

template <class Table>
int copyBlock(Table* src, int r1, int r2, int c1, int c2, Table* dst)
{
    copyCells(window(src, zeroBased(r1), zeroBased(c1)), window(dst, 0, 0), countFromTo(r1, r2), countFromTo(c1, c2));
    return 0;
}

} // namespace

int M_CopyBlock(matrix* src, int r1, int r2, int c1, int c2, matrix*& dst)
{
    return copyBlock(src, r1, r2, c1, c2, dst);
}

int M_CopyBlock(matrixInt* src, int r1, int r2, int c1, int c2, matrixInt*& dst)
{
    return copyBlock(src, r1, r2, c1, c2, dst);
}

int M_CopyBlock(Smatrix* src, int r1, int r2, int c1, int c2, Smatrix*& dst)
{
    return copyBlock(src, r1, r2, c1, c2, dst);
}

int vecmat::M_CopyBlock(BorrowedTexts* src, int r1, int r2, int c1, int c2, BorrowedTexts*& dst)
{
    return copyBlock(src, r1, r2, c1, c2, dst);
}
