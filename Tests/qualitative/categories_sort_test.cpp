#include "qualitative/summary_tables.h"

namespace vecmat::test {

namespace {

/// The categories of one column of unit weights, sorted.
Texts sorted(const Texts& texts)
{
    const int n = static_cast<int>(texts.size());
    const SummaryTables summary = summaryOf(stringColumn(texts), n, 1, unitWeights(n), -1);
    return categoriesOf(summary, 1, summary.nCats->vbget(1, 1));
}

TEST(CategorySort, NumbersGoByValueAndTextsByComparison)
{
    EXPECT_EQ(sorted({L"10", L"9"}), (Texts{L"9", L"10"}));
    EXPECT_EQ(sorted({L"10", L"9", L"x"}), (Texts{L"10", L"9", L"x"}));
    EXPECT_EQ(sorted({L"x", L"9", L"10"}), (Texts{L"10", L"9", L"x"}));
    EXPECT_EQ(sorted({L"b", L"a", L"B", L"A"}), (Texts{L"A", L"B", L"a", L"b"}));
}

TEST(CategorySort, AnyOptionButZeroSorts)
{
    for (const short option : std::initializer_list<short>{-1, 1, 2, 0}) {
        const SummaryTables summary = summaryOf(stringColumn({L"b", L"a"}), 2, 1, unitWeights(2), option);
        EXPECT_EQ(cellsOf(summary.categories), option == 0 ? (Texts{L"b", L"a"}) : (Texts{L"a", L"b"})) << option;
    }
}

TEST(CategorySort, WeightsMoveWithTheirCategories)
{
    const SummaryTables summary = summaryOf(stringColumn({L"c", L"a", L"b", L"c"}), 4, 1, column({1, 2, 4, 8}), -1);
    EXPECT_EQ(cellsOf(summary.categories), (Texts{L"a", L"b", L"c", L""}));
    EXPECT_THAT(cellsOf(summary.catWeights), SameBits({2, 4, 9, 0}));
    EXPECT_EQ(cellsOf(summary.modes), Texts{L"c"});
    EXPECT_THAT(cellsOf(summary.modeWeights), SameBits({9}));
}

TEST(CategorySort, EachColumnIsSortedByItsOwnKind)
{
    const auto data = stringsByColumns({{L"10", L"9", L"8"}, {L"10", L"9", L"x"}});
    const SummaryTables summary = summaryOf(data, 3, 2, unitWeights(3), -1);
    EXPECT_EQ(categoriesOf(summary, 1, 3), (Texts{L"8", L"9", L"10"}));
    EXPECT_EQ(categoriesOf(summary, 2, 3), (Texts{L"10", L"9", L"x"}));
}

TEST(CategorySort, ZeroIsANumber)
{
    EXPECT_EQ(sorted({L"10", L"0", L"9"}), (Texts{L"0", L"9", L"10"})) << "0 becomes 01 and keeps the value 0";
    EXPECT_EQ(sorted({L"10", L"0", L"-2"}), (Texts{L"-2", L"0", L"10"}));
    EXPECT_EQ(sorted({L"1", L"0.0", L"-1"}), (Texts{L"-1", L"0.0", L"1"}));
    EXPECT_EQ(sorted({L"10", L"-", L"9"}), (Texts{L"-", L"9", L"10"})) << "- becomes -1: a number, of value 0";
}

TEST(CategorySort, LeadingNumberIsEnough)
{
    EXPECT_EQ(sorted({L"10 apples", L"9 pears", L"100x"}), (Texts{L"9 pears", L"10 apples", L"100x"}));
    EXPECT_EQ(sorted({L"10", L"9", L"0 x"}), (Texts{L"0 x", L"10", L"9"}))
        << "0 x1 is still 0, so the list is one of texts";
}

TEST(CategorySort, ValueThatVanishesInSinglePrecisionIsNotNumeric)
{
    EXPECT_EQ(sorted({L"10", L"9", L"1e-60"}), (Texts{L"10", L"1e-60", L"9"})) << "also as 1e-601";
    EXPECT_EQ(sorted({L"10", L"9", L"1e-30"}), (Texts{L"1e-30", L"9", L"10"}));
}

TEST(CategorySort, NumbersThatAgreeInSinglePrecisionKeepTheirOrder)
{
    EXPECT_EQ(sorted({L"16777217", L"16777216"}), (Texts{L"16777217", L"16777216"}));
    EXPECT_EQ(sorted({L"16777216", L"16777217"}), (Texts{L"16777216", L"16777217"}));
    EXPECT_EQ(sorted({L"16777218", L"16777216"}), (Texts{L"16777216", L"16777218"}));
    EXPECT_EQ(sorted({L"1.0", L"1", L"01"}), (Texts{L"1.0", L"1", L"01"}));
    EXPECT_EQ(sorted({L"1e300", L"1e200"}), (Texts{L"1e300", L"1e200"})) << "both are beyond single precision";
}

TEST(CategorySort, ExchangeCarriesACategoryPastItsEquals)
{
    // 2 changes places with 1 and so ends up after its equal: a stable sort would keep 2 before 2.0.
    EXPECT_EQ(sorted({L"2", L"2.0", L"1"}), (Texts{L"1", L"2.0", L"2"}));
    EXPECT_EQ(sorted({L"2", L"2.0", L"2.00", L"1"}), (Texts{L"1", L"2.0", L"2.00", L"2"}));
}

TEST(CategorySort, PlainComparisonOfWideCharacters)
{
    EXPECT_EQ(sorted({L"\U0001F427", L"é", L"z", L"zz"}), (Texts{L"z", L"zz", L"é", L"\U0001F427"}));
}

TEST(CategorySort, ManyCategories)
{
    // So many that a walk over the list for each text, or for each place of the sort, would not end in time.
    const int n = 200000;
    Texts numbers;
    for (int i = 0; i < 2 * n; ++i)
        numbers.push_back(std::to_wstring(n - i % n));
    const SummaryTables summary = summaryOf(stringColumn(numbers), 2 * n, 1, unitWeights(2 * n), -1);
    ASSERT_EQ(cellsOf(summary.nCats), Ints{n});
    for (int place = 1; place <= n; ++place) {
        ASSERT_EQ(summary.categories->vbget(1, place), std::to_wstring(place));
        ASSERT_EQ(summary.catWeights->vbget(1, place), 2.0);
    }
    EXPECT_EQ(cellsOf(summary.modes), Texts{std::to_wstring(n)});
}

} // namespace

} // namespace vecmat::test
