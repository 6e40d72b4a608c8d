#include "elementary/vertical_merges.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/safearrays.h"
#include "support/strings.h"
#include "support/tables.h"

using namespace vecmat::test;

namespace {

using Texts = std::vector<std::wstring>;

TEST(VMergeVectors, PutsOneAboveTheOther)
{
    Owned<matrix> out;
    VMergeVectors(column({1, M}), 2, column({3, 4}), 3, out.reference());
    EXPECT_EQ(out->nRows, 5);
    EXPECT_EQ(out->nCols, 1);
    EXPECT_THAT(cellsOf(out), SameBits({1, M, 3, 4, -1}));
    auto kept = filled(5, 1, 7.0);
    VMergeVectors(column({1, 2}), 1, column({3, 4}), 2, kept.reference());
    EXPECT_THAT(cellsOf(kept), SameBits({1, 3, 4, 7, 7}));
}

TEST(VMergeVectors, OfStrings)
{
    Owned<Smatrix> out;
    VMergeVectors(stringColumn({L"a", L""}), 2, stringColumn({L"c"}), 2, out.reference());
    EXPECT_EQ(cellsOf(out), (Texts{L"a", L"", L"c", L""}));
    auto larger = stringColumn({L"-", L"-", L"-", L"-"});
    Smatrix* const before = larger.get();
    VMergeVectors(stringColumn({L"a"}), 1, stringColumn({L"b"}), 1, larger.reference());
    EXPECT_NE(larger.get(), before); // a string table is kept only in its exact shape
    EXPECT_EQ(cellsOf(larger), (Texts{L"a", L"b"}));
}

TEST(VMergeVectors2, AppendsFromAPositionCountedFromZero)
{
    auto a = column({1, 2, 9, 9, 9});
    VMergeVectors2(a, 2, column({M, 4}), 2);
    EXPECT_THAT(cellsOf(a), SameBits({1, 2, M, 4, 9}));
    VMergeVectors2(a, 4, column({5, 6}), 3); // what the table cannot hold is dropped
    EXPECT_THAT(cellsOf(a), SameBits({1, 2, M, 4, 5}));
    VMergeVectors2(a, -1, column({7, 8}), 2);
    EXPECT_THAT(cellsOf(a), SameBits({8, 2, M, 4, 5}));
    VMergeVectors2(a, 0, column({7, 8}), 0);
    EXPECT_THAT(cellsOf(a), SameBits({8, 2, M, 4, 5}));

    auto strings = stringColumn({L"a", L"-", L"-"});
    VMergeVectors2(strings, 1, stringColumn({L"b", L"c"}), 3);
    EXPECT_EQ(cellsOf(strings), (Texts{L"a", L"b", L"c"}));

    auto flags = column({-1, 0, 9, 9});
    VMergeVectorsBool2(flags, 2, column({0, -1}), 2);
    EXPECT_THAT(cellsOf(flags), SameBits({-1, 0, 0, -1}));
}

TEST(VMergeVectors2, AVectorAppendedToItselfReadsWhatWasWritten)
{
    auto a = column({1, 2, 3, 4});
    VMergeVectors2(a, 1, a, 3);
    EXPECT_THAT(cellsOf(a), SameBits({1, 1, 1, 1}));
}

TEST(VMergeTables, LeavesZerosBesideTheNarrowerTable)
{
    Owned<matrix> out;
    VMergeTables(byRows({{1, 2}, {3, M}}), 2, 2, column({5}), 1, 1, out);
    EXPECT_EQ(out->nRows, 3);
    EXPECT_EQ(out->nCols, 2);
    EXPECT_THAT(cellsOf(out), SameBits(cellsOf(byRows({{1, 2}, {3, M}, {5, 0}}))));
    Owned<matrix> beyond;
    VMergeTables(column({1}), 1, 1, column({5}), 1, 2, beyond);
    EXPECT_THAT(cellsOf(beyond), SameBits(cellsOf(byRows({{1, 0}, {5, -1}}))));
}

TEST(VMergeTables, ALargerResultKeepsItsStride)
{
    auto out = filled(4, 2, 7.0);
    VMergeTables(column({1}), 1, 1, column({2}), 1, 1, out);
    EXPECT_THAT(cellsOf(out), SameBits({1, 2, 7, 7, 7, 7, 7, 7}));
}

TEST(VMergeTablesSPV, IsThePlainOneFromColumns)
{
    RandomData data(2440);
    SCOPED_TRACE(data);
    for (int round = 0; round < 50; ++round) {
        const int r1 = data.integer(1, 5);
        const int r2 = data.integer(0, 5);
        const int c1 = data.integer(1, 4);
        const int c2 = data.integer(0, 4);
        const auto a = data.withSpecials(data.uniforms(static_cast<std::size_t>(r1 * c1)), 0.3);
        const auto b = data.uniforms(static_cast<std::size_t>(r2 * c2));
        Owned<matrix> plain;
        VMergeTables(table(r1, c1, a), r1, c1, table(r2, c2, b), r2, c2, plain);
        Owned<matrix> twin;
        VMergeTablesSPV(TableColumns(r1, c1, a), r1, c1, table(r2, c2, b), r2, c2, twin);
        ASSERT_THAT(cellsOf(twin), SameBits(cellsOf(plain)));

        const auto size = static_cast<std::size_t>((r1 + r2) * std::max(c1, c2));
        Guarded<double> flatA(a);
        Guarded<double> flatB(b);
        Guarded<double> flat(size, 7.0);
        VB_VMergeTablesDbl(flatA, r1, c1, flatB, r2, c2, flat);
        ASSERT_THAT(flat.values(), SameBits(cellsOf(plain)));
        ArrayOfColumns columns = numberColumns(r1, c1, a);
        Guarded<double> flatTwin(size, 7.0);
        Cpp_VMergeTablesDblSPV(columns, r1, c1, flatB, r2, c2, flatTwin);
        ASSERT_THAT(flatTwin.values(), SameBits(cellsOf(plain)));
    }
}

TEST(VBVMergeVectors, ToANewArrayOrOverTheFirst)
{
    Guarded<double> a{1, M};
    Guarded<double> b{3, 4, 5};
    Guarded<double> out(5, 7.0);
    VB_VMergeVectorsDbl(a, 2, b, 3, out);
    EXPECT_THAT(out.values(), SameBits({1, M, 3, 4, 5}));
    EXPECT_TRUE(a.untouched() && b.untouched());
    VB_VMergeVectorsDbl(nullptr, 0, b, 3, out);
    EXPECT_THAT(out.values(), SameBits({3, 4, 5, 4, 5}));

    Guarded<double> grown{1, M, 9, 9, 9, 9};
    VB_VMergeVectorsDbl2(grown, 2, b, 3);
    EXPECT_THAT(grown.values(), SameBits({1, M, 3, 4, 5, 9}));
    VB_VMergeVectorsDbl2(grown, 2, nullptr, 0);
    EXPECT_THAT(grown.values(), SameBits({1, M, 3, 4, 5, 9}));
    VB_VMergeVectorsDbl2(grown, 0, b, 1);
    EXPECT_THAT(grown.values(), SameBits({3, M, 3, 4, 5, 9}));
}

TEST(VBVMergeVectorsStr, ToANewArrayOrOverTheFirst)
{
    BstrArray a({L"a", L""});
    BstrArray b({L"c"});
    BstrArray out(std::size_t{3});
    VB_VMergeVectorsStr(a, 2, b, 1, out);
    EXPECT_EQ(out.takeTexts(), (Texts{L"a", L"", L"c"}));
    BstrArray none(std::size_t{0});
    VB_VMergeVectorsStr(a, 2, none, 0, out);
    EXPECT_EQ(out.countNew(), 2u);
    EXPECT_EQ(out.takeTexts(), (Texts{L"a", L"", L""}));

    BstrArray grown(std::size_t{4});
    VB_VMergeVectorsStr(a, 2, b, 1, grown);
    VB_VMergeVectorsStr2(a, 1, b, 1); // writes over the second element
    EXPECT_EQ(a.texts(), (Texts{L"a", L"c"}));
    EXPECT_EQ(a.countNew(), 2u);
    EXPECT_EQ(b.countNew(), 0u);
}

TEST(VBVMergeVectorsBool2, EveryEntryComesBackAsMinusOneOrZero)
{
    Guarded<short> a{5, 0, 9, 9, 9};
    Guarded<short> b{1, 0};
    VB_VMergeVectorsBool2(a, 2, b, 2);
    EXPECT_EQ(a.values(), (std::vector<short>{-1, 0, -1, 0, 9}));
    EXPECT_TRUE(b.untouched());
    Guarded<short> alone{5, 0, 9};
    VB_VMergeVectorsBool2(alone, 2, nullptr, 0);
    EXPECT_EQ(alone.values(), (std::vector<short>{-1, 0, 9}));
}

} // namespace
