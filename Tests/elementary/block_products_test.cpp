#include "elementary/block_products.h"

#include "elementary/matrix_products.h"
#include "elementary/product_cases.h"

#include "support/special_values.h"

#include <algorithm>
#include <functional>

using namespace vecmat::test;

namespace {

constexpr int caseCount = 600;

/// A block diagonal table as it is handed over, with the sizes as they will be read.
struct Blocks
{
    std::vector<Owned<matrix>> owned;
    std::vector<matrix*> tables;
    std::vector<int> sizes;
    Owned<matrix> asDoubles;
    Owned<matrixInt> asInts;

    int count() const { return static_cast<int>(tables.size()); }
    int total() const
    {
        int sum = 0;
        for (const int size : sizes)
            sum += std::max(size, 0);
        return sum;
    }
};

Blocks randomBlocks(Cases& c, int count)
{
    std::vector<Owned<matrix>> owned;
    std::vector<matrix*> tables;
    std::vector<int> sizes;
    std::vector<double> doubles;
    for (int k = 0; k < count; ++k) {
        const int size = c.data.chance(0.05) ? -1 : c.data.integer(0, 4);
        auto table = c.operand(size, size);
        for (int i = 1; i <= table->nRows; ++i) // rows and columns that the rule of structure finds
            if (c.data.chance(0.4))
                for (int j = 1; j <= table->nCols; ++j)
                    if (i != j) {
                        table->vbset(i, j, 0.0);
                        if (j <= table->nRows && i <= table->nCols)
                            table->vbset(j, i, -0.0);
                    }
        tables.push_back(table.get());
        owned.push_back(std::move(table));
        sizes.push_back(size);
        doubles.push_back(size < 0 ? -1.9 : size + c.data.uniform(0.0, 0.99));
    }
    return {std::move(owned), std::move(tables), sizes, column(doubles), intColumn(sizes)};
}

/// The rule for one cell of p q, as in the product of three tables.
double cellByStructure(matrix* p, int rows, int pRow, int pCol, int inner, matrix* q, int qRow, int qCol, int cols,
                       int i, int j)
{
    const auto left = [=](int r, int s) { return p->vbget(pRow + r, pCol + s); };
    const auto right = [=](int r, int s) { return q->vbget(qRow + r, qCol + s); };
    bool rowZero = true, columnZero = true, rowDiagonal = rows == inner, columnDiagonal = inner == cols;
    for (int k = 1; k <= inner; ++k) {
        rowZero = rowZero && left(i, k) == 0.0;
        columnZero = columnZero && right(k, j) == 0.0;
    }
    for (int k = 1; k <= inner; ++k) {
        rowDiagonal = rowDiagonal && (k == i || (left(i, k) == 0.0 && left(k, i) == 0.0));
        columnDiagonal = columnDiagonal && (k == j || (right(k, j) == 0.0 && right(j, k) == 0.0));
    }
    if (rowZero || columnZero)
        return 0.0;
    if (rowDiagonal)
        return left(i, i) * right(i, j);
    if (columnDiagonal)
        return left(i, j) * right(j, j);
    return sumOf(inner, [&](int k) { return left(i, k) * right(k, j); });
}

template <class Body>
void forBlocks(const Blocks& blocks, Body body)
{
    int offset = 0;
    for (int k = 0; k < blocks.count(); ++k) {
        body(blocks.tables[k], blocks.sizes[k], offset);
        offset += blocks.sizes[k];
    }
}

TEST(BlockProductBckA, FollowsTheRuleOfStructureByBlock)
{
    forCases(caseCount, [](Cases& c) {
        auto blocks = randomBlocks(c, c.data.integer(2, 4));
        const int cols = c.count();
        const auto a = c.operand(blocks.total(), cols);
        auto out = c.existing(blocks.total(), cols), expected = copyOf(out), withInts = copyOf(out);
        M_BlockProductBckA(blocks.tables.data(), blocks.count(), blocks.asDoubles.get(), a.get(), cols, out.get());
        M_BlockProductBckA(blocks.tables.data(), blocks.count(), blocks.asInts.get(), a.get(), cols, withInts.get());
        forBlocks(blocks, [&](matrix* one, int size, int offset) {
            for (int i = 1; i <= size; ++i)
                for (int j = 1; j <= cols; ++j)
                    expected->vbset(offset + i, j,
                                    cellByStructure(one, size, 0, 0, size, a.get(), offset, 0, cols, i, j));
        });
        expectSame(out, expected);
        expectSame(withInts, expected);
    });
}

TEST(BlockProductABck, FollowsTheRuleOfStructureByBlock)
{
    forCases(caseCount, [](Cases& c) {
        auto blocks = randomBlocks(c, c.data.integer(2, 4));
        const int rows = c.count();
        auto a = c.operand(rows, blocks.total());
        for (unsigned k = 0; k < a->nElems; ++k)
            if (c.data.chance(0.4))
                a->X[k] = 0.0;
        auto out = c.existing(rows, blocks.total()), expected = copyOf(out), withInts = copyOf(out);
        M_BlockProductABck(a.get(), rows, blocks.tables.data(), blocks.count(), blocks.asDoubles.get(), out.get());
        M_BlockProductABck(a.get(), rows, blocks.tables.data(), blocks.count(), blocks.asInts.get(), withInts.get());
        forBlocks(blocks, [&](matrix* one, int size, int offset) {
            for (int i = 1; i <= rows; ++i)
                for (int j = 1; j <= size; ++j)
                    expected->vbset(i, offset + j,
                                    cellByStructure(a.get(), rows, 0, offset, size, one, 0, 0, size, i, j));
        });
        expectSame(out, expected);
        expectSame(withInts, expected);
    });
}

TEST(BlockProductATrBck, FollowsThePlainLoopByBlock)
{
    forCases(caseCount, [](Cases& c) {
        auto blocks = randomBlocks(c, c.data.integer(2, 4));
        const int rows = c.count();
        const auto a = c.operand(rows, blocks.total());
        auto out = c.existing(rows, blocks.total()), expected = copyOf(out), withInts = copyOf(out);
        M_BlockProductATrBck(a.get(), rows, blocks.tables.data(), blocks.count(), blocks.asDoubles.get(), out.get());
        M_BlockProductATrBck(a.get(), rows, blocks.tables.data(), blocks.count(), blocks.asInts.get(), withInts.get());
        forBlocks(blocks, [&](matrix* one, int size, int offset) {
            for (int i = 1; i <= rows; ++i)
                for (int j = 1; j <= size; ++j)
                    expected->vbset(i, offset + j,
                                    sumOf(size, [&](int m) { return at(a.get(), i, offset + m) * at(one, j, m); }));
        });
        expectSame(out, expected);
        expectSame(withInts, expected);
    });
}

/// Large enough for tiles, where the result may also be written over the table it comes from.
TEST(BlockProductATrBck, FollowsThePlainLoopByLargeBlocks)
{
    forCases(4, [](Cases& c) {
        constexpr int size = 14, rows = 15;
        const auto first = table(size, size, c.numbers(size * size)),
                   second = table(size, size, c.numbers(size * size));
        matrix* blocks[] = {first.get(), second.get()};
        const auto a = table(rows, 2 * size, c.numbers(2 * rows * size));
        const auto inPlace = copyOf(a), expectedInPlace = copyOf(a), out = filled(rows, 2 * size, 0.0);
        const auto expected = copyOf(out);
        const auto plainly = [&](matrix* from, matrix* to) {
            for (int k = 0; k < 2; ++k)
                for (int i = 1; i <= rows; ++i)
                    for (int j = 1; j <= size; ++j)
                        to->vbset(i, k * size + j,
                                  sumOf(size, [&](int m) { return at(from, i, k * size + m) * at(blocks[k], j, m); }));
        };
        M_BlockProductATrBck(a.get(), rows, blocks, 2, intColumn({size, size}), out.get());
        plainly(a.get(), expected.get());
        expectSame(out, expected);
        M_BlockProductATrBck(inPlace.get(), rows, blocks, 2, intColumn({size, size}), inPlace.get());
        plainly(expectedInPlace.get(), expectedInPlace.get());
        expectSame(inPlace, expectedInPlace);
    });
}

TEST(BlockProductBckVect, FollowsThePlainLoopByBlock)
{
    forCases(caseCount, [](Cases& c) {
        auto blocks = randomBlocks(c, c.data.integer(0, 4));
        const auto v = c.operand(blocks.total(), 1);
        auto out = c.existing(blocks.total(), 1), expected = copyOf(out), withInts = copyOf(out);
        M_BlockProductBckVect(blocks.tables.data(), blocks.count(), blocks.asDoubles.get(), v.get(), out.get());
        M_BlockProductBckVect(blocks.tables.data(), blocks.count(), blocks.asInts.get(), v.get(), withInts.get());
        forBlocks(blocks, [&](matrix* one, int size, int offset) {
            for (int i = 1; i <= size; ++i)
                expected->vbset(offset + i, 1,
                                sumOf(size, [&](int m) { return at(one, i, m) * at(v.get(), offset + m, 1); }));
        });
        expectSame(out, expected);
        expectSame(withInts, expected);
    });
}

TEST(BlockProducts, OneBlockIsThePlainProduct)
{
    forCases(caseCount, [](Cases& c) {
        auto blocks = randomBlocks(c, 1);
        matrix* const one = blocks.tables[0];
        const int size = blocks.sizes[0], other = c.count();
        const auto below = c.operand(size, other), before = c.operand(other, size);

        auto bckA = c.exactResult(std::max(size, 0), std::max(other, 0)), expected = copyOf(bckA);
        M_BlockProductBckA(&blocks.tables[0], 1, blocks.asInts.get(), below.get(), other, bckA.get());
        M_ProductAB(one, size, size, below.get(), other, expected);
        expectSame(bckA, expected);

        auto aBck = c.exactResult(std::max(other, 0), std::max(size, 0)), expectedABck = copyOf(aBck);
        M_BlockProductABck(before.get(), other, &blocks.tables[0], 1, blocks.asDoubles.get(), aBck.get());
        M_ProductAB(before.get(), other, size, one, size, expectedABck);
        expectSame(aBck, expectedABck);

        auto aTrBck = c.exactResult(std::max(other, 0), std::max(size, 0)), expectedTr = copyOf(aTrBck);
        M_BlockProductATrBck(before.get(), other, &blocks.tables[0], 1, blocks.asInts.get(), aTrBck.get());
        M_ProductATrB(before.get(), other, size, one, size, expectedTr);
        expectSame(aTrBck, expectedTr);
    });
}

TEST(BlockProducts, OneBlockSkipsNoCell)
{
    const auto diagonal = byRows({{2, 0}, {0, 3}}), a = byRows({{1, 1}, {infinity, 1}}), ints = byRows({{5}});
    matrix* blocks[] = {diagonal.get(), ints.get()};
    auto plain = filled(2, 2, 7.0), structured = filled(3, 2, 7.0);
    M_BlockProductBckA(blocks, 1, intColumn({2}), a.get(), 2, plain.get());
    EXPECT_THAT(cellsOf(plain), SameBits({notANumber, infinity, 2.0, 3.0}));
    const auto taller = byRows({{1, 1}, {infinity, 1}, {1, 1}});
    M_BlockProductBckA(blocks, 2, intColumn({2, 1}), taller.get(), 2, structured.get());
    EXPECT_THAT(cellsOf(structured), SameBits({2.0, infinity, 5.0, 2.0, 3.0, 5.0}));
}

TEST(BlockProducts, OneBlockClearsTheHeadOfALargerResult)
{
    const auto one = byRows({{2}});
    matrix* blocks[] = {one.get()};
    auto out = filled(2, 2, 7.0);
    M_BlockProductBckA(blocks, 1, intColumn({1}), byRows({{3, 4}}), 2, out.get());
    EXPECT_THAT(cellsOf(out), SameBits({6.0, 0.0, 8.0, 7.0}));
}

TEST(BlockProducts, ResultThatIsTooSmallTakesWhatFits)
{
    const auto one = byRows({{2, 0}, {0, 2}});
    matrix* blocks[] = {one.get()};
    auto out = filled(2, 1, 7.0);
    M_BlockProductBckA(blocks, 1, intColumn({2}), byRows({{3, 4}, {5, 6}}), 2, out.get());
    EXPECT_EQ(out->nCols, 1);
    EXPECT_THAT(cellsOf(out), SameBits({6.0, 10.0}));
}

TEST(BlockProducts, NoBlockDoesNothing)
{
    auto out = filled(2, 2, 7.0);
    const auto a = filled(2, 2, 1.0);
    M_BlockProductBckA(nullptr, 0, intColumn({}), a.get(), 2, out.get());
    M_BlockProductABck(a.get(), 2, nullptr, 0, intColumn({}), out.get());
    M_BlockProductATrBck(a.get(), 2, nullptr, -1, column({}), out.get());
    M_BlockProductBckVect(nullptr, 0, column({}), a.get(), out.get());
    EXPECT_THAT(cellsOf(out), SameBits({7.0, 7.0, 7.0, 7.0}));
}

TEST(BlockProducts, MissingSizeIsMinusOneAndMovesTheOffsetBack)
{
    const auto one = byRows({{2}});
    matrix* blocks[] = {one.get(), one.get(), one.get()};
    auto out = filled(3, 1, 7.0);
    const auto v = column({3, 4, 5});
    M_BlockProductBckVect(blocks, 1, intColumn({}), v.get(), out.get());
    M_BlockProductBckA(blocks, 1, column({}), v.get(), 1, out.get());
    EXPECT_THAT(cellsOf(out), SameBits({7.0, 7.0, 7.0}));
    M_BlockProductBckVect(blocks, 3, intColumn({1, -1, 1}), v.get(), out.get());
    EXPECT_THAT(cellsOf(out), SameBits({6.0, 7.0, 7.0})); // the third block works on the first cell again
}

} // namespace
