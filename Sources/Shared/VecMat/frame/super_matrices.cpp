#include "super_matrices.h"

#include "../base/detail/companions.h"
#include "../base/detail/numbers.h"
#include "../base/detail/outgoing_texts.h"
#include "../base/missing_value.h"
#include "detail/borrowed_texts.h"
#include "detail/outgoing_columns.h"

#include <algorithm>
#include <limits>
#include <memory>

using vecmat::countOf;
using vecmat::isMissing;
using vecmat::OutgoingTexts;
using vecmat::truncated;

namespace {

/// Deletes the tables created so far if loading fails half way.
template <class Table>
class ColumnArray
{
public:
    explicit ColumnArray(int nCols) : nCols_(nCols), tables_(new Table* [countOf(nCols)] {}) {}
    ~ColumnArray()
    {
        if (tables_ != nullptr)
            std::for_each_n(tables_.get(), countOf(nCols_), [](Table* table) { delete table; });
    }

    Table*& operator[](int j) { return tables_[static_cast<std::size_t>(j)]; }
    Table** release() { return tables_.release(); }

private:
    int nCols_;
    std::unique_ptr<Table*[]> tables_;
};

/// For a triangle the number of rows drops by one after every column present.
template <class Table, class Open>
Table** loadColumns(SAFEARRAY** sa, int nCols, int nRows, int width, SAFEARRAY* SAFEARRAYColumn::*kind, Open open)
{
    ColumnArray<Table> tables(nCols);
    if (*sa == nullptr)
        return tables.release();
    const auto* elements = static_cast<const SAFEARRAYColumn*>((*sa)->pvData);
    int rows = nRows;
    for (int j = 0; j < nCols; ++j) {
        const SAFEARRAY* column = elements[j].*kind;
        if (column == nullptr)
            continue;
        tables[j] = open(rows, column->pvData);
        if (width == 0 && rows > std::numeric_limits<int>::min()) // below 0 they are empty, and stay so
            --rows;
    }
    return tables.release();
}

template <class Table>
void deleteTables(Table** tables, int nCols)
{
    std::for_each_n(tables, countOf(nCols), [](Table* table) { delete table; });
    delete[] tables;
}

/// Visits the cells of a stack with the position of each in the interleaved array.
template <class Visit>
void forEachInterleaved(int n, int rows, int cols, Visit visit)
{
    for (int k = 0; k < n; ++k) {
        std::size_t position = static_cast<std::size_t>(k);
        for (int j = 1; j <= cols; ++j)
            for (int i = 1; i <= rows; ++i) {
                visit(k, i, j, position);
                position += static_cast<std::size_t>(n);
            }
    }
}

/// Fills the stack with new tables; nulls first, so that after a failure the caller can still delete the stack.
template <class Table, class Make>
void makeStack(Table** sm, int n, Make make)
{
    std::fill_n(sm, countOf(n), nullptr);
    std::generate_n(sm, countOf(n), make);
}

template <class Number>
void loadNumbers(matrix** sm, const Number* flat, int n, int rows, int cols)
{
    iniSuperMat(sm, n, rows, cols);
    forEachInterleaved(n, rows, cols, [&](int k, int i, int j, std::size_t at) { sm[k]->vbset(i, j, flat[at]); });
}

} // namespace

matrix** LoadSAFEARRAY(SAFEARRAY** sa, int nCols, int nRows, int width)
{
    return loadColumns<matrix>(sa, nCols, nRows, width, &SAFEARRAYColumn::numbers, [width](int rows, void* data) {
        return new matrix(rows, width != 0 ? width : 1, static_cast<double*>(data), true);
    });
}

Smatrix** LoadSAFEARRAYStr(SAFEARRAY** sa, int nCols, int nRows, int width)
{
    return loadColumns<Smatrix>(sa, nCols, nRows, width, &SAFEARRAYColumn::strings, [](int rows, void* data) {
        return new Smatrix(rows, 1, static_cast<wchar_t**>(data), 0, 0);
    });
}

vecmat::BorrowedTexts** vecmat::loadBorrowedColumns(SAFEARRAY** sa, int nCols, int nRows)
{
    return loadColumns<BorrowedTexts>(sa, nCols, nRows, 1, &SAFEARRAYColumn::strings, [](int rows, void* data) {
        auto column = std::make_unique<BorrowedTexts>(rows, 1);
        std::copy_n(static_cast<wchar_t**>(data), column->nElems, column->X);
        return column.release();
    });
}

void vecmat::deleteColumns(BorrowedTexts** tables, int nCols)
{
    deleteTables(tables, nCols);
}

void SaveSAFEARRAY(Smatrix** tables, int nCols, int /*ignored*/, SAFEARRAY** sa)
{
    OutgoingTexts texts;
    vecmat::addTexts(texts, tables, nCols, sa);
    texts.store();
}

void DeleteSAFEARRAY(matrix** tables, int nCols)
{
    deleteTables(tables, nCols);
}

void DeleteSAFEARRAYStr(Smatrix** tables, int nCols)
{
    deleteTables(tables, nCols);
}

int MySafeArrayAccessData(SAFEARRAY* sa, void** data)
{
    if (sa == nullptr || data == nullptr)
        return 0;
    *data = sa->pvData;
    return 1;
}

void* ExtractBSTR(SAFEARRAY** sa)
{
    return *sa != nullptr ? (*sa)->pvData : nullptr;
}

void iniSuperMat(matrix** sm, int n, int rows, int cols)
{
    makeStack(sm, n, [=] { return new matrix(rows, cols, 0); });
}

void SuperMatSetToValue(matrix** sm, int n, int rows, int cols, double value)
{
    std::for_each_n(sm, countOf(n), [=](matrix*& table) { matrix::matCheck(table, rows, cols, value); });
}

void loadSuperMat(matrix** sm, double* flat, int n, int rows, int cols)
{
    loadNumbers(sm, flat, n, rows, cols);
}

void loadSuperMatLng(matrix** sm, int* flat, int n, int rows, int cols)
{
    loadNumbers(sm, flat, n, rows, cols);
}

void loadSuperMat(Smatrix** sm, wchar_t** flat, int n, int rows, int cols)
{
    makeStack(sm, n, [=] { return new Smatrix(rows, cols); });
    forEachInterleaved(n, rows, cols, [&](int k, int i, int j, std::size_t at) {
        if (flat[at] != nullptr)
            sm[k]->vbset(i, j, CW162W32(flat[at]));
    });
}

void unloadSuperMat(matrix** sm, double* flat, int n, int rows, int cols)
{
    forEachInterleaved(n, rows, cols, [&](int k, int i, int j, std::size_t at) { flat[at] = sm[k]->vbget(i, j); });
}

void unloadSuperMatLng(matrix** sm, int* flat, int n, int rows, int cols)
{
    forEachInterleaved(n, rows, cols, [&](int k, int i, int j, std::size_t at) {
        const double cell = sm[k]->vbget(i, j);
        flat[at] = isMissing(cell) ? 0 : truncated(cell);
    });
}

void unloadSuperMat(Smatrix** sm, wchar_t** flat, int n, int rows, int cols)
{
    OutgoingTexts texts;
    forEachInterleaved(n, rows, cols,
                       [&](int k, int i, int j, std::size_t at) { texts.add(sm[k]->vbget(i, j), flat + at); });
    texts.store();
}

void deletecascade(matrix** sm, int n)
{
    std::for_each_n(sm, countOf(n), [](matrix* table) { delete table; });
}

void deletecascade(Smatrix** sm, int n)
{
    std::for_each_n(sm, countOf(n), [](Smatrix* table) { delete table; });
}

void ProjVecToMat(double* src, int rows, int cols, int col, double* dst)
{
    if (col < 1 || col > cols || rows < 1)
        return;
    std::copy_n(src + (static_cast<std::ptrdiff_t>(col) - 1) * rows, rows, dst);
}
