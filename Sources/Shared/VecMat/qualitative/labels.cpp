#include "labels.h"

#include "../access/cells.h"
#include "../base/detail/numbers.h"
#include "../base/detail/outgoing_texts.h"
#include "../elementary/detail/texts.h"
#include "../frame/detail/caller_text.h"
#include "../frame/detail/text_table.h"
#include "detail/text_calls.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

using namespace vecmat;

namespace {

/// The labels in a table of strings.
class TableLabels
{
public:
    using Text = HashedText;
    using Numbered = std::wstring;

    explicit TableLabels(std::wstring* labels) : labels_(labels) {}

    const std::wstring& at(int place) const { return labels_[place]; }
    Numbered numbered(int place, int number) const { return labels_[place] + std::to_wstring(number); }
    static Text textOf(const Numbered& label) { return label; }
    void set(int place, Numbered&& label) const { labels_[place] = std::move(label); }

private:
    std::wstring* labels_;
};

/// A caller's labels. A new one is a text like theirs, and has room of its own.
class CallerLabels
{
public:
    using Text = CallerText;
    using Numbered = std::vector<char>;

    explicit CallerLabels(wchar_t** labels) : labels_(labels) {}

    Bstr at(int place) const { return Bstr(labels_[place]); }
    Numbered numbered(int place, int number) const
    {
        const CallerText::Characters label = Text(at(place)).text();
        Numbered text(lengthBytes);
        text.insert(text.end(), label.data(), label.data() + label.size());
        for (const char digit : std::to_string(number))
            appendCharacter(text, static_cast<std::uint16_t>(digit));
        const auto bytes = static_cast<std::uint32_t>(text.size() - lengthBytes);
        std::memcpy(text.data(), &bytes, sizeof bytes);
        appendCharacter(text, 0);
        return text;
    }
    static Text textOf(const Numbered& label) { return bstrOf(label); }
    void set(int place, Numbered&& label)
    {
        labels_[place] = bstrOf(label).cell();
        own_.push_back(std::move(label)); // its characters stay where they are
    }

private:
    static constexpr std::size_t lengthBytes = sizeof(std::uint32_t);

    static void appendCharacter(Numbered& text, std::uint16_t character)
    {
        const char* const bytes = reinterpret_cast<const char*>(&character);
        text.insert(text.end(), bytes, bytes + sizeof character);
    }
    static Bstr bstrOf(const Numbered& label) { return Bstr(label.data() + lengthBytes); }

    wchar_t** labels_;
    std::vector<Numbered> own_;
};

/// The places, ascending, of each label still to come, updated as the labels change.
template <class Labels>
class LabelPlaces
{
public:
    static constexpr int none = -1;

    /// Only labels inside the table: those beyond are all empty and are not written.
    LabelPlaces(const Labels& labels, int n) : labels_(labels), next_(static_cast<std::size_t>(n), none)
    {
        for (int place = 0; place < n; ++place)
            append(place);
    }

    /// Removes the repeats of the label at `place` from the list, and returns the first of them. They are no longer
    /// found.
    int takeRepeatsOf(int place)
    {
        Chain& chain = chains_.value(chains_.find(labels_.at(place)));
        int first = chain.first;
        while (first != none && first <= place)
            first = after(first);
        chain = {};
        return first;
    }
    int after(int place) const { return next_[static_cast<std::size_t>(place)]; }

    bool occursAfter(int place, const typename Labels::Text& label) const
    {
        const int number = chains_.find(label);
        return number != Chains::none && chains_.value(number).last > place;
    }

    /// Records the label now at `place`, which occurs nowhere later.
    void append(int place)
    {
        next_[static_cast<std::size_t>(place)] = none;
        // The label that opens a chain is never rewritten, so the view of it stays valid.
        Chain& chain = chains_.value(chains_.add(labels_.at(place), {}).first);
        (chain.first == none ? chain.first : next_[static_cast<std::size_t>(chain.last)]) = place;
        chain.last = place;
    }

private:
    struct Chain
    {
        int first = none;
        int last = none;
    };
    using Chains = TextTable<Chain, typename Labels::Text>;

    const Labels& labels_;
    std::vector<int> next_;
    Chains chains_;
};

template <class Labels>
void numberRepeats(Labels& labels, int n)
{
    LabelPlaces<Labels> places(labels, n);
    for (int i = 0; i < n; ++i) {
        int counter = 1;
        for (int repeat = places.takeRepeatsOf(i); repeat != places.none;) {
            typename Labels::Numbered numbered;
            do
                numbered = labels.numbered(i, ++counter);
            while (places.occursAfter(repeat, Labels::textOf(numbered)));
            labels.set(repeat, std::move(numbered));
            const int next = places.after(repeat);
            places.append(repeat);
            repeat = next;
        }
    }
}

template <class Texts>
std::wstring joinedRow(const Texts& table, int row, int nCols, const std::wstring& separator)
{
    std::wstring joined;
    for (int j = 0; j < nCols; ++j) {
        if (j > 0)
            joined += separator;
        joined += wideText(table.at(row, j));
    }
    return joined;
}

} // namespace

void V_ReplaceDoubles(Smatrix* x, int n)
{
    if (n < 2)
        return;
    TableLabels labels(x->X);
    numberRepeats(labels, static_cast<int>(std::min(static_cast<unsigned>(n), x->nElems)));
}

void vecmat::replaceDoubles(wchar_t** x, int n, OutgoingTexts& texts, wchar_t** out)
{
    CallerLabels labels(x);
    numberRepeats(labels, std::max(n, 0));
    texts.add(x, countOf(n), out);
}

void M_MergeStringsByRow(Smatrix* table, int nRows, int nCols, std::wstring separator, Smatrix* out)
{
    for (int i = 0; i < nRows; ++i)
        linear(out).set(i, joinedRow(TableTexts(table), i, nCols, separator));
}

void vecmat::mergeStringsByRow(const CallerTexts& table, int nRows, int nCols, const std::wstring& separator,
                               OutgoingTexts& texts, wchar_t** out)
{
    for (int i = 0; i < nRows; ++i)
        texts.add(joinedRow(table, i, nCols, separator), out + i);
}
