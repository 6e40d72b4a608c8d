// Arguments whose results lie nearest to a double or to the middle between two, and what rounding them gives.
#include "base/detail/mathematics/exact_phase.h"
#include "base/detail/mathematics/mathematics.h"
#include "support/bits.h"

#include <gtest/gtest.h>

namespace vecmat::test {
namespace {

using mathematics::Places;

struct HardCase
{
    double x;
    double expected;
};

struct HardPower
{
    double x;
    double y;
    double expected;
};

// The worst of all arguments, and the worst next to 1 (Lefevre, V. and Muller, J.-M. 2001, Worst cases for correct
// rounding of the elementary functions in double precision, Proc. 15th IEEE Symp. Computer Arithmetic, 111-118): up to
// 105 digits behind the last place are alike.
TEST(HardCases, OfExp)
{
    for (const auto& [x, expected] :
         {HardCase{0x1.9e9cbbfd6080bp-31, 0x1.000000033d398p+0}, HardCase{-0x1.ed318efb627eap-27, 0x1.ffffff84b39c5p-1},
          HardCase{0x1.83d4bcdebb3f4p+2, 0x1.ac50b409c8aeep+8}, HardCase{0x1.fffffffffff80p-46, 0x1.0000000000080p+0},
          HardCase{-0x1.0000000000001p-51, 0x1.ffffffffffffcp-1}, HardCase{0x1.fffffffffffffp-53, 0x1.0000000000001p+0},
          HardCase{-0x1.4000000000032p-46, 0x1.fffffffffff60p-1},
          HardCase{0x1.1ffffffffffafp-45, 0x1.0000000000090p+0}})
    {
        EXPECT_THAT(exp(x), SameBitsAs(expected)) << x;
        EXPECT_THAT(mathematics::exactExp(x), SameBitsAs(expected)) << x;
        EXPECT_THAT(mathematics::exactExp(x, Places::many), SameBitsAs(expected)) << x;
    }
}

TEST(HardCases, OfLog)
{
    for (const auto& [x, expected] :
         {HardCase{0x1.ea71d85cee020p-509, -0x1.60296a66b4300p+8},
          HardCase{0x1.9476e304cd7c7p-384, -0x1.09b60caf47b36p+8},
          HardCase{0x1.26e9c4d327960p-232, -0x1.4156584bcd084p+7},
          HardCase{0x1.613955dc802f8p-35, -0x1.7f02f9baf6035p+4},
          HardCase{0x1.62a88613629b6p+678, 0x1.d6479eba7c971p+8}, HardCase{0x1.ac50b409c8aeep+8, 0x1.83d4bcdebb3f4p+2}})
    {
        EXPECT_THAT(log(x), SameBitsAs(expected)) << x;
        EXPECT_THAT(mathematics::exactLog(x), SameBitsAs(expected)) << x;
        EXPECT_THAT(mathematics::exactLog(x, Places::many), SameBitsAs(expected)) << x;
    }
}

// The nearest to a middle of six million random arguments: 21 to 24 digits behind the middle are alike.
TEST(HardCases, OfLog10)
{
    for (const auto& [x, expected] :
         {HardCase{0x1.148e8c1084392p+426, 0x1.008b6ddd14f84p+7},
          HardCase{0x1.e233e5661e729p-386, -0x1.cfb0bb1357a01p+6},
          HardCase{0x1.3da761901ea77p+888, 0x1.0b6889a4e9cdbp+8},
          HardCase{0x1.21b535004cc28p-660, -0x1.8d408d2545be8p+7},
          HardCase{0x1.d8f0ed13ad277p+300, 0x1.6a4d611f78de6p+6},
          // left to the exact phase
          HardCase{0x1.03662942f624bp+0, 0x1.776b59ff6dae4p-8}, HardCase{0x1.096b15a18a325p+0, 0x1.0114633ae3d8fp-6},
          HardCase{0x1.1a7b8142ec0c3p+0, 0x1.5e3860a81eb6bp-5}})
    {
        EXPECT_THAT(log10(x), SameBitsAs(expected)) << x;
        EXPECT_THAT(mathematics::exactLog10(x), SameBitsAs(expected)) << x;
        EXPECT_THAT(mathematics::exactLog10(x, Places::many), SameBitsAs(expected)) << x;
    }
}

// The first found in the same way. The others are next to 1, with y the quotient of a middle and log x: 60 digits and
// more behind the middle are alike.
TEST(HardCases, OfPow)
{
    for (const auto& [x, y, expected] : {HardPower{0x1.d4e6f01334e05p+0, -0x1.8e851eb851eb8p+6, 0x1.018f958e0103dp-87},
                                         HardPower{0x1.f631d3197aa1cp+0, -0x1.6433333333333p+6, 0x1.59e89a153e1bbp-87},
                                         HardPower{0x1.2c1781b3ae80ap+0, 0x1.6170a3d70a3d7p+5, 0x1.17e3cf4e299b1p+10},
                                         HardPower{0x1.ccb9cabefab16p+8, 0x1.4df121b4a9d36p-56, 0x1p+0},
                                         HardPower{0x1.1f1f5bbd15baap+7, 0x1.9c5752476099bp-56, 0x1.0000000000001p+0},
                                         HardPower{0x1.68ae0ab8eacbep-14, -0x1.b58c6ca9114e7p-57, 0x1.0000000000001p+0},
                                         HardPower{0x1.cb51eb48b7a00p+18, 0x1.3999a25820c92p-57, 0x1p+0}})
    {
        EXPECT_THAT(pow(x, y), SameBitsAs(expected)) << x << " " << y;
        EXPECT_THAT(mathematics::exactPow(x, y), SameBitsAs(expected)) << x << " " << y;
        EXPECT_THAT(mathematics::exactPow(x, y, Places::many), SameBitsAs(expected)) << x << " " << y;
    }
}

} // namespace
} // namespace vecmat::test
