#include "sample.h"

#include "bstr_array.h"
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

/// The number of each row's group, from 1.
std::vector<double> strataOf(std::span<const Group> groups, int rows)
{
    std::vector<double> strata(static_cast<std::size_t>(rows));
    for (std::size_t k = 0; k < groups.size(); ++k)
        for (const int row : groups[k].rows)
            strata[static_cast<std::size_t>(row)] = static_cast<double>(k + 1);
    return strata;
}

std::vector<const Column*> allColumns(const Table& table)
{
    std::vector<const Column*> columns;
    for (const Column& column : table.columns)
        columns.push_back(&column);
    return columns;
}

/// Numbers with as many decimals as the others of their column.
std::string shown(const Column& column, const SampledRow& sampled, std::size_t j)
{
    if (column.kind == Kind::numeric)
        return NumberFormat(column).cell(column.numbers[static_cast<std::size_t>(sampled.row)]);
    return sampled.cells[j].empty() ? "-" : sampled.cells[j];
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

std::vector<SampledRow> stratifiedSample(const Table& table, std::span<const Group> groups, int count, int seed)
{
    const std::vector<const Column*> columns = allColumns(table);
    const int columnCount = static_cast<int>(columns.size());
    const auto sampleSize = static_cast<std::size_t>(count);
    const std::vector<int> sizes = sizesOf(groups);
    const std::vector<int> quotas = shares(count, sizes);
    std::vector<double> stratumSizes(sizes.begin(), sizes.end());
    std::vector<double> stratumQuotas(quotas.begin(), quotas.end());
    std::vector<double> strata = strataOf(groups, table.rows);
    const std::vector<double> groupOfRow = strata;
    std::vector<double> rowNumbers(strata.size());
    std::iota(rowNumbers.begin(), rowNumbers.end(), 1.0);
    std::vector<double> drawn(sampleSize);
    BstrArray population = textsOf(columns);
    BstrArray sample(sampleSize * columns.size());
    int nextSeed;
    Cpp_M_SamplingRandomStratifiedByStr(population.data(), table.rows, columnCount, count, sample.data(),
                                        rowNumbers.data(), drawn.data(), strata.data(), stratumQuotas.data(),
                                        stratumSizes.data(), static_cast<int>(groups.size()), &seed, yes, &nextSeed);
    std::vector<SampledRow> result;
    for (std::size_t i = 0; i < sampleSize; ++i) {
        const int row = static_cast<int>(drawn[i]) - 1;
        SampledRow sampled{row, static_cast<std::size_t>(groupOfRow[static_cast<std::size_t>(row)]) - 1, {}};
        for (std::size_t j = 0; j < columns.size(); ++j)
            sampled.cells.push_back(sample.text(i + j * sampleSize));
        result.push_back(std::move(sampled));
    }
    return result;
}

void addSample(Document& document, const Subject& subject)
{
    constexpr int count = 12;
    constexpr int seed = 1;
    const auto groups = subject.groupsOfColumn();
    if (groups.empty() || subject.table.rows <= count)
        return;
    std::vector<TextTable::Column> headings = {{"row", Align::right}};
    for (const Column& column : subject.table.columns)
        headings.push_back({column.name, column.kind == Kind::numeric ? Align::point : Align::left});
    TextTable text(std::move(headings), 1);
    for (const SampledRow& sampled : stratifiedSample(subject.table, groups, count, seed)) {
        std::vector<std::string> cells = {std::to_string(sampled.row + 1)};
        for (std::size_t j = 0; j < sampled.cells.size(); ++j)
            cells.push_back(shown(subject.table.columns[j], sampled, j));
        text.addRow(std::move(cells));
    }
    Section& section = document.add("sample", "Stratified sample",
                                    counted(count, "row") + " drawn at random, from each group of " +
                                        onOneLine(subject.grouping->name) + " in proportion to its size.");
    section.addTable(std::move(text));
    section.note = "A dash stands for a missing cell. The seed is fixed: every run draws the same rows.";
}

} // namespace survey
