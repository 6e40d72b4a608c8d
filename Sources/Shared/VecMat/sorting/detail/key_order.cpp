#include "key_order.h"

#include "../../base/detail/scratch.h"
#include "../../base/missing_value.h"

#include <algorithm>
#include <numeric>

namespace vecmat {

namespace {

/// In a word that represents a key, the lower half is the number of the key and the upper half a window of its rank.
using Word = std::uint64_t;
constexpr int halfWidth = 32;

constexpr std::uint32_t numberIn(Word word)
{
    return static_cast<std::uint32_t>(word);
}

/// An object rather than a function, so that it is inlined into the digit passes.
constexpr auto windowIn = [](Word word) { return static_cast<std::uint32_t>(word >> halfWidth); };

/// Sorts words by the ranks of the keys they represent. A window of the bits in which these differ is sorted digit by
/// digit; words that still tie are sorted by the next window.
template <class Number>
class WordSort
{
public:
    WordSort(const Number* keys, Direction direction) : keys_(keys), rankOf_(direction) {}

    /// Makes and sorts the words of the first n keys.
    void sortAll(Word* words, Word* spare, std::size_t n) const
    {
        if (n < fewestForDigits || ascend(n, [this](std::size_t k) { return rank(k); })) {
            std::iota(words, words + n, Word{0});
            if (n < fewestForDigits)
                sort(words, spare, n);
        } else
            sortByWindow([](std::size_t k) { return k; }, words, spare, n);
    }

    /// Sorts words whose numbers ascend. `spare` is not used for few, and may be null.
    void sort(Word* words, Word* spare, std::size_t n) const
    {
        if (n <= mostToInsert)
            insertEach(words, n);
        else
            sortByWindow([words](std::size_t k) { return numberIn(words[k]); }, words, spare, n);
    }

private:
    static constexpr std::size_t mostToInsert = 10;

    Rank rank(std::size_t number) const { return rankOf_(keys_[number]); }

    /// Stores n numbers sorted, as words. The numbers may be read from where the words are stored.
    template <class Numbers>
    void sortByWindow(Numbers numberAt, Word* words, Word* spare, std::size_t n) const
    {
        const Spread spread(n, [&](std::size_t k) { return rank(numberAt(k)); });
        if (spread.range == 0)
            return;
        const int start = spread.windowStart(n < fewestForDigits ? halfWidth : std::min(windowWidth(n), halfWidth));
        const int bits = spread.bits() - start;
        const bool endsInSpare = n >= fewestForDigits && passCount(n, bits) % 2 != 0;
        Word* const from = endsInSpare ? spare : words;
        for (std::size_t k = 0; k < n; ++k) {
            const Word number = numberAt(k);
            from[k] = (rank(number) - spread.lowest) >> start << halfWidth | number;
        }
        if (n < fewestForDigits)
            std::sort(words, words + n); // ties come in the order of their numbers
        else if (const Word* sorted = sortByDigits(from, endsInSpare ? words : spare, n, bits, windowIn);
                 sorted != words)
            std::copy_n(sorted, n, words);
        if (start > spread.common)
            forEachTie(
                words, n, [](Word left, Word right) { return windowIn(left) == windowIn(right); },
                [&](std::size_t first, std::size_t count) {
                    sort(words + first, n < fewestForDigits ? nullptr : spare + first, count);
                });
    }

    void insertEach(Word* words, std::size_t n) const
    {
        for (std::size_t k = 1; k < n; ++k) {
            const Word word = words[k];
            const Rank own = rank(numberIn(word));
            std::size_t place = k;
            for (; place > 0 && own < rank(numberIn(words[place - 1])); --place)
                words[place] = words[place - 1];
            words[place] = word;
        }
    }

    const Number* keys_;
    RankOf rankOf_;
};

/// An order yet to be found, if allocation succeeds.
RowOrder orderOver(std::size_t n, const void* spare)
{
    return n < fewestForDigits || spare != nullptr ? RowOrder(n) : RowOrder();
}

/// Puts the numbers of the missing keys, which tie, in order at the end where they belong. Returns the words of the
/// others.
Word* numberMissingApart(const double* keys, std::size_t n, std::size_t missing, Direction direction, Word* words)
{
    const bool ascending = direction == Direction::ascending;
    Word* const others = words + (ascending ? missing : 0);
    Word* nextMissing = words + (ascending ? 0 : n - missing);
    Word* nextOther = others;
    for (std::size_t k = 0; k < n; ++k)
        *(isMissing(keys[k]) ? nextMissing++ : nextOther++) = k;
    return others;
}

/// Moves the missing numbers to that end, the others in any order.
double* moveMissingApart(double* x, std::size_t n, std::size_t missing, Direction direction)
{
    double* const end = std::remove_if(x, x + n, isMissing);
    if (direction == Direction::descending) {
        std::fill(end, x + n, missingValue);
        return x;
    }
    std::copy_backward(x, end, x + n);
    std::fill_n(x, missing, missingValue);
    return x + missing;
}

/// Sorts numbers by their ranks, window by window like words.
template <class Number>
void sortByRank(Number* x, Number* spare, std::size_t n, RankOf rankOf)
{
    if (n < fewestForDigits) {
        std::sort(x, x + n, [rankOf](Number left, Number right) { return rankOf(left) < rankOf(right); });
        return;
    }
    const auto rankAt = [&](std::size_t k) { return rankOf(x[k]); };
    if (ascend(n, rankAt))
        return;
    const Spread spread(n, rankAt);
    const int start = spread.windowStart(windowWidth(n));
    const auto windowOf = [&](Number number) { return (rankOf(number) - spread.lowest) >> start; };
    if (const Number* sorted = sortByDigits(x, spare, n, spread.bits() - start, windowOf); sorted != x)
        std::copy_n(sorted, n, x);
    if (start > spread.common)
        forEachTie(
            x, n, [&](Number left, Number right) { return windowOf(left) == windowOf(right); },
            [&](std::size_t first, std::size_t count) { sortByRank(x + first, spare + first, count, rankOf); });
}

/// Calls `sort` with memory for n numbers if there are many, and with null for few. Returns false if allocation fails.
template <class Number, class Sort>
bool withSpare(std::size_t n, Sort sort)
{
    if (n < fewestForDigits) {
        sort(nullptr);
        return true;
    }
    const Scratch spare(n);
    if (spare)
        sort(reinterpret_cast<Number*>(spare.data()));
    return static_cast<bool>(spare);
}

} // namespace

RowOrder stableOrder(const double* keys, std::size_t n, Direction direction, void* spare)
{
    const SpecialValues special(keys, n);
    RowOrder order = special.anyNan ? RowOrder() : orderOver(n, spare);
    if (!order)
        return order;
    const WordSort wordSort(keys, direction);
    Word* const spareWords = static_cast<Word*>(spare);
    if (const std::size_t missing = special.missingApart(); missing > 0)
        wordSort.sort(numberMissingApart(keys, n, missing, direction, order.words()), spareWords, n - missing);
    else
        wordSort.sortAll(order.words(), spareWords, n);
    return order;
}

RowOrder stableOrder(const int* keys, std::size_t n, Direction direction, void* spare)
{
    RowOrder order = orderOver(n, spare);
    if (order)
        WordSort(keys, direction).sortAll(order.words(), static_cast<Word*>(spare), n);
    return order;
}

bool sortNumbers(double* x, std::size_t n, Direction direction)
{
    const SpecialValues special(x, n);
    if (special.anyNan || special.anyMinusZero)
        return false;
    return withSpare<double>(n, [&](double* spare) {
        const std::size_t missing = special.missingApart();
        double* const others = missing > 0 ? moveMissingApart(x, n, missing, direction) : x;
        sortByRank(others, spare, n - missing, RankOf(direction));
    });
}

bool sortNumbers(int* x, std::size_t n, Direction direction)
{
    return withSpare<int>(n, [&](int* spare) { sortByRank(x, spare, n, RankOf(direction)); });
}

} // namespace vecmat
