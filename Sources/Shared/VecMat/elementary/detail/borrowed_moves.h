// Copies, merges and removals of rows, over borrowed texts. The contracts are those of the functions of the same names
// over tables of strings. Internal to the library.
#pragma once

#include "../../frame/detail/borrowed_texts.h"
#include "../../matrix.h"

namespace vecmat {

void M_DuplicateStrSPV(BorrowedTexts** src, int rows, int cols, BorrowedTexts** dst);
void M_CopyPasteBlockStr(BorrowedTexts* src, int r1, int r2, int c1, int c2, BorrowedTexts* dst, int row, int col);
void M_ExtractMatNeverySKSPV(BorrowedTexts** src, int n, int cols, int nOut, int keep, int skip, int start,
                             BorrowedTexts** dst, matrix* positions);
void CopyMatrixColToOneColMatStr(BorrowedTexts* src, int n, int col, BorrowedTexts* out);
void HMergeTables(BorrowedTexts* a, int r1, int c1, BorrowedTexts* b, int r2, int c2, BorrowedTexts*& out);
void VMergeVectors(BorrowedTexts* a, int nA, BorrowedTexts* b, int nB, BorrowedTexts*& out);
void VMergeVectors2(BorrowedTexts* a, int nA, BorrowedTexts* b, int nB);
void M_RemoveRows2(BorrowedTexts*& a, int rows, int cols, int from, int to);
void M_Transpose(BorrowedTexts*& src, int rows, int cols, BorrowedTexts*& dst);
void M_Transpose2(BorrowedTexts*& a, int rows, int cols);

} // namespace vecmat
