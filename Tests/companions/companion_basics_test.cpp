#include "CompanionBasics/CompanionBasics.h"

#include "support/bits.h"
#include "support/random_data.h"
#include "support/strings.h"

#include <climits>
#include <cmath>
#include <limits>

namespace vecmat::test {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

TEST(Sqr, IsTheRootNotTheSquare)
{
    EXPECT_THAT(sqr(9.0), SameBits(3.0));
    EXPECT_THAT(sqr(0.25), SameBits(0.5));
    EXPECT_THAT(sqr(2.0), SameBits(0x1.6a09e667f3bcdp+0));
    EXPECT_THAT(sqr(0.0), SameBits(0.0));
    EXPECT_THAT(sqr(-0.0), SameBits(-0.0));
    EXPECT_THAT(sqr(infinity), SameBits(infinity));
}

TEST(Sqr, IsNanBelowZero)
{
    EXPECT_THAT(sqr(-1e-300), SameBits(nan));
    EXPECT_THAT(sqr(M), SameBits(nan));
    EXPECT_THAT(sqr(nan), SameBits(nan));
}

TEST(FSign, PutsTheSignOfTheSecondOnTheFirst)
{
    EXPECT_THAT(FSign(3.0, 2.0), SameBits(3.0));
    EXPECT_THAT(FSign(-3.0, 2.0), SameBits(3.0));
    EXPECT_THAT(FSign(3.0, -2.0), SameBits(-3.0));
    EXPECT_THAT(FSign(-3.0, -2.0), SameBits(-3.0));
    EXPECT_THAT(FSign(-0.0, 1.0), SameBits(0.0));
    EXPECT_THAT(FSign(0.0, -1.0), SameBits(-0.0));
    EXPECT_THAT(FSign(M, infinity), SameBits(positiveTwin));
    EXPECT_THAT(FSign(1.0, -infinity), SameBits(-1.0));
}

TEST(FSign, TakesAZeroOfEitherSignForPositive)
{
    EXPECT_THAT(FSign(-3.0, 0.0), SameBits(3.0));
    EXPECT_THAT(FSign(-3.0, -0.0), SameBits(3.0));
}

TEST(FSign, TakesNanForNegative)
{
    EXPECT_THAT(FSign(3.0, nan), SameBits(-3.0));
    EXPECT_THAT(FSign(3.0, -nan), SameBits(-3.0));
}

TEST(IsLong, IsMinusOneForWholeNumbersOfAnySize)
{
    for (double whole : {0.0, -0.0, 1.0, -1.0, 2147483647.0, 2147483648.0, -2147483649.0, 1e15, 9007199254740993.0,
                         1e300, M, positiveTwin, std::numeric_limits<double>::max()})
        EXPECT_EQ(IsLong(whole), -1) << shown(whole);
}

TEST(IsLong, IsZeroForFractions)
{
    for (double fraction : {0.5, -0.5, 1e-300, std::nextafter(3.0, 4.0), std::nextafter(3.0, 2.0), 4503599627370495.5,
                            std::numeric_limits<double>::denorm_min()})
        EXPECT_EQ(IsLong(fraction), 0) << shown(fraction);
}

TEST(IsLong, IsZeroForNaNAndInfinity)
{
    EXPECT_EQ(IsLong(infinity), 0);
    EXPECT_EQ(IsLong(-infinity), 0);
    EXPECT_EQ(IsLong(nan), 0);
}

TEST(Log10, IsTheDecimalLogarithm)
{
    EXPECT_THAT(Log10(1000.0), SameBits(3.0));
    EXPECT_THAT(Log10(1.0), SameBits(0.0));
    EXPECT_DOUBLE_EQ(Log10(0.5), -0.30102999566398119521); // log10(2)
    EXPECT_THAT(Log10(0.0), SameBits(-infinity));
    EXPECT_THAT(Log10(-0.0), SameBits(-infinity));
    EXPECT_THAT(Log10(-1.0), SameBits(nan));
}

TEST(Mod, IsTheRemainderWithTheSignOfTheFirst)
{
    EXPECT_EQ(Mod(0, 2), 0);
    EXPECT_EQ(Mod(7, 2), 1);
    EXPECT_EQ(Mod(8, 2), 0);
    EXPECT_EQ(Mod(-7, 2), -1);
    EXPECT_EQ(Mod(7, -2), 1);
    EXPECT_EQ(Mod(2, 7), 2);
}

TEST(Mod, HasAnAnswerWhereDivisionHasNone)
{
    EXPECT_EQ(Mod(7, 0), 7);
    EXPECT_EQ(Mod(INT_MIN, -1), 0);
}

TEST(CountOfText, CountsOccurrences)
{
    EXPECT_EQ(cChrCount(L"a,b,,c,", L","), 4);
    EXPECT_EQ(cChrCount(L"abc", L","), 0);
    EXPECT_EQ(cChrCount(L"", L","), 0);
    EXPECT_EQ(cChrCount(L"ab", L"abc"), 0);
    EXPECT_EQ(cChrCount(L"abab", L"ab"), 2);
}

TEST(CountOfText, CountsWithoutOverlap)
{
    EXPECT_EQ(cChrCount(L"aaaaa", L"aa"), 2);
    EXPECT_EQ(cChrCount(L"ababa", L"aba"), 1);
}

TEST(CountOfText, FindsNoEmptyPart)
{
    EXPECT_EQ(cChrCount(L"abc", L""), 0);
    EXPECT_EQ(cChrCount(L"", L""), 0);
}

TEST(TextBetween, IsWhatTheFirstDelimitersEnclose)
{
    EXPECT_EQ(cStrBetweenChrAndChr(L"'S'!$A:$B", L"$", L":"), L"A");
    EXPECT_EQ(cStrBetweenChrAndChr(L"x(a)(b)", L"(", L")"), L"a");
    EXPECT_EQ(cStrBetweenChrAndChr(L"a((b))", L"(", L")"), L"(b");
    EXPECT_EQ(cStrBetweenChrAndChr(L":a$b:c", L"$", L":"), L"b") << "a right one before the left one does not count";
    EXPECT_EQ(cStrBetweenChrAndChr(L"begin<<text>>end", L"<<", L">>"), L"text");
    EXPECT_EQ(cStrBetweenChrAndChr(L"$:", L"$", L":"), L"");
}

TEST(TextBetween, TakesOneDelimiterForBothSides)
{
    EXPECT_EQ(cStrBetweenChrAndChr(L"'Sheet'!$A", L"'", L"'"), L"Sheet");
    EXPECT_EQ(cStrBetweenChrAndChr(L"''", L"'", L"'"), L"");
    EXPECT_EQ(cStrBetweenChrAndChr(L"it's", L"'", L"'"), L"s");
}

TEST(TextBetween, IsEmptyWithoutTheLeftAndTheRestWithoutTheRight)
{
    EXPECT_EQ(cStrBetweenChrAndChr(L"A:B", L"$", L":"), L"");
    EXPECT_EQ(cStrBetweenChrAndChr(L"$A,B", L"$", L":"), L"A,B");
    EXPECT_EQ(cStrBetweenChrAndChr(L"$", L"$", L":"), L"");
    EXPECT_EQ(cStrBetweenChrAndChr(L"", L"$", L":"), L"");
}

TEST(TextBetween, FindsEmptyDelimitersAtOnce)
{
    EXPECT_EQ(cStrBetweenChrAndChr(L"A:B", L"", L":"), L"A");
    EXPECT_EQ(cStrBetweenChrAndChr(L"$A", L"$", L""), L"");
    EXPECT_EQ(cStrBetweenChrAndChr(L"", L"", L""), L"");
}

TEST(TextOfBstr, IsInWideCharacters)
{
    EXPECT_EQ(convToWstring(CallersText(L"'S'!$A:$B")), L"'S'!$A:$B");
    EXPECT_EQ(convToWstring(CallersText(L"\U0001F427é")), L"\U0001F427é");
    EXPECT_EQ(convToWstring(CallersText(L"")), L"");
    EXPECT_EQ(convToWstring(nullptr), L"");
    const char16_t unpaired[] = {0xD83D, u'a', 0xDC27, 0};
    EXPECT_EQ(convToWstring(unpaired), std::wstring({wchar_t(0xD83D), L'a', wchar_t(0xDC27)}));
}

} // namespace
} // namespace vecmat::test
