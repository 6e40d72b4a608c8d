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

/// The number of characters with which all texts begin that are not empty.
std::size_t commonStart(const WideTexts& texts)
{
    std::wstring_view common;
    for (int number = 0; number < texts.size(); ++number) {
        const std::wstring_view text = texts[number];
        if (common.empty() && !text.empty())
            common = text;
        else if (!text.empty()) {
            const auto differ = std::mismatch(common.begin(), common.end(), text.begin(), text.end());
            common = common.substr(0, static_cast<std::size_t>(differ.first - common.begin()));
            if (common.empty())
                break;
        }
    }
    return common.size();
}

/// The first two characters of a text in one number, which never orders two texts the other way round.
std::uint64_t windowOf(std::wstring_view text)
{
    constexpr int bits = 32;
    std::uint64_t window = 0;
    for (std::size_t k = 0; k < 2; ++k) {
        const auto character = k < text.size() ? text[k] : std::numeric_limits<wchar_t>::min();
        window = window << bits |
                 static_cast<std::uint64_t>(static_cast<std::int64_t>(character) - std::numeric_limits<wchar_t>::min());
    }
    return window;
}

/// For the number of each text its place in their order.
std::vector<int> ranksOf(const DistinctTexts& distinct)
{
    const WideTexts texts(distinct);
    const std::size_t common = commonStart(texts);
    const auto rest = [&](int number) { return texts[number].substr(std::min(common, texts[number].size())); };
    struct Entry
    {
        std::uint64_t window;
        int number;
    };
    std::vector<Entry> entries;
    entries.reserve(static_cast<std::size_t>(texts.size()));
    for (int number = 0; number < texts.size(); ++number)
        entries.push_back({windowOf(rest(number)), number});
    std::sort(entries.begin(), entries.end(), [&](const Entry& left, const Entry& right) {
        return left.window != right.window ? left.window < right.window : texts[left.number] < texts[right.number];
    });
    std::vector<int> ranks(entries.size());
    int rank = 0;
    for (const Entry& entry : entries)
        ranks[static_cast<std::size_t>(entry.number)] = rank++;
    return ranks;
}

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
    const std::vector<int> ranks = ranksOf(texts);
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
