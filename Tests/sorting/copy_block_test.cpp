#include "sorting/copy_block.h"

#include "support/bits.h"
#include "support/tables.h"

#include <gtest/gtest.h>

using namespace vecmat::test;

namespace {

using Texts = std::vector<std::wstring>;

TEST(CopyBlock, goesToTheTopLeftCornerAndLeavesTheRest)
{
    auto source = byRows({{1, 2, 3}, {4, M, 6}, {7, 8, 9}});
    auto target = filled(4, 3, 0.5);
    matrix* const before = target.get();
    EXPECT_EQ(M_CopyBlock(source.get(), 2, 3, 2, 3, target.reference()), 0);
    EXPECT_EQ(target.get(), before);
    EXPECT_THAT(cellsOf(target),
                SameBits(cellsOf(byRows({{M, 6, 0.5}, {8, 9, 0.5}, {0.5, 0.5, 0.5}, {0.5, 0.5, 0.5}}))));
    auto ints = intsByRows({{1, 2}, {3, 4}});
    auto intTarget = intsByRows({{9, 9}, {9, 9}});
    EXPECT_EQ(M_CopyBlock(ints.get(), 2, 2, 1, 2, intTarget.reference()), 0);
    EXPECT_EQ(cellsOf(intTarget), cellsOf(intsByRows({{3, 4}, {9, 9}})));
    auto texts = stringsByRows({{L"a", L"b"}, {L"c", L""}});
    auto textTarget = stringsByRows({{L"x", L"x"}, {L"x", L"x"}});
    EXPECT_EQ(M_CopyBlock(texts.get(), 1, 2, 2, 2, textTarget.reference()), 0);
    EXPECT_EQ(cellsOf(textTarget), (Texts{L"b", L"", L"x", L"x"}));
}

TEST(CopyBlock, anEmptyRangeCopiesNothing)
{
    auto source = byRows({{1, 2}, {3, 4}});
    auto target = filled(2, 2, 0.5);
    M_CopyBlock(source.get(), 2, 1, 1, 2, target.reference());
    M_CopyBlock(source.get(), 1, 2, 2, 1, target.reference());
    EXPECT_THAT(cellsOf(target), SameBits({0.5, 0.5, 0.5, 0.5}));
}

TEST(CopyBlock, aSourceCellOutOfRangeIsStoredAsMinusOne)
{
    auto source = byRows({{1, 2}, {3, 4}});
    auto target = filled(2, 3, 0.5);
    M_CopyBlock(source.get(), 1, 2, 2, 4, target.reference());
    EXPECT_THAT(cellsOf(target), SameBits({2, 4, -1, -1, -1, -1}));
    auto ints = intsByRows({{1, 2}});
    auto intTarget = intsByRows({{9, 9}});
    M_CopyBlock(ints.get(), 1, 1, 2, 3, intTarget.reference());
    EXPECT_EQ(cellsOf(intTarget), (std::vector<int>{2, -1}));
    auto texts = stringColumn({L"a"});
    auto textTarget = stringColumn({L"x", L"x"});
    M_CopyBlock(texts.get(), 0, 1, 1, 1, textTarget.reference());
    EXPECT_EQ(cellsOf(textTarget), (Texts{L"", L"a"}));
}

TEST(CopyBlock, onlyTheLinearPositionOfTheSourceIsChecked)
{
    auto source = byRows({{1, 2}, {3, 4}});
    auto target = filled(3, 1, 0.5);
    M_CopyBlock(source.get(), 1, 3, 1, 1, target.reference());
    EXPECT_THAT(cellsOf(target), SameBits({1, 3, 2}));
}

TEST(CopyBlock, aDestinationCellOutOfRangeIsDropped)
{
    auto source = byRows({{1, 2}, {3, 4}});
    auto target = filled(2, 1, 0.5);
    M_CopyBlock(source.get(), 1, 2, 1, 2, target.reference());
    EXPECT_THAT(cellsOf(target), SameBits({1, 3}));
}

TEST(CopyBlock, rowsThatRunOverAreWrittenRowByRow)
{
    // Row 3 of the target is row 1 of its next column: it is written last.
    auto source = byRows({{1, 2}, {3, 4}, {5, 6}});
    auto target = filled(2, 2, 0.5);
    M_CopyBlock(source.get(), 1, 3, 1, 2, target.reference());
    EXPECT_THAT(cellsOf(target), SameBits({1, 3, 5, 4}));
}

TEST(CopyBlock, withinOneTableTheBlockMovesUp)
{
    auto table = byRows({{1, 2}, {3, 4}, {5, 6}});
    M_CopyBlock(table.get(), 2, 3, 1, 2, table.reference());
    EXPECT_THAT(cellsOf(table), SameBits(cellsOf(byRows({{3, 4}, {5, 6}, {5, 6}}))));
}

} // namespace
