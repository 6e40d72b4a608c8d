// What the tests rest on must itself be able to fail.
#include "support/bits.h"
#include "support/failing_new.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/safearrays.h"
#include "support/strings.h"
#include "support/tables.h"

#include "CompanionRuntime/CompanionRuntime.h"

#include <gtest/gtest-spi.h>

#include <cmath>
#include <limits>

namespace vecmat::test {
namespace {

using testing::ElementsAre;
using testing::Not;

TEST(SameBits, TellsZerosMissingAndNeighboursApart)
{
    EXPECT_THAT(0.0, Not(SameBits(-0.0)));
    EXPECT_THAT(M, SameBits(-1.79769313486231e308));
    EXPECT_THAT(M, Not(SameBits(std::numeric_limits<double>::lowest())));
    EXPECT_THAT(-M, SameBits(positiveTwin));
    EXPECT_THAT(1.0, Not(SameBits(std::nextafter(1.0, 2.0))));
    EXPECT_THAT(std::nan("1"), SameBits(-std::nan("2")));
    EXPECT_THAT(std::nan(""), Not(SameBits(M)));
}

TEST(SameBits, ComparesSequencesByPlaceAndLength)
{
    const std::vector<double> values = {1.0, M, 0.0};
    EXPECT_THAT(values, SameBits({1.0, M, 0.0}));
    EXPECT_THAT(values, Not(SameBits({1.0, M, -0.0})));
    EXPECT_THAT(values, Not(SameBits({1.0, M})));
    EXPECT_THAT(std::vector<double>(), SameBits({}));
}

TEST(SameBits, ShowsValuesAndBits)
{
    EXPECT_EQ(shown(0.1), "0.10000000000000001 [3fb999999999999a]");
    EXPECT_EQ(shown(M), "M [ffefffffffffffe2]");
    const std::vector<double> actual = {1.0, 2.0};
    EXPECT_NONFATAL_FAILURE(EXPECT_THAT(actual, SameBits({1.0, 3.0})),
                            "at 1 is 2 [4000000000000000] in place of 3 [4008000000000000]");
}

TEST(RandomData, RepeatsAndTellsItsSeed)
{
    EXPECT_THAT(RandomData(5).normals(20), SameBits(RandomData(5).normals(20)));
    EXPECT_THAT(RandomData(5).normals(20), Not(SameBits(RandomData(6).normals(20))));
    std::ostringstream text;
    text << RandomData(5);
    EXPECT_EQ(text.str(), "random data from seed 5");
}

TEST(RandomData, KeepsItsRanges)
{
    RandomData data(1);
    SCOPED_TRACE(data);
    EXPECT_THAT(data.uniforms(500, 2.0, 3.0), testing::Each(testing::AllOf(testing::Ge(2.0), testing::Lt(3.0))));
    const std::vector<int> dice = data.integers(500, 1, 6);
    EXPECT_THAT(dice, testing::Each(testing::AllOf(testing::Ge(1), testing::Le(6))));
    EXPECT_THAT(dice, testing::IsSupersetOf({1, 2, 3, 4, 5, 6}));
    const auto missing = data.withMissing(std::vector<double>(1000, 1.0), 0.3);
    EXPECT_NEAR(static_cast<double>(std::count(missing.begin(), missing.end(), M)), 300.0, 75.0);
    EXPECT_THAT(data.withSpecials(std::vector<double>(1000, 5.0), 0.5),
                testing::IsSupersetOf({M, positiveTwin, -1.0, 5.0}));
}

// Spoils one byte at a distance from the start of an array of two doubles, and ends its life.
void writeAt(std::ptrdiff_t distance)
{
    Guarded<double> cells = {1.0, 2.0};
    unsigned char* const byte = reinterpret_cast<unsigned char*>(cells.data()) + distance;
#if defined(__SANITIZE_ADDRESS__)
    __asan_unpoison_memory_region(byte, 1);
#endif
    *byte = 0;
}

TEST(Guarded, ReportsAWriteOutside)
{
    EXPECT_NONFATAL_FAILURE(writeAt(16), "past the end");
    EXPECT_NONFATAL_FAILURE(writeAt(271), "past the end");
    EXPECT_NONFATAL_FAILURE(writeAt(-1), "before the start");
    EXPECT_NONFATAL_FAILURE(writeAt(-256), "before the start");
    writeAt(15);
}

TEST(Guarded, HoldsTheCellsAndSeesChanges)
{
    Guarded<double> cells = {1.0, M};
    EXPECT_THAT(cells.values(), SameBits({1.0, M}));
    EXPECT_TRUE(cells.untouched());
    cells.data()[0] = 2.0;
    EXPECT_FALSE(cells.untouched());
    const Guarded<double> none(std::vector<double>{});
    EXPECT_EQ(none.size(), 0u);
    EXPECT_TRUE(none.untouched());
}

TEST(Tables, AreColumnMajor)
{
    EXPECT_THAT(cellsOf(byRows({{1, 2, 3}, {4, 5, 6}})), SameBits({1, 4, 2, 5, 3, 6}));
    EXPECT_THAT(cellsOf(byColumns({{1, 4}, {2, 5}, {3, 6}})), SameBits({1, 4, 2, 5, 3, 6}));
    EXPECT_THAT(cellsOf(intsByRows({{1, 2}, {3, 4}})), ElementsAre(1, 3, 2, 4));
    EXPECT_THAT(cellsOf(stringsByRows({{L"a", L"b"}, {L"c", L"d"}})), ElementsAre(L"a", L"c", L"b", L"d"));
    EXPECT_THAT(cornerOf(byRows({{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}), 2, 2), SameBits({1, 4, 2, 5}));
    const auto empty = byRows({});
    EXPECT_EQ(empty->nElems, 0u);
    EXPECT_THROW(byRows({{1, 2}, {3}}), std::invalid_argument);
    EXPECT_THROW(table(2, 2, {1, 2, 3}), std::invalid_argument);
}

TEST(Tables, AreOwnedAcrossAReplacement)
{
    Owned<matrix> made;
    matrix::matCheck(made, 2, 1, 7.0);
    EXPECT_THAT(cellsOf(made), SameBits({7, 7}));
    matrix::matCheck(made, 3, 1, 8.0);
    EXPECT_THAT(cellsOf(made), SameBits({8, 8, 8}));
    auto strings = stringColumn({L"a"});
    Smatrix::matCheck(strings, 2, 2); // leaves the old table to its owner
    EXPECT_EQ(strings->nElems, 4u);
}

TEST(Columns, HoldFullAndTriangularTables)
{
    TableColumns full(2, 3, {1, 2, 3, 4, 5, 6});
    matrix** const tables = full;
    EXPECT_EQ(tables[1]->nRows, 2);
    EXPECT_THAT(full.column(1), SameBits({3, 4}));
    EXPECT_THAT(full.cells(), SameBits({1, 2, 3, 4, 5, 6}));
    matrix::matCheck(tables[0], 4, 1, 9.0);
    EXPECT_THAT(full.column(0), SameBits({9, 9, 9, 9}));

    const TableColumns lower = triangle(3, {11, 21, 31, 12, 22, 32, 13, 23, 33});
    EXPECT_EQ(lower.count(), 3);
    EXPECT_THAT(lower.column(0), SameBits({11, 21, 31}));
    EXPECT_THAT(lower.column(1), SameBits({22, 32}));
    EXPECT_THAT(lower.column(2), SameBits({33}));
}

TEST(BstrArray, SeesAndFreesWhatTheLibraryMade)
{
    BstrArray texts(std::vector<std::wstring>{L"one", L"\U0001F427", L""});
    EXPECT_EQ(texts.countNew(), 0u);
    texts.get()[1] = SysAllocString2(L"\U0001F427 made");
    EXPECT_TRUE(texts.isNew(1));
    EXPECT_EQ(texts.countNew(), 1u);
    EXPECT_THAT(texts.takeTexts(), ElementsAre(L"one", L"\U0001F427 made", L""));
    EXPECT_THAT(texts.texts(), ElementsAre(L"one", L"\U0001F427", L""));
    texts.get()[0] = SysAllocString2(L"freed at the end");
    EXPECT_EQ(takenText(SysAllocString2(L"x")), L"x");
}

TEST(BstrArray, IsReadByTheLibrary)
{
    BstrArray texts(std::vector<std::wstring>{L"a", L"", L"\U0001F427"});
    texts.setNull(0);
    const Owned<Smatrix> read(new Smatrix(3, 1, texts, 0, 0));
    EXPECT_THAT(cellsOf(read), ElementsAre(L"", L"", L"\U0001F427"));
}

TEST(ArrayOfColumns, IsReadAndWrittenByTheLibrary)
{
    ArrayOfColumns full = numberColumns(2, 2, {1, 2, 3, 4});
    matrix** const tables = LoadSAFEARRAY(full, 2, 2, 1);
    EXPECT_THAT(cellsOf(tables[1]), SameBits({3, 4}));
    EXPECT_TRUE(full.untouched());
    tables[0]->vbset(2, 1, M);
    DeleteSAFEARRAY(tables, 2);
    EXPECT_THAT(full.numbers(), SameBits({1, M, 3, 4}));
    EXPECT_FALSE(full.untouched());

    ArrayOfColumns lower = numberTriangle(2, {1, 2, 2, 3});
    EXPECT_THAT(lower.numbers(), SameBits({1, 2, 3}));

    ArrayOfColumns labels = stringColumns(2, 1, {L"a", L"b"});
    Smatrix** const strings = LoadSAFEARRAYStr(labels, 1, 2, 1);
    strings[0]->vbset(1, 1, L"changed");
    EXPECT_THAT(labels.strings(0), ElementsAre(L"a", L"b"));
    SaveSAFEARRAY(strings, 1, 0, labels);
    DeleteSAFEARRAYStr(strings, 1);
    EXPECT_THAT(labels.strings(0), ElementsAre(L"changed", L"b"));
    EXPECT_EQ(labels.stringArray(0).countNew(), 2u);
}

TEST(FailingAllocation, ReachesTheLibrary)
{
    const int failures = forEachFailingAllocation([] {
        const auto first = filled(100, 3, 1.0);
        const auto second = filled(100, 3, 2.0);
    });
    EXPECT_EQ(failures, 4) << "a table and its block, twice";
}

TEST(FailingAllocation, ReportsWhatIsLeftOver)
{
    static std::vector<double*> kept;
    kept.reserve(100);
    EXPECT_NONFATAL_FAILURE(forEachFailingAllocation([] {
                                kept.push_back(new double(1.0));
                                delete new double(2.0);
                            }),
                            "left over");
    for (double* block : kept)
        delete block;
    kept.clear();
    kept.shrink_to_fit();
}

TEST(FailingAllocation, ReportsAnExceptionThatIsSwallowedOrExchanged)
{
    static const auto swallowing = [] {
        try {
            delete new double(1.0);
        } catch (const std::bad_alloc&) {
        }
    };
    EXPECT_NONFATAL_FAILURE(forEachFailingAllocation(swallowing), "allocation 1 did not pass out");
    EXPECT_EQ(forEachFailingAllocation(swallowing, Failure::mayBeCaught), 1);
    EXPECT_NONFATAL_FAILURE(forEachFailingAllocation(
                                [] {
                                    try {
                                        delete new double(1.0);
                                    } catch (const std::bad_alloc&) {
                                        throw 1;
                                    }
                                },
                                Failure::mayBeCaught),
                            "another exception");
}

TEST(FallbackAtEachFailure, ChecksTheRunWithEveryRefusal)
{
    int sum = 0;
    int checks = 0;
    const auto withBuffers = [&] {
        sum = 0;
        for (int k = 0; k < 2; ++k) {
            void* const buffer = ::operator new(8, std::nothrow);
            sum += buffer != nullptr ? 1 : 10;
            ::operator delete(buffer);
        }
    };
    const int failures = expectFallbackAtEachFailure(withBuffers, [&] {
        ++checks;
        EXPECT_EQ(sum, allocationState().returnedNull ? 11 : 2);
    });
    EXPECT_EQ(failures, 2);
    EXPECT_EQ(checks, 4) << "the first run, two refusals and the run that meets none";
}

TEST(FallbackAtEachFailure, ReportsACallWithoutAFallback)
{
    static const auto ignore = [] {};
    EXPECT_NONFATAL_FAILURE(expectFallbackAtEachFailure([] { delete new double(1.0); }, ignore),
                            "no request was answered with a null");
    static const auto throwing = [] {
        void* const buffer = ::operator new(8, std::nothrow);
        if (buffer == nullptr)
            throw std::bad_alloc();
        ::operator delete(buffer);
    };
    EXPECT_NONFATAL_FAILURE(expectFallbackAtEachFailure(throwing, ignore), "an exception came of a null");
}

TEST(FailingAllocation, LetsABufferBeRefused)
{
    const int failures = forEachFailingAllocation([] { ::operator delete(::operator new(8, std::nothrow)); });
    EXPECT_EQ(failures, 1);
}

} // namespace
} // namespace vecmat::test
