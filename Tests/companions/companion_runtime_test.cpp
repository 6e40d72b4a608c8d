#include "CompanionRuntime/CompanionRuntime.h"

#include "support/bits.h"
#include "support/failing_new.h"
#include "support/strings.h"

#include "VecMat.h"

#include <clocale>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <limits>
#include <locale>

namespace vecmat::test {
namespace {

using testing::ElementsAre;

std::wstring wide(std::initializer_list<std::uint32_t> characters)
{
    return std::wstring(characters.begin(), characters.end());
}

// The 16-bit text as such, for units that no wide string can hold apart.
std::wstring read(std::u16string units)
{
    return CW162W32(units.c_str());
}

TEST(CW162W32, GivesTheTextUpToItsNul)
{
    EXPECT_EQ(read(u"Adélie"), L"Adélie");
    EXPECT_EQ(read(u""), L"");
    EXPECT_EQ(read(std::u16string(u"ab\0cd", 5)), L"ab");
    EXPECT_EQ(read(u"\uFFFF\uE000"), wide({0xFFFF, 0xE000}));
}

TEST(CW162W32, JoinsSurrogatePairs)
{
    EXPECT_EQ(read(u"x\U0001F427y"), wide({'x', 0x1F427, 'y'}));
    EXPECT_EQ(read(u"\U00010000\U0010FFFF"), wide({0x10000, 0x10FFFF}));
}

TEST(CW162W32, KeepsSurrogatesWithoutAPartner)
{
    EXPECT_EQ(read({0xD83D}), wide({0xD83D})) << "high, at the end";
    EXPECT_EQ(read({0xD83D, 'a'}), wide({0xD83D, 'a'})) << "high, before a letter";
    EXPECT_EQ(read({0xDC27, 'a'}), wide({0xDC27, 'a'})) << "low alone";
    EXPECT_EQ(read({0xDC27, 0xD83D}), wide({0xDC27, 0xD83D})) << "the wrong way round";
    EXPECT_EQ(read({0xD83D, 0xD83D, 0xDC27}), wide({0xD83D, 0x1F427})) << "high before a pair";
    EXPECT_EQ(read({0xD83D, 0xDC27, 0xDC27}), wide({0x1F427, 0xDC27})) << "low after a pair";
    EXPECT_EQ(read({0xD800, 0xE000}), wide({0xD800, 0xE000})) << "just above the low ones";
    EXPECT_EQ(read({0xDBFF, 0xDFFF}), wide({0x10FFFF})) << "the last pair";
}

TEST(CW162W32, StaysValidUpToTheNextCall)
{
    const CallersText text(std::wstring(1000, L'x'));
    const wchar_t* const result = CW162W32(text);
    EXPECT_EQ(std::wcslen(result), 1000u);
    EXPECT_STREQ(CW162W32(CallersText(L"short")), L"short");
    EXPECT_STREQ(CW162W32(CallersText(L"")), L"");
}

TEST(CW162W32, TakesNullForTheEmptyText)
{
    EXPECT_STREQ(CW162W32(nullptr), L"");
}

struct Bstr
{
    std::uint32_t length;
    std::vector<std::uint16_t> units; // with the NUL
};

// What lies in memory, byte by byte.
Bstr taken(const std::wstring& text)
{
    wchar_t* const made = SysAllocString2(text.c_str());
    const char* const bytes = reinterpret_cast<const char*>(made);
    Bstr bstr{};
    std::memcpy(&bstr.length, bytes - 4, 4);
    bstr.units.resize(bstr.length / 2 + 1);
    std::memcpy(bstr.units.data(), bytes, bstr.units.size() * 2);
    SysFreeString2(made);
    return bstr;
}

TEST(SysAllocString2, StoresLengthInBytesThen16BitCharactersThenNul)
{
    const Bstr bstr = taken(L"aé€");
    EXPECT_EQ(bstr.length, 6u);
    EXPECT_THAT(bstr.units, ElementsAre('a', 0xE9, 0x20AC, 0));
}

TEST(SysAllocString2, GivesARealStringForAnEmptyText)
{
    const Bstr bstr = taken(L"");
    EXPECT_EQ(bstr.length, 0u);
    EXPECT_THAT(bstr.units, ElementsAre(0));
}

TEST(SysAllocString2, SplitsCharactersAbove16Bits)
{
    const Bstr bstr = taken(wide({0xFFFF, 0x10000, 0x1F427, 0x10FFFF}));
    EXPECT_EQ(bstr.length, 14u) << "surrogates count in the length";
    EXPECT_THAT(bstr.units, ElementsAre(0xFFFF, 0xD800, 0xDC00, 0xD83D, 0xDC27, 0xDBFF, 0xDFFF, 0));
}

TEST(SysAllocString2, ReplacesNumbersThatAreNoCharacter)
{
    EXPECT_THAT(taken(wide({0x110000, 0xFFFFFFFF})).units, ElementsAre(0xFFFD, 0xFFFD, 0));
}

TEST(SysAllocString2, KeepsSurrogatesWithoutAPartner)
{
    EXPECT_THAT(taken(wide({0xDC27, 'a', 0xD83D})).units, ElementsAre(0xDC27, 'a', 0xD83D, 0));
}

TEST(SysAllocString2, MakesAnotherStringEachTime)
{
    wchar_t* const first = SysAllocString2(L"same");
    wchar_t* const second = SysAllocString2(L"same");
    EXPECT_NE(first, second);
    EXPECT_EQ(takenText(first), L"same");
    EXPECT_EQ(takenText(second), L"same");
}

TEST(SysAllocString2, GivesNullForNull)
{
    EXPECT_EQ(SysAllocString2(nullptr), nullptr);
    SysFreeString2(nullptr);
}

TEST(SysAllocString2, PassesAFailedAllocationOnAndLeavesNothing)
{
    const std::wstring text(200, L'x');
    const int failures = forEachFailingAllocation([&] { SysFreeString2(SysAllocString2(text.c_str())); });
    EXPECT_GT(failures, 0);
}

TEST(SysAllocString2, IsReadBackByCW162W32)
{
    const std::wstring text = wide({'a', 0x1F427, 0xD83D, 'b', 0xFFFF});
    wchar_t* const bstr = SysAllocString2(text.c_str());
    EXPECT_EQ(CW162W32(bstr), text);
    SysFreeString2(bstr);
}

// A host that keeps its strings in blocks of its own: the length follows a mark that only it knows.
struct Host
{
    static constexpr std::size_t mark = 12;
    static inline int made = 0, freed = 0;
    static inline bool hasMemory = true;

    static wchar_t* allocate(const char* characters, unsigned int bytes)
    {
        EXPECT_EQ(characters, nullptr) << "the companion writes the characters itself";
        if (!hasMemory)
            return nullptr;
        ++made;
        char* const block = static_cast<char*>(std::calloc(mark + 4 + bytes + 2, 1));
        std::memcpy(block, "a host's own", mark);
        std::memcpy(block + mark, &bytes, 4);
        return reinterpret_cast<wchar_t*>(block + mark + 4);
    }
    static void release(wchar_t* bstr)
    {
        char* const block = reinterpret_cast<char*>(bstr) - 4 - mark;
        EXPECT_EQ(std::memcmp(block, "a host's own", mark), 0) << "a string that the host has not made";
        ++freed;
        std::free(block);
    }

    Host()
    {
        made = freed = 0;
        hasMemory = true;
        EXPECT_EQ(SetBstrAllocator(allocate, release), -1);
    }
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;
    ~Host() { EXPECT_EQ(SetBstrAllocator(nullptr, nullptr), -1); }
};

TEST(SetBstrAllocator, LetsTheHostMakeAndFreeEveryString)
{
    const Host host;
    EXPECT_EQ(taken(L"").length, 0u);
    EXPECT_THAT(taken(wide({'a', 0x1F427})).units, ElementsAre('a', 0xD83D, 0xDC27, 0));
    EXPECT_EQ(Host::made, 2);
    EXPECT_EQ(Host::freed, 2);
    SysFreeString2(nullptr);
    EXPECT_EQ(SysAllocString2(nullptr), nullptr);
    EXPECT_EQ(Host::made + Host::freed, 4) << "null is no string";
}

TEST(SetBstrAllocator, ServesEveryFunctionOfTheLibraryThatMakesStrings)
{
    const Host host;
    BstrArray labels({L"b", L"", L"é"}), turned(3);
    VB_M_TransposeStr(labels, 3, 1, turned);
    EXPECT_EQ(Host::made, 3);
    EXPECT_THAT(turned.takeTexts(), ElementsAre(L"b", L"", L"é"));
    EXPECT_EQ(Host::freed, 3);
}

TEST(SetBstrAllocator, TurnsTheHostsLackOfMemoryIntoAnException)
{
    const Host host;
    Host::hasMemory = false;
    EXPECT_THROW(SysAllocString2(L"a"), std::bad_alloc);
    EXPECT_EQ(SysAllocString2(nullptr), nullptr);
}

TEST(SetBstrAllocator, BringsThePlatformsOwnBack)
{
    {
        const Host host;
    }
    EXPECT_EQ(taken(L"a").length, 2u);
    EXPECT_EQ(Host::made, 0);
}

TEST(SetBstrAllocator, RefusesOneWithoutTheOther)
{
    const Host host;
    EXPECT_EQ(SetBstrAllocator(Host::allocate, nullptr), 0);
    EXPECT_EQ(SetBstrAllocator(nullptr, Host::release), 0);
    taken(L"a");
    EXPECT_EQ(Host::made, 1) << "the host is still asked";
}

constexpr double infinity = std::numeric_limits<double>::infinity();

TEST(WideTextToNumber, ReadsSignDigitsPointAndExponent)
{
    EXPECT_THAT(_wtof(L"12"), SameBits(12.0));
    EXPECT_THAT(_wtof(L"-12.75"), SameBits(-12.75));
    EXPECT_THAT(_wtof(L"+.5"), SameBits(0.5));
    EXPECT_THAT(_wtof(L"5."), SameBits(5.0));
    EXPECT_THAT(_wtof(L"007"), SameBits(7.0));
    EXPECT_THAT(_wtof(L"1e3"), SameBits(1000.0));
    EXPECT_THAT(_wtof(L"1E+3"), SameBits(1000.0));
    EXPECT_THAT(_wtof(L"25.e-2"), SameBits(0.25));
    EXPECT_THAT(_wtof(L"-0"), SameBits(-0.0));
    EXPECT_THAT(_wtof(L"0"), SameBits(0.0));
}

TEST(WideTextToNumber, SkipsLeadingBlanksOnly)
{
    EXPECT_THAT(_wtof(L" \t\n\v\f\r 3"), SameBits(3.0));
    EXPECT_THAT(_wtof(L"- 3"), SameBits(0.0));
    EXPECT_THAT(_wtof(L"1 2"), SameBits(1.0));
    EXPECT_THAT(_wtof(L"\u00a03"), SameBits(0.0)) << "a no-break space is not blank";
}

TEST(WideTextToNumber, StopsWhereTheNumberEnds)
{
    EXPECT_THAT(_wtof(L"3abc"), SameBits(3.0));
    EXPECT_THAT(_wtof(L"1.2.3"), SameBits(1.2));
    EXPECT_THAT(_wtof(L"1,5"), SameBits(1.0));
    EXPECT_THAT(_wtof(L"1e"), SameBits(1.0));
    EXPECT_THAT(_wtof(L"1e+"), SameBits(1.0));
    EXPECT_THAT(_wtof(L"1e 5"), SameBits(1.0));
    EXPECT_THAT(_wtof(L"1e5e3"), SameBits(1e5));
    EXPECT_THAT(_wtof(L"1d5"), SameBits(1.0));
    EXPECT_THAT(_wtof(L"0x10"), SameBits(0.0));
    EXPECT_THAT(_wtof(L"1\u0660"), SameBits(1.0)) << "digits of other scripts do not count";
}

TEST(WideTextToNumber, GivesZeroWithoutALeadingNumber)
{
    for (const wchar_t* text : {L"", L" ", L"-", L"+", L".", L"-.", L"e5", L".e5", L"+-1", L"--1", L"abc", L"a1",
                                L"inf", L"-inf", L"Infinity", L"nan", L"NaN", L"$1", L"\u0661"})
        EXPECT_THAT(_wtof(text), SameBits(0.0)) << testing::PrintToString(text);
    EXPECT_THAT(_wtof(nullptr), SameBits(0.0));
}

TEST(WideTextToNumber, RoundsToTheNearestDouble)
{
    EXPECT_THAT(_wtof(L"0.1"), SameBits(0.1));
    EXPECT_THAT(_wtof(L"-1.79769313486231e308"), SameBits(M));
    EXPECT_THAT(_wtof(L"9007199254740993"), SameBits(9007199254740992.0)) << "halfway: to even";
    EXPECT_THAT(_wtof(L"9007199254740993.0000000000000000000000000000001"), SameBits(9007199254740994.0));
    EXPECT_THAT(_wtof(L"2.2250738585072011e-308"), SameBits(0x0.fffffffffffffp-1022));
}

TEST(WideTextToNumber, ReadsDigitsWithoutEnd)
{
    const std::wstring zeros(400, L'0');
    const std::wstring nines(5000, L'9');
    EXPECT_THAT(_wtof((L"0." + zeros + L"1e401").c_str()), SameBits(1.0));
    EXPECT_THAT(_wtof((L"1" + zeros + L"e-400").c_str()), SameBits(1.0));
    EXPECT_THAT(_wtof((zeros + L"5").c_str()), SameBits(5.0));
    EXPECT_THAT(_wtof((L"0." + nines).c_str()), SameBits(1.0));
    EXPECT_THAT(_wtof(nines.c_str()), SameBits(infinity));
    EXPECT_THAT(_wtof((L"-0." + zeros + L"1").c_str()), SameBits(-0.0));
    EXPECT_THAT(_wtof((zeros + L"." + zeros).c_str()), SameBits(0.0));
}

TEST(WideTextToNumber, GoesToInfinityAndToZeroBeyondTheRange)
{
    EXPECT_THAT(_wtof(L"1e999"), SameBits(infinity));
    EXPECT_THAT(_wtof(L"-1e999"), SameBits(-infinity));
    EXPECT_THAT(_wtof(L"1e309"), SameBits(infinity));
    EXPECT_THAT(_wtof(L"1.7976931348623157e308"), SameBits(std::numeric_limits<double>::max()));
    EXPECT_THAT(_wtof(L"1.7976931348623158e308"), SameBits(std::numeric_limits<double>::max()))
        << "nearer than the next";
    EXPECT_THAT(_wtof(L"1.7976931348623159e308"), SameBits(infinity));
    EXPECT_THAT(_wtof(L"1e-999"), SameBits(0.0));
    EXPECT_THAT(_wtof(L"-1e-999"), SameBits(-0.0));
    EXPECT_THAT(_wtof(L"4.9e-324"), SameBits(std::numeric_limits<double>::denorm_min()));
    EXPECT_THAT(_wtof(L"2.4703282292062328e-324"), SameBits(std::numeric_limits<double>::denorm_min()));
    EXPECT_THAT(_wtof(L"2.4703282292062327e-324"), SameBits(0.0)) << "at or below half the least double";
    EXPECT_THAT(_wtof(L"1e99999999999999999999999999"), SameBits(infinity));
    EXPECT_THAT(_wtof(L"1e-99999999999999999999999999"), SameBits(0.0));
    EXPECT_THAT(_wtof(L"0e99999999999999999999999999"), SameBits(0.0));
    EXPECT_THAT(_wtof(L"-0e999"), SameBits(-0.0));
}

// Another decimal point in the C++ locale and, where the machine has such a locale, in the C one.
TEST(WideTextToNumber, KnowsNoLocale)
{
    struct CommaPoint : std::numpunct<wchar_t>
    {
        wchar_t do_decimal_point() const override { return L','; }
    };
    const std::locale before = std::locale::global(std::locale(std::locale::classic(), new CommaPoint));
    std::setlocale(LC_NUMERIC, "de_DE.UTF-8");
    EXPECT_THAT(_wtof(L"1.5"), SameBits(1.5));
    EXPECT_THAT(_wtof(L"1,5"), SameBits(1.0));
    std::setlocale(LC_NUMERIC, "C");
    std::locale::global(before);
}

} // namespace
} // namespace vecmat::test
