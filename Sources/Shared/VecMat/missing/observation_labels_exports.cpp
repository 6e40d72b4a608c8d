#include "observation_labels.h"

#include "../base/detail/numbers.h"
#include "../frame/detail/handles.h"

#include <algorithm>
#include <vector>

void VB_ReplaceMissingObsLabels(wchar_t** labels, int n, short* mask, const wchar_t* prefix)
{
    auto table = vecmat::copied(labels, n, 1);
    std::vector<short> open(mask, mask + vecmat::countOf(n));
    ReplaceMissingObsLabels(table.reference(), n, open.data(), prefix);
    vecmat::handBack(table, labels);
    std::copy(open.begin(), open.end(), mask);
}
