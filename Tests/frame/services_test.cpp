// Conversions of arrays, names that do nothing, memory status, the debug print, column labels.
#include "frame/services.h"
#include "support/bits.h"
#include "support/guarded.h"

#include <sys/resource.h>

#include <fstream>
#include <limits>
#include <memory>
#include <string>
#include <vector>

namespace vecmat::test {
namespace {

using testing::ElementsAre;

constexpr int lowestInt = std::numeric_limits<int>::min();
constexpr int highestInt = std::numeric_limits<int>::max();
constexpr double megabyte = 1024.0 * 1024.0;

// ---- conversions ----------------------------------------------------------------------------------------------------

TEST(CopyDoubleToLong, TruncatesWithoutAMissingTest)
{
    Guarded<double> src = {2.9, -2.9, M, 3e9, std::numeric_limits<double>::quiet_NaN(), 7.0};
    Guarded<int> dst(6, 9);
    Cpp_V_CopyDoubleToLong(src, 5, dst);
    EXPECT_THAT(dst.values(), ElementsAre(2, -2, lowestInt, lowestInt, lowestInt, 9));
    EXPECT_TRUE(src.untouched());
}

TEST(CopyLongToDouble, Widens)
{
    Guarded<int> src = {lowestInt, highestInt, 0, 5};
    Guarded<double> dst(4, 9.0);
    Cpp_V_CopyLongToDouble(src, 3, dst);
    EXPECT_THAT(dst.values(), SameBits({-2147483648.0, 2147483647.0, 0.0, 9.0}));
    EXPECT_TRUE(src.untouched());
}

TEST(CopyConversions, NothingIsWrittenForNoCells)
{
    Guarded<double> numbers = {1.5};
    Guarded<int> ints = {7};
    for (const int n : {0, -1, lowestInt}) {
        Cpp_V_CopyDoubleToLong(numbers, n, ints);
        Cpp_V_CopyLongToDouble(ints, n, numbers);
    }
    EXPECT_TRUE(numbers.untouched());
    EXPECT_TRUE(ints.untouched());
}

// ---- names that do nothing ------------------------------------------------------------------------------------------

TEST(KeptNames, ReturnTheirConstants)
{
    Cpp_WriteMatrixDbl();
    Cpp_WriteMatrixLng();
    EXPECT_EQ(TestMemory(), 0);
    EXPECT_EQ(Cpp_TestMemory(), -1);
    EXPECT_EQ(TestAllocMatrix(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20), 1);
    EXPECT_EQ(TestAllocMatrix(0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0), 1);
}

TEST(KeptNames, PrepareTestTellsWhetherItsFirstNumberIsPositive)
{
    int value = 0;
    std::vector<void*> pointers = {&value};
    EXPECT_EQ(PrepareTest(0, 5, pointers), 1);
    EXPECT_EQ(PrepareTest(lowestInt, 5, pointers), 1);
    EXPECT_EQ(PrepareTest(1, -5, pointers), 0);
    EXPECT_THAT(pointers, ElementsAre(&value));
}

// ---- memory status --------------------------------------------------------------------------------------------------

/// The resident size of this process in bytes, from another file than the one the library reads.
double residentBytes()
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;)
        if (word == "VmRSS:") {
            double kilobytes = 0;
            status >> kilobytes;
            return kilobytes * 1024.0;
        }
    ADD_FAILURE() << "/proc/self/status has no VmRSS";
    return 0.0;
}

/// The figure that times 1.2 gives these bytes.
int figureFor(double bytes)
{
    return static_cast<int>(bytes / 1.2);
}

TEST(StatusMemory, ComparesTheFigureTimesOnePointTwoWithTheResidentSize)
{
    const double resident = residentBytes();
    ASSERT_GT(resident, 2 * megabyte);
    EXPECT_EQ(GetStatusMemory(figureFor(resident - 1 * megabyte)), 1);
    EXPECT_EQ(Cpp_GetStatusMemory(figureFor(resident - 1 * megabyte)), -1);
    EXPECT_EQ(GetStatusMemory(figureFor(resident + 1 * megabyte)), 0);
    EXPECT_EQ(Cpp_GetStatusMemory(figureFor(resident + 1 * megabyte)), 0);
}

TEST(StatusMemory, IsAboutWhatIsHeldNotAboutWhatIsFree)
{
    const double before = residentBytes();
    const int figure = figureFor(before + 16 * megabyte);
    EXPECT_EQ(GetStatusMemory(figure), 0);
    {
        const std::size_t bytes = 64u << 20;
        const std::unique_ptr<char[]> block(new char[bytes]);
        std::fill_n(block.get(), bytes, char{1});
        volatile char* const touched = block.get(); // the block must really be written
        EXPECT_EQ(touched[bytes - 1], 1);
        EXPECT_EQ(GetStatusMemory(figure), 1) << "less is free now, and the answer has become yes";
    }
    // About 2.4 gigabytes are requested: far more than this program holds, whatever the machine has.
    EXPECT_EQ(GetStatusMemory(2000000000), 0);
}

TEST(StatusMemory, NothingOrLessIsAlwaysHeld)
{
    EXPECT_EQ(GetStatusMemory(0), 1);
    EXPECT_EQ(GetStatusMemory(-5), 1);
    EXPECT_EQ(GetStatusMemory(lowestInt), 1);
    EXPECT_EQ(Cpp_GetStatusMemory(0), -1);
}

TEST(StatusMemory, IsZeroWhereTheSystemDoesNotAnswer)
{
    rlimit limit{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &limit), 0);
    const rlimit noFiles{0, limit.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &noFiles), 0);
    const int answer = GetStatusMemory(0);
    const short boolean = Cpp_GetStatusMemory(0);
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &limit), 0);
    EXPECT_EQ(answer, 0);
    EXPECT_EQ(boolean, 0);
    EXPECT_EQ(GetStatusMemory(0), 1);
}

// ---- debug print ----------------------------------------------------------------------------------------------------

std::string printed(double value, const char* label)
{
    testing::internal::CaptureStdout();
    dprint(value, label);
    return testing::internal::GetCapturedStdout();
}

TEST(DebugPrint, WritesTheLabelAndTheValueIn36Places)
{
    EXPECT_EQ(printed(2.5, "alpha"), "alpha                   2.5000000000000000\n");
    EXPECT_EQ(printed(-0.1, ""), "                  -0.1000000000000000\n");
    EXPECT_EQ(printed(std::numeric_limits<double>::infinity(), "x"), "x" + std::string(34, ' ') + "inf\n");
}

TEST(DebugPrint, MissingValueIsWrittenOut)
{
    const std::string line = printed(M, "m");
    EXPECT_EQ(line.size(), 1u + 1u + 1u + 309u + 1u + 16u + 1u);
    EXPECT_EQ(line.substr(0, 16), "m -1797693134862");
    EXPECT_EQ(line.substr(line.size() - 23), "71776.0000000000000000\n");
}

TEST(DebugPrint, PerCentSignInTheLabelIsInterpreted)
{
    EXPECT_EQ(printed(1.0, "100%%"), "100%                   1.0000000000000000\n");
}

TEST(DebugPrint, LineEndsWithItsBufferOfAThousand)
{
    const std::string label(2000, 'x');
    EXPECT_EQ(printed(1.0, label.c_str()), std::string(999, 'x'));
}

// ---- column labels --------------------------------------------------------------------------------------------------

/// The label for a distance from A.
std::wstring labelAt(int d)
{
    return ChrSp(65 + d);
}

TEST(ColumnLabel, IsOneCharacterUpToZ)
{
    EXPECT_EQ(ChrSp(65), L"A");
    EXPECT_EQ(ChrSp(66), L"B");
    EXPECT_EQ(ChrSp(90), L"Z");
}

TEST(ColumnLabel, BelowAIsTheCharacterWithThatNumber)
{
    EXPECT_EQ(ChrSp(64), L"@");
    EXPECT_EQ(ChrSp(48), L"0");
    EXPECT_EQ(ChrSp(1), std::wstring(1, L'\1'));
    EXPECT_EQ(ChrSp(-5), std::wstring(1, static_cast<wchar_t>(-5)));
    EXPECT_EQ(ChrSp(lowestInt), std::wstring(1, static_cast<wchar_t>(lowestInt)));
}

TEST(ColumnLabel, HasTwoCharactersFromAAToZZ)
{
    EXPECT_EQ(ChrSp(91), L"AA");
    EXPECT_EQ(labelAt(26), L"AA");
    EXPECT_EQ(labelAt(51), L"AZ");
    EXPECT_EQ(labelAt(52), L"BA");
    EXPECT_EQ(labelAt(675), L"YZ");
    for (int d = 26; d < 676; ++d)
        EXPECT_EQ(labelAt(d), std::wstring({static_cast<wchar_t>(64 + d / 26), static_cast<wchar_t>(65 + d % 26)}));
}

TEST(ColumnLabel, OfThreeCharactersHasAZeroDigitInTheMiddle)
{
    EXPECT_EQ(labelAt(676), L"A@A");
    EXPECT_EQ(labelAt(701), L"A@Z");
    EXPECT_EQ(labelAt(702), L"AAA");
    EXPECT_EQ(labelAt(1351), L"AYZ");
    EXPECT_EQ(labelAt(1352), L"B@A");
    EXPECT_EQ(labelAt(17575), L"YYZ");
}

TEST(ColumnLabel, GrowsByAPlaceAtEachPowerOf26)
{
    EXPECT_EQ(labelAt(17576), L"A@@A");
    EXPECT_EQ(labelAt(456975), L"YYYZ");
    EXPECT_EQ(labelAt(456976), L"A@@@A");
    EXPECT_EQ(labelAt(308915776), L"A@@@@@A");
}

TEST(ColumnLabel, IsDefinedUpToTheHighestCode)
{
    EXPECT_EQ(ChrSp(highestInt).size(), 7u);
}

} // namespace
} // namespace vecmat::test
