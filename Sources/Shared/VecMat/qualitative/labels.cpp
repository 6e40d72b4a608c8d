#include "labels.h"

#include "../frame/cells.h"

#include <string>

using namespace vecmat;

namespace {

using Labels = VectorCells<Smatrix>;

bool standsBetween(const std::wstring& text, Labels labels, int first, int end)
{
    for (int i = first; i < end; ++i)
        if (labels.get(i) == text)
            return true;
    return false;
}

} // namespace

void V_ReplaceDoubles(Smatrix* x, int n)
{
    const Labels labels = linear(x);
    for (int i = 0; i < n - 1; ++i) {
        const std::wstring& label = labels.get(i);
        int counter = 1;
        for (int j = i + 1; j < n; ++j) {
            if (labels.get(j) != label)
                continue;
            std::wstring numbered;
            do
                numbered = label + std::to_wstring(++counter);
            while (standsBetween(numbered, labels, j + 1, n));
            labels.set(j, numbered);
        }
    }
}

void M_MergeStringsByRow(Smatrix* table, int nRows, int nCols, std::wstring separator, Smatrix* out)
{
    for (int i = 0; i < nRows; ++i) {
        std::wstring joined;
        for (int j = 0; j < nCols - 1; ++j)
            joined += cells(table).get(i, j) + separator;
        if (nCols > 0)
            joined += cells(table).get(i, nCols - 1);
        linear(out).set(i, joined);
    }
}
