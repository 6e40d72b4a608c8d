#include "randomisation/column_addresses.h"

#include "support/random_data.h"
#include "support/strings.h"

#include <algorithm>
#include <cmath>
#include <ctime>
#include <gmock/gmock.h>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace vecmat::test {
namespace {

using Piece = std::pair<std::wstring, std::wstring>;

std::wstring simplified(std::wstring list)
{
    const std::wstring before = list;
    std::wstring result = cSimplifyRange(list);
    EXPECT_EQ(list, before);
    return result;
}

std::wstring increased(std::wstring letters)
{
    return cIncrease1Col(letters);
}

std::wstring listOf(const std::vector<Piece>& pieces)
{
    std::wstring list;
    for (const auto& [first, last] : pieces)
        list += (list.empty() ? L"'S'!$" : L",'S'!$") + first + L":$" + last;
    return list;
}

/// A list of pieces of one column each.
std::wstring columnsListed(const std::vector<std::wstring>& columns)
{
    std::vector<Piece> pieces;
    for (const std::wstring& column : columns)
        pieces.emplace_back(column, column);
    return listOf(pieces);
}

/// The letters of a column by its number, A being 1.
std::wstring lettersOf(int number)
{
    std::wstring letters;
    for (; number > 0; number = (number - 1) / 26)
        letters.insert(letters.begin(), static_cast<wchar_t>(L'A' + (number - 1) % 26));
    return letters;
}

// ---- the next column ------------------------------------------------------------------------------------------------

TEST(Increase1Col, StepsTheLastLetterAndCarries)
{
    EXPECT_EQ(increased(L"A"), L"B");
    EXPECT_EQ(increased(L"Y"), L"Z");
    EXPECT_EQ(increased(L"AZ"), L"BA");
    EXPECT_EQ(increased(L"AAZ"), L"ABA");
    EXPECT_EQ(increased(L"AZZ"), L"BAA");
    EXPECT_EQ(increased(L"ABC"), L"ABD");
}

TEST(Increase1Col, WrapsWhereTheCarryRunsOffTheFront)
{
    EXPECT_EQ(increased(L"Z"), L"A");
    EXPECT_EQ(increased(L"ZZ"), L"AA");
    EXPECT_EQ(increased(L"ZZZ"), L"AAA");
}

TEST(Increase1Col, TakesAnyCharacterButZToItsSuccessor)
{
    EXPECT_EQ(increased(L""), L"");
    EXPECT_EQ(increased(L"z"), L"{");
    EXPECT_EQ(increased(L"1"), L"2");
    EXPECT_EQ(increased(L"9Z"), L":A");
    EXPECT_EQ(increased(std::wstring(1, static_cast<wchar_t>(0x7FFFFFFF))),
              std::wstring(1, static_cast<wchar_t>(0x80000000U)));
}

TEST(Increase1Col, LeavesItsArgument)
{
    std::wstring letters = L"AZ";
    cIncrease1Col(letters);
    EXPECT_EQ(letters, L"AZ");
}

TEST(Increase1Col, GivesAndTakesBstrs)
{
    const CallersText letters(L"AZ");
    EXPECT_EQ(takenText(::Increase1Col(letters)), L"BA");
    EXPECT_EQ(textOf(letters), L"AZ");
    EXPECT_EQ(takenText(::Increase1Col(CallersText(L"Z"))), L"A");
    wchar_t* const empty = ::Increase1Col(CallersText(L""));
    EXPECT_NE(empty, nullptr);
    EXPECT_EQ(takenText(empty), L"");
}

TEST(AreContiguous, IsTrueWhereTheSecondFollowsTheFirst)
{
    EXPECT_EQ(::AreContiguous(L"A", L"B"), -1);
    EXPECT_EQ(::AreContiguous(L"AZ", L"BA"), -1);
    EXPECT_EQ(::AreContiguous(L"", L""), -1);
    EXPECT_EQ(::AreContiguous(L"B", L"A"), 0);
    EXPECT_EQ(::AreContiguous(L"A", L"A"), 0);
    EXPECT_EQ(::AreContiguous(L"A", L"C"), 0);
    EXPECT_EQ(::AreContiguous(L"A", L""), 0);
    EXPECT_EQ(::AreContiguous(L"a", L"B"), 0);
}

TEST(AreContiguous, ZAndAAAreNotButZAndAAre)
{
    EXPECT_EQ(::AreContiguous(L"Z", L"AA"), 0);
    EXPECT_EQ(::AreContiguous(L"Z", L"A"), -1);
    EXPECT_EQ(::AreContiguous(L"ZZ", L"AAA"), 0);
    EXPECT_EQ(::AreContiguous(L"ZZ", L"AA"), -1);
}

// ---- the result for a list ------------------------------------------------------------------------------------------

TEST(SimplifyRange, LeavesATextWithoutSeparator)
{
    for (const std::wstring text : {L"", L"'S'!$B:$A", L"'S'!$1:$5", L"not a list", L"'"})
        EXPECT_EQ(simplified(text), text);
}

TEST(SimplifyRange, MergesNeighboursInAnyOrderOfTheInput)
{
    std::vector<std::wstring> columns = {L"A", L"B", L"D"};
    do
        EXPECT_EQ(simplified(columnsListed(columns)), L"'S'!$A:$B,'S'!$D:$D");
    while (std::next_permutation(columns.begin(), columns.end()));
}

TEST(SimplifyRange, ClosesAPieceThatIsNotFollowedWithABareColumn)
{
    EXPECT_EQ(simplified(columnsListed({L"A", L"C", L"D"})), L"'S'!$A:A,'S'!$C:$D");
    EXPECT_EQ(simplified(columnsListed({L"A", L"C"})), L"'S'!$A:A,'S'!$C:$C");
    EXPECT_EQ(simplified(columnsListed({L"A", L"C", L"E"})), L"'S'!$A:A,'S'!$C:C,'S'!$E:$E");
    EXPECT_EQ(simplified(columnsListed({L"A", L"C", L"D", L"F"})), L"'S'!$A:A,'S'!$C:$D,'S'!$F:$F");
}

TEST(SimplifyRange, ClosesRunsWithADollar)
{
    EXPECT_EQ(simplified(columnsListed({L"D", L"A", L"B", L"E"})), L"'S'!$A:$B,'S'!$D:$E");
    EXPECT_EQ(simplified(columnsListed({L"A", L"B"})), L"'S'!$A:$B");
    EXPECT_EQ(simplified(columnsListed({L"A", L"B", L"C"})), L"'S'!$A:$C");
    EXPECT_EQ(simplified(columnsListed({L"A", L"B", L"D", L"E", L"G"})), L"'S'!$A:$B,'S'!$D:$E,'S'!$G:$G");
    // after a run the next pair is the piece that begins and the one that follows it
    EXPECT_EQ(simplified(columnsListed({L"A", L"B", L"D", L"F"})), L"'S'!$A:$B,'S'!$D:D,'S'!$F:$F");
    EXPECT_EQ(simplified(columnsListed({L"A", L"B", L"D", L"F", L"G"})), L"'S'!$A:$B,'S'!$D:D,'S'!$F:$G");
}

TEST(SimplifyRange, MergesPiecesOfSeveralColumnsByTheirEnds)
{
    EXPECT_EQ(simplified(L"'S'!$A:$A,'S'!$B:$C,'S'!$E:$E"), L"'S'!$A:$C,'S'!$E:$E");
    EXPECT_EQ(simplified(L"'S'!$D:$F,'S'!$A:$C"), L"'S'!$A:$F");
    // Each part of an address in its place: a piece from X to Y where the columns differ.
    EXPECT_EQ(simplified(L"'S'!$C:$F,'S'!$A:$A"), L"'S'!$A:A,'S'!$C:$F");
}

TEST(SimplifyRange, OrdersByTheLastColumnAndStably)
{
    EXPECT_EQ(simplified(L"'S'!$A:$F,'S'!$C:$D"), L"'S'!$C:D,'S'!$A:$F");
    EXPECT_EQ(simplified(L"'S'!$D:$F,'S'!$A:$F"), L"'S'!$D:F,'S'!$A:$F");
    EXPECT_EQ(simplified(L"'S'!$A:$F,'S'!$D:$F"), L"'S'!$A:F,'S'!$D:$F");
}

TEST(SimplifyRange, DoesNotMergeRepeatedOrOverlappingPieces)
{
    EXPECT_EQ(simplified(columnsListed({L"A", L"A"})), L"'S'!$A:A,'S'!$A:$A");
    EXPECT_EQ(simplified(L"'S'!$A:$C,'S'!$B:$D"), L"'S'!$A:C,'S'!$B:$D");
}

TEST(SimplifyRange, OrdersColumnsByTheirNumber)
{
    EXPECT_EQ(simplified(columnsListed({L"AAA", L"ZZ", L"AB", L"Z", L"BA", L"C"})),
              L"'S'!$C:C,'S'!$Z:Z,'S'!$AB:AB,'S'!$BA:BA,'S'!$ZZ:ZZ,'S'!$AAA:$AAA");
}

TEST(SimplifyRange, MergesAcrossACarryButNotAcrossALetterMore)
{
    EXPECT_EQ(simplified(columnsListed({L"BA", L"AZ"})), L"'S'!$AZ:$BA");
    EXPECT_EQ(simplified(columnsListed({L"AA", L"Z"})), L"'S'!$Z:Z,'S'!$AA:$AA");
    EXPECT_EQ(simplified(columnsListed({L"ZZ", L"AAA"})), L"'S'!$ZZ:ZZ,'S'!$AAA:$AAA");
}

TEST(SimplifyRange, PutsEverythingUnderTheFirstSheet)
{
    EXPECT_EQ(simplified(L"'S'!$A:$A,'T'!$B:$B"), L"'S'!$A:$B");
    EXPECT_EQ(simplified(L"'My sheet'!$D:$D,'T'!$A:$A"), L"'My sheet'!$A:A,'My sheet'!$D:$D");
}

TEST(SimplifyRange, RowNumbersEndTheReadingButNotTheRoutine)
{
    EXPECT_EQ(simplified(L"'S'!$1:$5,'S'!$7:$9"), L"'S'!$:$");
    EXPECT_EQ(simplified(L"'S'!$A:$A,'S'!$1:$5"), L"'S'!$:,'S'!$A:$A");
    EXPECT_EQ(simplified(L"'S'!$1:$5,'S'!$A:$A"), L"'S'!$:$") << "nothing after the digit is read";
    EXPECT_EQ(simplified(L"'S'!$0:$5,'S'!$A:$A"), L"'S'!$:$");
    EXPECT_EQ(simplified(L"'S'!$9:$5,'S'!$A:$A"), L"'S'!$:$");
}

TEST(SimplifyRange, APieceWhoseLastColumnIsANumberKeepsItsFirst)
{
    // The pieces are then (C, nothing) with no place in the order, and (A, A).
    EXPECT_EQ(simplified(L"'S'!$A:$A,'S'!$C:$5"), L"'S'!$C:,'S'!$A:$A");
    EXPECT_EQ(simplified(L"'S'!$A:$A,'S'!$C:$5,'S'!$D:$D"), L"'S'!$C:$,'S'!$A:$A");
    EXPECT_EQ(simplified(L"'S'!$A:$7,'S'!$B:$B"), L"'S'!$A:$");
}

TEST(SimplifyRange, TakesAnyTextWithASeparator)
{
    EXPECT_EQ(simplified(L","), L"''!$:$");
    EXPECT_EQ(simplified(L"A:A,B:B"), L"''!$:$")
        << "no column without a dollar, except the last: of B its first is cut";
    EXPECT_EQ(simplified(L"A:A,B:BC"), L"''!$:$C");
    // The last column is what is left less one character, whatever that is.
    EXPECT_EQ(simplified(L"'S'!$A:$A,'S'!$B:xD"), L"'S'!$A:$D");
    // An empty last column counts as column -64 and comes before one whose number was not read.
    EXPECT_EQ(simplified(L"'S'!$B:$B,'S'!$A:$"), L"'S'!$A:,'S'!$B:$B");
    EXPECT_EQ(simplified(L"'S'!$A:$,'S'!$B:$B,'S'!$4:$4"), L"'S'!$A:$,'S'!$B:$B");
    // Where a delimiter is missing, what is left stays and is read again.
    EXPECT_EQ(simplified(L"'S'!$A,'S'!$B"), L"'S'!$A,'S'!$B:$S'!$B");
}

TEST(SimplifyRange, ClosesTheLastPieceAgainWhereItsColumnEndsInAColon)
{
    EXPECT_EQ(simplified(L"'S'!$A:$A,'S'!$B:$B:"), L"'S'!$A:$B:$B:");
}

TEST(SimplifyRange, GivesAndTakesBstrs)
{
    const CallersText list(L"'S'!$D:$D,'S'!$A:$A,'S'!$B:$B");
    EXPECT_EQ(takenText(::SimplifyRange(list)), L"'S'!$A:$B,'S'!$D:$D");
    EXPECT_EQ(textOf(list), L"'S'!$D:$D,'S'!$A:$A,'S'!$B:$B");
    EXPECT_EQ(takenText(::SimplifyRange(CallersText(L"'S'!$B:$B"))), L"'S'!$B:$B");
    wchar_t* const empty = ::SimplifyRange(CallersText(L""));
    EXPECT_NE(empty, nullptr);
    EXPECT_EQ(takenText(empty), L"");
    const std::wstring beyondTheBasicPlane = {static_cast<wchar_t>(0x1F4C8)};
    EXPECT_EQ(takenText(::SimplifyRange(CallersText(L"'" + beyondTheBasicPlane + L"'!$B:$B,'S'!$A:$A"))),
              L"'" + beyondTheBasicPlane + L"'!$A:$B");
}

// ---- against the routine step by step -------------------------------------------------------------------------------

std::wstring between(const std::wstring& text, wchar_t left, wchar_t right)
{
    const auto start = text.find(left);
    if (start == std::wstring::npos)
        return L"";
    const auto end = text.find(right, start + 1);
    return text.substr(start + 1, end == std::wstring::npos ? end : end - start - 1);
}

/// Token by token, shortening the text as it goes; then piece by piece.
std::wstring stepByStep(const std::wstring& input)
{
    const int c = static_cast<int>(std::count(input.begin(), input.end(), L','));
    if (c == 0)
        return input;
    struct Row
    {
        std::wstring columns[2];
        double key = 0.0;
    };
    const int n = c + 1;
    std::vector<Row> rows(static_cast<std::size_t>(n));
    std::wstring rest = input;
    for (int t = 1; t <= 2 * n; ++t) {
        const auto piece = static_cast<std::size_t>(std::floor(t * 0.5 + 0.5)) - 1;
        const bool first = t % 2 == 1;
        const wchar_t delimiter = first ? L':' : L',';
        std::wstring token;
        if (t == 2 * n) {
            token = rest.empty() ? rest : rest.substr(1);
        } else {
            token = between(rest, L'$', delimiter);
            const auto found = rest.find(delimiter);
            if (found != std::wstring::npos)
                rest.erase(0, found + 1);
        }
        if (!token.empty() && token[0] >= 48 && token[0] <= 57)
            break;
        rows[piece].columns[first ? 0 : 1] = token;
        if (!first) {
            // Horner's scheme: whole numbers, so that the order of the sum does not matter
            double number = 0.0;
            for (const wchar_t letter : token)
                number = number * 26.0 + static_cast<double>(letter) - 64.0;
            rows[piece].key = token.empty() ? -64.0 : number;
        }
    }
    std::stable_sort(rows.begin(), rows.end(), [](const Row& a, const Row& b) { return a.key < b.key; });
    const auto first = [&](int k) { return rows[static_cast<std::size_t>(k - 1)].columns[0]; };
    const auto last = [&](int k) { return rows[static_cast<std::size_t>(k - 1)].columns[1]; };
    const auto follows = [&](int k) { return increased(last(k - 1)) == first(k); };
    const std::wstring opening = L"'" + between(input, L'\'', L'\'') + L"'!$";
    std::wstring out = opening + first(1) + L":";
    int i = 2;
    while (i <= n) {
        if (follows(i) && i < n) {
            int j = i;
            while (j + 1 <= n && follows(j + 1))
                j += 1;
            out += L"$" + last(j);
            if (j < n)
                out += L"," + opening + first(j + 1) + L":";
            i = j + 1;
        } else if (follows(i)) {
            out += L"$" + last(n);
        } else {
            out += last(i - 1) + L"," + opening + first(i) + L":";
        }
        if (i == n && out.back() == L':') {
            out += L"$" + last(n);
            return out;
        }
        i += 1;
    }
    return out;
}

TEST(SimplifyRange, GivesWhatTheStepsGiveForRandomLists)
{
    RandomData data(731);
    SCOPED_TRACE(data);
    for (int round = 0; round < 3000; ++round) {
        std::vector<Piece> pieces;
        const int count = data.integer(1, 12);
        for (int k = 0; k < count; ++k) {
            const int first = data.integer(20, 34);
            pieces.emplace_back(lettersOf(first), lettersOf(first + (data.chance(0.3) ? data.integer(-2, 3) : 0)));
        }
        const std::wstring list = listOf(pieces);
        ASSERT_EQ(simplified(list), stepByStep(list));
    }
}

TEST(SimplifyRange, GivesWhatTheStepsGiveForAnyText)
{
    RandomData data(732);
    SCOPED_TRACE(data);
    const std::wstring characters = L"AAABBZ$$$::,,'!1";
    for (int round = 0; round < 5000; ++round) {
        std::wstring text(static_cast<std::size_t>(data.integer(0, 40)), L' ');
        for (wchar_t& character : text)
            character = characters[static_cast<std::size_t>(data.integer(0, static_cast<int>(characters.size()) - 1))];
        ASSERT_EQ(simplified(text), stepByStep(text));
    }
}

TEST(SimplifyRange, MergesAllColumnsOfASheet)
{
    std::vector<std::wstring> columns;
    for (int number = 16384; number >= 1; --number)
        columns.push_back(lettersOf(number));
    ASSERT_EQ(columns.front(), L"XFD");
    EXPECT_EQ(simplified(columnsListed(columns)), L"'S'!$A:$Z,'S'!$AA:$ZZ,'S'!$AAA:$XFD");
}

TEST(SimplifyRange, OutlivesColumnsWithoutANumber)
{
    // So many letters that the number is infinite, or none at all.
    const std::wstring many(400, L'A');
    const std::wstring more(400, L'B');
    const std::wstring result = simplified(columnsListed({many, more, L"C"}));
    for (const std::wstring& column : {many, more, std::wstring(L"C")})
        EXPECT_NE(result.find(L"'S'!$" + column + L":"), std::wstring::npos);
}

/// The shortest of three times that the processor worked, in ticks: what else the machine does must not count.
double ticksFor(std::wstring list)
{
    double shortest = std::numeric_limits<double>::infinity();
    for (int k = 0; k < 3; ++k) {
        const std::clock_t start = std::clock();
        cSimplifyRange(list);
        shortest = std::min(shortest, static_cast<double>(std::clock() - start));
    }
    return shortest;
}

TEST(SimplifyRange, TakesTimeThatGrowsWithTheListAndNoFaster)
{
    // Eight times the list takes about eight times as long; were each piece to read the rest anew, it would be 64.
    constexpr std::size_t few = 25000;
    std::wstring items;
    for (std::size_t k = 0; k < few; ++k)
        items += L"A,";
    std::wstring manyItems;
    for (int k = 0; k < 8; ++k)
        manyItems += items;
    EXPECT_LT(ticksFor(std::wstring(8 * few, L',')), 28.0 * ticksFor(std::wstring(few, L',')));
    EXPECT_LT(ticksFor(manyItems), 28.0 * ticksFor(items));
}

} // namespace
} // namespace vecmat::test
