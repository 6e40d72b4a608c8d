#include "observation_labels.h"

#include "../frame/detail/handles.h"

void VB_ReplaceMissingObsLabels(wchar_t** labels, int n, short* mask, const wchar_t* prefix)
{
    auto table = vecmat::copied(labels, n, 1);
    ReplaceMissingObsLabels(table.reference(), n, mask, prefix);
    vecmat::handBack(table, labels);
}
