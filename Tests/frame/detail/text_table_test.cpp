#include "frame/detail/text_table.h"

#include "support/random_data.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace vecmat::test {
namespace {

using Texts = std::vector<std::wstring>;

/// Texts of any length, of few characters, so that many have a beginning or an end in common; NULs and characters
/// beyond 16 bits among them.
std::wstring randomText(RandomData& data, int longest)
{
    const std::wstring characters = {L'a', L'b', L'0', L'1', L'\0', L' ', static_cast<wchar_t>(0x1F600)};
    std::wstring text;
    for (int n = data.integer(0, longest); n > 0; --n)
        text += characters[static_cast<std::size_t>(data.integer(0, 6))];
    return text;
}

TEST(TextTable, NumbersTextsAsTheyCome)
{
    const Texts texts = {L"b", L"a", L"", L"ab", L"B", L"b"};
    TextTable<double> table;
    EXPECT_EQ(table.size(), 0);
    EXPECT_EQ(table.find(texts[0]), TextTable<double>::none);
    for (int k = 0; k < 5; ++k)
        EXPECT_EQ(table.add(texts[static_cast<std::size_t>(k)], k + 0.5), std::pair(k, true));
    EXPECT_EQ(table.add(texts[5], 99.0), std::pair(0, false));
    EXPECT_EQ(table.value(0), 0.5) << "the value stays that of the first";
    EXPECT_EQ(table.size(), 5);
    EXPECT_EQ(table.text(3), L"ab");
    EXPECT_EQ(table.find(std::wstring(L"ba")), TextTable<double>::none);
    table.clear();
    EXPECT_EQ(table.size(), 0);
    EXPECT_EQ(table.find(texts[0]), TextTable<double>::none);
    EXPECT_EQ(table.add(texts[1], 1.0), std::pair(0, true));
}

TEST(TextTable, IsAMap)
{
    for (std::uint64_t seed = 1; seed <= 60; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        Texts texts(static_cast<std::size_t>(data.integer(0, 700)));
        for (std::wstring& text : texts)
            text = randomText(data, static_cast<int>(1 + seed % 7));
        TextTable<int> table;
        std::map<std::wstring, int> expected;
        for (std::size_t k = 0; k < texts.size(); ++k) {
            const int next = static_cast<int>(expected.size());
            const auto [entry, isNew] = expected.try_emplace(texts[k], next);
            ASSERT_EQ(table.add(texts[k], next), std::pair(entry->second, isNew));
        }
        ASSERT_EQ(table.size(), static_cast<int>(expected.size()));
        for (const auto& [text, number] : expected) {
            ASSERT_EQ(table.find(text), number);
            ASSERT_EQ(table.text(number), text);
            ASSERT_EQ(table.value(number), number);
        }
        for (int k = 0; k < 200; ++k) {
            const std::wstring text = randomText(data, 8);
            const auto entry = expected.find(text);
            ASSERT_EQ(table.find(text), entry == expected.end() ? TextTable<int>::none : entry->second);
        }
    }
}

TEST(TextTable, TellsNeighboursApartInLargeNumbers)
{
    // Texts that differ in one character only, at every place: where a hash leaves out or confuses one, look-ups slow
    // down, but none may be mistaken for another.
    Texts texts;
    for (std::size_t length = 1; length <= 40; ++length)
        for (std::size_t place = 0; place < length; ++place)
            for (wchar_t character = L'b'; character <= L'z'; ++character) {
                texts.emplace_back(length, L'a');
                texts.back()[place] = character;
            }
    TextTable<std::size_t> table;
    for (std::size_t k = 0; k < texts.size(); ++k)
        ASSERT_EQ(table.add(texts[k], k), std::pair(static_cast<int>(k), true));
    for (std::size_t k = 0; k < texts.size(); ++k)
        ASSERT_EQ(table.find(texts[k]), static_cast<int>(k));
}

TEST(ForEachText, VisitsEachInOrder)
{
    for (int n = -1; n <= 70; ++n) {
        Texts texts;
        for (int i = 0; i < n; ++i)
            texts.push_back(std::to_wstring(i % 13));
        TextTable<int> table;
        std::vector<int> visited;
        const int first = n > 5 ? 3 : 0;
        forEachText(
            first, n, table,
            [&](int i) -> std::wstring_view {
                EXPECT_TRUE(i >= first && i < n) << i;
                return texts[static_cast<std::size_t>(i)];
            },
            [&](int i, const HashedText& text) {
                EXPECT_EQ(text.text(), texts[static_cast<std::size_t>(i)]);
                EXPECT_EQ(text.hash(), HashedText(texts[static_cast<std::size_t>(i)]).hash());
                table.add(text, i);
                visited.push_back(i);
            });
        std::vector<int> expected;
        for (int i = first; i < n; ++i)
            expected.push_back(i);
        EXPECT_EQ(visited, expected);
        EXPECT_EQ(table.size(), std::min(13, static_cast<int>(expected.size())));
    }
}

TEST(CountDistinct, CountsEachTextOnce)
{
    const Texts texts = {L"a", L"b", L"a", L"", L"", L"ab"};
    const auto textAt = [&](int i) -> std::wstring_view { return texts[static_cast<std::size_t>(i)]; };
    EXPECT_EQ(countDistinct(6, textAt), 4);
    EXPECT_EQ(countDistinct(1, textAt), 1);
    EXPECT_EQ(countDistinct(0, textAt), 0);
    EXPECT_EQ(countDistinct(-1, textAt), 0);
}

} // namespace
} // namespace vecmat::test
