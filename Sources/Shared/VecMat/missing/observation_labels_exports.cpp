#include "observation_labels.h"

#include "../base/detail/numbers.h"
#include "../base/detail/outgoing_texts.h"
#include "detail/text_calls.h"

#include <algorithm>
#include <vector>

void VB_ReplaceMissingObsLabels(wchar_t** labels, int n, short* mask, const wchar_t* prefix)
{
    if (labels == nullptr)
        return;
    std::vector<short> open(mask, mask + vecmat::countOf(n));
    vecmat::OutgoingTexts texts;
    vecmat::replaceMissingObsLabels(labels, n, open.data(), prefix, texts);
    texts.store();
    std::copy(open.begin(), open.end(), mask);
}
