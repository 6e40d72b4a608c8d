#include "disjunctive_tables.h"

#include "../elementary/detail/texts.h"
#include "../frame/detail/handles.h"
#include "detail/text_calls.h"

using namespace vecmat;

void VB_BuildDisjunctiveTable(wchar_t** table, int nRows, int nCols, int totalCats, int* nCats, wchar_t** categories,
                              double* freq, int maxCats, double* out, int coding, int keepBaseline)
{
    TableHandle result;
    buildDisjunctiveTable(CallerTexts(table, nRows, nCols), nRows, nCols, totalCats, viewed(nCats, nCols, 1),
                          CallerTexts(categories, nCols, maxCats), viewed(freq, nCols, maxCats), result.reference(),
                          coding, keepBaseline);
    handBack(result, out);
}

short VB_M_IsDisjTable(double* table, int nRows, int nCols, short* mask, int* rowSum)
{
    return M_IsDisjTable(viewed(table, nRows, nCols), nRows, nCols, mask, rowSum);
}

void Cpp_M_ConvertBinarytoDisjTable(double* table, int nRows, int nCols, double* out)
{
    M_ConvertBinarytoDisjTable(viewed(table, nRows, nCols), nRows, nCols,
                               viewed(out, nRows, static_cast<int>(2u * static_cast<unsigned>(nCols))));
}
