#include "letter_groups.h"

#include "bstr_array.h"
#include "flat_call.h"
#include "number_format.h"
#include "statistics.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace survey {

namespace {

double squaresAround(const Moments& group)
{
    return group.count > 1 ? group.standardDeviation * group.standardDeviation * (group.count - 1) : 0.0;
}

/// The variance within the groups; the missing value where none has two cells.
double varianceWithin(const std::vector<Moments>& groups)
{
    double squares = 0.0;
    int freedom = 0;
    for (const Moments& group : groups) {
        squares += squaresAround(group);
        freedom += group.count - 1;
    }
    return freedom > 0 ? squares / freedom : vecmat::missingValue;
}

/// For each two groups, in a square table: do their means lie apart?
std::vector<int> comparisons(const std::vector<Moments>& groups, double variance)
{
    std::vector<int> apart;
    for (const Moments& a : groups)
        for (const Moments& b : groups) {
            const double standardError = std::sqrt(variance * (1.0 / a.count + 1.0 / b.count));
            apart.push_back(std::fabs(a.mean - b.mean) > 2.0 * standardError ? 1 : 0);
        }
    return apart;
}

/// Letters side by side, each in a place of its own.
std::string row(const BstrArray& labels, int row, int rows, int columns)
{
    const auto label = [&](int i, int j) {
        return labels.text(static_cast<std::size_t>(i) + static_cast<std::size_t>(j) * static_cast<std::size_t>(rows));
    };
    std::string text;
    for (int j = 0; j < columns; ++j) {
        std::size_t width = 0;
        for (int i = 0; i < rows; ++i)
            width = std::max(width, label(i, j).size());
        std::string letter = label(row, j);
        letter.resize(width, ' ');
        text += letter;
    }
    return text;
}

/// The letters of groups that all have a mean.
std::vector<std::string> lettersOf(const std::vector<Moments>& groups, double variance)
{
    constexpr int mostLetters = 256; // of the library
    constexpr int onlyColumn = 0;
    const int n = static_cast<int>(groups.size());
    std::vector<double> means;
    means.reserve(groups.size());
    for (const Moments& group : groups)
        means.push_back(group.mean);
    std::vector<int> apart = comparisons(groups, variance);
    std::vector<int> order(groups.size());
    BstrArray labels(groups.size() * mostLetters);
    int letters;
    Cpp_GetCompMatrices(means.data(), n, onlyColumn, apart.data(), yes, order.data(), labels.data(), &letters);
    std::vector<std::string> rows;
    rows.reserve(groups.size());
    for (int i = 0; i < n; ++i)
        rows.push_back(row(labels, i, n, std::min(letters, mostLetters)));
    return rows;
}

} // namespace

std::vector<LetterGroup> letterGroupsOf(const std::vector<std::vector<double>>& groups)
{
    std::vector<LetterGroup> result;
    std::vector<Moments> present;
    for (const std::vector<double>& cells : groups) {
        const Moments moments = momentsOf(cells);
        result.push_back({moments.mean, ""});
        if (moments.count > 0)
            present.push_back(moments);
    }
    const double variance = varianceWithin(present);
    if (present.size() < 2 || variance == vecmat::missingValue)
        return result;
    const std::vector<std::string> letters = lettersOf(present, variance);
    auto next = letters.begin();
    for (LetterGroup& group : result)
        if (group.mean != vecmat::missingValue)
            group.letters = *next++;
    return result;
}

void addLetterGroups(Document& document, const Subject& subject)
{
    const auto groups = subject.groupsOfColumn();
    if (groups.size() < 2 || groups.size() > mostListed)
        return;
    TextTable text({{"column", Align::left},
                    {subject.grouping->name, Align::left},
                    {"mean", Align::point},
                    {"letters", Align::left}},
                   2);
    for (const Column* column : subject.table.ofKind(Kind::numeric)) {
        text.addGap();
        const NumberFormat format(*column);
        std::vector<std::vector<double>> cells;
        for (const Group& group : groups)
            cells.push_back(cellsOf(*column, group));
        const std::vector<LetterGroup> letters = letterGroupsOf(cells);
        for (std::size_t i = 0; i < groups.size(); ++i)
            text.addRow({column->name, groups[i].name, format.statistic(letters[i].mean),
                         letters[i].letters.empty() ? "-" : letters[i].letters});
    }
    Section& section = document.add("letter_groups", "Letter groups of the means",
                                    "Means of a column that share a letter don't lie apart; A is the lowest.");
    section.addTable(std::move(text));
    section.note = "Two means lie apart where they differ by more than twice the standard error of their difference, "
                   "from the variance within the groups.";
}

} // namespace survey
