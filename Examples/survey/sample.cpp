#include "sample.h"

#include "flat_call.h"
#include "number_format.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace survey {

namespace {

std::vector<int> sizesOf(std::span<const Group> groups)
{
    std::vector<int> sizes;
    for (const Group& group : groups)
        sizes.push_back(static_cast<int>(group.rows.size()));
    return sizes;
}

/// Numbers with as many decimals as the others of their column.
std::string shown(const Column& column, const NumberFormat& format, int row)
{
    const auto place = static_cast<std::size_t>(row);
    if (column.kind == Kind::numeric)
        return format.cell(column.numbers[place]);
    return column.texts[place].empty() ? "-" : column.texts[place];
}

} // namespace

std::vector<int> shares(int total, const std::vector<int>& sizes)
{
    const long long sum = std::accumulate(sizes.begin(), sizes.end(), 0LL);
    if (sum == 0)
        return std::vector<int>(sizes.size(), 0);
    std::vector<int> result;
    std::vector<std::pair<long long, std::size_t>> cutOff; // largest first when sorted, the first of equals ahead
    for (std::size_t k = 0; k < sizes.size(); ++k) {
        const long long due = static_cast<long long>(total) * sizes[k];
        result.push_back(static_cast<int>(due / sum));
        cutOff.emplace_back(-(due % sum), k);
    }
    std::sort(cutOff.begin(), cutOff.end());
    const int given = std::accumulate(result.begin(), result.end(), 0);
    for (int i = 0; i < total - given; ++i)
        ++result[cutOff[static_cast<std::size_t>(i)].second];
    return result;
}

std::vector<int> stratifiedSample(std::span<const Group> groups, int count, int seed)
{
    const std::vector<int> sizes = sizesOf(groups);
    const std::vector<int> quotas = shares(count, sizes);
    std::vector<double> stratumSizes(sizes.begin(), sizes.end());
    std::vector<double> stratumQuotas(quotas.begin(), quotas.end());
    std::vector<double> strata, rowNumbers;
    for (std::size_t k = 0; k < groups.size(); ++k) {
        strata.insert(strata.end(), groups[k].rows.size(), static_cast<double>(k + 1));
        rowNumbers.insert(rowNumbers.end(), groups[k].rows.begin(), groups[k].rows.end());
    }
    std::vector<double> drawn(static_cast<std::size_t>(count));
    constexpr int noTexts = 0; // the numbers of the rows tell all
    int nextSeed;
    Cpp_M_SamplingRandomStratifiedByStr(nullptr, static_cast<int>(strata.size()), noTexts, count, nullptr,
                                        rowNumbers.data(), drawn.data(), strata.data(), stratumQuotas.data(),
                                        stratumSizes.data(), static_cast<int>(groups.size()), &seed, yes, &nextSeed);
    return {drawn.begin(), drawn.end()};
}

void addSample(Document& document, const Subject& subject, int seed)
{
    constexpr int count = 12;
    const auto groups = subject.groupsOfColumn();
    if (groups.empty() || subject.table.rows <= count)
        return;
    std::vector<TextTable::Column> headings = {{"row", Align::right}};
    std::vector<NumberFormat> formats;
    for (const Column& column : subject.table.columns) {
        headings.push_back({column.name, column.kind == Kind::numeric ? Align::point : Align::left});
        formats.emplace_back(column);
    }
    TextTable text(std::move(headings), 1);
    for (const int row : stratifiedSample(groups, count, seed)) {
        std::vector<std::string> cells = {std::to_string(row + 1)};
        for (std::size_t j = 0; j < formats.size(); ++j)
            cells.push_back(shown(subject.table.columns[j], formats[j], row));
        text.addRow(std::move(cells));
    }
    Section& section = document.add("sample", "Stratified sample",
                                    counted(count, "row") + " drawn at random, from each group of " +
                                        onOneLine(subject.grouping->name) + " in proportion to its size.");
    section.addTable(std::move(text));
    section.note = "A dash stands for a missing cell. The seed is fixed: every run draws the same rows.";
}

} // namespace survey
