#include "../frame/detail/handles.h"
#include "categories.h"
#include "detail/category_lists.h"

#include <algorithm>
#include <string>

using namespace vecmat;

void VB_M_InfoQuali(wchar_t** table, int nRows, int nCols, wchar_t** modes, double* modeWeights, int* total, int* nCats,
                    wchar_t** categories, double* catWeights, int /*ignored*/, double* weights, short sortCats)
{
    StringTableHandle modeTexts;
    TableHandle modeSums;
    IntTableHandle counts;
    StringTableHandle texts;
    TableHandle sums;
    M_InfoQuali(copied(table, nRows, nCols), nRows, nCols, modeTexts.reference(), modeSums.reference(),
                counts.reference(), texts.reference(), sums.reference(), viewed(weights, nRows, 1), total, sortCats);
    handBack(modeTexts, modes);
    handBack(modeSums, modeWeights);
    handBack(counts, nCats);
    handBack(texts, categories);
    handBack(sums, catWeights);
}

void VB_M_InfoQuali2(wchar_t** table, int nRows, int nCols, int maxCats, int* nCats, wchar_t** modes,
                     double* modeWeights, int* total, wchar_t** categories, double* catWeights, int /*ignored*/,
                     double* weights, short sortCats)
{
    StringTableHandle modeTexts;
    TableHandle modeSums;
    StringTableHandle texts;
    TableHandle sums;
    M_InfoQuali2(copied(table, nRows, nCols), nRows, nCols, maxCats, viewed(nCats, nCols, 1), modeTexts.reference(),
                 modeSums.reference(), texts.reference(), sums.reference(), viewed(weights, nRows, 1), total, sortCats);
    handBack(modeTexts, modes);
    handBack(modeSums, modeWeights);
    handBack(texts, categories);
    handBack(sums, catWeights);
}

void VB_M_InfoQualiValid(wchar_t** table, int nRows, int nCols, int maxCats, int /*ignored1*/, int* nCats,
                         wchar_t** categories, double* catWeights, short* invalid, int /*ignored2*/, double* weights)
{
    TableHandle sums;
    M_InfoQualiValid(copied(table, nRows, nCols), nRows, nCols, maxCats, viewed(nCats, nCols, 1),
                     copied(categories, nCols, maxCats), sums.reference(), invalid, viewed(weights, nRows, 1));
    handBack(sums, catWeights);
}

int Cpp_GetMaxCat(wchar_t** table, int nRows, int nCols, int* counts)
{
    return GetMaxCat(copied(table, nRows, nCols), nRows, nCols, viewed(counts, nCols, 1));
}

int Cpp_CheckUniqueCatByVar(wchar_t** table, int nRows, int nCols, int* counts)
{
    const StringTableHandle labels = copied(table, nRows, nCols);
    const int longest = nRows < 1 ? 0 : *std::max_element(counts, counts + nRows);
    // The places beyond the table are empty, so the second already repeats the first.
    const int visited = longest < 1 ? 0 : std::min(longest, std::max(nCols, 0) + 2);

    // Place by place, so that a repeated label is found after its first place, or in another row at the same place.
    TextPlaces places;
    for (int place = 0; place < visited; ++place) {
        for (int i = 0; i < nRows; ++i) {
            if (place >= counts[i])
                continue;
            const std::wstring& label = cells<Smatrix>(labels).get(i, place);
            places.add(label, place, Repeated::firstCounts);
            if (places.find(label) < place)
                return 1;
        }
    }
    return 0;
}
