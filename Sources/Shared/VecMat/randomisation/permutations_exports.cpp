#include "permutations.h"

#include "../frame/detail/borrowed_handles.h"
#include "../frame/detail/handles.h"
#include "detail/borrowed_shuffles.h"
#include "detail/callers_seeds.h"

using vecmat::borrowed;
using vecmat::borrowedCopy;
using vecmat::BorrowedHandle;
using vecmat::copied;
using vecmat::fresh;
using vecmat::freshBorrowed;
using vecmat::handBack;
using vecmat::TableHandle;
using vecmat::viewed;
using vecmat::withSeeds;

void Cpp_V_Shuffle(double* v, int n, int* seed, short seedFlag, int* seedOut)
{
    withSeeds(seed, seedOut, [&](int& start, int& next) { V_Shuffle(viewed(v, n, 1), n, start, seedFlag, next); });
}

void Cpp_V_ShuffleLng(int* v, int n, int* seed, short seedFlag, int* seedOut)
{
    withSeeds(seed, seedOut, [&](int& start, int& next) { V_Shuffle(viewed(v, n, 1), n, start, seedFlag, next); });
}

void Cpp_M_ShuffleDbl(double* X, int n, int p, double* Z, int* seed, short seedFlag, int* seedOut)
{
    const TableHandle shuffled = fresh(n, p);
    withSeeds(seed, seedOut,
              [&](int& start, int& next) { M_Shuffle(viewed(X, n, p), n, p, shuffled, start, seedFlag, next); });
    handBack(shuffled, Z);
}

void Cpp_M_ShuffleDbl2(double* X, int n, int p, int* seed, short seedFlag, int* seedOut)
{
    withSeeds(seed, seedOut, [&](int& start, int& next) { M_Shuffle2(viewed(X, n, p), n, p, start, seedFlag, next); });
}

void Cpp_M_ShuffleStr(wchar_t** X, int n, int p, wchar_t** Z, int* seed, short seedFlag, int* seedOut)
{
    const BorrowedHandle shuffled = freshBorrowed(n, p);
    withSeeds(seed, seedOut, [&](int& start, int& next) {
        M_Shuffle(borrowed(X, n, p), n, p, shuffled, start, seedFlag, next);
        handBack(shuffled, Z);
    });
}

void Cpp_M_ShuffleStr2(wchar_t** X, int n, int p, int* seed, short seedFlag, int* seedOut)
{
    const BorrowedHandle rows = borrowedCopy(X, n, p);
    withSeeds(seed, seedOut, [&](int& start, int& next) {
        M_Shuffle2(rows, n, p, start, seedFlag, next);
        handBack(rows, X);
    });
}

void Cpp_Random1toNLng(int n, int* out, int* seed, short seedFlag, int* seedOut)
{
    const auto numbers = copied(out, n, 1);
    withSeeds(seed, seedOut, [&](int& start, int& next) { Random1toN(n, numbers, start, seedFlag, next); });
    handBack(numbers, out);
}

void Cpp_Random1toNDbl(int n, double* out, int* seed, short seedFlag, int* seedOut)
{
    const auto numbers = copied(out, n, 1);
    withSeeds(seed, seedOut, [&](int& start, int& next) { Random1toN(n, numbers, start, seedFlag, next); });
    handBack(numbers, out);
}

void VB_GenerateRandomIndicator(double* out, int n, int k, int* seed, short seedFlag, int* seedOut)
{
    TableHandle indicator = fresh(n, 1);
    withSeeds(seed, seedOut, [&](int& start, int& next) {
        GenerateRandomIndicator(indicator.reference(), n, k, &start, seedFlag, &next);
    });
    handBack(indicator, out);
}

void VB_GenerateIndicator(double* out, int n, int first, int last)
{
    GenerateIndicator(viewed(out, n, 1).reference(), n, first, last);
}
