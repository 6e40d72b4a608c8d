// Texts of ten million characters, a NUL inside a text, and dimensions whose product leaves 32 bits.
#include "elementary/array_copies.h"
#include "elementary/transposition.h"
#include "matrix.h"
#include "qualitative/modes.h"
#include "randomisation/column_addresses.h"

#include "support/guarded.h"
#include "support/strings.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace vecmat::test {
namespace {

constexpr std::size_t many = 10'000'000;
constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();

TEST(LongTexts, AreReadAndReturnedWhole)
{
    const std::wstring text(many, L'x');
    BstrArray texts({L"y", text, text});
    Guarded<double> weights(3, 1.0);
    EXPECT_TRUE(takenText(VB_V_Mode(texts, 3, 0, weights)) == text);
    BstrArray copies(3);
    VB_V_DuplicateStr(texts, 3, copies);
    EXPECT_TRUE(copies.text(2) == text);
    EXPECT_EQ(copies.text(0), L"y");
}

TEST(LongTexts, AreColumnsLikeOthers)
{
    const CallersText carried(L"A" + std::wstring(many, L'Z'));
    EXPECT_TRUE(takenText(Increase1Col(carried)) == L"B" + std::wstring(many, L'A'));
    const CallersText list(L"'S'!$" + std::wstring(many, L'B') + L":$C,'S'!$A:$A");
    EXPECT_TRUE(takenText(SimplifyRange(list)) == L"'S'!$A:A,'S'!$" + std::wstring(many, L'B') + L":$C");
}

TEST(ANulInsideAText, EndsItForTheLibrary)
{
    const std::wstring text(L"ab\0cd", 5);
    BstrArray texts({text, std::wstring(1, L'\0')});
    ASSERT_EQ(texts.text(0), text);
    BstrArray copies(2);
    VB_V_DuplicateStr(texts, 2, copies);
    EXPECT_EQ(copies.text(0), L"ab");
    EXPECT_EQ(copies.text(1), L"");
    EXPECT_EQ(takenText(Increase1Col(CallersText(std::wstring(L"AZ\0B", 4)))), L"BA");
}

TEST(Dimensions, WhoseProductLeaves32BitsMakeATableOfTheRemainder)
{
    matrix none(65536, 65536, 7.0); // 2 to the power 32
    EXPECT_EQ(none.nElems, 0u);
    EXPECT_EQ(none.vbget(1, 1), -1.0);
    none.vbset(1, 1, 3.0);
    matrix some(65537, 65536, 7.0);
    EXPECT_EQ(some.nElems, 65536u);
    EXPECT_EQ(some.vbget(65536, 1), 7.0);
    EXPECT_EQ(some.vbget(65537, 1), -1.0);
    matrix one(highest, highest, 7.0);
    EXPECT_EQ(one.nElems, 1u);
}

TEST(Dimensions, BelowOneTouchNothing)
{
    Guarded<double> a = {1, 2, 3, 4};
    Guarded<double> out(4, 9.0);
    for (const int rows : {0, -1, lowest})
        for (const int cols : {0, -1, lowest, 2}) {
            VB_M_Transpose(a, rows, cols, out);
            VB_M_Transpose(a, cols, rows, out);
            VB_M_DuplicateDbl(a, rows, cols, out);
        }
    EXPECT_TRUE(a.untouched());
    EXPECT_TRUE(out.untouched());
}

} // namespace
} // namespace vecmat::test
