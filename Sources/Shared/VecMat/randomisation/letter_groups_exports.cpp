#include "letter_groups.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

void Cpp_GetCompMatrices(double* X, int n, int col, int* comp, short keepOrder, int* order, wchar_t** labels,
                         int* nGroups)
{
    constexpr int labelColumns = 256;
    const int cols = col == 0 ? 1 : col;
    const auto table = copied(X, n, cols);
    const auto orderTable = copied(order, n, 1);
    const auto labelTable = copied(labels, n, labelColumns);
    int groups = *nGroups;
    GetCompMatrices(table, n, col, viewed(comp, n, n), keepOrder, orderTable, labelTable, &groups);
    // The strings first: creating them may fail, and then the numbers are unchanged.
    handBack(labelTable, labels);
    handBack(table, X);
    handBack(orderTable, order);
    *nGroups = groups;
}
