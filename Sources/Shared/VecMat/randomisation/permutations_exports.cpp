#include "permutations.h"

#include "../frame/detail/handles.h"

using vecmat::copied;
using vecmat::freshStrings;
using vecmat::handBack;
using vecmat::StringTableHandle;
using vecmat::TableHandle;
using vecmat::viewed;

void Cpp_V_Shuffle(double* v, int n, int* seed, short seedFlag, int* seedOut)
{
    V_Shuffle(viewed(v, n, 1), n, *seed, seedFlag, *seedOut);
}

void Cpp_V_ShuffleLng(int* v, int n, int* seed, short seedFlag, int* seedOut)
{
    V_Shuffle(viewed(v, n, 1), n, *seed, seedFlag, *seedOut);
}

void Cpp_M_ShuffleDbl(double* X, int n, int p, double* Z, int* seed, short seedFlag, int* seedOut)
{
    M_Shuffle(viewed(X, n, p), n, p, viewed(Z, n, p), *seed, seedFlag, *seedOut);
}

void Cpp_M_ShuffleDbl2(double* X, int n, int p, int* seed, short seedFlag, int* seedOut)
{
    M_Shuffle2(viewed(X, n, p), n, p, *seed, seedFlag, *seedOut);
}

void Cpp_M_ShuffleStr(wchar_t** X, int n, int p, wchar_t** Z, int* seed, short seedFlag, int* seedOut)
{
    const StringTableHandle shuffled = freshStrings(n, p);
    M_Shuffle(copied(X, n, p), n, p, shuffled, *seed, seedFlag, *seedOut);
    handBack(shuffled, Z);
}

void Cpp_M_ShuffleStr2(wchar_t** X, int n, int p, int* seed, short seedFlag, int* seedOut)
{
    const StringTableHandle rows = copied(X, n, p);
    M_Shuffle2(rows, n, p, *seed, seedFlag, *seedOut);
    handBack(rows, X);
}

void Cpp_Random1toNLng(int n, int* out, int* seed, short seedFlag, int* seedOut)
{
    Random1toN(n, viewed(out, n, 1), *seed, seedFlag, *seedOut);
}

void Cpp_Random1toNDbl(int n, double* out, int* seed, short seedFlag, int* seedOut)
{
    Random1toN(n, viewed(out, n, 1), *seed, seedFlag, *seedOut);
}

void VB_GenerateRandomIndicator(double* out, int n, int k, int* seed, short seedFlag, int* seedOut)
{
    GenerateRandomIndicator(viewed(out, n, 1).reference(), n, k, seed, seedFlag, seedOut);
}

void VB_GenerateIndicator(double* out, int n, int first, int last)
{
    GenerateIndicator(viewed(out, n, 1).reference(), n, first, last);
}
