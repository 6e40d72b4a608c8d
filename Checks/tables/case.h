// The arguments of one call over tables: made by name, from a seed, and hashed when the call is over.
//
//     [](Case& c) { M_ProductABSPV(c.columns("a", c.n, c.p), c.n, c.p, c.table("b", c.p, c.q), c.q, c.out("out", c.n, c.q)); }
//
// What an argument holds depends on its name and not on the order in which a compiler makes the arguments of a call.
#pragma once

#include "digests.h"
#include "hash.h"

#include "support/flat_calls/bstrs.h"
#include "support/flat_calls/steps.h"
#include "support/tables.h"

#include "VecMat.h"

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vecmat::digest {

/// What the cells of an argument are like.
enum class Content {
    data,     // by the style of the case
    weights,  // 0.0 now and then
    definite, // symmetric, with a heavy diagonal
    lower,    // a triangular table with a diagonal of its own
    zeros,
    whole, // from low to high
    order, // 1 to the number of cells, each once
};

struct Cells
{
    Content content = Content::data;
    int low = 0;
    int high = 0;
};

constexpr Cells data{Content::data};
constexpr Cells weights{Content::weights};
constexpr Cells definite{Content::definite};
constexpr Cells lower{Content::lower};
constexpr Cells zeros{Content::zeros};
constexpr Cells permuted{Content::order};
constexpr Cells flags{Content::whole, -1, 0};
constexpr Cells whole(int low, int high)
{
    return {Content::whole, low, high};
}

enum class Style { plain, gaps, ties, special };

class Case
{
public:
    /// Rows, columns and a third count, none below 1.
    const int n;
    const int p;
    const int q;

    Case(int rows, int cols, int third, Style style, std::uint64_t seed);
    ~Case();
    Case(const Case&) = delete;
    Case& operator=(const Case&) = delete;

    matrix*& table(const char* name, int rows, int cols, Cells cells = data);
    matrixInt*& ints(const char* name, int rows, int cols, Cells cells = whole(-9, 9));
    Smatrix*& strings(const char* name, int rows, int cols);
    /// Tables for results, with numbers in them already.
    matrix*& out(const char* name, int rows, int cols);
    matrixInt*& outInts(const char* name, int rows, int cols);
    Smatrix*& outStrings(const char* name, int rows, int cols);

    /// Arrays of columns; those of a triangle are each a cell shorter than the one before.
    matrix** columns(const char* name, int rows, int cols, Cells cells = data);
    matrix** triangle(const char* name, int order, Cells cells = data);
    Smatrix** stringColumns(const char* name, int rows, int cols);
    matrix** outColumns(const char* name, int rows, int cols);
    matrix** outTriangle(const char* name, int order);
    /// Square tables of these orders, and the orders as a column.
    matrix** blocks(const char* name, const std::vector<int>& orders);
    matrix*& column(const char* name, const std::vector<int>& numbers);
    matrixInt*& intColumn(const char* name, const std::vector<int>& numbers);

    double* array(const char* name, int count, Cells cells = data);
    int* intArray(const char* name, int count, Cells cells = whole(-9, 9));
    short* mask(const char* name, int count);
    /// BSTRs, and places for BSTRs that the call makes.
    wchar_t** bstrs(const char* name, int count);
    wchar_t** noBstrs(const char* name, int count);

    /// One number that the call may write.
    int& whole1(const char* name, int value);
    short& short1(const char* name, short value);
    double& number1(const char* name, double value);

    /// An option: -1 or 0, and now and then a stranger.
    short option(const char* name);
    int pick(const char* name, int low, int high);
    double number(const char* name);
    std::wstring text(const char* name);

    /// Takes up what the call has returned.
    template <class T>
    void gives(const T& result)
    {
        hash_.add(result);
    }
    /// Takes up a table that the call has made; the case does not own it.
    void takes(const matrix* table);
    void takes(const matrixInt* table);
    void takes(const Smatrix* table);

    /// The hash of the results and of all arguments.
    std::uint64_t digest();

private:
    template <class Table>
    struct Shelf
    {
        std::map<std::string, test::Owned<Table>, std::less<>> tables;
        std::map<std::string, test::Columns<Table>, std::less<>> columns;
    };

    flat::Steps steps(const char* name) const;
    double cell(flat::Steps& steps, const Cells& cells) const;
    std::vector<double> numbers(const char* name, int rows, int cols, const Cells& cells) const;
    std::vector<int> wholes(const char* name, int count, const Cells& cells) const;
    std::vector<std::wstring> texts(const char* name, int count) const;

    Style style_;
    std::uint64_t seed_;
    Hash hash_;
    Shelf<matrix> numbers_;
    Shelf<matrixInt> ints_;
    Shelf<Smatrix> strings_;
    std::map<std::string, std::vector<double>, std::less<>> arrays_;
    std::map<std::string, std::vector<int>, std::less<>> intArrays_;
    std::map<std::string, std::vector<short>, std::less<>> masks_;
    std::map<std::string, flat::Bstrs, std::less<>> bstrs_;
};

/// A function over tables, and how it is called. Overloads are told apart by the types of their parameters.
struct TableCall
{
    const char* name;
    void (*call)(Case&);
};

/// A list for each part of the library.
std::span<const TableCall> memberCalls();
std::span<const TableCall> operationCalls();
std::span<const TableCall> frameCalls();
std::span<const TableCall> serviceCalls();
std::span<const TableCall> elementaryCalls();
std::span<const TableCall> shapeCalls();
std::span<const TableCall> sortingCalls();
std::span<const TableCall> missingCalls();
std::span<const TableCall> qualitativeCalls();
std::span<const TableCall> descriptiveCalls();
std::span<const TableCall> randomisationCalls();
std::span<const TableCall> decompositionCalls();
std::span<const TableCall> fittingCalls();

} // namespace vecmat::digest
