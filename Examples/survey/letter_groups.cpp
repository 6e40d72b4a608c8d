#include "letter_groups.h"

#include "bstr_array.h"
#include "flat_call.h"
#include "number_format.h"

#include <algorithm>
#include <utility>

namespace survey {

namespace {

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

/// For each two of the groups with a mean, in a square table: do they lie apart?
std::vector<int> apartOf(const Comparisons& comparisons, const std::vector<std::size_t>& present)
{
    std::vector<int> apart(present.size() * present.size());
    const auto place = [&](std::size_t group) {
        return static_cast<std::size_t>(std::lower_bound(present.begin(), present.end(), group) - present.begin());
    };
    for (const Comparison& pair : comparisons.pairs) {
        const std::size_t i = place(pair.first);
        const std::size_t k = place(pair.second);
        apart[i * present.size() + k] = apart[k * present.size() + i] = pair.correctedP < significance ? 1 : 0;
    }
    return apart;
}

/// The letters of groups that all have a mean.
std::vector<std::string> lettersOf(std::vector<double> means, std::vector<int> apart)
{
    constexpr int mostLetters = 256; // of the library
    constexpr int onlyColumn = 0;
    const int n = static_cast<int>(means.size());
    std::vector<int> order(means.size());
    BstrArray labels(means.size() * mostLetters);
    int letters;
    Cpp_GetCompMatrices(means.data(), n, onlyColumn, apart.data(), yes, order.data(), labels.data(), &letters);
    std::vector<std::string> rows;
    rows.reserve(means.size());
    for (int i = 0; i < n; ++i)
        rows.push_back(row(labels, i, n, std::min(letters, mostLetters)));
    return rows;
}

} // namespace

std::vector<LetterGroup> letterGroupsOf(const std::vector<Moments>& groups, Correction correction)
{
    std::vector<LetterGroup> result;
    std::vector<std::size_t> present;
    std::vector<double> means;
    for (std::size_t k = 0; k < groups.size(); ++k) {
        result.push_back({groups[k].mean, ""});
        if (groups[k].count == 0)
            continue;
        present.push_back(k);
        means.push_back(groups[k].mean);
    }
    const auto comparisons = comparisonsOf(groups, correction);
    if (!comparisons)
        return result;
    const std::vector<std::string> letters = lettersOf(means, apartOf(*comparisons, present));
    for (std::size_t i = 0; i < present.size(); ++i)
        result[present[i]].letters = letters[i];
    return result;
}

void addLetterGroups(Document& document, const Subject& subject, Correction correction)
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
        const std::vector<LetterGroup> letters = letterGroupsOf(momentsByGroup(subject, *column), correction);
        for (std::size_t i = 0; i < groups.size(); ++i)
            text.addRow({column->name, groups[i].name, format.statistic(letters[i].mean),
                         letters[i].letters.empty() ? "-" : letters[i].letters});
    }
    Section& section = document.add("letter_groups", "Letter groups of the means",
                                    "Means of a column that share a letter don't lie apart; A is the lowest.");
    section.addTable(std::move(text));
    section.note = std::string("Two means lie apart where the ") +
                   (correction == Correction::none ? "" : "corrected ") + "p of their comparison is below 0.05.";
}

} // namespace survey
