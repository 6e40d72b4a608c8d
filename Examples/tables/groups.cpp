// Groups: the categories of a column of texts, and one row of means or medians for each of them.
#include "example.h"

#include <algorithm>

namespace {

constexpr int rows = 12;
constexpr double unknown = vecmat::missingValue;

// Twelve penguins, one of them not measured.
const wchar_t* species[rows] = {L"Gentoo",    L"Adelie", L"Adelie", L"Chinstrap", L"Gentoo", L"Adelie",
                                L"Chinstrap", L"Gentoo", L"Adelie", L"Chinstrap", L"Gentoo", L"Gentoo"};
double flipper[rows] = {213, 181, 186, 192, 215, unknown, 196, 210, 193, 193, 220, 210};
double mass[rows] = {5100, 3750, 3800, 3500, 5300, unknown, 3900, 4850, 3450, 3650, 5300, 4400};

enum Aggregate { mean = 1, median = 2 };

std::string narrow(const std::wstring& text)
{
    return std::string(text.begin(), text.end()); // the names are in ASCII
}

void printByGroup(const char* title, const Names& labels, matrix& birds, int n, Aggregate aggregate)
{
    matrixInt numeric(3, 1, 0); // no column holds codes whose mode is asked for
    Result<> grouped;
    grouped.table = new matrix(n, 3, 0.0);
    int groups = 0;
    M_GroupBy(&birds, n, 3, &numeric, 1, aggregate, &groups, grouped.table);

    matrix withoutKey(groups, 2, 0.0);
    for (int k = 1; k <= groups; ++k) {
        withoutKey.vbset(k, 1, grouped.table->vbget(k, 2));
        withoutKey.vbset(k, 2, grouped.table->vbget(k, 3));
    }
    printTable(title, labels, {"flipper, mm", "mass, g"}, withoutKey, 1);
}

} // namespace

int main()
{
    Smatrix names(rows, 1);
    for (int i = 1; i <= rows; ++i)
        names.vbset(i, 1, species[i - 1]);

    // The categories in alphabetical order, and how often each occurs.
    matrix weights(rows, 1, 1.0);
    Result<Smatrix> mode, categories;
    Result<> modeWeight, counts;
    Result<matrixInt> number;
    int total = 0;
    M_InfoQuali(&names, rows, 1, mode.table, modeWeight.table, number.table, categories.table, counts.table, &weights,
                &total, 1);
    Names labels;
    for (int k = 1; k <= total; ++k) {
        labels.push_back(narrow(categories.table->vbget(1, k)));
        std::printf("%-18s %2.0f birds\n", labels.back().c_str(), counts.table->vbget(1, k));
    }
    std::printf("Most frequent: %s\n\n", narrow(mode.table->vbget(1, 1)).c_str());

    // The key in column 1 is the place of the species among the categories.
    matrix birds(rows, 3, unknown);
    matrix* table = &birds;
    M_ReplaceCatByCodes(&names, rows, 1, number.table->X, categories.table, table);
    for (int i = 1; i <= rows; ++i) {
        birds.vbset(i, 2, flipper[i - 1]);
        birds.vbset(i, 3, mass[i - 1]);
    }

    // A mean leaves missing cells out. A median counts them, as the smallest: hence the median of the measured birds.
    printByGroup("mean", labels, birds, rows, mean);
    printByGroup("median", labels, birds, rows, median);

    short unmeasured[rows] = {};                           // a mask: any value but 0 marks the row
    M_GetMissing(&birds, rows, 3, unmeasured, unmeasured); // by the last column, the mass
    RemoveRowsWithMissing(table, rows, 3, unmeasured);     // the others move up
    const int measured = rows - static_cast<int>(std::count(unmeasured, unmeasured + rows, -1));
    printByGroup("median, measured", labels, birds, measured, median);
}
