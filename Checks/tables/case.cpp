#include "tables/case.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <numeric>

namespace vecmat::digest {

namespace {

constexpr double missing = -0x1.fffffffffffe2p+1023;

std::size_t count(int rows, int cols)
{
    return static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols);
}

double special(flat::Steps& steps)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double numbers[] = {-0.0,     0.0,        infinity, -infinity, std::numeric_limits<double>::quiet_NaN(),
                                  0x1p1000, -0x1p-1040, missing,  -missing};
    return numbers[steps.next() % std::size(numbers)];
}

std::vector<int> shuffled(flat::Steps& steps, std::size_t size)
{
    std::vector<int> numbers(size);
    std::iota(numbers.begin(), numbers.end(), 1);
    for (std::size_t k = size; k > 1; --k)
        std::swap(numbers[k - 1], numbers[steps.next() % k]);
    return numbers;
}

template <class T>
void addAll(Hash& hash, const T* cells, std::size_t size)
{
    for (std::size_t k = 0; cells != nullptr && k < size; ++k)
        hash.add(cells[k]);
}

template <class Table>
void addTable(Hash& hash, const Table* table)
{
    hash.add(table != nullptr);
    if (table == nullptr)
        return;
    hash.add(table->nRows);
    hash.add(table->nCols);
    addAll(hash, table->X, table->nElems);
    if constexpr (!std::is_same_v<Table, Smatrix>) {
        const auto rows = static_cast<std::size_t>(std::max(table->nRows, 0));
        const auto cols = static_cast<std::size_t>(std::max(table->nCols, 0));
        hash.add(table->normalized);
        hash.add(table->descDone);
        addAll(hash, table->weights, rows);
        for (const double* const cache :
             {table->norMu, table->norSigma, table->descMu, table->descSigma, table->weightcorr})
            addAll(hash, cache, cols);
        addAll(hash, table->nCol, cols);
    }
}

template <class Shelf>
void addShelf(Hash& hash, Shelf& shelf)
{
    for (const auto& [name, table] : shelf.tables) {
        hash.addBits(name.size(), 4);
        addTable(hash, table.get());
    }
    for (auto& [name, columns] : shelf.columns) {
        hash.addBits(name.size(), 4);
        for (int j = 0; j < columns.count(); ++j)
            addTable(hash, columns.get()[j]);
    }
}

} // namespace

Case::Case(int rows, int cols, int third, Style style, std::uint64_t seed)
    : n(rows), p(cols), q(third), style_(style), seed_(seed)
{
}

Case::~Case() = default;

flat::Steps Case::steps(const char* name) const
{
    return flat::Steps(flat::seedFor(seed_, name));
}

double Case::cell(flat::Steps& steps, const Cells& cells) const
{
    switch (cells.content) {
    case Content::weights:
        return steps.onceIn(6) ? 0.0 : 1.5 + steps.withAllDigits();
    case Content::zeros:
        return 0.0;
    case Content::whole:
        return steps.between(cells.low, cells.high);
    default:
        break;
    }
    switch (style_) {
    case Style::gaps:
        return steps.onceIn(6) ? missing : steps.between(-200, 200) / 8.0;
    case Style::ties:
        return steps.between(-2, 2) / 2.0;
    case Style::special:
        return steps.onceIn(4) ? special(steps) : steps.between(-40, 40) / 8.0;
    default:
        return 30.0 * steps.withAllDigits();
    }
}

std::vector<double> Case::numbers(const char* name, int rows, int cols, const Cells& cells) const
{
    flat::Steps steps = this->steps(name);
    std::vector<double> numbers(count(rows, cols));
    if (cells.content == Content::order) {
        const std::vector<int> places = shuffled(steps, numbers.size());
        std::copy(places.begin(), places.end(), numbers.begin());
        return numbers;
    }
    if (cells.content != Content::definite && cells.content != Content::lower) {
        for (double& number : numbers)
            number = cell(steps, cells);
        return numbers;
    }
    const double heavy = style_ == Style::ties ? 1.0 : 4.0 * rows; // with ties nothing promises to be definite
    for (int j = 0; j < cols; ++j)
        for (int i = j; i < rows; ++i) {
            const double number = (i == j ? heavy : 0.0) + 2.0 * steps.withAllDigits();
            numbers[count(rows, j) + static_cast<std::size_t>(i)] = number;
            if (i < cols && cells.content == Content::definite)
                numbers[count(rows, i) + static_cast<std::size_t>(j)] = number;
        }
    return numbers;
}

std::vector<int> Case::wholes(const char* name, int count, const Cells& cells) const
{
    flat::Steps steps = this->steps(name);
    if (cells.content == Content::order)
        return shuffled(steps, static_cast<std::size_t>(count));
    std::vector<int> numbers(static_cast<std::size_t>(count));
    for (int& number : numbers)
        number = cells.content == Content::zeros ? 0 : steps.between(cells.low, cells.high);
    return numbers;
}

std::vector<std::wstring> Case::texts(const char* name, int count) const
{
    static const std::wstring words[] = {L"a", L"b", L"", L"ab", L"10", L"9a", L"\u00C4", L"1.5e2", L"a long label"};
    flat::Steps steps = this->steps(name);
    const std::size_t known = style_ == Style::ties ? 2 : style_ == Style::gaps ? 3 : std::size(words);
    std::vector<std::wstring> cells(static_cast<std::size_t>(count));
    for (std::wstring& cell : cells)
        cell = words[steps.next() % known];
    return cells;
}

matrix*& Case::table(const char* name, int rows, int cols, Cells cells)
{
    const auto [place, isNew] =
        numbers_.tables.emplace(name, test::table(rows, cols, numbers(name, rows, cols, cells)));
    return place->second.reference();
}

matrixInt*& Case::ints(const char* name, int rows, int cols, Cells cells)
{
    const auto [place, isNew] =
        ints_.tables.emplace(name, test::intTable(rows, cols, wholes(name, rows * cols, cells)));
    return place->second.reference();
}

Smatrix*& Case::strings(const char* name, int rows, int cols)
{
    const auto [place, isNew] = strings_.tables.emplace(name, test::stringTable(rows, cols, texts(name, rows * cols)));
    return place->second.reference();
}

matrix*& Case::out(const char* name, int rows, int cols)
{
    return table(name, rows, cols, whole(1000, 9999));
}

matrixInt*& Case::outInts(const char* name, int rows, int cols)
{
    return ints(name, rows, cols, whole(1000, 9999));
}

Smatrix*& Case::outStrings(const char* name, int rows, int cols)
{
    return strings(name, rows, cols);
}

matrix** Case::columns(const char* name, int rows, int cols, Cells cells)
{
    const auto [place, isNew] =
        numbers_.columns.emplace(name, test::TableColumns(rows, cols, numbers(name, rows, cols, cells)));
    return place->second.get();
}

matrix** Case::triangle(const char* name, int order, Cells cells)
{
    const auto [place, isNew] =
        numbers_.columns.emplace(name, test::triangle(order, numbers(name, order, order, cells)));
    return place->second.get();
}

Smatrix** Case::stringColumns(const char* name, int rows, int cols)
{
    const auto [place, isNew] =
        strings_.columns.emplace(name, test::StringColumns(rows, cols, texts(name, rows * cols)));
    return place->second.get();
}

matrix** Case::outColumns(const char* name, int rows, int cols)
{
    return columns(name, rows, cols, whole(1000, 9999));
}

matrix** Case::outTriangle(const char* name, int order)
{
    return triangle(name, order, whole(1000, 9999));
}

matrix** Case::blocks(const char* name, const std::vector<int>& orders)
{
    std::vector<std::vector<double>> tables;
    for (const int order : orders)
        tables.push_back(numbers((name + std::to_string(tables.size())).c_str(), order, order, data));
    const auto [place, isNew] = numbers_.columns.emplace(name, test::TableColumns(tables));
    for (std::size_t k = 0; k < orders.size(); ++k)
        place->second.get()[k]->nRows = place->second.get()[k]->nCols = orders[k];
    return place->second.get();
}

matrix*& Case::column(const char* name, const std::vector<int>& numbers)
{
    const auto [place, isNew] =
        numbers_.tables.emplace(name, test::column(std::vector<double>(numbers.begin(), numbers.end())));
    return place->second.reference();
}

matrixInt*& Case::intColumn(const char* name, const std::vector<int>& numbers)
{
    const auto [place, isNew] = ints_.tables.emplace(name, test::intColumn(numbers));
    return place->second.reference();
}

double* Case::array(const char* name, int count, Cells cells)
{
    return arrays_.emplace(name, numbers(name, count, 1, cells)).first->second.data();
}

int* Case::intArray(const char* name, int count, Cells cells)
{
    return intArrays_.emplace(name, wholes(name, count, cells)).first->second.data();
}

short* Case::mask(const char* name, int count)
{
    flat::Steps steps = this->steps(name);
    std::vector<short> marks(static_cast<std::size_t>(count));
    for (short& mark : marks)
        mark = static_cast<short>(steps.onceIn(4) ? -1 : 0);
    return masks_.emplace(name, std::move(marks)).first->second.data();
}

wchar_t** Case::bstrs(const char* name, int count)
{
    const std::vector<std::wstring> cells = texts(name, count);
    return bstrs_.emplace(name, flat::Bstrs({cells.begin(), cells.end()}, flat::Placement::plain, name))
        .first->second.data();
}

wchar_t** Case::noBstrs(const char* name, int count)
{
    const std::vector<flat::Text> cells(static_cast<std::size_t>(count));
    return bstrs_.emplace(name, flat::Bstrs(cells, flat::Placement::plain, name)).first->second.data();
}

int& Case::whole1(const char* name, int value)
{
    return intArrays_.emplace(name, std::vector<int>{value}).first->second.front();
}

short& Case::short1(const char* name, short value)
{
    return masks_.emplace(name, std::vector<short>{value}).first->second.front();
}

double& Case::number1(const char* name, double value)
{
    return arrays_.emplace(name, std::vector<double>{value}).first->second.front();
}

short Case::option(const char* name)
{
    flat::Steps steps = this->steps(name);
    return static_cast<short>(steps.onceIn(8) ? steps.between(-2, 2) : steps.between(-1, 0));
}

int Case::pick(const char* name, int low, int high)
{
    return steps(name).between(low, std::max(low, high));
}

double Case::number(const char* name)
{
    flat::Steps steps = this->steps(name);
    return steps.onceIn(8) ? missing : steps.between(-16, 16) / 8.0;
}

std::wstring Case::text(const char* name)
{
    return texts(name, 1).front();
}

void Case::takes(const matrix* table)
{
    addTable(hash_, table);
}

void Case::takes(const matrixInt* table)
{
    addTable(hash_, table);
}

void Case::takes(const Smatrix* table)
{
    addTable(hash_, table);
}

std::uint64_t Case::digest()
{
    addShelf(hash_, numbers_);
    addShelf(hash_, ints_);
    addShelf(hash_, strings_);
    for (const auto& [name, cells] : arrays_)
        addAll(hash_, cells.data(), cells.size());
    for (const auto& [name, cells] : intArrays_)
        addAll(hash_, cells.data(), cells.size());
    for (const auto& [name, cells] : masks_)
        addAll(hash_, cells.data(), cells.size());
    for (const auto& [name, strings] : bstrs_)
        for (const flat::Text& text : strings.texts())
            hash_.add(text.value_or(L""));
    return hash_.value();
}

} // namespace vecmat::digest
