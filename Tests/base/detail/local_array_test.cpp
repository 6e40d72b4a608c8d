#include "base/detail/local_array.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace {

using vecmat::LocalArray;

TEST(LocalArray, HoldsFewAndManyElements)
{
    for (const std::size_t count : {0, 1, 31, 32, 33, 1000}) {
        const LocalArray<int> sevens(count, 7);
        EXPECT_EQ(sevens.size(), count);
        EXPECT_EQ(std::count(sevens.data(), sevens.data() + count, 7), static_cast<std::ptrdiff_t>(count)) << count;
    }
}

TEST(LocalArray, KeepsItsElementsWhenMoved)
{
    for (const std::size_t count : {3, 100}) {
        LocalArray<double> first(count, 1.5);
        first[count - 1] = 2.5;
        const LocalArray<double> second(std::move(first));
        EXPECT_EQ(second[0], 1.5) << count;
        EXPECT_EQ(second[count - 1], 2.5) << count;
    }
}

#ifdef __SANITIZE_ADDRESS__
void writeAt(double* first, std::ptrdiff_t place)
{
    double* volatile unknown = first; // to the compiler
    unknown[place] = 1.0;
}

TEST(LocalArrayDeathTest, AStepOutsideIsSeen)
{
    LocalArray<double> array(3);
    EXPECT_DEATH(writeAt(array.data(), 3), "heap-buffer-overflow");
    EXPECT_DEATH(writeAt(array.data(), -1), "heap-buffer-overflow");
}
#endif

} // namespace
