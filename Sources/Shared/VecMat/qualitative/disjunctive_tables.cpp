#include "disjunctive_tables.h"

#include "../access/cells.h"
#include "../base/detail/masks.h"
#include "../base/detail/numbers.h"
#include "../elementary/detail/texts.h"
#include "../frame/detail/text_table.h"
#include "detail/category_lists.h"
#include "detail/text_calls.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

using namespace vecmat;

namespace {

/// All places of each text in the list of a variable, lowest first: a list may contain a text more than once.
template <class Texts>
class PlaceChains
{
    using Text = typename Texts::Text;
    using Table = TextTable<int, Text>;

public:
    static constexpr int none = -1;

    PlaceChains(const Texts& categories, int variable, int count) : next_(static_cast<std::size_t>(count), none)
    {
        for (int place = count - 1; place >= 0; --place) {
            const auto [number, isNew] = first_.add(categories.at(variable, place), place);
            if (!isNew)
                next_[static_cast<std::size_t>(place)] = std::exchange(first_.value(number), place);
        }
    }

    int first(const Text& text) const
    {
        const int number = first_.find(text);
        return number == Table::none ? none : first_.value(number);
    }
    int after(int place) const { return next_[static_cast<std::size_t>(place)]; }
    const Table& table() const { return first_; }

private:
    Table first_;
    std::vector<int> next_;
};

/// The values of a baseline observation in the columns of the other categories, from the second on. Empty if the coding
/// has no value for them.
std::vector<double> baselineRow(matrix* freq, int variable, int places, int coding)
{
    const std::size_t others = static_cast<std::size_t>(std::max(places, 1) - 1);
    switch (coding) {
    case 0:
    case 1:
        return std::vector<double>(others, 0.0);
    case 2:
        return std::vector<double>(others, -1.0);
    case 3: {
        std::vector<double> row;
        const auto frequency = cells(freq);
        for (int place = 1; place < places; ++place)
            row.push_back(-frequency.get(variable, place) / frequency.get(variable, 0));
        return row;
    }
    default:
        return {};
    }
}

bool showsBaseline(int variable, int coding, int keepBaseline)
{
    return coding == 0 || keepBaseline == 2 || (keepBaseline == 1 && variable == 0);
}

/// The first row, from the second on, whose flag is not exactly -1; one past the last row if none. 0-based.
int firstComparedRow(const short* mask, int nRows)
{
    int row = 1;
    while (mask != nullptr && row < nRows && mask[row] == -1)
        ++row;
    return row;
}

} // namespace

template <class Texts>
void vecmat::buildDisjunctiveTable(const Texts& table, int nRows, int nCols, int totalCats, matrixInt* nCats,
                                   const Texts& categories, matrix* freq, matrix*& out, int coding, int keepBaseline)
{
    matrix::matCheck(out, nRows, totalCats, 0.0);
    const auto target = cells(out);
    int offset = 0;
    for (int j = 0; j < nCols; ++j) {
        const int count = linear(nCats).get(j);
        // Nothing can be written after the last column of the result.
        const long long columnsLeft = std::max(0LL, static_cast<long long>(out->nCols) - offset);
        const int places = static_cast<int>(std::clamp<long long>(count, 0, columnsLeft));
        const PlaceChains<Texts> chains(categories, j, std::min(places, placesToVisit(categories, count)));
        const std::vector<double> contrasts = baselineRow(freq, j, places, coding);
        const bool baselineShown = showsBaseline(j, coding, keepBaseline);

        const auto code = [&](int i, const typename Texts::Text& text) {
            if (text.text().empty()) {
                for (int place = 0; place < places; ++place)
                    target.set(i, offset + place, missingValue);
                return;
            }
            const int first = chains.first(text);
            if (first == 0)
                for (std::size_t other = 0; other < contrasts.size(); ++other)
                    target.set(i, offset + 1 + static_cast<int>(other), contrasts[other]);
            // A category equal to the baseline would be overwritten by the contrast, so the ones are written last.
            for (int place = first; place != PlaceChains<Texts>::none; place = chains.after(place))
                if (place > 0 || baselineShown)
                    target.set(i, offset + place, 1.0);
        };
        forEachText(0, nRows, chains.table(), columnOf(table, j), code);
        offset = wrappingSum(offset, count);
    }
}

template void vecmat::buildDisjunctiveTable(const CallerTexts&, int, int, int, matrixInt*, const CallerTexts&, matrix*,
                                            matrix*&, int, int);

void BuildDisjunctiveTable(Smatrix* table, int nRows, int nCols, int totalCats, matrixInt* nCats, Smatrix* categories,
                           matrix* freq, matrix*& out, int coding, int keepBaseline)
{
    buildDisjunctiveTable(TableTexts(table), nRows, nCols, totalCats, nCats, TableTexts(categories), freq, out, coding,
                          keepBaseline);
}

short M_IsDisjTable(matrix* table, int nRows, int nCols, short* mask, int* rowSum)
{
    const int start = firstComparedRow(mask, nRows);
    const int reference = start - 1;
    const Mask excluded(mask);
    return onBlocks(
        [=](auto x) {
            const auto sumOf = [=](int row) {
                double sum = 0.0;
                for (int j = 0; j < nCols; ++j)
                    sum += x.get(row, j);
                return sum;
            };
            *rowSum = truncated(sumOf(reference));
            for (int i = start; i < nRows; ++i)
                if (excluded.keeps(i) && std::fabs(sumOf(i) - *rowSum) > zeroTolerance)
                    return booleanOf(false);
            if (nCols < 1)
                return booleanOf(true);
            // Constant columns before the last don't count.
            const int last = nCols - 1;
            for (int i = start; i < nRows; ++i)
                if (excluded.keeps(i) && x.get(i, last) != x.get(reference, last))
                    return booleanOf(true);
            return booleanOf(false);
        },
        block(cells(table), std::max(nRows, start), nCols));
}

void M_ConvertBinarytoDisjTable(matrix* table, int nRows, int nCols, matrix* out)
{
    const int width = static_cast<int>(2u * static_cast<unsigned>(nCols));
    onBlocks(
        [=](auto x, auto pair) {
            for (int j = 0; j < nCols; ++j) {
                for (int i = 0; i < nRows; ++i) {
                    pair.set(i, 2 * j, x.get(i, j));
                    pair.set(i, 2 * j + 1, 1.0 - x.get(i, j));
                }
            }
        },
        block(cells(table), nRows, nCols), block(cells(out), nRows, width));
}
