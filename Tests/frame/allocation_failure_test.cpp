// An allocation that fails passes through an exported call as the exception, whichever allocation it is: nothing is
// left over, nothing is released twice, and what the call was not yet to write is as it was.
#include "CompanionRuntime/CompanionRuntime.h"
#include "decompositions/eigen.h"
#include "descriptive/quantiles.h"
#include "elementary/blocks.h"
#include "elementary/conditional_aggregates.h"
#include "elementary/matrix_products.h"
#include "elementary/transposition.h"
#include "elementary/vector_sums.h"
#include "frame/detail/handles.h"
#include "qualitative/modes.h"
#include "randomisation/column_addresses.h"
#include "sorting/sort.h"
#include "support/bits.h"
#include "support/failing_new.h"
#include "support/guarded.h"
#include "support/safearrays.h"
#include "support/strings.h"
#include "support/tables.h"

#include <cstddef>
#include <new>
#include <vector>

namespace vecmat::test {
namespace {

// Too long for a string's own storage, so that converting it allocates.
const std::wstring longText = L"a text that does not fit into the string itself";
const std::wstring otherText = L"another text that does not fit either";

/// A caller's places for strings, and what the library has stored in them by the end. It allocates nothing, so that the
/// failure under test never strikes here.
template <std::size_t count>
struct StringPlaces
{
    wchar_t* cells[count] = {};
    ~StringPlaces()
    {
        for (wchar_t* text : cells)
            SysFreeString2(text);
    }
};

// ---- constructors ---------------------------------------------------------------------------------------------------

TEST(AllocationFailure, OfATableUnderConstructionReleasesIt)
{
    matrix source(2, 2, 1.0);
    source.InitWeights();
    source.InitWeightcorr();
    source.InitnCol();
    source.Normalize();
    double cells[4] = {1, 2, 3, 4};
    short flags[4] = {-1, 0, 0, -1};
    EXPECT_GT(forEachFailingAllocation([&] { const matrix filledTable(2, 2, 0.0); }), 0);
    EXPECT_GT(forEachFailingAllocation([&] { const matrix copy(2, 2, cells, false); }), 0);
    EXPECT_GT(forEachFailingAllocation([&] { const matrix sized(2, 2, cells, 0, 0); }), 0);
    EXPECT_GT(forEachFailingAllocation([&] { const matrix boolean(2, 2, flags); }), 0);
    EXPECT_GT(forEachFailingAllocation([&] { const matrix taller(3, &source); }), 0);
    EXPECT_GT(forEachFailingAllocation([&] { const matrix same(source); }), 0);
}

TEST(AllocationFailure, OfATableOfIntsUnderConstructionReleasesIt)
{
    int cells[2] = {1, 2};
    matrixInt source(2, 1, cells, false);
    source.weights = new double[2]{1, 1};
    EXPECT_GT(forEachFailingAllocation([&] { const matrixInt filledTable(2, 1, 0); }), 0);
    EXPECT_GT(forEachFailingAllocation([&] { const matrixInt view(2, 1, cells, true); }), 0);
    EXPECT_GT(forEachFailingAllocation([&] { const matrixInt copy(2, 1, cells, false); }), 0);
    EXPECT_GT(forEachFailingAllocation([&] { const matrixInt taller(3, &source); }), 0);
}

TEST(AllocationFailure, OfATableOfStringsUnderConstructionReleasesIt)
{
    BstrArray texts({longText, L"", otherText});
    Smatrix source(3, 1, texts, 0, 0);
    EXPECT_GT(forEachFailingAllocation([&] { const Smatrix loaded(3, 1, texts, 0, 0); }), 0);
    EXPECT_GT(forEachFailingAllocation([&] { const Smatrix copy(source); }), 0);
}

TEST(AllocationFailure, InMatCheckLeavesNothingBehind)
{
    EXPECT_GT(forEachFailingAllocation([] {
                  Owned<matrix> t(new matrix(1, 1, 0.0));
                  matrix::matCheck(t.reference(), 2, 2, 0.0);
              }),
              0);
    EXPECT_GT(forEachFailingAllocation([] {
                  Owned<matrixInt> v(new matrixInt(1, 1, 0));
                  matrixInt::matCheck(v.reference(), 2, 2, 0.0);
              }),
              0);
    EXPECT_GT(forEachFailingAllocation([] {
                  Owned<Smatrix> s(new Smatrix(1, 1));
                  Smatrix::matCheck(s.reference(), 2, 2);
              }),
              0);
}

// ---- stacks and arrays of columns -----------------------------------------------------------------------------------

TEST(AllocationFailure, InLoadingColumnsReleasesThoseMadeBefore)
{
    ArrayOfColumns numbers = numberColumns(2, 3, {1, 2, 3, 4, 5, 6});
    ArrayOfColumns strings = test::stringColumns(2, 2, {longText, otherText, L"", longText});
    EXPECT_GT(forEachFailingAllocation([&] { DeleteSAFEARRAY(LoadSAFEARRAY(numbers, 3, 2, 1), 3); }), 0);
    EXPECT_GT(forEachFailingAllocation([&] { DeleteSAFEARRAYStr(LoadSAFEARRAYStr(strings, 2, 2, 1), 2); }), 0);
}

TEST(AllocationFailure, InLoadingAStackLeavesItToItsOwner)
{
    double numbers[4] = {1, 2, 3, 4};
    BstrArray texts({longText, otherText});
    const int failures = forEachFailingAllocation([&] {
        struct Stack
        {
            matrix* tables[2] = {nullptr, nullptr};
            Smatrix* strings[2] = {nullptr, nullptr};
            ~Stack()
            {
                deletecascade(tables, 2);
                deletecascade(strings, 2);
            }
        } stack;
        loadSuperMat(stack.tables, numbers, 2, 2, 1);
        loadSuperMat(stack.strings, texts.get(), 2, 1, 1);
    });
    EXPECT_GT(failures, 0);
}

// ---- one export of each frame ---------------------------------------------------------------------------------------

TEST(AllocationFailure, PassesThroughCopyInScalarOut)
{
    Guarded<double> x(100, 3.0);
    Guarded<double> w(100, 2.0);
    EXPECT_GT(forEachFailingAllocation([&] { VB_V_Sum(x, 100, nullptr, w); }), 0);
    EXPECT_GT(forEachFailingAllocation([&] { VB_V_SumIf(x, 100, w, 2.0); }), 0);
    // A few numbers need none.
    EXPECT_EQ(forEachFailingAllocation([&] { VB_V_Sum(x, 3, nullptr, w); }), 0);
    EXPECT_EQ(forEachFailingAllocation([&] { VB_V_Quantile(x, 3, 0.5); }), 0);
    EXPECT_TRUE(x.untouched());
    EXPECT_TRUE(w.untouched());
}

TEST(AllocationFailure, PassesThroughViews)
{
    Guarded<double> a = {1, 2, 3, 4};
    Guarded<double> product(4, 9.0);
    EXPECT_EQ(forEachFailingAllocation([&] { VB_M_ProductAB(a, 2, 2, a, 2, product); }), 0); // views need no memory
    EXPECT_TRUE(a.untouched());
    EXPECT_THAT(product.values(), SameBits({7, 10, 15, 22}));
    Guarded<double> table = {3, 1, 2, 30, 10, 20};
    const int failures = forEachFailingAllocation([&] { VB_SortMatrixSeqQP1toP2Dbl(table, 3, 2, 1, 2, 0); });
    EXPECT_GT(failures, 0);
}

TEST(AllocationFailure, PassesThroughCopyInCopyBack)
{
    Guarded<double> data = {3, 1, 2};
    Guarded<double> key = {3, 1, 2};
    Guarded<double> companion = {30, 10, 20};
    // Numbers are sorted in place, arrays that overlap in copies.
    const int failures = forEachFailingAllocation([&] { VB_SortQDbl(data, 3, 1, 1, 3, key, companion, 1, 0, -1); });
    EXPECT_GT(failures, 0);
    Guarded<double> many(100, 3.0);
    Guarded<double> others(100, 3.0);
    const int failuresOfCopies =
        forEachFailingAllocation([&] { VB_SortQDbl(many, 100, 1, 1, 100, many, others, 1, 0, -1); });
    EXPECT_GT(failuresOfCopies, 0);
    Guarded<double> quantiles(13, 9.0);
    EXPECT_GT(forEachFailingAllocation([&] { Cpp_V_Quantiles13(many, 100, quantiles); }), 0);
    EXPECT_TRUE(many.untouched());
}

TEST(AllocationFailure, WritesNothingBackBeforeTheWholeCallHasSucceeded)
{
    // A run that fails at any place leaves all three arrays as they were; the first that ends has sorted all three.
    for (int n = 1;; ++n) {
        Guarded<double> data = {3, 1, 2};
        Guarded<double> key = {3, 1, 2};
        Guarded<double> companion = {30, 10, 20};
        const Ending ending = runWithFailure([&] { VB_SortQDbl(data, 3, 1, 1, 3, key, companion, 1, 0, -1); }, n);
        if (ending == Ending::ranThrough) {
            EXPECT_THAT(data.values(), SameBits({1, 2, 3}));
            EXPECT_THAT(key.values(), SameBits({1, 2, 3}));
            EXPECT_THAT(companion.values(), SameBits({10, 20, 30}));
            if (!allocationState().threw && !allocationState().returnedNull)
                break;
            continue; // a buffer that may be refused
        }
        EXPECT_EQ(ending, Ending::badAlloc);
        EXPECT_TRUE(data.untouched() && key.untouched() && companion.untouched()) << "failure " << n;
    }
}

TEST(AllocationFailure, PassesThroughAFreshResult)
{
    Guarded<int> a(100, 4);
    Guarded<int> out(100, 9);
    const int failures = forEachFailingAllocation([&] { VB_M_TransposeLng(a, 10, 10, out); });
    EXPECT_GT(failures, 0);
    EXPECT_TRUE(a.untouched());
}

TEST(AllocationFailure, IsReleasedWhereTheCalleeMakesTheResultAndCatchesItsOwn)
{
    constexpr int order = 6;
    Guarded<double> a(order * order, 1.0);
    bool passedOut = false;
    bool caught = false;
    const int failures = forEachFailingAllocation(
        [&] {
            double values[order] = {9};
            double vectors[order * order] = {9};
            try {
                caught = VB_M_Eigen(a, values, vectors, order, -1) != 0 || caught;
            } catch (const std::bad_alloc&) {
                passedOut = values[0] == 9 && vectors[0] == 9;
                throw;
            }
        },
        Failure::mayBeCaught);
    EXPECT_GT(failures, 0);
    EXPECT_TRUE(passedOut) << "the copy of the argument is made outside of the callee";
    EXPECT_TRUE(caught);
    EXPECT_TRUE(a.untouched());
}

TEST(AllocationFailure, PassesThroughStrings)
{
    BstrArray a({longText, otherText, L"", longText});
    const int failures = forEachFailingAllocation([&] {
        StringPlaces<4> out;
        VB_M_TransposeStr(a, 2, 2, out.cells);
    });
    EXPECT_GT(failures, 0);
    EXPECT_EQ(a.countNew(), 0u);
}

TEST(AllocationFailure, PassesThroughAStringResult)
{
    BstrArray x({longText, otherText, L"", otherText});
    Guarded<double> w = {1, 1, 9, 1};
    const int failures = forEachFailingAllocation([&] {
        StringPlaces<1> result;
        result.cells[0] = VB_V_Mode(x, 4, 0, w);
    });
    EXPECT_GT(failures, 0);
    EXPECT_EQ(x.countNew(), 0u);
    EXPECT_TRUE(w.untouched());
    EXPECT_EQ(takenText(VB_V_Mode(x, 4, 0, w)), otherText);

    const CallersText list(L"'a sheet with a long name'!$D:$D,'S'!$A:$A,'S'!$B:$B");
    EXPECT_GT(forEachFailingAllocation([&] {
                  StringPlaces<1> result;
                  result.cells[0] = SimplifyRange(list);
              }),
              0);
    const CallersText letters(L"A");
    EXPECT_GT(forEachFailingAllocation([&] {
                  StringPlaces<1> result;
                  result.cells[0] = Increase1Col(letters);
              }),
              0);
}

TEST(AllocationFailure, PassesThroughSuperMatrices)
{
    ArrayOfColumns a = numberColumns(2, 2, {1, 2, 3, 4});
    ArrayOfColumns out = numberColumns(2, 2, {9, 9, 9, 9});
    const int failures = forEachFailingAllocation([&] { VB_M_TransposeSPV(a, 2, 2, out); });
    EXPECT_GT(failures, 0);
    EXPECT_TRUE(a.untouched());
}

TEST(AllocationFailure, PassesThroughSuperMatricesOfStrings)
{
    ArrayOfColumns a = test::stringColumns(2, 2, {longText, otherText, L"", longText});
    const int failures = forEachFailingAllocation([&] {
        StringPlaces<2> places[2];
        SAFEARRAY inner[2] = {};
        SAFEARRAYColumn elements[2] = {};
        for (int j = 0; j < 2; ++j) {
            inner[j].pvData = places[j].cells;
            elements[j].strings = &inner[j];
        }
        SAFEARRAY outer{};
        outer.pvData = elements;
        SAFEARRAY* out = &outer;
        VB_M_DuplicateStrSPV(a, 2, 2, &out);
    });
    EXPECT_GT(failures, 0);
}

} // namespace
} // namespace vecmat::test
