// Rows that repeat another, kept apart from the first of their kind.
#include "qualitative/distinct.h"

#include "support/bits.h"
#include "support/failing_new.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <algorithm>
#include <limits>

namespace vecmat::test {
namespace {

using Doubles = std::vector<double>;
using Rows = std::vector<Doubles>;

const double NaN = std::numeric_limits<double>::quiet_NaN();

Doubles byColumns(const Rows& rows, std::size_t cols)
{
    Doubles cells;
    for (std::size_t j = 0; j < cols; ++j)
        for (const Doubles& row : rows)
            cells.push_back(row.at(j));
    return cells;
}

Rows toRows(const Doubles& cells, std::size_t rows, std::size_t cols)
{
    Rows result(rows);
    for (std::size_t j = 0; j < cols; ++j)
        for (std::size_t i = 0; i < rows; ++i)
            result[i].push_back(cells.at(i + rows * j));
    return result;
}

struct Separated
{
    int kept = -7;
    Rows rows;
};

/// Rows of `keys` keys and an identifier, separated by the function and by its flat form.
Separated separated(const Rows& input, std::size_t keys)
{
    const int nRows = static_cast<int>(input.size());
    const int nCols = static_cast<int>(keys);
    const Doubles cells = byColumns(input, keys + 1);
    const auto data = table(nRows, nCols + 1, cells);
    auto out = filled(nRows, nCols + 3, 99.0);
    Separated result;
    M_Dedupe(data, nRows, nCols, &result.kept, out);
    EXPECT_THAT(cellsOf(data), SameBits(cells)) << "the data is not written";
    result.rows = toRows(cellsOf(out), input.size(), keys + 3);

    Guarded<double> flatData(cells);
    Guarded<double> flat(input.size() * (keys + 3), 99.0);
    int kept = -7;
    VB_M_Dedupe(flatData, nRows, nCols, &kept, flat);
    EXPECT_EQ(kept, result.kept);
    EXPECT_THAT(flat.values(), SameBits(cellsOf(out)));
    EXPECT_TRUE(flatData.untouched());
    return result;
}

void expectRows(const Separated& actual, int kept, const Rows& rows)
{
    EXPECT_EQ(actual.kept, kept);
    ASSERT_EQ(actual.rows.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i)
        EXPECT_THAT(actual.rows[i], SameBits(rows[i])) << "row " << i;
}

TEST(Dedupe, KeptRowsFirstThenTheRepeatedOnes)
{
    expectRows(separated({{1, 2, 10}, {1, 2, 20}, {0, 5, 30}}, 2), 2,
               {{1, 2, 2, 10, 1}, {0, 5, 1, 30, 1}, {1, 2, 0, 20, 0}});
}

TEST(Dedupe, BothPartsByAscendingIdentifier)
{
    expectRows(separated({{1, 50}, {2, 40}, {1, 30}, {3, 20}, {2, 60}, {1, 10}}, 1), 3,
               {{3, 1, 20, 1}, {2, 2, 40, 1}, {1, 3, 50, 1}, {1, 0, 10, 0}, {1, 0, 30, 0}, {2, 0, 60, 0}});
}

TEST(Dedupe, TheFirstOfTheInputIsKeptNotTheLowestIdentifier)
{
    expectRows(separated({{4, 30}, {4, 10}}, 1), 1, {{4, 2, 30, 1}, {4, 0, 10, 0}});
}

TEST(Dedupe, EqualIdentifiersStayInTheOrderOfTheirKeys)
{
    expectRows(separated({{3, 1, 7}, {1, 9, 7}, {3, 0, 7}, {3, 1, 7}, {1, 9, 7}}, 2), 3,
               {{1, 9, 2, 7, 1}, {3, 0, 1, 7, 1}, {3, 1, 2, 7, 1}, {1, 9, 0, 7, 0}, {3, 1, 0, 7, 0}});
}

TEST(Dedupe, AllKeysMustBeEqual)
{
    EXPECT_EQ(separated({{1, 2, 1}, {1, 3, 2}, {2, 2, 3}}, 2).kept, 3);
    EXPECT_EQ(separated({{1, 2, 1}, {1, 2, 1}}, 2).kept, 1) << "the identifier is no key";
}

TEST(Dedupe, OneRowOrNone)
{
    expectRows(separated({{5, 6, 1}}, 2), 1, {{5, 6, 1, 1, 1}});
    expectRows(separated({}, 2), 0, {});
    auto out = filled(1, 5, 99.0);
    int kept = -7;
    M_Dedupe(filled(1, 3, 1.0), -1, 2, &kept, out);
    EXPECT_EQ(kept, 0);
    EXPECT_THAT(cellsOf(out), SameBits(Doubles(5, 99.0)));
}

TEST(Dedupe, NoArraysWhereThereAreNoRows)
{
    int kept = -7;
    VB_M_Dedupe(nullptr, 0, 2, &kept, nullptr);
    EXPECT_EQ(kept, 0);
}

TEST(Dedupe, TheLastRow)
{
    EXPECT_EQ(separated({{1, 1}, {1, 2}, {2, 3}}, 1).kept, 2) << "no repeat";
    EXPECT_EQ(separated({{1, 1}, {2, 2}, {2, 3}}, 1).kept, 2) << "a repeat";
    expectRows(separated({{1, 1}, {1, 2}, {1, 3}}, 1), 1, {{1, 3, 1, 1}, {1, 0, 2, 0}, {1, 0, 3, 0}});
}

TEST(Dedupe, MissingKeysAreEqual)
{
    expectRows(separated({{M, 10}, {1, 20}, {M, 30}}, 1), 2, {{M, 2, 10, 1}, {1, 1, 20, 1}, {M, 0, 30, 0}});
}

TEST(Dedupe, ANaNEqualsNothing)
{
    EXPECT_EQ(separated({{NaN, 1}, {NaN, 2}}, 1).kept, 2);
    EXPECT_EQ(separated({{1, NaN, 1}, {1, NaN, 2}, {2, 0, 3}}, 2).kept, 3);
}

TEST(Dedupe, ZerosOfBothSignsAreEqualAndKeepTheirSigns)
{
    expectRows(separated({{-0.0, 1}, {0.0, 2}, {-0.0, 3}}, 1), 1, {{-0.0, 3, 1, 1}, {0.0, 0, 2, 0}, {-0.0, 0, 3, 0}});
}

TEST(Dedupe, MissingIdentifiersComeFirstOfTheirPart)
{
    expectRows(separated({{1, 5}, {2, M}, {1, M}}, 1), 2, {{2, 1, M, 1}, {1, 2, 5, 1}, {1, 0, M, 0}});
}

TEST(Dedupe, WithoutKeysAllRowsAreEqual)
{
    expectRows(separated({{8}, {7}, {9}}, 0), 1, {{3, 8, 1}, {0, 7, 0}, {0, 9, 0}});
}

TEST(Dedupe, LargerTablesKeepTheRest)
{
    const auto data = tableByRows<matrix>({{1, 10, 5}, {1, 20, 5}, {1, 30, 5}});
    auto out = filled(3, 5, 99.0);
    matrix* const before = out;
    int kept = -7;
    M_Dedupe(data, 2, 1, &kept, out);
    EXPECT_EQ(kept, 1);
    EXPECT_EQ(out.get(), before);
    EXPECT_THAT(cellsOf(out), SameBits({1, 1, 99, 2, 0, 99, 10, 20, 99, 1, 0, 99, 99, 99, 99}));
}

TEST(Dedupe, IsThePlainSeparation)
{
    int allRepeats = 0;
    for (std::uint64_t seed = 1; seed <= 1500; ++seed) {
        RandomData random(seed);
        SCOPED_TRACE(random);
        const auto keys = static_cast<std::size_t>(random.integer(1, 3));
        Rows input;
        for (int i = random.integer(0, 15); i > 0; --i) {
            Doubles row = random.withMissing(random.wholes(keys, 0, 2), 0.2);
            row.push_back(random.chance(0.1) ? M : random.integer(-5, 20));
            input.push_back(row);
        }
        Rows sorted = input;
        std::stable_sort(sorted.begin(), sorted.end(), [keys](const Doubles& left, const Doubles& right) {
            return std::lexicographical_compare(left.begin(), left.begin() + static_cast<std::ptrdiff_t>(keys),
                                                right.begin(), right.begin() + static_cast<std::ptrdiff_t>(keys));
        });
        Rows kept;
        Rows repeated;
        for (const Doubles& row : sorted) {
            const bool repeats =
                !kept.empty() &&
                std::equal(row.begin(), row.begin() + static_cast<std::ptrdiff_t>(keys), kept.back().begin());
            Doubles full(row.begin(), row.begin() + static_cast<std::ptrdiff_t>(keys));
            full.insert(full.end(), {repeats ? 0.0 : 1.0, row.back(), repeats ? 0.0 : 1.0});
            (repeats ? repeated : kept).push_back(full);
            if (repeats)
                kept.back()[keys] += 1.0;
        }
        for (Rows* part : {&kept, &repeated})
            std::stable_sort(part->begin(), part->end(), [keys](const Doubles& left, const Doubles& right) {
                return left[keys + 1] < right[keys + 1];
            });
        const int nKept = static_cast<int>(kept.size());
        allRepeats += static_cast<int>(repeated.size());
        kept.insert(kept.end(), repeated.begin(), repeated.end());
        expectRows(separated(input, keys), nKept, kept);
        if (HasFailure())
            return;
    }
    EXPECT_GT(allRepeats, 3000);
}

TEST(DedupeFailure, PassesOutAndLeavesNothingBehind)
{
    Guarded<double> data = {1, 1, 2, 10, 20, 30};
    Guarded<double> out(12, 99.0);
    int kept = -7;
    EXPECT_GT(forEachFailingAllocation([&] { VB_M_Dedupe(data, 3, 1, &kept, out); }), 0);
    EXPECT_TRUE(data.untouched());
}

} // namespace
} // namespace vecmat::test
