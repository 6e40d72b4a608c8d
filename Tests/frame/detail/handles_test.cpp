// The call frame itself, and the exported calls that show each of its patterns.
#include "decompositions/eigen.h"
#include "descriptive/quantiles.h"
#include "elementary/blocks.h"
#include "elementary/matrix_products.h"
#include "elementary/transposition.h"
#include "elementary/vector_sums.h"
#include "frame/detail/handles.h"
#include "missing/missing_counts.h"
#include "sorting/sort.h"
#include "support/bits.h"
#include "support/failing_new.h"
#include "support/guarded.h"
#include "support/safearrays.h"
#include "support/strings.h"
#include "support/tables.h"

#include <cstdint>
#include <cstring>
#include <utility>
#include <vector>

namespace vecmat::test {
namespace {

using testing::ElementsAre;

// ---- wrapping -------------------------------------------------------------------------------------------------------

TEST(Viewed, IsTheCallersArray)
{
    Guarded<double> numbers = {1, 2, 3, 4};
    Guarded<int> ints = {1, 2};
    {
        const auto t = viewed(numbers, 2, 2);
        EXPECT_EQ(t->nRows, 2);
        EXPECT_EQ(t->nCols, 2);
        EXPECT_EQ(t->ownsX, 0);
        t->vbset(1, 2, M);
        const auto v = viewed(ints, 2, 1);
        v->vbset(2, 1, 9);
    }
    EXPECT_THAT(numbers.values(), SameBits({1, 2, M, 4}));
    EXPECT_THAT(ints.values(), ElementsAre(1, 9));
}

TEST(Copied, IsNeverTheCallersArray)
{
    Guarded<double> numbers = {1, M};
    Guarded<int> ints = {1, 2};
    Guarded<short> flags = {-1, 0, 3};
    BstrArray strings({L"a", L"b"});
    {
        const TableHandle t = copied(numbers, 2, 1);
        const TableHandle sized = copied(numbers, 3, 1, 2, 1);
        const IntTableHandle v = copied(ints, 2, 1);
        const TableHandle b = copied(flags, 3, 1);
        const StringTableHandle s = copied(strings.get(), 2, 1);
        const StringTableHandle grown = copied(strings.get(), 3, 1, 2, 1);
        EXPECT_THAT(cellsOf<matrix>(t), SameBits({1, M}));
        EXPECT_THAT(cellsOf<matrix>(sized), SameBits({1, M, 0}));
        EXPECT_THAT(cellsOf<matrixInt>(v), ElementsAre(1, 2));
        EXPECT_THAT(cellsOf<matrix>(b), SameBits({-1, 0, 3}));
        EXPECT_THAT(cellsOf<Smatrix>(s), ElementsAre(L"a", L"b"));
        EXPECT_THAT(cellsOf<Smatrix>(grown), ElementsAre(L"a", L"b", L""));
        t->vbset(1, 1, 9);
        v->vbset(1, 1, 9);
        b->vbset(1, 1, 9);
        s->vbset(1, 1, L"x");
    }
    EXPECT_TRUE(numbers.untouched());
    EXPECT_TRUE(ints.untouched());
    EXPECT_TRUE(flags.untouched());
    EXPECT_EQ(strings.countNew(), 0u);
    EXPECT_EQ(strings.text(0), L"a");
}

TEST(Fresh, StartsAsZero)
{
    EXPECT_THAT(cellsOf<matrix>(fresh(2, 1)), SameBits({0, 0}));
    EXPECT_THAT(cellsOf<matrixInt>(freshInt(1, 2)), ElementsAre(0, 0));
    EXPECT_THAT(cellsOf<Smatrix>(freshStrings(2, 1)), ElementsAre(L"", L""));
}

TEST(Wrapping, NullArrayIsHandedOnAsNull)
{
    EXPECT_TRUE(viewed(static_cast<double*>(nullptr), 2, 2) == nullptr);
    EXPECT_TRUE(viewed(static_cast<int*>(nullptr), 2, 2) == nullptr);
    EXPECT_TRUE(copied(static_cast<double*>(nullptr), 2, 2) == nullptr);
    EXPECT_TRUE(copied(static_cast<double*>(nullptr), 2, 2, 1, 1) == nullptr);
    EXPECT_TRUE(copied(static_cast<int*>(nullptr), 2, 2) == nullptr);
    EXPECT_TRUE(copied(static_cast<short*>(nullptr), 2, 2) == nullptr);
    EXPECT_TRUE(copied(static_cast<wchar_t**>(nullptr), 2, 2) == nullptr);
    EXPECT_TRUE(vecmat::columns(nullptr, 2, 2) == nullptr);
    EXPECT_TRUE(vecmat::triangleColumns(nullptr, 2) == nullptr);
    EXPECT_TRUE(vecmat::stringColumns(nullptr, 2, 2) == nullptr);
}

// ---- owning ---------------------------------------------------------------------------------------------------------

TEST(Handle, ReleasesWhatItHolds)
{
    Guarded<double> numbers = {1, 2};
    const long before = allocationState().live;
    {
        const TableHandle t = copied(numbers, 2, 1);
        t->InitWeights();
        const auto v = viewed(numbers, 2, 1);
        v->calcDescStat(-1);
        const auto ints = freshInt(2, 1);
        ints->weights = new double[2];
        const TableHandle many = fresh(100, 1, 3.0);
        EXPECT_THAT(many->vbget(100, 1), SameBits(3));
    }
    EXPECT_EQ(allocationState().live, before);
}

TEST(Handle, MovesWithItsTable)
{
    Guarded<double> numbers = {1, M};
    const long before = allocationState().live;
    {
        TableHandle few = copied(numbers, 2, 1);
        const TableHandle movedFew(std::move(few));
        EXPECT_THAT(cellsOf<matrix>(movedFew), SameBits({1, M}));
        TableHandle many = fresh(10, 10, 3.0);
        const TableHandle movedMany(std::move(many));
        EXPECT_THAT(cellsOf<matrix>(movedMany), SameBits(std::vector<double>(100, 3.0)));
        TableHandle replaced = fresh(1, 1);
        matrix::matCheck(replaced.reference(), 3, 1, 7.0);
        const TableHandle movedReplacement(std::move(replaced));
        EXPECT_THAT(cellsOf<matrix>(movedReplacement), SameBits({7, 7, 7}));
        TableHandle none;
        EXPECT_TRUE(TableHandle(std::move(none)) == nullptr);
    }
    EXPECT_EQ(allocationState().live, before);
}

TEST(Handle, TakesMemoryForManyCellsOnly)
{
    Guarded<double> numbers(33, 2.0);
    Guarded<int> ints(33, 2);
    Guarded<short> flags(33, short{-1});
    const auto failuresOf = [](const auto& wrap, int n) {
        return forEachFailingAllocation([&] { const auto handle = wrap(n); });
    };
    const auto expectViewToTakeNone = [&](const auto& wrap) {
        EXPECT_EQ(failuresOf(wrap, 32), 0);
        EXPECT_EQ(failuresOf(wrap, 33), 0);
    };
    const auto expectManyToTakeSome = [&](const auto& wrap) {
        EXPECT_EQ(failuresOf(wrap, 32), 0);
        EXPECT_GT(failuresOf(wrap, 33), 0);
    };
    expectViewToTakeNone([&](int n) { return viewed(numbers, n, 1); });
    expectViewToTakeNone([&](int n) { return viewed(ints, n, 1); });
    expectManyToTakeSome([&](int n) { return copied(numbers, n, 1); });
    expectManyToTakeSome([&](int n) { return copied(flags, n, 1); });
    expectManyToTakeSome([&](int n) { return copied(ints, n, 1); });
    expectManyToTakeSome([&](int n) { return fresh(n, 1); });
    expectManyToTakeSome([&](int n) { return freshInt(n, 1); });
}

TEST(Handle, ReleasesATableThatTheCalleePutInItsPlace)
{
    Guarded<double> callers = {1, 2, 3, 4};
    const long before = allocationState().live;
    {
        auto small = viewed(callers, 2, 2);
        matrix::matCheck(small.reference(), 3, 2, 7.0);
        EXPECT_EQ(small->nRows, 3);
        IntTableHandle ints = freshInt(1, 1);
        matrixInt::matCheck(ints.reference(), 2, 1, 7.0);
        EXPECT_THAT(cellsOf<matrixInt>(ints), ElementsAre(7, 7));
        StringTableHandle strings = freshStrings(1, 1);
        Smatrix::matCheck(strings.reference(), 2, 1); // the old one is not deleted by this
        EXPECT_EQ(strings->nRows, 2);
        StringTableHandle kept = freshStrings(1, 1);
        Smatrix::matCheck(kept.reference(), 1, 1);
    }
    EXPECT_EQ(allocationState().live, before);
    EXPECT_TRUE(callers.untouched()) << "a result that outgrew its view is lost for the caller";
}

TEST(Handle, MayStartEmptyForAResultThatTheCalleeMakes)
{
    Guarded<double> out(4, 9.0);
    const long before = allocationState().live;
    {
        TableHandle result;
        EXPECT_TRUE(result == nullptr);
        matrix::matCheck(result.reference(), 2, 2, 7.0);
        handBack(result, out.data());
        const TableHandle never;
        handBack(never, out.data());
    }
    EXPECT_EQ(allocationState().live, before);
    EXPECT_THAT(out.values(), SameBits({7, 7, 7, 7}));
}

TEST(HandBack, WritesEveryCellInTheCallersType)
{
    Guarded<double> numbers(2, 9.0);
    Guarded<short> flags(2, short{9});
    Guarded<int> ints(2, 9);
    BstrArray strings({L"own", L"own"});
    const TableHandle t = fresh(2, 1, M);
    handBack(t, numbers.data());
    handBack(t, flags.data());
    handBack(IntTableHandle(2, 1, 3), ints.data());
    handBack(freshStrings(2, 1), strings.get());
    handBack(t, static_cast<double*>(nullptr));
    EXPECT_THAT(numbers.values(), SameBits({M, M}));
    EXPECT_THAT(flags.values(), ElementsAre(-1, -1));
    EXPECT_THAT(ints.values(), ElementsAre(3, 3));
    EXPECT_THAT(strings.takeTexts(), ElementsAre(L"", L""));
}

// ---- arrays of arrays -----------------------------------------------------------------------------------------------

TEST(ColumnsHandle, OpensFullTrianglesAndStrings)
{
    ArrayOfColumns full = numberColumns(2, 2, {1, 2, 3, 4});
    ArrayOfColumns falling = numberTriangle(2, {1, 2, 2, 3});
    ArrayOfColumns strings = test::stringColumns(1, 2, {L"a", L"b"});
    const long before = allocationState().live;
    {
        ColumnsHandle<matrix> t = vecmat::columns(full, 2, 2);
        EXPECT_EQ(t[1]->nRows, 2);
        t[1]->vbset(1, 1, 9);
        const ColumnsHandle<matrix> moved(std::move(t));
        EXPECT_TRUE(t == nullptr);
        EXPECT_EQ(moved[0]->ownsX, 0);
        const ColumnsHandle<matrix> low = triangleColumns(falling, 2);
        EXPECT_EQ(low[0]->nRows, 2);
        EXPECT_EQ(low[1]->nRows, 1);
        const ColumnsHandle<Smatrix> s = vecmat::stringColumns(strings, 2, 1);
        EXPECT_EQ(s[1]->vbget(1, 1), L"b");
    }
    EXPECT_EQ(allocationState().live, before);
    EXPECT_THAT(full.numbers(), SameBits({1, 2, 9, 4}));
    EXPECT_TRUE(falling.untouched());
}

// ---- as seen by a caller --------------------------------------------------------------------------------------------

TEST(ExportedCall, CopyInScalarOutLeavesTheArraysWithTheirMissingValues)
{
    Guarded<double> x = {1, M, 4, -0.0};
    Guarded<short> mask = {0, 0, 0, -1};
    Guarded<double> w = {2, 5, M, 1};
    VB_V_Sum(x, 4, mask, w);
    EXPECT_THAT(VB_V_SumSq(x, 1), SameBits(1));
    EXPECT_THAT(VB_V_Quantile(x, 3, 1.0), SameBits(4)) << "a sort has been over a copy";
    EXPECT_TRUE(x.untouched());
    EXPECT_TRUE(mask.untouched());
    EXPECT_TRUE(w.untouched());
}

TEST(ExportedCall, ViewsHaveTheResultInThem)
{
    Guarded<double> a = {1, 3, 2, 4};
    Guarded<double> b = {5, 6};
    Guarded<double> out = {9, 9, 9};
    EXPECT_EQ(VB_M_ProductAB(a, 2, 2, b, 1, out), 0);
    EXPECT_TRUE(a.untouched());
    EXPECT_TRUE(b.untouched());
    EXPECT_THAT(out.values(), SameBits({17, 39, 9}));
}

TEST(ExportedCall, ViewOfAResultBesideCopies)
{
    Guarded<double> source = {1, M, 3, 4};
    Guarded<double> target(6, 9.0);
    VB_M_PasteBlock(source, 2, 2, target, 3, 2, 2, 1);
    EXPECT_TRUE(source.untouched());
    EXPECT_THAT(target.values(), SameBits({9, 1, M, 9, 3, 4}));
    Guarded<double> table = {3, 1, 2, 30, 10, 20};
    EXPECT_EQ(VB_SortMatrixSeqQP1toP2Dbl(table, 3, 2, 1, 1, 0), 0);
    EXPECT_THAT(table.values(), SameBits({1, 2, 3, 10, 20, 30}));
}

TEST(ExportedCall, CopyInCopyBackStartsFromTheCallersContent)
{
    Guarded<double> x = {9, 3, 1, 2, 8};
    EXPECT_EQ(VB_SortQVectorDbl(x, 5, 2, 4, 0), 0);
    EXPECT_THAT(x.values(), SameBits({9, 1, 2, 3, 8}));
    Guarded<double> v = {4, 2, M, 3, 1};
    Guarded<double> quantiles(13, 9.0);
    Cpp_V_Quantiles13(v, 5, quantiles);
    EXPECT_TRUE(v.untouched());
    EXPECT_FALSE(quantiles.untouched());
}

TEST(ExportedCall, FreshResultReplacesTheCallersContent)
{
    Guarded<int> a = {1, 2, 3, 4, 5, 6};
    Guarded<int> out(6, 9);
    VB_M_TransposeLng(a, 3, 2, out);
    EXPECT_TRUE(a.untouched());
    EXPECT_THAT(out.values(), ElementsAre(1, 4, 2, 5, 3, 6));
}

TEST(ExportedCall, ResultMadeByTheCalleeReplacesTheCallersContent)
{
    Guarded<double> a = {3, 0, 0, 5};
    Guarded<double> values(2, 9.0);
    Guarded<double> vectors(4, 9.0);
    EXPECT_EQ(VB_M_Eigen(a, values, vectors, 2, -1), 0);
    EXPECT_TRUE(a.untouched());
    EXPECT_THAT(values.values(), SameBits({5, 3}));
    EXPECT_THAT(std::vector<double>({vectors[0], vectors[3]}), SameBits({0, 0}));
}

TEST(ExportedCall, OneStringIsReadInPlaceUpToA32BitNul)
{
    EXPECT_EQ(VB_IsMissingValueStr(L""), -1);
    EXPECT_EQ(VB_IsMissingValueStr(L"a"), 0);
    // To 16-bit eyes the first character is a NUL; converted as a BSTR, the text would be empty.
    const std::uint16_t wide[] = {0, 1, 0, 0};
    wchar_t text[2];
    std::memcpy(text, wide, sizeof wide);
    EXPECT_EQ(VB_IsMissingValueStr(text), 0);
}

TEST(ExportedCall, StringsComeBackAsNewOnes)
{
    BstrArray a({L"a", L"b", L"", L"d"});
    BstrArray out({L"own", L"own", L"own", L"own"});
    VB_M_TransposeStr(a, 2, 2, out);
    EXPECT_EQ(a.countNew(), 0u);
    EXPECT_THAT(a.texts(), ElementsAre(L"a", L"b", L"", L"d"));
    EXPECT_EQ(out.countNew(), 4u);
    EXPECT_THAT(out.takeTexts(), ElementsAre(L"a", L"", L"b", L"d"));
}

TEST(ExportedCall, SuperMatrixIsWrittenInPlace)
{
    ArrayOfColumns a = numberColumns(2, 3, {1, 2, M, 4, 5, 6});
    ArrayOfColumns out = numberColumns(3, 2, std::vector<double>(6, 9.0));
    VB_M_TransposeSPV(a, 2, 3, out);
    EXPECT_TRUE(a.untouched());
    EXPECT_THAT(out.numbers(0), SameBits({1, M, 5}));
    EXPECT_THAT(out.numbers(1), SameBits({2, 4, 6}));
}

} // namespace
} // namespace vecmat::test
