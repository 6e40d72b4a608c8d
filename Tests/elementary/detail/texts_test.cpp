#include "elementary/detail/texts.h"

#include "access/cells.h"

#include "support/callers_texts.h"
#include "support/random_data.h"
#include "support/strings.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace vecmat::test {
namespace {

/// Every cell in range, and those outside as far as two places off.
template <class Body>
void forEachPlace(const Caller& caller, Body body)
{
    for (int j = -2; j < caller.cols + 2; ++j)
        for (int i = -2; i < caller.rows + 2; ++i)
            body(i, j);
}

/// Texts that are equal have equal views and hashes, and those that differ have different views.
template <class Text>
void expectAlike(const Text& one, const Text& other, bool equal)
{
    ASSERT_EQ(one.text() == other.text(), equal);
    if (equal) {
        ASSERT_EQ(one.hash(), other.hash());
    }
}

TEST(CallerTexts, ReadAsATableOfTheSameTexts)
{
    for (std::uint64_t seed = 1; seed <= 40; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        Caller caller(data, data.integer(1, 40), data.integer(1, 3));
        Smatrix table(caller.rows, caller.cols, caller.bstrs, 0, 0);
        const CallerTexts ours(caller.bstrs, caller.rows, caller.cols);
        const TableTexts tables(&table);
        forEachPlace(caller, [&](int i, int j) {
            const std::wstring expected = cells(&table).get(i, j);
            ASSERT_EQ(tables.at(i, j), expected) << i << ' ' << j;
            ASSERT_EQ(ours.get(i, j), expected) << i << ' ' << j;
            ASSERT_EQ(wideText(columnOf(ours, j)(i)), expected);
            ASSERT_EQ(ours.at(i, j).empty(), expected.empty());
            ASSERT_EQ(ours.isInside(i, j), tables.isInside(i, j));
        });
        for (int k = -2; k < caller.rows * caller.cols + 2; ++k)
            ASSERT_EQ(ours.get(k), linear(&table).get(k)) << k;
    }
}

TEST(CallerTexts, AreEqualAsTheirConversionsAre)
{
    for (std::uint64_t seed = 1; seed <= 40; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        Caller caller(data, data.integer(1, 60), 1);
        const CallerTexts texts(caller.bstrs, caller.rows, 1);
        for (int i = 0; i < caller.rows; ++i)
            for (int k = 0; k <= i; ++k) {
                const bool equal = std::wstring(texts.get(i)) == texts.get(k);
                expectAlike<CallerText>(texts.at(i, 0), texts.at(k, 0), equal);
            }
    }
}

/// A BSTR of so many bytes, told before it, in memory that ends with its NUL: reading on is seen by a sanitizer.
class ExactBstr
{
public:
    ExactBstr(const std::u16string& text, std::uint32_t bytes)
        : memory_(std::make_unique<char[]>(sizeof bytes + (text.size() + 1) * sizeof(char16_t)))
    {
        std::memcpy(memory_.get(), &bytes, sizeof bytes);
        std::memcpy(memory_.get() + sizeof bytes, text.data(), text.size() * sizeof(char16_t));
    }
    explicit ExactBstr(const std::u16string& text) : ExactBstr(text, static_cast<std::uint32_t>(2 * text.size())) {}

    operator Bstr() const { return Bstr(memory_.get() + sizeof(std::uint32_t)); }

private:
    std::unique_ptr<char[]> memory_;
};

/// Every length around the steps in which characters are read, and every place of a NUL or of the only difference.
TEST(CallerText, EndsAtItsNulWhateverItsLength)
{
    for (std::size_t length = 0; length <= 20; ++length) {
        std::u16string text;
        for (std::size_t k = 0; k < length; ++k)
            text += static_cast<char16_t>(0x8000 + 0x101 * k);
        const ExactBstr whole(text);
        expectAlike<CallerText>(Bstr(whole), Bstr(ExactBstr(text)), true);
        for (std::size_t place = 0; place < length; ++place) {
            SCOPED_TRACE(testing::Message() << length << ' ' << place);
            std::u16string other = text;
            other[place] ^= 1;
            expectAlike<CallerText>(Bstr(whole), Bstr(ExactBstr(other)), false);
            std::u16string cut = text;
            cut[place] = 0;
            expectAlike<CallerText>(Bstr(ExactBstr(cut)), Bstr(ExactBstr(text.substr(0, place))), true);
            ASSERT_EQ(CallerText(Bstr(ExactBstr(cut))).text().empty(), place == 0);
        }
    }
}

/// A length that is not that of the text: too short, or odd.
TEST(CallerText, GoesOnToItsNulWhereTheLengthIsTooShort)
{
    const std::u16string text = u"category 1";
    for (std::uint32_t bytes = 0; bytes <= 2 * text.size(); ++bytes)
        expectAlike<CallerText>(Bstr(ExactBstr(text, bytes)), Bstr(ExactBstr(text)), true);
}

TEST(CallerText, ANullPointerIsTheEmptyText)
{
    expectAlike<CallerText>(Bstr(nullptr), Bstr(ExactBstr(u"")), true);
    EXPECT_TRUE(CallerText(Bstr(nullptr)).text().empty());
    EXPECT_EQ(wideText(Bstr(nullptr)), L"");
}

TEST(CallerTexts, AnArrayThatIsNotThereHasNoCells)
{
    const CallerTexts texts(nullptr, 3, 2);
    EXPECT_TRUE(texts.at(0, 0).empty());
    EXPECT_FALSE(texts.isInside(0, 0));
    EXPECT_EQ(texts.get(0), L"");
}

} // namespace
} // namespace vecmat::test
