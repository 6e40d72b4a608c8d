// A stable merge sort whose comparisons, and the order in which they are made, are settled here: where keys are
// unordered, a NaN for one, the result depends on them, and standard libraries differ.
//
// Runs of a few elements are sorted by insertion, then each half of the range is merged from run to run, to and fro
// between the range and a buffer, and the halves are merged at last from the shorter side.
#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <memory>
#include <new>
#include <utility>

namespace vecmat {

template <class Element>
class StableMerge
{
public:
    /// Sorts [first, last). `buffer` has room for the larger half.
    static void sort(Element* first, Element* last, Element* buffer)
    {
        Element* const middle = first + (last - first + 1) / 2;
        sortHalf(first, middle, buffer);
        sortHalf(middle, last, buffer);
        if (middle - first > last - middle)
            mergeBackwards(first, middle, last, buffer);
        else
            mergeForwards(first, middle, last, buffer);
    }

private:
    static constexpr std::ptrdiff_t runLength = 7;

    /// Sorts [first, last) by insertion.
    static void insertEach(Element* first, Element* last)
    {
        for (Element* next = first; next != last; ++next) {
            Element inserted = std::move(*next);
            Element* place = next;
            if (next != first && inserted < *first) {
                std::move_backward(first, next, next + 1);
                place = first;
            } else {
                for (; place != first && inserted < place[-1]; --place)
                    *place = std::move(place[-1]);
            }
            *place = std::move(inserted);
        }
    }

    static void sortHalf(Element* first, Element* last, Element* buffer)
    {
        const std::ptrdiff_t count = last - first;
        for (std::ptrdiff_t begin = 0; begin < count; begin += runLength)
            insertEach(first + begin, first + std::min(begin + runLength, count));
        for (std::ptrdiff_t length = runLength; length < count; length *= 4) {
            mergeRuns(first, last, buffer, length);
            mergeRuns(buffer, buffer + count, first, 2 * length);
        }
    }

    /// Merges each two neighbouring runs of the given length into `to`. A last run without a neighbour is copied.
    static void mergeRuns(Element* first, Element* last, Element* to, std::ptrdiff_t length)
    {
        while (last - first > 0) {
            Element* const middle = first + std::min(length, last - first);
            Element* const end = middle + std::min(length, last - middle);
            to = mergeInto(first, middle, middle, end, to);
            first = end;
        }
    }

    /// Of equal elements those of the first range come first.
    static Element* mergeInto(Element* first1, Element* last1, Element* first2, Element* last2, Element* to)
    {
        while (first1 != last1 && first2 != last2) {
            if (*first2 < *first1)
                *to++ = std::move(*first2++);
            else
                *to++ = std::move(*first1++);
        }
        return std::move(first2, last2, std::move(first1, last1, to));
    }

    static void mergeForwards(Element* first, Element* middle, Element* last, Element* buffer)
    {
        Element* left = buffer;
        Element* const leftEnd = std::move(first, middle, buffer);
        while (left != leftEnd && middle != last) {
            if (*middle < *left)
                *first++ = std::move(*middle++);
            else
                *first++ = std::move(*left++);
        }
        std::move(left, leftEnd, first); // what is left of the right half is in place
    }

    static void mergeBackwards(Element* first, Element* middle, Element* last, Element* buffer)
    {
        Element* right = std::move(middle, last, buffer);
        while (right != buffer && middle != first) {
            if (right[-1] < middle[-1])
                *--last = std::move(*--middle);
            else
                *--last = std::move(*--right);
        }
        std::move_backward(buffer, right, last); // what is left of the left half is in place
    }
};

/// Sorts the elements and keeps the order of equal ones. Without memory for a buffer the standard library's sort takes
/// over, whose order of unordered keys may be another one.
template <class Elements>
void mergeStably(Elements& elements)
{
    using Element = typename Elements::value_type;
    if (elements.size() < 2)
        return;
    const std::unique_ptr<Element[]> buffer(new (std::nothrow) Element[(elements.size() + 1) / 2]);
    if (buffer == nullptr)
        std::stable_sort(elements.begin(), elements.end());
    else
        StableMerge<Element>::sort(elements.data(), elements.data() + elements.size(), buffer.get());
}

} // namespace vecmat
