// Searches and counts that start at the first cell.
#include "elementary/vector_counts.h"

#include "support/tables.h"

#include <gtest/gtest.h>

using namespace vecmat::test;

namespace {

TEST(VFindLng, FindsTheFirstCellAndTheLast)
{
    EXPECT_EQ(V_FindLng(intColumn({4, 5, 6}), 3, 4), -1);
    EXPECT_EQ(V_FindLng(intColumn({4, 5, 6}), 3, 6), -1);
}

} // namespace
