// What the calls of ole_calls.py don't have: arrays of two dimensions, zeros inside of strings, who frees what.
// The system's headers come first, as VecMat.h declares SAFEARRAY where they don't.
#include <windows.h>

#include <oleauto.h>

#include "CompanionRuntime/CompanionRuntime.h"

#include "VecMat.h"

#include <gtest/gtest.h>

#include <string>

namespace {

/// A table as a macro dimensions it: a(1 To rows, 1 To cols).
SAFEARRAY* tableOf(ULONG rows, ULONG cols)
{
    SAFEARRAYBOUND bounds[] = {{rows, 1}, {cols, 1}};
    return SafeArrayCreate(VT_R8, 2, bounds);
}

void put(SAFEARRAY* table, LONG i, LONG j, double number)
{
    LONG place[] = {i, j};
    ASSERT_EQ(SafeArrayPutElement(table, place, &number), S_OK);
}

double get(SAFEARRAY* table, LONG i, LONG j)
{
    LONG place[] = {i, j};
    double number = 0;
    EXPECT_EQ(SafeArrayGetElement(table, place, &number), S_OK);
    return number;
}

double* cells(SAFEARRAY* table)
{
    return static_cast<double*>(table->pvData);
}

std::wstring textOf(BSTR text)
{
    return {text, SysStringLen(text)};
}

TEST(OleArrays, OfTwoDimensionsAreHeldByColumns)
{
    SAFEARRAY* a = tableOf(2, 3);
    SAFEARRAY* turned = tableOf(3, 2);
    for (LONG i = 1; i <= 2; ++i)
        for (LONG j = 1; j <= 3; ++j)
            put(a, i, j, 10.0 * i + j);
    VB_M_Transpose(cells(a), 2, 3, cells(turned));
    for (LONG i = 1; i <= 2; ++i)
        for (LONG j = 1; j <= 3; ++j)
            EXPECT_EQ(get(turned, j, i), 10.0 * i + j) << i << ", " << j;
    EXPECT_EQ(SafeArrayDestroy(a), S_OK);
    EXPECT_EQ(SafeArrayDestroy(turned), S_OK);
}

TEST(OleArrays, GiveTheirCells)
{
    SAFEARRAY* a = tableOf(1, 1);
    void* data = nullptr;
    EXPECT_EQ(MySafeArrayAccessData(a, &data), 1);
    EXPECT_EQ(data, a->pvData);
    EXPECT_EQ(a->cLocks, 0u) << "no lock is taken";
    EXPECT_EQ(ExtractBSTR(&a), a->pvData);
    EXPECT_EQ(SafeArrayDestroy(a), S_OK);
}

TEST(OleStrings, EndForTheLibraryAtTheirFirstZero)
{
    wchar_t* given[] = {SysAllocStringLen(L"ab\0cd", 5), SysAllocStringLen(L"\0x", 2), SysAllocString(L""), nullptr};
    wchar_t* turned[4] = {};
    VB_M_TransposeStr(given, 4, 1, turned);
    EXPECT_EQ(textOf(turned[0]), L"ab");
    EXPECT_EQ(SysStringByteLen(turned[0]), 4u);
    for (int k = 1; k < 4; ++k) {
        ASSERT_NE(turned[k], nullptr) << "an empty string is one, too";
        EXPECT_EQ(SysStringLen(turned[k]), 0u);
    }
    EXPECT_EQ(textOf(given[0]), std::wstring(L"ab\0cd", 5)) << "what is read stays";
    for (int k = 0; k < 4; ++k) {
        SysFreeString(given[k]);
        SysFreeString(turned[k]);
    }
    EXPECT_TRUE(HeapValidate(GetProcessHeap(), 0, nullptr));
}

TEST(OleStrings, KeepCharactersBeyondTheFirst65536)
{
    wchar_t* given[] = {SysAllocString(L"\U0001F427x"), SysAllocString(L"\xD83D")};
    wchar_t* turned[2] = {};
    VB_M_TransposeStr(given, 2, 1, turned);
    EXPECT_EQ(textOf(turned[0]), L"\U0001F427x");
    EXPECT_EQ(textOf(turned[1]), L"\xD83D") << "half of one, too";
    for (int k = 0; k < 2; ++k) {
        SysFreeString(given[k]);
        SysFreeString(turned[k]);
    }
}

TEST(OleStrings, CanBeMadeByAnAllocatorOfTheHosts)
{
    static int made = 0;
    const auto make = [](const char* characters, unsigned int bytes) {
        ++made;
        return SysAllocStringByteLen(characters, bytes);
    };
    ASSERT_EQ(SetBstrAllocator(make, [](wchar_t* text) { SysFreeString(text); }), -1);
    SysFreeString2(SysAllocString2(L"a"));
    EXPECT_EQ(made, 1);
    ASSERT_EQ(SetBstrAllocator(nullptr, nullptr), -1);
}

} // namespace
