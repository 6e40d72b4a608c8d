#include "categories.h"

#include "../base/detail/outgoing_texts.h"
#include "../elementary/detail/texts.h"
#include "../frame/detail/handles.h"
#include "../frame/detail/outgoing_columns.h"
#include "detail/category_lists.h"
#include "detail/text_calls.h"

using namespace vecmat;

void VB_M_InfoQuali(wchar_t** table, int nRows, int nCols, wchar_t** modes, double* modeWeights, int* total, int* nCats,
                    wchar_t** categories, double* catWeights, int /*ignored*/, double* weights, short sortCats)
{
    StringTableHandle modeTexts;
    TableHandle modeSums;
    IntTableHandle counts;
    StringTableHandle texts;
    TableHandle sums;
    int all = 0;
    infoQuali(CallerTexts(table, nRows, nCols), nRows, nCols, modeTexts.reference(), modeSums.reference(),
              counts.reference(), texts.reference(), sums.reference(), viewed(weights, nRows, 1), &all, sortCats);
    OutgoingTexts outgoing;
    addTexts(outgoing, modeTexts, modes);
    addTexts(outgoing, texts, categories);
    *total = all;
    handBack(modeSums, modeWeights);
    handBack(counts, nCats);
    handBack(sums, catWeights);
    outgoing.store();
}

void VB_M_InfoQuali2(wchar_t** table, int nRows, int nCols, int maxCats, int* nCats, wchar_t** modes,
                     double* modeWeights, int* total, wchar_t** categories, double* catWeights, int /*ignored*/,
                     double* weights, short sortCats)
{
    StringTableHandle modeTexts;
    TableHandle modeSums;
    StringTableHandle texts;
    TableHandle sums;
    int all = 0;
    infoQuali2(CallerTexts(table, nRows, nCols), nRows, nCols, maxCats, viewed(nCats, nCols, 1), modeTexts.reference(),
               modeSums.reference(), texts.reference(), sums.reference(), viewed(weights, nRows, 1), &all, sortCats);
    OutgoingTexts outgoing;
    addTexts(outgoing, modeTexts, modes);
    addTexts(outgoing, texts, categories);
    *total = all;
    handBack(modeSums, modeWeights);
    handBack(sums, catWeights);
    outgoing.store();
}

void VB_M_InfoQualiValid(wchar_t** table, int nRows, int nCols, int maxCats, int /*ignored1*/, int* nCats,
                         wchar_t** categories, double* catWeights, short* invalid, int /*ignored2*/, double* weights)
{
    TableHandle sums;
    short unknown = 0;
    infoQualiValid(CallerTexts(table, nRows, nCols), nRows, nCols, maxCats, viewed(nCats, nCols, 1),
                   CallerTexts(categories, nCols, maxCats), sums.reference(), &unknown, viewed(weights, nRows, 1));
    *invalid = unknown;
    handBack(sums, catWeights);
}

int Cpp_GetMaxCat(wchar_t** table, int nRows, int nCols, int* counts)
{
    const IntTableHandle found = freshInt(nCols, 1);
    const int largest = getMaxCat(CallerTexts(table, nRows, nCols), nRows, nCols, found);
    handBack(found, counts);
    return largest;
}

int Cpp_CheckUniqueCatByVar(wchar_t** table, int nRows, int nCols, int* counts)
{
    return labelsRepeat(CallerTexts(table, nRows, nCols), nRows, nCols, counts) ? 1 : 0;
}
