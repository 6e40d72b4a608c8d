// Texts, each with a value, found by hash in constant time. Internal to the library.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace vecmat {

/// A text with its hash.
class HashedText
{
public:
    HashedText() = default;
    HashedText(std::wstring_view text) : text_(text), hash_(hashOf(text)) {}
    HashedText(const std::wstring& text) : HashedText(std::wstring_view(text)) {}

    std::wstring_view text() const { return text_; }
    std::uint32_t hash() const { return hash_; }

private:
    /// Reads the characters in pairs, each mixed by a product that carries it to the upper bits and a shift that brings
    /// these down again.
    static std::uint32_t hashOf(std::wstring_view text)
    {
        constexpr std::uint64_t factor = 0x9E3779B97F4A7C15; // 2^64 divided by the golden ratio
        std::uint64_t hash = text.size();
        const auto take = [&hash](std::uint64_t characters) {
            hash = (hash ^ characters) * factor;
            hash ^= hash >> 32;
        };
        const auto characterAt = [text](std::size_t k) { return static_cast<std::uint32_t>(text[k]); };
        std::size_t k = 0;
        for (; k + 1 < text.size(); k += 2)
            take(characterAt(k) | static_cast<std::uint64_t>(characterAt(k + 1)) << 32);
        if (k < text.size())
            take(characterAt(k));
        return static_cast<std::uint32_t>(hash * factor >> 32);
    }

    std::wstring_view text_;
    std::uint32_t hash_ = 0;
};

/// Distinct texts in order of first appearance, numbered from 0. Only views are kept: the texts must stay in place. A
/// hash of each text leads to its number, so that the cost of a lookup does not grow with the number of texts.
///
/// `Text` is a text with its hash: its text() is a view with data() and ==.
template <class Value, class Text = HashedText>
class TextTable
{
public:
    using Hashed = Text;
    using View = decltype(std::declval<const Text&>().text());

    static constexpr int none = -1;

    int size() const { return static_cast<int>(entries_.size()); }
    View text(int number) const { return entries_[static_cast<std::size_t>(number)].text; }
    Value& value(int number) { return entries_[static_cast<std::size_t>(number)].value; }
    const Value& value(int number) const { return entries_[static_cast<std::size_t>(number)].value; }

    /// The number of a text, or `none`.
    int find(const Text& text) const { return slots_.empty() ? none : slots_[slotOf(text)].number; }

    /// The number of a text, and whether it is new: if so it gets `value`. Existing values may be moved in memory.
    std::pair<int, bool> add(const Text& text, const Value& value)
    {
        if (2 * entries_.size() >= slots_.size())
            grow();
        Slot& slot = slots_[slotOf(text)];
        if (slot.number != none)
            return {slot.number, false};
        entries_.push_back({text.text(), value});
        slot = {text.hash(), size() - 1};
        return {slot.number, true};
    }

    /// Prefetches the memory in which the text will be looked up, in three steps that each need the data of the
    /// previous one: the slot, the entry, its characters.
    void expectSlot(const Text& text) const
    {
        if (!slots_.empty())
            __builtin_prefetch(&slots_[firstSlot(text)]);
    }
    void expectEntry(const Text& text) const
    {
        if (const int number = likelyNumber(text); number != none)
            __builtin_prefetch(&entries_[static_cast<std::size_t>(number)]);
    }
    void expectCharacters(const Text& text) const
    {
        if (const int number = likelyNumber(text); number != none)
            __builtin_prefetch(this->text(number).data());
    }

    void clear()
    {
        entries_.clear();
        slots_.clear();
    }

private:
    struct Entry
    {
        View text;
        Value value;
    };
    struct Slot
    {
        std::uint32_t hash = 0;
        int number = none;
    };

    static constexpr std::size_t fewestSlots = 16; // a power of 2, like every number of slots

    std::size_t firstSlot(const Text& text) const { return text.hash() & (slots_.size() - 1); }
    int likelyNumber(const Text& text) const { return slots_.empty() ? none : slots_[firstSlot(text)].number; }

    /// The slot that holds the text, or the empty one where it belongs.
    std::size_t slotOf(const Text& text) const
    {
        const std::size_t last = slots_.size() - 1;
        std::size_t k = text.hash() & last;
        while (slots_[k].number != none &&
               (slots_[k].hash != text.hash() || this->text(slots_[k].number) != text.text()))
            k = (k + 1) & last;
        return k;
    }

    void grow()
    {
        std::vector<Slot> before(slots_.empty() ? fewestSlots : 2 * slots_.size());
        before.swap(slots_);
        const std::size_t last = slots_.size() - 1;
        for (const Slot& slot : before) {
            if (slot.number == none)
                continue;
            std::size_t k = slot.hash & last;
            while (slots_[k].number != none)
                k = (k + 1) & last;
            slots_[k] = slot;
        }
    }

    std::vector<Entry> entries_;
    std::vector<Slot> slots_; // at least half of them empty
};

/// Calls visit(i, text) for textAt(i), i from `first` to `end` - 1 in order. The texts and their places in `table` may
/// be anywhere in memory: they are prefetched some texts ahead. A `visit` that returns false ends the loop.
template <class Table, class TextAt, class Visit>
void forEachText(int first, int end, const Table& table, TextAt textAt, Visit visit)
{
    constexpr int most = 16;
    typename Table::Hashed texts[most];
    while (first < end) {
        const int count = end - first < most ? end - first : most;
        for (int k = 0; k < count && most < end - first - k; ++k)
            __builtin_prefetch(textAt(first + most + k).data());
        for (int k = 0; k < count; ++k) {
            texts[k] = textAt(first + k);
            table.expectSlot(texts[k]);
        }
        for (int k = 0; k < count; ++k)
            table.expectEntry(texts[k]);
        for (int k = 0; k < count; ++k)
            table.expectCharacters(texts[k]);
        for (int k = 0; k < count; ++k)
            if constexpr (std::is_same_v<decltype(visit(first, texts[k])), bool>) {
                if (!visit(first + k, texts[k]))
                    return;
            } else {
                visit(first + k, texts[k]);
            }
        first += count;
    }
}

/// Number of distinct texts among textAt(0) to textAt(n - 1); 0 if n is below 1.
template <class Text = HashedText, class TextAt>
int countDistinct(int n, TextAt textAt)
{
    struct Nothing
    {
    };
    TextTable<Nothing, Text> texts;
    forEachText(0, n, texts, textAt, [&texts](int, const Text& text) { texts.add(text, {}); });
    return texts.size();
}

} // namespace vecmat
