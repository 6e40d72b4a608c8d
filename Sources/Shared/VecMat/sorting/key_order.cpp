#include "key_order.h"

#include "../elementary/kernels/scratch.h"

#include <algorithm>
#include <bit>
#include <new>
#include <utility>

namespace vecmat {

namespace {

/// Of a word that stands for a key, the lower half is the number of the key and the upper half a window of its bits.
using Word = std::uint64_t;
constexpr int windowWidth = 32;

constexpr std::uint32_t numberIn(Word word)
{
    return static_cast<std::uint32_t>(word);
}

constexpr std::uint32_t windowIn(Word word)
{
    return static_cast<std::uint32_t>(word >> windowWidth);
}

/// A key as an integer of the same rank. The sum makes one zero of both; a negative number is the smaller the larger
/// its bits are.
Word ascendingBits(double key)
{
    const Word bits = std::bit_cast<Word>(key + 0.0);
    constexpr Word sign = Word{1} << 63;
    return (bits & sign) != 0 ? ~bits : bits | sign;
}

/// One stable pass: the words in the order of one digit of their windows.
template <int digitWidth>
void sortByDigit(const Word* from, Word* to, std::size_t n, int digitStart)
{
    constexpr Word digitMask = (Word{1} << digitWidth) - 1;
    std::uint32_t places[digitMask + 1] = {};
    for (std::size_t k = 0; k < n; ++k)
        ++places[from[k] >> digitStart & digitMask];
    std::uint32_t place = 0;
    for (std::uint32_t& first : places)
        place += std::exchange(first, place);
    for (std::size_t k = 0; k < n; ++k)
        to[places[from[k] >> digitStart & digitMask]++] = from[k];
}

/// Sorts words by the keys that they stand for. The bits in which the keys differ are looked at in windows from the top:
/// a window is sorted digit by digit from its lowest, and what still ties is sorted by the next.
class BitSort
{
public:
    BitSort(const double* keys, Direction direction)
        : keys_(keys), reversal_(direction == Direction::descending ? ~Word{0} : Word{0})
    {
    }

    void sort(Word* words, Word* spare, std::size_t n) const
    {
        if (n < fewestToCount)
            return sortFew(words, n);
        const Word varying = varyingBits(words, n);
        if (varying == 0)
            return;
        const int start = std::max(std::countr_zero(varying), static_cast<int>(std::bit_width(varying)) - windowWidth);
        // Narrow digits cost more passes, wide ones more counters.
        if (n < manyWords)
            sortByWindow<8>(words, spare, n, start, varying);
        else
            sortByWindow<11>(words, spare, n, start, varying);
        if (static_cast<int>(std::countr_zero(varying)) < start)
            sortTies(words, spare, n);
    }

private:
    static constexpr std::size_t fewToInsert = 24;
    static constexpr std::size_t fewestToCount = fewestKeysToCount;
    static constexpr std::size_t manyWords = 8000;

    /// Descending, the bits are inverted: keys that tie then still keep the order of the input.
    Word bits(Word word) const { return ascendingBits(keys_[numberIn(word)]) ^ reversal_; }

    Word varyingBits(const Word* words, std::size_t n) const
    {
        const Word first = bits(words[0]);
        Word varying = 0;
        for (std::size_t k = 1; k < n; ++k)
            varying |= bits(words[k]) ^ first;
        return varying;
    }

    /// The windows of the keys begin at bit `start`; digits that all keys have in common need no pass.
    template <int digitWidth>
    void sortByWindow(Word* words, Word* spare, std::size_t n, int start, Word varying) const
    {
        constexpr Word digitMask = (Word{1} << digitWidth) - 1;
        const Word window = varying >> start;
        int passes = 0;
        for (int digit = 0; digit < windowWidth; digit += digitWidth)
            passes += (window >> digit & digitMask) != 0 ? 1 : 0;
        Word* from = passes % 2 == 0 ? words : spare;
        Word* to = passes % 2 == 0 ? spare : words;
        for (std::size_t k = 0; k < n; ++k)
            from[k] = bits(words[k]) >> start << windowWidth | numberIn(words[k]);
        for (int digit = 0; digit < windowWidth; digit += digitWidth)
            if ((window >> digit & digitMask) != 0) {
                sortByDigit<digitWidth>(from, to, n, windowWidth + digit);
                std::swap(from, to);
            }
    }

    void sortTies(Word* words, Word* spare, std::size_t n) const
    {
        for (std::size_t first = 0, behind = 1; behind <= n; ++behind)
            if (behind == n || windowIn(words[behind]) != windowIn(words[first])) {
                if (behind - first > 1)
                    sort(words + first, spare + first, behind - first);
                first = behind;
            }
    }

    void sortFew(Word* words, std::size_t n) const
    {
        if (n > fewToInsert) {
            std::stable_sort(words, words + n, [this](Word left, Word right) { return bits(left) < bits(right); });
            return;
        }
        for (std::size_t k = 1; k < n; ++k) {
            const Word word = words[k];
            std::size_t place = k;
            for (; place > 0 && bits(word) < bits(words[place - 1]); --place)
                words[place] = words[place - 1];
            words[place] = word;
        }
    }

    const double* keys_;
    Word reversal_;
};

} // namespace

RowOrder orderByBits(const double* keys, std::size_t n, Direction direction)
{
    if (n < fewestKeysToCount)
        return nullptr;
    const std::unique_ptr<Word[]> words(new (std::nothrow) Word[n]);
    const std::unique_ptr<Word[]> spare(new (std::nothrow) Word[n]);
    RowOrder order(new (std::nothrow) std::uint32_t[n]);
    if (!words || !spare || !order)
        return nullptr;
    bool anyNan = false;
    for (std::size_t k = 0; k < n; ++k) {
        anyNan |= keys[k] != keys[k];
        words[k] = k;
    }
    if (anyNan)
        return nullptr;
    BitSort(keys, direction).sort(words.get(), spare.get(), n);
    std::transform(words.get(), words.get() + n, order.get(), numberIn);
    return order;
}

RowOrder orderByBits(const int* keys, std::size_t n, Direction direction)
{
    const Scratch widened(n);
    if (!widened)
        return nullptr;
    std::copy_n(keys, n, widened.data());
    return orderByBits(widened.data(), n, direction);
}

} // namespace vecmat
