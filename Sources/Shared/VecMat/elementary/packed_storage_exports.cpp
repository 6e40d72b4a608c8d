#include "packed_storage.h"

void VB_V_GetPositionInMatNNm1o2(int k, int n, int* i, int* j)
{
    V_GetPositionInMatNNm1o2(k, n, i, j);
}

void VB_V_GetPositionInMatNN(int k, int n, int* i, int* j)
{
    if (n == 0)
        return;
    const long long row = static_cast<long long>(k) / n; // wide: the lowest int has no opposite
    const long long rest = static_cast<long long>(k) % n;
    *i = static_cast<int>(rest == 0 ? row : row + 1);
    *j = static_cast<int>(rest == 0 ? n : rest);
}
