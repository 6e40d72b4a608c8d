// Stacks of tables, and arrays of columns that come from a caller's arrays of arrays.
#include "tables/case.h"

#include "support/flat_calls/column_arrays.h"

#include <vector>

namespace vecmat::digest {

namespace {

/// The tables that a function has made in a stack of q.
template <class Table>
class Stack
{
public:
    explicit Stack(Case& c) : case_(c), tables_(static_cast<std::size_t>(c.q), nullptr) {}
    Stack(const Stack&) = delete;
    Stack& operator=(const Stack&) = delete;
    ~Stack()
    {
        for (const Table* const table : tables_) {
            case_.takes(table);
            delete table;
        }
    }
    operator Table**() { return tables_.data(); }

private:
    Case& case_;
    std::vector<Table*> tables_;
};

template <class Table>
Stack<Table>& filled(Case& c, Stack<Table>& stack)
{
    if constexpr (std::is_same_v<Table, Smatrix>)
        loadSuperMat(stack, c.bstrs("flat", c.q * c.n * c.p), c.q, c.n, c.p);
    else
        loadSuperMat(stack, c.array("flat", c.q * c.n * c.p), c.q, c.n, c.p);
    return stack;
}

/// The tables are gone, and the pointers to them stay.
template <class Table>
void deleted(Case& c)
{
    std::vector<Table*> tables;
    for (int k = 0; k < c.q; ++k)
        tables.push_back(k % 2 == 1 ? nullptr : test::detail::newTable<Table>(c.n, c.p));
    deletecascade(tables.data(), c.q);
    for (const Table* const table : tables)
        c.gives(table != nullptr);
}

std::vector<std::vector<double>> columnsOf(Case& c)
{
    std::vector<std::vector<double>> columns;
    for (int j = 0; j < c.p; ++j) {
        const double* const cells = c.array(("column" + std::to_string(j)).c_str(), c.n);
        columns.emplace_back(cells, cells + c.n);
    }
    return columns;
}

std::vector<std::vector<flat::Text>> textColumnsOf(Case& c)
{
    std::vector<std::vector<flat::Text>> columns;
    for (int j = 0; j < c.p; ++j) {
        const Smatrix* const cells = c.strings(("column" + std::to_string(j)).c_str(), c.n, 1);
        columns.emplace_back(cells->X, cells->X + c.n);
    }
    return columns;
}

void numbersLoadedAndDeleted(Case& c)
{
    flat::ColumnArray array(columnsOf(c), flat::Placement::plain, "columns");
    auto** const columns = static_cast<SAFEARRAY**>(array.data());
    matrix** const tables = LoadSAFEARRAY(columns, c.p, c.n, 1);
    for (int j = 0; j < c.p; ++j)
        c.takes(tables[j]);
    DeleteSAFEARRAY(tables, c.p);
}

void textsLoadedAndDeleted(Case& c)
{
    flat::ColumnArray array(textColumnsOf(c), flat::Placement::plain, "columns");
    auto** const columns = static_cast<SAFEARRAY**>(array.data());
    Smatrix** const tables = LoadSAFEARRAYStr(columns, c.p, c.n, 1);
    for (int j = 0; j < c.p; ++j)
        c.takes(tables[j]);
    DeleteSAFEARRAYStr(tables, c.p);
}

void textsSaved(Case& c)
{
    flat::ColumnArray array(textColumnsOf(c), flat::Placement::plain, "columns");
    auto** const columns = static_cast<SAFEARRAY**>(array.data());
    SaveSAFEARRAY(c.stringColumns("tables", c.n, c.p), c.p, 0, columns);
    for (const flat::Bstrs& column : array.strings())
        for (const flat::Text& text : column.texts())
            c.gives(text.value_or(L""));
}

} // namespace

std::span<const TableCall> frameCalls()
{
    static const TableCall calls[] = {
        {"LoadSAFEARRAY", numbersLoadedAndDeleted},
        {"LoadSAFEARRAYStr", textsLoadedAndDeleted},
        {"DeleteSAFEARRAY", numbersLoadedAndDeleted},
        {"DeleteSAFEARRAYStr", textsLoadedAndDeleted},
        {"SaveSAFEARRAY", textsSaved},
        {"iniSuperMat",
         [](Case& c) {
             Stack<matrix> stack(c);
             iniSuperMat(stack, c.q, c.n, c.p);
         }},
        {"SuperMatSetToValue",
         [](Case& c) {
             Stack<matrix> stack(c);
             SuperMatSetToValue(filled(c, stack), c.q, c.p, c.n, c.number("value"));
         }},
        {"loadSuperMat(matrix**, double*, int, int, int)",
         [](Case& c) {
             Stack<matrix> stack(c);
             filled(c, stack);
         }},
        {"loadSuperMat(Smatrix**, wchar_t**, int, int, int)",
         [](Case& c) {
             Stack<Smatrix> stack(c);
             filled(c, stack);
         }},
        {"loadSuperMatLng",
         [](Case& c) {
             Stack<matrix> stack(c);
             loadSuperMatLng(stack, c.intArray("flat", c.q * c.n * c.p), c.q, c.n, c.p);
         }},
        {"unloadSuperMat(matrix**, double*, int, int, int)",
         [](Case& c) {
             Stack<matrix> stack(c);
             unloadSuperMat(filled(c, stack), c.array("out", c.q * c.n * c.p, zeros), c.q, c.n, c.p);
         }},
        {"unloadSuperMat(Smatrix**, wchar_t**, int, int, int)",
         [](Case& c) {
             Stack<Smatrix> stack(c);
             unloadSuperMat(filled(c, stack), c.noBstrs("out", c.q * c.n * c.p), c.q, c.n, c.p);
         }},
        {"unloadSuperMatLng",
         [](Case& c) {
             Stack<matrix> stack(c);
             unloadSuperMatLng(filled(c, stack), c.intArray("out", c.q * c.n * c.p, zeros), c.q, c.n, c.p);
         }},
        {"deletecascade(matrix**, int)", deleted<matrix>},
        {"deletecascade(Smatrix**, int)", deleted<Smatrix>},
    };
    return calls;
}

} // namespace vecmat::digest
