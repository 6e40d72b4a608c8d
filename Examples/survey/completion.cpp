#include "completion.h"

#include "bstr_array.h"
#include "flat_call.h"
#include "number_format.h"
#include "sample.h"

#include <algorithm>
#include <span>
#include <string>
#include <utility>

namespace survey {

namespace {

bool isMissing(const Column& column, int row)
{
    const auto place = static_cast<std::size_t>(row);
    return column.kind == Kind::numeric ? column.numbers[place] == vecmat::missingValue : column.texts[place].empty();
}

std::vector<CellPlace> missingPlaces(const Table& table, const MissingCells& missing)
{
    std::vector<CellPlace> places;
    for (int i = 0; i < table.rows; ++i) {
        if (missing.byRow[static_cast<std::size_t>(i)] == 0)
            continue;
        for (int j = 0; j < static_cast<int>(table.columns.size()); ++j)
            if (const Column& column = table.columns[static_cast<std::size_t>(j)];
                column.kind != Kind::empty && isMissing(column, i))
                places.push_back({i, j});
    }
    return places;
}

/// Rows as the library takes them: numbers, and texts.
struct Block
{
    FlatTable numbers;
    BstrArray texts;

    template <class Rows>
    Block(const Table& table, const Rows& rows)
        : numbers(numbersOf(table.ofKind(Kind::numeric), rows)), texts(textsOf(table.ofKind(Kind::text), rows))
    {
    }
};

/// Puts a block's rows from `first` on in the place of rows of the table.
void store(Table& table, const Block& block, const std::vector<int>& rows, std::size_t first)
{
    int number = 0;
    std::size_t text = 0;
    const auto height = static_cast<std::size_t>(block.numbers.rows);
    for (Column& column : table.columns) {
        for (std::size_t i = first; i < rows.size(); ++i) {
            const auto row = static_cast<std::size_t>(rows[i]);
            if (column.kind == Kind::numeric)
                column.numbers[row] = block.numbers.at(static_cast<int>(i), number);
            else if (column.kind == Kind::text && column.texts[row].empty())
                column.texts[row] = block.texts.text(text * height + i);
        }
        number += column.kind == Kind::numeric ? 1 : 0;
        text += column.kind == Kind::text ? 1 : 0;
    }
}

int textColumns(const Table& table)
{
    return static_cast<int>(table.ofKind(Kind::text).size());
}

/// All rows at once, each complete one a neighbour.
void fillFromAll(Table& table, const MissingCells& missing)
{
    std::vector<int> rows(static_cast<std::size_t>(table.rows));
    std::vector<short> mask(rows.size()); // flags the rows to be filled, which are nobody's neighbours
    for (int i = 0; i < table.rows; ++i) {
        const auto place = static_cast<std::size_t>(i);
        rows[place] = i;
        mask[place] = missing.byRow[place] > 0 ? yes : no;
    }
    Block block(table, rows);
    std::vector<double> weights = weightsOf(table);
    // The numbers go in as the second block: those of the primary block would not be compared when texts are filled.
    VB_EstimateRowsWithMissingNN(nullptr, table.rows, 0, mask.data(), block.numbers.data(), block.numbers.columns,
                                 block.texts.data(), textColumns(table), weights.data());
    store(table, block, rows, 0);
}

/// Row by row below the donors, which alone are neighbours.
void fillFromSome(Table& table, const std::vector<int>& donors, const std::vector<int>& incomplete,
                  const Progress& progress)
{
    constexpr std::size_t blockRows = 2000;
    std::vector<double> weights;
    for (const int row : donors)
        weights.push_back(table.isWeighted() ? table.weights[static_cast<std::size_t>(row)] : 1.0);
    Block statistics(table, donors);
    for (std::size_t next = 0; next < incomplete.size(); next += blockRows) {
        tell(progress, "filling missing cells", static_cast<double>(next) / static_cast<double>(incomplete.size()));
        std::vector<int> rows = donors;
        rows.insert(rows.end(), incomplete.begin() + static_cast<std::ptrdiff_t>(next),
                    incomplete.begin() + static_cast<std::ptrdiff_t>(std::min(next + blockRows, incomplete.size())));
        Block block(table, rows);
        std::vector<short> mask(rows.size(), yes);
        std::fill_n(mask.begin(), donors.size(), no);
        VB_EstimateRowsWithMissingNNPred(nullptr, statistics.numbers.rows, nullptr, block.numbers.rows, 0, mask.data(),
                                         statistics.numbers.data(), block.numbers.data(), block.numbers.columns,
                                         statistics.texts.data(), block.texts.data(), textColumns(table),
                                         weights.data());
        store(table, block, rows, donors.size());
    }
}

/// The rows of each group for which a condition holds; groups without such rows are left out.
template <class Holds>
std::vector<Group> groupsWhere(std::span<const Group> groups, const Holds& holds)
{
    std::vector<Group> result;
    for (const Group& group : groups) {
        Group some{group.name, {}};
        std::copy_if(group.rows.begin(), group.rows.end(), std::back_inserter(some.rows), holds);
        if (!some.rows.empty())
            result.push_back(std::move(some));
    }
    return result;
}

/// A cell of a numeric column as the others of it; a mean that was filled in, with one digit more.
std::string shown(const NumberFormat& format, const Column& original, double filled)
{
    const bool isCopied = std::find(original.numbers.begin(), original.numbers.end(), filled) != original.numbers.end();
    return isCopied ? format.cell(filled) : format.statistic(filled);
}

} // namespace

Completion completed(const Subject& subject, const MissingCells& missing, int seed, const Progress& progress)
{
    const Table& table = subject.table;
    Completion result{table, missingPlaces(table, missing)};
    if (result.filled.empty())
        return result;
    std::vector<int> incomplete;
    for (int i = 0; i < table.rows; ++i)
        if (missing.byRow[static_cast<std::size_t>(i)] > 0)
            incomplete.push_back(i);
    const int complete = table.rows - static_cast<int>(incomplete.size());
    if (table.rows <= mostRowsSearched || complete == 0) {
        fillFromAll(result.table, missing);
        return result;
    }
    const auto isComplete = [&](int row) { return missing.byRow[static_cast<std::size_t>(row)] == 0; };
    const std::span<const Group> strata =
        subject.grouping != nullptr ? subject.groupsOfColumn() : std::span<const Group>(subject.groups);
    result.donors = std::min(donorsDrawn, complete);
    std::vector<int> donors = stratifiedSample(groupsWhere(strata, isComplete), result.donors, seed);
    std::sort(donors.begin(), donors.end());
    fillFromSome(result.table, donors, incomplete, progress);
    return result;
}

void addCompletion(Document& document, const Table& table, const Completion& completion)
{
    if (completion.filled.empty())
        return;
    TextTable text({{"row", Align::right}, {"column", Align::left}, {"filled with", Align::left}}, 2);
    const std::size_t listed = std::min(completion.filled.size(), mostListed);
    std::vector<NumberFormat> formats;
    for (const Column& column : table.columns)
        formats.emplace_back(column);
    const auto recordOf = [&](const CellPlace& cell, const auto& shownNumber) {
        const auto j = static_cast<std::size_t>(cell.column);
        const auto i = static_cast<std::size_t>(cell.row);
        const Column& column = completion.table.columns[j];
        return std::vector<std::string>{std::to_string(cell.row + 1), column.name,
                                        column.kind == Kind::numeric ? shownNumber(j, column.numbers[i])
                                                                     : column.texts[i]};
    };
    for (const CellPlace& cell : std::span(completion.filled).first(listed))
        text.addRow(
            recordOf(cell, [&](std::size_t j, double filled) { return shown(formats[j], table.columns[j], filled); }));
    std::vector<std::vector<std::string>> all = {{"row", "column", "filled with"}};
    const std::size_t rest = completion.filled.size() - listed;
    if (rest > 0)
        for (const CellPlace& cell : completion.filled)
            all.push_back(recordOf(cell, [](std::size_t, double filled) { return withAllDigits(filled); }));

    Section& section = document.add(
        "filled_cells", "Missing cells filled by nearest neighbours",
        "For what needs complete rows, each missing cell takes the value of the most similar complete row.");
    if (rest > 0)
        section.addTable(section.name, std::move(text), std::move(all));
    else
        section.addTable(std::move(text));
    section.note =
        "Rows differ by the sum of squared differences over the variance of each numeric column, and 1 for "
        "each text that isn't the same. A filled cell counts for the next ones of its row. Where nothing can "
        "be compared, a cell takes the mean of its column or the most frequent text.";
    if (completion.donors > 0)
        section.note += " Of more than " + std::to_string(mostRowsSearched) + " rows not all are searched: here " +
                        std::to_string(completion.donors) +
                        " complete rows were drawn at random, from each group in proportion to its size, and the "
                        "nearest of these is taken. The variances are theirs.";
    if (rest > 0)
        section.note +=
            " Listed are the first " + counted(listed, "cell") + "; there are " + std::to_string(rest) + " more.";
}

} // namespace survey
