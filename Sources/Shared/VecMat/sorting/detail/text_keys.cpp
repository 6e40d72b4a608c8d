#include "text_keys.h"

#include "../../base/detail/scratch.h"
#include "../../frame/detail/caller_text.h"
#include "../../frame/detail/text_table.h"
#include "digit_passes.h"
#include "key_order.h"
#include "stable_merge.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

namespace vecmat {

namespace {

struct Nothing
{
};
using DistinctTexts = TextTable<Nothing, CallerText>;

TextKey& keyOf(TextKey& key)
{
    return key;
}
TextKey& keyOf(KeyedPosition<TextKey>& record)
{
    return record.key;
}

/// Texts in wide characters, one behind the other.
class WideTexts
{
public:
    explicit WideTexts(const DistinctTexts& texts)
    {
        ends_.reserve(static_cast<std::size_t>(texts.size()));
        for (int number = 0; number < texts.size(); ++number) {
            characters_ += wideText(texts.text(number));
            ends_.push_back(characters_.size());
        }
    }
    int size() const { return static_cast<int>(ends_.size()); }
    std::wstring_view operator[](int number) const
    {
        const auto k = static_cast<std::size_t>(number);
        const std::size_t start = k == 0 ? 0 : ends_[k - 1];
        return std::wstring_view(characters_).substr(start, ends_[k] - start);
    }

private:
    std::wstring characters_;
    std::vector<std::size_t> ends_;
};

/// Sorts the numbers of texts by windows of two characters; ties are broken by the next window.
class WindowSort
{
public:
    explicit WindowSort(const WideTexts& texts) : texts_(texts)
    {
        entries_.reserve(static_cast<std::size_t>(texts.size()));
        for (int number = 0; number < texts.size(); ++number) {
            entries_.push_back({0, number});
            longest_ = std::max(longest_, texts[number].size());
        }
        sort(entries_.data(), entries_.data() + entries_.size(), 0);
    }

    /// For the number of each text its place.
    std::vector<int> ranks() const
    {
        std::vector<int> ranks(entries_.size());
        int rank = 0;
        for (const Entry& entry : entries_)
            ranks[static_cast<std::size_t>(entry.number)] = rank++;
        return ranks;
    }

private:
    struct Entry
    {
        std::uint64_t window;
        int number;
    };
    static constexpr std::size_t charactersAtOnce = 2;
    static constexpr std::ptrdiff_t mostToCompare = 8;

    /// Texts that agree in the characters before `start`, or have none there.
    void sort(Entry* first, Entry* last, std::size_t start) const
    {
        while (last - first > mostToCompare && start <= longest_) {
            start = commonEnd(first, last, start);
            for (Entry* entry = first; entry != last; ++entry)
                entry->window = windowOf(texts_[entry->number], start);
            std::sort(first, last, [](const Entry& left, const Entry& right) { return left.window < right.window; });
            start += charactersAtOnce;
            std::tie(first, last) = sortAllButTheLargest(first, last, start);
        }
        std::sort(first, last,
                  [this](const Entry& left, const Entry& right) { return texts_[left.number] < texts_[right.number]; });
    }

    /// The end of what all texts that reach beyond `start` have in common. The others have ended, and come first wherever
    /// the window opens.
    std::size_t commonEnd(const Entry* first, const Entry* last, std::size_t start) const
    {
        std::wstring_view common;
        for (const Entry* entry = first; entry != last; ++entry) {
            const std::wstring_view text = texts_[entry->number];
            if (text.size() <= start)
                continue;
            const std::wstring_view rest = text.substr(start);
            if (common.empty())
                common = rest;
            const auto differ = std::mismatch(common.begin(), common.end(), rest.begin(), rest.end());
            common = common.substr(0, static_cast<std::size_t>(differ.first - common.begin()));
            if (common.empty())
                break;
        }
        return start + common.size();
    }

    /// Returns the largest group of those that tie, with which the caller goes on: so calls don't nest deeper than groups
    /// can be halved, however long their beginnings are alike.
    std::pair<Entry*, Entry*> sortAllButTheLargest(Entry* first, Entry* last, std::size_t start) const
    {
        std::pair<Entry*, Entry*> largest(first, first);
        while (first != last) {
            Entry* const end =
                std::find_if(first, last, [first](const Entry& entry) { return entry.window != first->window; });
            std::pair<Entry*, Entry*> group(first, end);
            if (end - first > largest.second - largest.first)
                std::swap(group, largest);
            sort(group.first, group.second, start);
            first = end;
        }
        return largest;
    }

    /// Characters in one number, which never orders two texts the other way round. Where there is none it is the least.
    static std::uint64_t windowOf(std::wstring_view text, std::size_t start)
    {
        constexpr int bits = 32;
        constexpr wchar_t least = std::numeric_limits<wchar_t>::min();
        std::uint64_t window = 0;
        for (std::size_t k = start; k < start + charactersAtOnce; ++k)
            window = window << bits |
                     static_cast<std::uint64_t>(static_cast<std::int64_t>(k < text.size() ? text[k] : least) - least);
        return window;
    }

    const WideTexts& texts_;
    std::size_t longest_ = 0;
    std::vector<Entry> entries_;
};

template <class Record>
void rank(std::vector<Record>& records)
{
    if (records.size() > static_cast<std::size_t>(std::numeric_limits<int>::max()))
        throw std::bad_array_new_length();
    const auto keyAt = [&records](int k) -> TextKey& { return keyOf(records[static_cast<std::size_t>(k)]); };
    const int n = static_cast<int>(records.size());
    DistinctTexts texts;
    forEachText(
        0, n, texts, [&](int k) { return Bstr(keyAt(k).text); },
        [&](int k, const CallerText& text) { keyAt(k).rank = texts.add(text, {}).first; });
    const WideTexts wide(texts);
    const std::vector<int> ranks = WindowSort(wide).ranks();
    for (int k = 0; k < n; ++k)
        keyAt(k).rank = ranks[static_cast<std::size_t>(keyAt(k).rank)];
}

/// Returns false, having done nothing, if there are few or memory is short.
template <class Record>
bool sortByRank(std::vector<Record>& records)
{
    const std::size_t n = records.size();
    if (n < fewestForDigits)
        return false;
    const std::unique_ptr<int[]> ranks(new (std::nothrow) int[n]);
    const Scratch spare(n);
    if (!ranks || !spare)
        return false;
    std::transform(records.begin(), records.end(), ranks.get(), [](Record& record) { return keyOf(record).rank; });
    const RowOrder order = stableOrder(ranks.get(), n, Direction::ascending, spare.data());
    const std::unique_ptr<Record[]> sorted(new (std::nothrow) Record[n]);
    if (!order || !sorted)
        return false;
    for (std::size_t k = 0; k < n; ++k)
        sorted[k] = records[order[k]];
    std::copy_n(sorted.get(), n, records.begin());
    return true;
}

template <class Record>
void rankAndSort(std::vector<Record>& records)
{
    rank(records);
    if (!sortByRank(records))
        mergeStably(records);
}

} // namespace

void sortStably(std::vector<TextKey>& keys)
{
    rankAndSort(keys);
}

void sortStably(std::vector<KeyedPosition<TextKey>>& records)
{
    rankAndSort(records);
}

} // namespace vecmat
