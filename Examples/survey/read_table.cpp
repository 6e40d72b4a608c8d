#include "read_table.h"

#include "cell.h"
#include "csv.h"
#include "dialect.h"
#include "file_text.h"
#include "input_error.h"

#include "VecMat.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace survey {

namespace {

constexpr int none = -1; ///< no row

/// What the cells of a column are, and where the first stands that may be a mistake.
struct Census
{
    int numbers = 0;
    int texts = 0;
    int notFinite = 0;
    int firstNoNumber = none; ///< a text, or no finite number
    int firstMissingNumber = none;
    int decimals = 0;
    std::vector<double> cells; ///< the missing value where there is no number
};

/// A column of the file that is wanted, and its place there.
struct Wanted
{
    std::size_t place;
    std::string name;
};

std::string shown(char c)
{
    return c == '\t' ? "a tab" : std::string{'\'', c, '\''};
}

/// Reads one text.
class TableReader
{
public:
    TableReader(std::string_view text, const std::string& file, const ReadOptions& options, const Progress& progress)
        : text_(text), file_(file), options_(options), progress_(progress),
          dialect_(dialectOf(text, options.delimiter, options.decimal)),
          rules_(cellRules(dialect_.decimal, options.missing))
    {
    }

    Table table()
    {
        Table table{file_, 0, {}};
        readHeading();
        const std::vector<Wanted> wanted = wantedColumns();
        std::vector<Census> censuses = censusOf(wanted);
        for (std::size_t j = 0; j < wanted.size(); ++j)
            table.columns.push_back(columnOf(wanted[j], censuses[j]));
        readTexts(wanted, table);
        table.rows = rows_;
        takeWeights(table);
        if (table.ofKind(Kind::numeric).empty())
            throw InputError(wholeHeading(), noNumericColumn());
        remarkOn(table, wanted, censuses);
        return table;
    }

private:
    /// Calls `take` with each record below the heading and its number, from 0. Empty lines at the end are none.
    template <class Take>
    void forRows(const Take& take) const
    {
        CsvReader reader(text_, file_, dialect_.delimiter);
        reader.record();
        int row = 0;
        int emptyLine = 0;
        while (!reader.atEnd()) {
            const CsvRecord& record = reader.record();
            if (names_.size() > 1 && isEmptyLine(record)) {
                emptyLine = emptyLine == 0 ? record.front().line : emptyLine;
                continue;
            }
            if (emptyLine != 0)
                throw otherLength(1, emptyLine);
            if (record.size() != names_.size())
                throw otherLength(record.size(), record.front().line);
            if (!take(record, row++))
                return;
            if (row % 8192 == 0)
                tell(progress_, "reading " + file_,
                     static_cast<double>(reader.place()) / static_cast<double>(text_.size()));
        }
    }

    InputError otherLength(std::size_t fields, int line) const
    {
        const std::size_t place = std::min(fields, names_.size());
        std::string message = "the row has " + std::to_string(fields) + (fields == 1 ? " field" : " fields") +
                              ", the heading has " + std::to_string(names_.size());
        if (dialect_.delimiter != ',' && !options_.delimiter)
            message +=
                " (between fields stands " + shown(dialect_.delimiter) + ": --delimiter tells another character)";
        return {{.file = file_,
                 .line = line,
                 .column = static_cast<int>(place) + 1,
                 .columnName = place < names_.size() ? names_[place] : ""},
                message};
    }

    /// The names of the heading. A column without a name gets one by its number.
    void readHeading()
    {
        CsvReader reader(text_, file_, dialect_.delimiter);
        if (text_.find_first_not_of("\r\n") == std::string_view::npos)
            throw InputError({.file = file_, .line = 1, .column = 1}, "the file is empty");
        for (const CsvField& field : reader.record()) {
            const int number = static_cast<int>(names_.size()) + 1;
            const std::string name =
                withoutBlanks(field.text).empty() ? "column " + std::to_string(number) : std::string(field.text);
            const auto twin = std::find(names_.begin(), names_.end(), name);
            if (twin != names_.end())
                throw InputError({.file = file_, .line = field.line, .column = number, .columnName = name},
                                 "column " + std::to_string(twin - names_.begin() + 1) + " has the same name");
            names_.push_back(name);
            lastHeadingLine_ = field.line;
        }
    }

    Place wholeHeading() const
    {
        return {.file = file_, .line = 1, .column = 1, .lastColumn = static_cast<int>(names_.size())};
    }

    std::size_t placeOf(const std::string& name) const
    {
        const auto place = std::find(names_.begin(), names_.end(), name);
        if (place == names_.end()) {
            std::string names;
            for (const std::string& each : names_)
                names += (names.empty() ? "" : ", ") + each;
            throw InputError(wholeHeading(), "none is named " + quoted(name) + "; the names are " + names);
        }
        return static_cast<std::size_t>(place - names_.begin());
    }

    /// The names that are asked for, each once. One with a comma is a name if there is a column of that name, else a list.
    std::vector<std::string> chosenNames() const
    {
        std::vector<std::string> chosen;
        const auto add = [&](const std::string& name) {
            if (std::find(chosen.begin(), chosen.end(), name) == chosen.end())
                chosen.push_back(name);
        };
        for (const std::string& text : options_.columns) {
            if (std::find(names_.begin(), names_.end(), text) != names_.end()) {
                add(text);
                continue;
            }
            for (std::size_t first = 0; first <= text.size();) {
                const std::size_t comma = std::min(text.find(',', first), text.size());
                add(text.substr(first, comma - first));
                first = comma + 1;
            }
        }
        return chosen;
    }

    /// The columns that are asked for, and with them those of the groups and of the weights.
    std::vector<Wanted> wantedColumns() const
    {
        std::vector<std::string> names = options_.columns.empty() ? names_ : chosenNames();
        for (const auto& name : {options_.grouping, options_.weights})
            if (name && std::find(names.begin(), names.end(), *name) == names.end())
                names.insert(names.begin(), *name);
        std::vector<Wanted> wanted;
        wanted.reserve(names.size());
        for (const std::string& name : names)
            wanted.push_back({placeOf(name), name});
        return wanted;
    }

    std::vector<Census> censusOf(const std::vector<Wanted>& wanted)
    {
        std::vector<Census> censuses(wanted.size());
        forRows([&](const CsvRecord& record, int row) {
            if (row == 100) // the rows so far tell about how many there will be
                for (Census& census : censuses)
                    census.cells.reserve(text_.size() / (recordEnd(record) / 101) * 21 / 20);
            for (std::size_t j = 0; j < wanted.size(); ++j)
                count(cellOf(record[wanted[j].place].text, rules_), row, censuses[j]);
            rows_ = row + 1;
            return true;
        });
        if (rows_ == 0)
            throw InputError({.file = file_, .line = lastHeadingLine_ + 1, .column = 1, .columnName = names_.front()},
                             "no row of data follows the heading");
        return censuses;
    }

    std::size_t recordEnd(const CsvRecord& record) const
    {
        const char* const end = record.back().text.data() + record.back().text.size();
        const bool isInText =
            end > text_.data() && end <= text_.data() + text_.size(); // not where quotes were taken out
        return isInText ? static_cast<std::size_t>(end - text_.data()) : text_.size();
    }

    static void count(const Cell& cell, int row, Census& census)
    {
        census.cells.push_back(cell.number);
        switch (cell.content) {
        case Content::missing:
            break;
        case Content::missingNumber:
            if (census.firstMissingNumber == none)
                census.firstMissingNumber = row;
            [[fallthrough]];
        case Content::number:
            ++census.numbers;
            census.decimals = std::max(census.decimals, cell.decimals);
            break;
        case Content::notFinite:
        case Content::text:
            ++(cell.content == Content::text ? census.texts : census.notFinite);
            if (census.firstNoNumber == none)
                census.firstNoNumber = row;
        }
    }

    Column columnOf(const Wanted& wanted, Census& census) const
    {
        Column column{wanted.name, Kind::text, {}, {}, 0};
        const bool isGrouping = wanted.name == options_.grouping;
        const bool isMostlyNumbers = census.numbers + census.notFinite > census.texts;
        if (census.numbers + census.notFinite + census.texts == 0)
            column.kind = Kind::empty;
        else if (isMostlyNumbers && !isGrouping)
            column.kind = Kind::numeric;
        if (column.kind == Kind::numeric) {
            if (census.firstNoNumber != none)
                throw noNumberAt(wanted, census.firstNoNumber);
            if (census.firstMissingNumber != none)
                throw errorAt(wanted, census.firstMissingNumber, [](const std::string& text) {
                    return text + " is the number that stands for a missing cell: leave the cell empty";
                });
            column.numbers = std::move(census.cells);
            column.decimals = census.decimals;
        }
        census.cells = {};
        return column;
    }

    InputError noNumberAt(const Wanted& wanted, int row) const
    {
        return errorAt(wanted, row, [&](const std::string& text) {
            std::string bare = text.substr(1, text.size() - 2);
            if (cellOf(bare, rules_).content == Content::notFinite)
                return text + " is no finite number (a missing cell is left empty, or --missing tells its text)";
            std::string message = text + " is not a number, as most of the column are (a missing cell is left empty)";
            const char other = dialect_.decimal == '.' ? ',' : '.';
            if (cellOf(bare, cellRules(other, {})).content == Content::number)
                message += std::string("; decimals are taken to stand behind '") + dialect_.decimal +
                           "': --decimal tells another character";
            return message;
        });
    }

    /// About a cell; `message` takes its text in quotes.
    template <class Message>
    InputError errorAt(const Wanted& wanted, int row, const Message& message) const
    {
        Place place{.file = file_, .column = static_cast<int>(wanted.place) + 1, .columnName = wanted.name};
        std::string text;
        forRows([&](const CsvRecord& record, int each) {
            if (each != row)
                return true;
            place.line = record[wanted.place].line;
            text = quoted(std::string(record[wanted.place].text));
            return false;
        });
        return {place, message(text)};
    }

    /// The cells of the text columns, in a second walk: what is text is known only at the end of the first.
    void readTexts(const std::vector<Wanted>& wanted, Table& table) const
    {
        std::vector<std::pair<std::size_t, Column*>> columns;
        for (std::size_t j = 0; j < wanted.size(); ++j)
            if (table.columns[j].kind != Kind::numeric) {
                columns.emplace_back(wanted[j].place, &table.columns[j]);
                table.columns[j].texts.reserve(static_cast<std::size_t>(rows_));
            }
        if (columns.empty())
            return;
        forRows([&](const CsvRecord& record, int) {
            for (const auto& [place, column] : columns) {
                const std::string_view text = record[place].text;
                column->texts.emplace_back(isMissing(text) ? std::string_view() : text);
            }
            return true;
        });
    }

    bool isMissing(std::string_view text) const { return cellOf(text, rules_).content == Content::missing; }

    /// Makes the column of weights the table's weights, and leaves out the rows of weight 0.
    void takeWeights(Table& table) const
    {
        if (!options_.weights)
            return;
        const auto column = std::find_if(table.columns.begin(), table.columns.end(),
                                         [&](const Column& c) { return c.name == *options_.weights; });
        const Wanted wanted{placeOf(column->name), column->name};
        if (column->kind != Kind::numeric)
            throw InputError(
                {.file = file_, .line = 1, .column = static_cast<int>(wanted.place) + 1, .columnName = column->name},
                "weights are numbers");
        table.weights = std::move(column->numbers);
        table.columns.erase(column);
        double sum = 0.0;
        for (std::size_t i = 0; i < table.weights.size(); ++i) {
            if (!(table.weights[i] >= 0.0)) // the missing value is far below 0, too
                throw errorAt(wanted, static_cast<int>(i), [](const std::string& text) {
                    return text == "''" ? std::string("the weight is missing")
                                        : text + " is no weight: weights are 0 or above";
                });
            sum += table.weights[i];
        }
        if (!(sum > 0.0 && sum < std::numeric_limits<double>::max()))
            throw InputError({.file = file_, .column = static_cast<int>(wanted.place) + 1, .columnName = wanted.name},
                             sum > 0.0 ? "the weights are too large" : "no row has a weight above 0");
        leaveOutWeightless(table);
        for (double& weight : table.weights)
            weight *= static_cast<double>(table.rows) / sum;
        table.remarks.push_back("Rows are weighted by " + wanted.name + ", the weights scaled to a mean of 1.");
        if (const int left = rows_ - table.rows; left > 0)
            table.remarks.push_back(std::to_string(left) + (left == 1 ? " row" : " rows") +
                                    " of weight 0 left out: rows are numbered without.");
    }

    static void leaveOutWeightless(Table& table)
    {
        const std::vector<double> weights = table.weights;
        const auto keep = [&](auto& cells) {
            std::size_t kept = 0;
            for (std::size_t i = 0; i < cells.size(); ++i)
                if (weights[i] > 0.0 && kept++ != i)
                    cells[kept - 1] = std::move(cells[i]);
            cells.resize(kept);
        };
        for (Column& column : table.columns) {
            keep(column.texts);
            keep(column.numbers);
        }
        keep(table.weights);
        table.rows = static_cast<int>(table.weights.size());
    }

    std::string noNumericColumn() const
    {
        std::string message = options_.grouping ? "none is numeric beside the grouping column" : "none is numeric";
        if (names_.size() == 1 && !options_.delimiter &&
            text_.substr(0, 4096).find_first_of(":^~") != std::string_view::npos)
            message += " (--delimiter tells the character between fields)";
        return message;
    }

    void remarkOn(Table& table, const std::vector<Wanted>& wanted, const std::vector<Census>& censuses) const
    {
        if (!options_.delimiter && dialect_.delimiter != ',')
            table.remarks.push_back("Fields are taken to be separated by " + shown(dialect_.delimiter) + ".");
        if (!options_.decimal && dialect_.decimal != '.')
            table.remarks.emplace_back("Decimals are taken to stand behind a comma.");
        for (std::size_t j = 0; j < wanted.size(); ++j) {
            const Column* const column = table.named(wanted[j].name);
            const int numbers = censuses[j].numbers + censuses[j].notFinite;
            if (column != nullptr && column->kind == Kind::text && numbers > 0 && column->name != options_.grouping)
                table.remarks.push_back("Column " + quoted(column->name) + " is text, though " +
                                        std::to_string(numbers) + " of its cells " +
                                        (numbers == 1 ? "is a number." : "are numbers."));
        }
    }

    std::string_view text_;
    const std::string& file_;
    const ReadOptions& options_;
    const Progress& progress_;
    Dialect dialect_;
    CellRules rules_;
    std::vector<std::string> names_; // of all columns of the file
    int lastHeadingLine_ = 1;
    int rows_ = 0;
};

} // namespace

Table readTable(const std::string& path, const ReadOptions& options, Progress progress)
{
    const std::string name = path == "-" ? "standard input" : path;
    const FileText file = textOf(fileContent(path), name, options.encoding);
    Table table = tableOf(file.text, name, options, std::move(progress));
    if (!file.remark.empty())
        table.remarks.insert(table.remarks.begin(), file.remark);
    return table;
}

Table tableOf(std::string_view text, const std::string& file, const ReadOptions& options, Progress progress)
{
    return TableReader(text, file, options, progress).table();
}

} // namespace survey
