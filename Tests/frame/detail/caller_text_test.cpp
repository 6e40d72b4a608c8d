// A caller's text: where it ends, and which texts are equal.
#include "frame/detail/caller_text.h"

#include "frame/detail/text_table.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <string>
#include <unordered_map>
#include <vector>

namespace vecmat::test {
namespace {

/// Characters behind a length that may be any.
class CraftedText
{
public:
    CraftedText(std::uint32_t length, const std::u16string& characters)
    {
        std::memcpy(bytes_.data(), &length, sizeof length);
        std::memcpy(bytes_.data() + sizeof length, characters.data(), 2 * characters.size());
    }
    Bstr bstr() const { return Bstr(bytes_.data() + sizeof(std::uint32_t)); }

private:
    alignas(std::uint64_t) std::array<char, 64> bytes_{}; // NULs behind the characters
};

TEST(CallerText, EndsAtItsFirstNulWhateverItsLength)
{
    const CraftedText whole(10, u"abcde");
    const CallerText expected = whole.bstr();
    EXPECT_EQ(expected.text().size(), 10U);
    const CraftedText odd(11, u"abcde"), tooShort(4, u"abcde"), tooLong(14, u"abcde"),
        withNul(16, std::u16string(u"abcde\0fg", 8));
    for (const CraftedText* text : {&odd, &tooShort, &tooLong, &withNul}) {
        const CallerText found = text->bstr();
        EXPECT_EQ(found.text().size(), 10U);
        EXPECT_EQ(found.hash(), expected.hash());
        EXPECT_TRUE(found.text() == expected.text());
    }
}

/// Many texts in one piece of memory, each behind its length.
class ManyTexts
{
public:
    void add(const std::string& text)
    {
        starts_.push_back(characters_.size() + lengthUnits);
        characters_.push_back(static_cast<char16_t>(2 * text.size()));
        characters_.push_back(0);
        characters_.insert(characters_.end(), text.begin(), text.end());
        characters_.resize((characters_.size() + lengthUnits) / lengthUnits *
                           lengthUnits); // a NUL, and a length aligned
    }
    std::size_t size() const { return starts_.size(); }
    Bstr operator[](std::size_t k) const { return Bstr(characters_.data() + starts_[k]); }

private:
    static constexpr std::size_t lengthUnits = 2;
    std::vector<char16_t> characters_;
    std::vector<std::size_t> starts_;
};

/// Of half a million texts some share their hash with another: of another length, or different at their beginning or their end.
TEST(CallerText, IsEqualToNoneOfTheSameHash)
{
    ManyTexts texts;
    for (int k = 0; k < 500000; ++k)
        texts.add(k % 2 == 0 ? std::to_string(k) + " and more" : "text number " + std::to_string(k));
    struct Nothing
    {
    };
    TextTable<Nothing, CallerText> table;
    std::unordered_map<std::uint32_t, std::uint32_t> lengths;
    int sameLength = 0, otherLength = 0;
    for (std::size_t k = 0; k < texts.size(); ++k) {
        const CallerText text{texts[k]};
        const auto [known, isNew] = lengths.emplace(text.hash(), text.text().size());
        if (!isNew)
            ++(known->second == text.text().size() ? sameLength : otherLength);
        ASSERT_EQ(table.add(text, {}).first, static_cast<int>(k));
    }
    EXPECT_GT(sameLength, 0);
    EXPECT_GT(otherLength, 0);
}

} // namespace
} // namespace vecmat::test
