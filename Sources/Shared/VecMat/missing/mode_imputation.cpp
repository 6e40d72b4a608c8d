#include "mode_imputation.h"

#include "../access/cells.h"
#include "../elementary/detail/texts.h"
#include "../frame/detail/borrowed_texts.h"
#include "../frame/detail/caller_text.h"
#include "../qualitative/detail/text_calls.h"
#include "detail/borrowed_rows.h"

#include <cstddef>
#include <string>
#include <vector>

using namespace vecmat;

namespace {

bool isEmptyText(const std::wstring& text)
{
    return text.empty();
}
bool isEmptyText(const wchar_t* bstr)
{
    return Bstr(bstr).empty();
}

template <class Table, class Text>
void fillWith(const std::vector<Text>& modes, Table* table, int nRows, int nCols)
{
    onBlocks(
        [&](auto x) {
            for (int j = 0; j < nCols; ++j)
                for (int i = 0; i < nRows; ++i)
                    if (isEmptyText(x.get(i, j)))
                        x.set(i, j, modes[static_cast<std::size_t>(j)]);
        },
        block(cells(table), nRows, nCols));
}

} // namespace

void EstimateRowsWithMissingMode(Smatrix* statS, int nStat, Smatrix*& S, int nRows, int nCols, matrix* weights)
{
    fillWith(modesOfColumns(TableTexts(statS), nStat, nCols, weights), S, nRows, nCols);
}

void vecmat::EstimateRowsWithMissingMode(const CallerTexts& statS, int nStat, BorrowedTexts* S, int nRows, int nCols,
                                         matrix* weights)
{
    fillWith(modesOfColumns(statS, nStat, nCols, weights), S, nRows, nCols);
}
