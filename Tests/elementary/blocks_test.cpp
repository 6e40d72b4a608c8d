#include "elementary/blocks.h"

#include "sorting/copy_block.h"
#include "support/bits.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <climits>

using namespace vecmat::test;

namespace {

/// A block by its size and corners, from 1.
struct Block
{
    int rows, cols, dstRow, dstCol, srcRow, srcCol;
};

std::ostream& operator<<(std::ostream& out, const Block& b)
{
    return out << b.rows << " by " << b.cols << " from (" << b.srcRow << ", " << b.srcCol << ") to (" << b.dstRow
               << ", " << b.dstCol << ")";
}

/// The plain loop with which every copy is compared: rows outside, columns inside, each cell by the checked access.
template <class Get, class Set>
void copyByTheCell(const Block& b, Get get, Set set)
{
    for (int i = 0; i < b.rows; ++i)
        for (int j = 0; j < b.cols; ++j)
            set(b.dstRow + i, b.dstCol + j, get(b.srcRow + i, b.srcCol + j));
}

template <class Table>
auto reads(Table* table)
{
    return [=](int i, int j) { return table->vbget(i, j); };
}
template <class Table>
auto writes(Table* table)
{
    return [=](int i, int j, auto v) { table->vbset(i, j, v); };
}

/// Blocks around the edges of two tables, and entirely outside them.
Block anyBlock(RandomData& data, int largest)
{
    return {data.integer(-1, largest),     data.integer(-1, largest),     data.integer(-2, largest + 2),
            data.integer(-2, largest + 2), data.integer(-2, largest + 2), data.integer(-2, largest + 2)};
}

/// A block that lies inside two tables of `n` by `n`.
Block insideBlock(RandomData& data, int n)
{
    const int rows = data.integer(1, n);
    const int cols = data.integer(1, n);
    return {rows,
            cols,
            data.integer(1, n - rows + 1),
            data.integer(1, n - cols + 1),
            data.integer(1, n - rows + 1),
            data.integer(1, n - cols + 1)};
}

constexpr int order = 6;
constexpr std::size_t square = 36;

// ---- between plain tables -------------------------------------------------------------------------------------------

TEST(MDuplicate, CopiesTheBlockBetweenItsCorners)
{
    auto dst = filled(3, 4, 0.0);
    M_Duplicate(byRows({{1, 2, 3}, {4, M, 6}, {7, 8, 9}}), 2, 2, dst, 2, 3, 2, 1);
    EXPECT_THAT(cellsOf(dst), SameBits(cellsOf(byRows({{0, 0, 0, 0}, {0, 0, 4, M}, {0, 0, 7, 8}}))));
}

TEST(MDuplicate, IsTheCheckedLoopRowByRowForAnyBlock)
{
    RandomData data(2401);
    SCOPED_TRACE(data);
    for (int round = 0; round < 2000; ++round) {
        const int rows = data.integer(0, 5);
        const int cols = data.integer(0, 5);
        const auto n = static_cast<std::size_t>(rows * cols);
        const auto src = table(rows, cols, data.withSpecials(data.uniforms(n), 0.3));
        auto dst = table(4, 3, data.leftovers(12));
        const auto expected = table(4, 3, cellsOf(dst));
        const Block b = anyBlock(data, 6);
        copyByTheCell(b, reads(src.get()), writes(expected.get()));
        M_Duplicate(src, b.rows, b.cols, dst, b.dstRow, b.dstCol, b.srcRow, b.srcCol);
        ASSERT_THAT(cellsOf(dst), SameBits(cellsOf(expected))) << b << " of " << rows << " by " << cols;
    }
}

TEST(MDuplicate, OfIntsIsTheSameLoop)
{
    RandomData data(2402);
    SCOPED_TRACE(data);
    for (int round = 0; round < 1000; ++round) {
        const auto src = intTable(4, 4, data.integers(16, -99, 99));
        auto dst = intTable(3, 5, data.intLeftovers(15));
        const auto expected = intTable(3, 5, cellsOf(dst));
        const Block b = anyBlock(data, 6);
        copyByTheCell(b, reads(src.get()), writes(expected.get()));
        M_Duplicate(src, b.rows, b.cols, dst, b.dstRow, b.dstCol, b.srcRow, b.srcCol);
        ASSERT_EQ(cellsOf(dst), cellsOf(expected)) << b;
    }
}

TEST(MDuplicate, WithinOneTableReadsWhatItHasWritten)
{
    RandomData data(2403);
    SCOPED_TRACE(data);
    for (int round = 0; round < 2000; ++round) {
        auto a = table(5, 5, data.uniforms(25));
        const auto expected = table(5, 5, cellsOf(a));
        const Block b = anyBlock(data, 5);
        copyByTheCell(b, reads(expected.get()), writes(expected.get()));
        M_Duplicate(a, b.rows, b.cols, a, b.dstRow, b.dstCol, b.srcRow, b.srcCol);
        ASSERT_THAT(cellsOf(a), SameBits(cellsOf(expected))) << b;
    }
}

TEST(MDuplicate, ARowBeyondTheTargetRunsIntoTheNextColumnInRowOrder)
{
    auto dst = filled(2, 2, 0.0);
    M_Duplicate(byRows({{1, 2}, {3, 4}, {5, 6}}), 3, 2, dst, 1, 1, 1, 1);
    // Cell (3, 1) is (1, 2) of the target, and is written after it.
    EXPECT_THAT(cellsOf(dst), SameBits({1, 3, 5, 4}));
}

TEST(MDuplicate, SenselessNumbersAreDropped)
{
    auto dst = filled(2, 2, 7.0);
    M_Duplicate(filled(2, 2, 1.0), 2, 2, dst, INT_MAX, INT_MAX, INT_MIN, INT_MIN);
    M_Duplicate(filled(2, 2, 1.0), 2, 2, dst, INT_MIN, 1, 1, 1);
    EXPECT_THAT(cellsOf(dst), SameBits({7, 7, 7, 7}));
}

TEST(MDuplicate, NothingIsCopiedFromOrToATableThatIsNotThere)
{
    auto dst = filled(2, 2, 7.0);
    M_Duplicate(static_cast<matrix*>(nullptr), 2, 2, dst, 1, 1, 1, 1);
    M_Duplicate(dst, 2, 2, static_cast<matrix*>(nullptr), 1, 1, 1, 1);
    EXPECT_THAT(cellsOf(dst), SameBits({7, 7, 7, 7}));
}

// ---- arrays of columns ----------------------------------------------------------------------------------------------

TEST(MDuplicateSPV, AllFormsGiveWhatThePlainOneGives)
{
    RandomData data(2404);
    SCOPED_TRACE(data);
    for (int round = 0; round < 300; ++round) {
        const auto cells = data.withSpecials(data.uniforms(square), 0.2);
        const auto before = data.leftovers(square);
        const Block b = insideBlock(data, order);
        const auto src = table(order, order, cells);
        TableColumns srcColumns(order, order, cells);
        auto plain = table(order, order, before);
        M_Duplicate(src, b.rows, b.cols, plain, b.dstRow, b.dstCol, b.srcRow, b.srcCol);

        auto spv = table(order, order, before);
        M_DuplicateSPV(srcColumns, b.rows, b.cols, spv, b.dstRow, b.dstCol, b.srcRow, b.srcCol);
        ASSERT_THAT(cellsOf(spv), SameBits(cellsOf(plain))) << b;

        TableColumns spv2(order, order, before);
        M_DuplicateSPV2(src, b.rows, b.cols, spv2, b.dstRow, b.dstCol, b.srcRow, b.srcCol);
        ASSERT_THAT(spv2.cells(), SameBits(cellsOf(plain))) << b;

        TableColumns spv3(order, order, before);
        M_DuplicateSPV3(srcColumns, b.rows, b.cols, spv3, b.dstRow, b.dstCol, b.srcRow, b.srcCol);
        ASSERT_THAT(spv3.cells(), SameBits(cellsOf(plain))) << b;
    }
}

TEST(MDuplicateSPV, RowsAndColumnsOutsideReadMinusOneOrAreDropped)
{
    TableColumns src(2, 2, {1, 2, 3, 4});
    auto dst = filled(3, 3, 0.0);
    M_DuplicateSPV(src, 3, 2, dst, 1, 1, 0, 1);
    EXPECT_THAT(cellsOf(dst), SameBits({-1, 1, 2, -1, 3, 4, 0, 0, 0}));
    M_DuplicateSPV(src, 2, 2, dst, 1, 1, 1, 0); // column 0 of an array of columns does not exist
    EXPECT_THAT(cellsOf(dst), SameBits({-1, -1, 2, 1, 2, 4, 0, 0, 0}));

    TableColumns columns(2, 2, {0, 0, 0, 0});
    M_DuplicateSPV2(byRows({{1, 2}, {3, 4}, {5, 6}}), 3, 2, columns, 2, 1, 1, 1);
    EXPECT_THAT(columns.cells(), SameBits({0, 1, 0, 2})); // no row runs into the next column
    M_DuplicateSPV2(byRows({{8, 9}}), 1, 2, columns, 1, 0, 1, 1);
    EXPECT_THAT(columns.cells(), SameBits({9, 1, 0, 2}));
}

TEST(MDuplicateSPV3, WithinOneArrayReadsWhatItHasWritten)
{
    RandomData data(2405);
    SCOPED_TRACE(data);
    for (int round = 0; round < 300; ++round) {
        const auto cells = data.uniforms(square);
        const Block b = insideBlock(data, order);
        auto plain = table(order, order, cells);
        M_Duplicate(plain, b.rows, b.cols, plain, b.dstRow, b.dstCol, b.srcRow, b.srcCol);
        TableColumns columns(order, order, cells);
        M_DuplicateSPV3(columns, b.rows, b.cols, columns, b.dstRow, b.dstCol, b.srcRow, b.srcCol);
        ASSERT_THAT(columns.cells(), SameBits(cellsOf(plain))) << b;
    }
}

TEST(MDuplicateStrSPV, CopiesWholeColumns)
{
    StringColumns src(2, 2, {L"a", L"", L"c", L"d"});
    StringColumns dst(3, 3, std::vector<std::wstring>(9, L"-"));
    M_DuplicateStrSPV(src, 2, 2, dst);
    EXPECT_EQ(dst.cells(), (std::vector<std::wstring>{L"a", L"", L"-", L"c", L"d", L"-", L"-", L"-", L"-"}));
    M_DuplicateStrSPV(src, 3, 1, dst); // a row beyond the source is an empty string
    EXPECT_EQ(dst.column(0), (std::vector<std::wstring>{L"a", L"", L""}));
}

// ---- triangles ------------------------------------------------------------------------------------------------------

/// The same writes on a full table that keeps both triangles alike.
std::vector<double> symmetricWrites(const Block& b, matrix* src, matrix* target)
{
    copyByTheCell(b, reads(src), [=](int i, int j, double v) {
        target->vbset(i, j, v);
        target->vbset(j, i, v);
    });
    return cellsOf(target);
}

std::vector<double> symmetricCells(RandomData& data)
{
    auto cells = data.leftovers(square);
    for (std::size_t i = 0; i < order; ++i)
        for (std::size_t j = 0; j < i; ++j)
            cells[i * order + j] = cells[j * order + i];
    return cells;
}

TEST(MDuplicateSPV2T, KeepsTheCellBelowTheDiagonal)
{
    TableColumns dst = triangle(2, {0, 0, 0, 0});
    M_DuplicateSPV2_T(byRows({{1, 2}, {3, 4}}), 2, 2, dst, 1, 1, 1, 1);
    EXPECT_THAT(dst.cells(), SameBits({1, 3, 4}));
}

TEST(MDuplicateSPV2T, BothTriangleFormsFoldTheBlockInRowOrder)
{
    RandomData data(2406);
    SCOPED_TRACE(data);
    for (int round = 0; round < 300; ++round) {
        const auto cells = data.uniforms(square);
        const auto before = symmetricCells(data);
        const Block b = insideBlock(data, order);
        const auto src = table(order, order, cells);
        const auto full = table(order, order, before);
        const auto expected = triangle(order, symmetricWrites(b, src, full)).cells();

        TableColumns fromTable = triangle(order, before);
        M_DuplicateSPV2_T(src, b.rows, b.cols, fromTable, b.dstRow, b.dstCol, b.srcRow, b.srcCol);
        ASSERT_THAT(fromTable.cells(), SameBits(expected)) << b;

        TableColumns fromColumns = triangle(order, before);
        M_DuplicateSPV3_T(TableColumns(order, order, cells), b.rows, b.cols, fromColumns, b.dstRow, b.dstCol, b.srcRow,
                          b.srcCol);
        ASSERT_THAT(fromColumns.cells(), SameBits(expected)) << b;
    }
}

TEST(MDuplicateSPV2T, CellsOutsideTheTriangleAreDropped)
{
    TableColumns dst = triangle(2, {0, 0, 0, 0});
    M_DuplicateSPV2_T(filled(4, 2, 5.0), 4, 2, dst, 0, 1, 1, 1); // rows 0 to 3 of an order of 2
    EXPECT_THAT(dst.cells(), SameBits({5, 5, 5}));
}

TEST(MCopyBlockSPVT, ReadsTheTriangleAsTheFullTable)
{
    RandomData data(2407);
    SCOPED_TRACE(data);
    for (int round = 0; round < 300; ++round) {
        const auto cells = symmetricCells(data);
        const Block b = insideBlock(data, order);
        const int r2 = b.srcRow + b.rows - 1;
        const int c2 = b.srcCol + b.cols - 1;
        TableColumns plain(order, order, data.leftovers(square));
        TableColumns twin(order, order, plain.cells());
        M_CopyBlock(TableColumns(order, order, cells), b.srcRow, r2, b.srcCol, c2, plain);
        M_CopyBlockSPV_T(triangle(order, cells), b.srcRow, r2, b.srcCol, c2, twin);
        ASSERT_THAT(twin.cells(), SameBits(plain.cells())) << b;
    }
}

TEST(MCopyBlockSPVT, NumbersOutsideReadMinusOne)
{
    TableColumns dst(2, 2, {0, 0, 0, 0});
    M_CopyBlockSPV_T(triangle(2, {1, 2, 2, 3}), 0, 1, 1, 2, dst);
    EXPECT_THAT(dst.cells(), SameBits({-1, 1, -1, 2}));
}

TEST(MCopyBlockSPV2T, FoldsTheBlockFromItsOwnCorner)
{
    // Rows 2 to 3 and columns 2 to 3: the cell of row 3 stays for the one off the diagonal.
    TableColumns src(3, 3, {1, 2, 3, 4, 5, 6, 7, 8, 9});
    TableColumns dst = triangle(2, {0, 0, 0, 0});
    M_CopyBlockSPV2_T(src, 2, 3, 2, 3, dst);
    EXPECT_THAT(dst.cells(), SameBits({5, 6, 9}));
}

TEST(MCopyBlockSPV2T, KeepsWhatAnOblongBlockDoesNotReach)
{
    TableColumns src(3, 3, {1, 2, 3, 4, 5, 6, 7, 8, 9});
    TableColumns dst = triangle(3, std::vector<double>(9, -7.0));
    M_CopyBlockSPV2_T(src, 1, 2, 1, 3, dst);
    EXPECT_THAT(dst.cells(), SameBits({1, 2, 7, 5, 8, -7}));
    TableColumns narrow = triangle(2, {0, 0, 0, 0});
    M_CopyBlockSPV2_T(src, 1, 3, 1, 2, narrow); // row 3 is beyond a triangle of order 2
    EXPECT_THAT(narrow.cells(), SameBits({1, 2, 5}));
}

// ---- by rows and columns of the source ------------------------------------------------------------------------------

TEST(MCopyBlock, AllFormsGiveWhatThePlainOneGives)
{
    RandomData data(2408);
    SCOPED_TRACE(data);
    for (int round = 0; round < 300; ++round) {
        const auto cells = data.withSpecials(data.uniforms(square), 0.2);
        const auto before = data.leftovers(square);
        const Block b = insideBlock(data, order);
        const int r2 = b.srcRow + b.rows - 1;
        const int c2 = b.srcCol + b.cols - 1;
        auto plain = table(order, order, before);
        M_CopyBlock(table(order, order, cells), b.srcRow, r2, b.srcCol, c2, plain.reference());

        auto toTable = table(order, order, before);
        M_CopyBlock(TableColumns(order, order, cells), b.srcRow, r2, b.srcCol, c2, toTable.get());
        ASSERT_THAT(cellsOf(toTable), SameBits(cellsOf(plain))) << b;

        TableColumns toColumns(order, order, before);
        M_CopyBlock(table(order, order, cells), b.srcRow, r2, b.srcCol, c2, toColumns.get());
        ASSERT_THAT(toColumns.cells(), SameBits(cellsOf(plain))) << b;

        TableColumns between(order, order, before);
        M_CopyBlock(TableColumns(order, order, cells), b.srcRow, r2, b.srcCol, c2, between);
        ASSERT_THAT(between.cells(), SameBits(cellsOf(plain))) << b;
    }
}

TEST(MCopyBlock, AnEmptyRangeCopiesNothing)
{
    auto dst = filled(2, 2, 7.0);
    TableColumns src(2, 2, {1, 2, 3, 4});
    M_CopyBlock(src, 2, 1, 1, 2, dst.get());
    M_CopyBlock(src, 1, 2, 2, 1, dst.get());
    M_CopyBlock(src, INT_MAX, INT_MIN, 1, 2, dst.get());
    EXPECT_THAT(cellsOf(dst), SameBits({7, 7, 7, 7}));
}

TEST(MCopyBlock, OfStringsKeepsTheTargetAsItIs)
{
    StringColumns src(3, 3, {L"a", L"b", L"c", L"d", L"e", L"f", L"g", L"h", L"i"});
    auto dst = stringTable(3, 2, std::vector<std::wstring>(6, L"-"));
    Smatrix* const before = dst.get();
    M_CopyBlock(src, 2, 4, 2, 3, dst.reference()); // row 4 does not exist
    EXPECT_EQ(dst.get(), before);
    EXPECT_EQ(cellsOf(dst), (std::vector<std::wstring>{L"e", L"f", L"", L"h", L"i", L""}));
}

TEST(MCopyPasteBlock, PutsTheRangeAtItsPlace)
{
    RandomData data(2409);
    SCOPED_TRACE(data);
    for (int round = 0; round < 1000; ++round) {
        const auto cells = data.withSpecials(data.uniforms(square), 0.2);
        const Block b = anyBlock(data, order);
        const int r2 = b.srcRow + b.rows - 1;
        const int c2 = b.srcCol + b.cols - 1;
        const auto src = table(order, order, cells);
        auto dst = table(4, 5, data.leftovers(20));
        const auto expected = table(4, 5, cellsOf(dst));
        copyByTheCell(b, reads(src.get()), writes(expected.get()));
        M_CopyPasteBlock(src, b.srcRow, r2, b.srcCol, c2, dst, b.dstRow, b.dstCol);
        ASSERT_THAT(cellsOf(dst), SameBits(cellsOf(expected))) << b;
    }
}

TEST(MCopyPasteBlock, FromColumnsIsTheSame)
{
    RandomData data(2410);
    SCOPED_TRACE(data);
    for (int round = 0; round < 300; ++round) {
        const auto cells = data.uniforms(square);
        const auto before = data.leftovers(square);
        const Block b = insideBlock(data, order);
        const int r2 = b.srcRow + b.rows - 1;
        const int c2 = b.srcCol + b.cols - 1;
        auto plain = table(order, order, before);
        auto twin = table(order, order, before);
        M_CopyPasteBlock(table(order, order, cells), b.srcRow, r2, b.srcCol, c2, plain, b.dstRow, b.dstCol);
        M_CopyPasteBlockSPV(TableColumns(order, order, cells), b.srcRow, r2, b.srcCol, c2, twin, b.dstRow, b.dstCol);
        ASSERT_THAT(cellsOf(twin), SameBits(cellsOf(plain))) << b;
    }
}

TEST(MCopyPasteBlock, OfStringsFollowsTheSameRules)
{
    const auto src = stringsByRows({{L"a", L"b"}, {L"c", L"d"}});
    auto dst = stringsByRows({{L"1", L"2"}, {L"3", L"4"}});
    M_CopyPasteBlockStr(src, 1, 3, 2, 2, dst, 1, 1); // (3, 2) is empty and runs over to (1, 2)
    EXPECT_EQ(cellsOf(dst), (std::vector<std::wstring>{L"b", L"d", L"", L"4"}));
    M_CopyPasteBlockStr(src, 1, 1, 1, 2, dst, 2, 2); // column 3 of the target does not exist
    EXPECT_EQ(cellsOf(dst), (std::vector<std::wstring>{L"b", L"d", L"", L"a"}));
}

// ---- from the first cell, in linear order ---------------------------------------------------------------------------

TEST(MPasteBlock, PutsTheFirstCellAtTheGivenPlace)
{
    auto dst = filled(3, 3, 0.0);
    M_PasteBlock(byRows({{1, 2}, {3, 4}}), 2, 2, dst, 2, 2);
    EXPECT_THAT(cellsOf(dst), SameBits({0, 0, 0, 0, 1, 3, 0, 2, 4}));
    auto ints = intTable(2, 2, {0, 0, 0, 0});
    M_PasteBlock(intsByRows({{1, 2}, {3, 4}}), 3, 1, ints, 1,
                 2); // (3, 1) of the source is its (1, 2); (3, 2) is dropped
    EXPECT_EQ(cellsOf(ints), (std::vector<int>{0, 0, 1, 3}));
    M_PasteBlock(intsByRows({{1}}), 1, 2, ints, 1, 1); // nothing beyond the source but -1
    EXPECT_EQ(cellsOf(ints), (std::vector<int>{1, 0, -1, 3}));
}

TEST(MCopyToBigger, KeepsTheStrideOfEachTable)
{
    auto dst = filled(3, 3, 7.0);
    M_CopyToBigger(byRows({{1, 2}, {3, M}}), 2, 2, dst);
    EXPECT_THAT(cellsOf(dst), SameBits(cellsOf(byRows({{1, 2, 7}, {3, M, 7}, {7, 7, 7}}))));
}

TEST(VDuplicate, RunsOverColumnEndsOnBothSides)
{
    const auto src = byColumns({{1, 2, 3}, {4, 5, 6}});
    auto dst = filled(2, 3, 0.0);
    V_Duplicate(src, 2, 1, 4, dst, 2, 1);
    EXPECT_THAT(cellsOf(dst), SameBits({0, 2, 3, 4, 5, 0}));
    V_Duplicate(src, 3, 2, 3, dst, 1, 3); // two cells past the source, one past the target
    EXPECT_THAT(cellsOf(dst), SameBits({0, 2, 3, 4, 6, -1}));
    V_Duplicate(src, 1, 1, -1, dst, 1, 1);
    V_Duplicate(src, 0, 1, 2, dst, 1, 1); // before the first cell
    EXPECT_THAT(cellsOf(dst), SameBits({-1, 1, 3, 4, 6, -1}));
}

TEST(VDuplicate, OfIntsWidensOrCopies)
{
    const auto src = intsByColumns({{1, INT_MIN}, {3, 4}});
    auto doubles = filled(3, 2, 0.0);
    V_Duplicate(src, 2, 1, 4, doubles, 3, 1);
    EXPECT_THAT(cellsOf(doubles), SameBits({0, 0, -2147483648.0, 3, 4, -1}));
    auto ints = intTable(3, 2, {0, 0, 0, 0, 0, 0});
    V_Duplicate(src, 2, 1, 4, ints, 3, 1);
    EXPECT_EQ(cellsOf(ints), (std::vector<int>{0, 0, INT_MIN, 3, 4, -1}));
}

TEST(VDuplicate, WithinOneTableReadsWhatItHasWritten)
{
    auto a = column({1, 2, 3, 4});
    V_Duplicate(a, 1, 1, 3, a, 2, 1);
    EXPECT_THAT(cellsOf(a), SameBits({1, 1, 1, 1}));
}

} // namespace
