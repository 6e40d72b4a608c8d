// Determinants where memory runs out, or where the companion that finds a parity fails.
#include "decompositions/determinants.h"

#include "support/bits.h"
#include "support/failing_new.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

bool parityFails = false;

} // namespace

/// Takes the place of the companion's.
extern "C" __attribute__((visibility("default"))) int Mod(int a, int b)
{
    if (parityFails)
        throw std::runtime_error("no parity");
    return a % b;
}

namespace vecmat::test {
namespace {

TEST(MDeterminant, EndsAnExceptionWithTheTwinAndAStatus)
{
    const Owned<matrix> a = byRows({{2, 3}, {4, 4}});
    double value = 0.0;
    short status = 0;
    int failures = 0;
    bool alike = true;
    const int tried = forEachFailingAllocation(
        [&] {
            status = 7;
            value = M_Determinant(a, 2, &status, 0);
            if (allocationState().threw) {
                ++failures;
                alike = alike && sameBits(value, positiveTwin) && status == -1;
            }
        },
        Failure::mayBeCaught);
    EXPECT_GT(tried, 0);
    EXPECT_EQ(failures, tried);
    EXPECT_TRUE(alike);
    EXPECT_NEAR(value, -4.0, 1e-14);
    EXPECT_EQ(status, 0);
}

TEST(MLogDeterminant, LetsAnExceptionPass)
{
    const Owned<matrix> a = byRows({{2, 0}, {0, 4}});
    EXPECT_GT(forEachFailingAllocation([&] { M_LogDeterminant(a, 2); }), 0);
}

TEST(MDeterminantTriang, ReportsWhereTheParityCannotBeFound)
{
    const Owned<matrix> a = byRows({{2, 0}, {0, 4}});
    short status = 7;
    parityFails = true;
    EXPECT_THAT(M_DeterminantTriang(a, 2, &status), SameBits(positiveTwin));
    EXPECT_EQ(status, -1);
    // A zero on the diagonal comes before.
    EXPECT_THAT(M_DeterminantTriang(byRows({{0, 0}, {0, 4}}), 2, &status), SameBits(0.0));
    EXPECT_EQ(status, 0);
    // The full determinant does not ask the companion.
    EXPECT_NEAR(M_Determinant(a, 2, &status, 0), 8.0, 1e-14);
    parityFails = false;
    EXPECT_NEAR(M_DeterminantTriang(a, 2, &status), 8.0, 1e-14);
}

} // namespace
} // namespace vecmat::test
