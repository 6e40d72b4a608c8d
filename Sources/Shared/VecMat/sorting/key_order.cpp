#include "key_order.h"

#include "../elementary/kernels/scratch.h"
#include "../frame/missing_value.h"

#include <algorithm>
#include <bit>
#include <numeric>
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

constexpr Word signBit = Word{1} << 63;

/// A key as an integer of the same rank: the magnitude added to, or taken from, a middle that both zeros share.
Word rankOf(double key, Word reversal)
{
    const Word bits = std::bit_cast<Word>(key) ^ reversal;
    const Word magnitude = bits & ~signBit;
    const Word allIfNegative = Word{0} - (bits >> 63);
    return signBit + ((magnitude ^ allIfNegative) - allIfNegative);
}

/// Digits of the windows, by which words are sorted stably from the lowest digit up.
template <int width>
class Digits
{
public:
    void count(Word word)
    {
        for (int digit = 0; digit < mostDigits; ++digit)
            ++places_[digit][digitIn(word, digit)];
    }

    /// Copies the counted words in the order of a digit. False where all have the same; nothing is copied then.
    bool sort(int digit, const Word* from, Word* to, std::size_t n)
    {
        auto& places = places_[digit];
        if (places[digitIn(from[0], digit)] == n)
            return false;
        std::uint32_t place = 0;
        for (std::uint32_t& first : places)
            place += std::exchange(first, place);
        for (std::size_t k = 0; k < n; ++k)
            to[places[digitIn(from[k], digit)]++] = from[k];
        return true;
    }

    static constexpr int countIn(int bits) { return (bits + width - 1) / width; }

private:
    static constexpr int mostDigits = countIn(windowWidth);
    static constexpr Word mask = (Word{1} << width) - 1;

    static std::size_t digitIn(Word word, int digit)
    {
        return static_cast<std::size_t>(word >> (windowWidth + digit * width) & mask);
    }

    std::uint32_t places_[mostDigits][mask + 1] = {}; // counts of the digits, then where the next of each goes
};

/// Sorts words by the keys that they stand for. The bits in which the keys differ are looked at in windows from the top:
/// a window is sorted digit by digit from its lowest, and what still ties is sorted by the next.
class BitSort
{
public:
    BitSort(const double* keys, Direction direction)
        : keys_(keys), reversal_(direction == Direction::descending ? signBit : Word{0})
    {
    }

    /// Makes and sorts the words of the first n keys.
    void sortAll(Word* words, Word* spare, std::size_t n) const
    {
        std::size_t inOrder = 1;
        while (inOrder < n && rank(inOrder - 1) <= rank(inOrder))
            ++inOrder;
        if (inOrder == n)
            std::iota(words, words + n, Word{0});
        else
            sortByWindow([](std::size_t k) { return k; }, words, spare, n);
    }

    /// Sorts words whose numbers ascend.
    void sort(Word* words, Word* spare, std::size_t n) const
    {
        if (n <= mostToInsert)
            insertEach(words, n);
        else
            sortByWindow([words](std::size_t k) { return numberIn(words[k]); }, words, spare, n);
    }

private:
    static constexpr std::size_t mostToInsert = 8;
    static constexpr std::size_t fewestToCount = fewestKeysToCount;
    static constexpr std::size_t manyWords = 8000;

    /// Descending, the sign is inverted: keys that tie then still keep the order of the input.
    Word rank(std::size_t number) const { return rankOf(keys_[number], reversal_); }

    struct Spread
    {
        Word lowest;
        Word range; // the highest rank less the lowest
        int common; // how many of the lowest bits agree in all
    };

    template <class Numbers>
    Spread spreadOf(Numbers numberAt, std::size_t n) const
    {
        const Word first = rank(numberAt(0));
        Word lowest = first;
        Word highest = first;
        Word varying = 0;
        for (std::size_t k = 1; k < n; ++k) {
            const Word key = rank(numberAt(k));
            lowest = std::min(lowest, key);
            highest = std::max(highest, key);
            varying |= key ^ first;
        }
        return {lowest, highest - lowest, std::countr_zero(varying)};
    }

    /// Stores the words of n numbers sorted. The numbers may be read from where the words are stored.
    template <class Numbers>
    void sortByWindow(Numbers numberAt, Word* words, Word* spare, std::size_t n) const
    {
        const Spread spread = spreadOf(numberAt, n);
        if (spread.range == 0)
            return;
        const int bits = static_cast<int>(std::bit_width(spread.range));
        const int start = std::max(spread.common, bits - windowWidth);
        const auto wordAt = [&](std::size_t k) {
            const Word number = numberAt(k);
            return (rank(number) - spread.lowest) >> start << windowWidth | number;
        };
        if (n < fewestToCount) {
            for (std::size_t k = 0; k < n; ++k)
                words[k] = wordAt(k);
            std::sort(words, words + n); // ties come in the order of their numbers
        } else if (n < manyWords)        // narrow digits cost more passes, wide ones more counters
            sortByDigits<8>(wordAt, bits - start, words, spare, n);
        else
            sortByDigits<11>(wordAt, bits - start, words, spare, n);
        if (start > spread.common)
            sortTies(words, spare, n);
    }

    template <int width, class Words>
    static void sortByDigits(Words wordAt, int bits, Word* words, Word* spare, std::size_t n)
    {
        using Passes = Digits<width>;
        Passes digits;
        const int count = Passes::countIn(bits);
        Word* from = count % 2 == 0 ? words : spare;
        Word* to = count % 2 == 0 ? spare : words;
        for (std::size_t k = 0; k < n; ++k) {
            const Word word = wordAt(k);
            from[k] = word;
            digits.count(word);
        }
        for (int digit = 0; digit < count; ++digit)
            if (digits.sort(digit, from, to, n))
                std::swap(from, to);
        if (from != words)
            std::copy_n(from, n, words);
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

    void insertEach(Word* words, std::size_t n) const
    {
        for (std::size_t k = 1; k < n; ++k) {
            const Word word = words[k];
            const Word own = rank(numberIn(word));
            std::size_t place = k;
            for (; place > 0 && own < rank(numberIn(words[place - 1])); --place)
                words[place] = words[place - 1];
            words[place] = word;
        }
    }

    const double* keys_;
    Word reversal_;
};

struct Census
{
    std::size_t missing = 0;
    bool anyNan = false;
    bool anyBelowMissing = false;
};

Census censusOf(const double* keys, std::size_t n)
{
    Census census;
    for (std::size_t k = 0; k < n; ++k) {
        census.missing += static_cast<std::size_t>(isMissing(keys[k]));
        census.anyNan |= keys[k] != keys[k];
        census.anyBelowMissing |= keys[k] < missingValue;
    }
    return census;
}

} // namespace

RowOrder orderByBits(const double* keys, std::size_t n, Direction direction, const Scratch& spare)
{
    if (n < fewestKeysToCount || !spare)
        return {};
    const Census census = censusOf(keys, n);
    RowOrder order = census.anyNan ? RowOrder() : RowOrder(n);
    if (!order)
        return order;
    Word* const words = order.words();
    Word* const spareWords = reinterpret_cast<Word*>(spare.data());
    const BitSort bitSort(keys, direction);
    if (census.missing == 0 || census.anyBelowMissing) {
        bitSort.sortAll(words, spareWords, n);
        return order;
    }
    // The missing keys tie, at one end of all. Sorted with the others they would leave these no bits in their window.
    const bool ascending = direction == Direction::ascending;
    Word* const others = words + (ascending ? census.missing : 0);
    Word* nextMissing = words + (ascending ? 0 : n - census.missing);
    Word* nextOther = others;
    for (std::size_t k = 0; k < n; ++k)
        *(isMissing(keys[k]) ? nextMissing++ : nextOther++) = k;
    bitSort.sort(others, spareWords, n - census.missing);
    return order;
}

RowOrder orderByBits(const int* keys, std::size_t n, Direction direction, const Scratch& spare)
{
    const Scratch widened(n);
    if (!widened)
        return {};
    std::copy_n(keys, n, widened.data());
    return orderByBits(widened.data(), n, direction, spare);
}

} // namespace vecmat
