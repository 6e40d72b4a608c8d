// Sorts of rows and copies of borrowed texts. The contracts are those of the functions of the same names over tables of
// strings. Internal to the library.
#pragma once

#include "../../frame/detail/borrowed_texts.h"
#include "../../matrix.h"

namespace vecmat {

int SortQ(BorrowedTexts*& data, int nRows, int nCols, int first, int last, matrix*& key, matrix*& companion,
          int nCompanionCols, short descending, short writeKeys);
int SortQ(BorrowedTexts** data, int nRows, int nCols, int first, int last, matrix*& key, matrix*& companion,
          int nCompanionCols, short descending, short writeKeys);

int SortQVector(BorrowedTexts* x, int first, int last, short descending);
int SortQMatrixCol(BorrowedTexts*& table, int nRows, int nCols, int col, int first, int last, short descending);

int M_CopyBlock(BorrowedTexts* src, int r1, int r2, int c1, int c2, BorrowedTexts*& dst);

void SortApplyStr(BorrowedTexts* source, int nRows, int nCols, matrix* order, BorrowedTexts* out);

} // namespace vecmat
