#include "labels.h"

#include "../access/cells.h"
#include "../elementary/detail/text_table.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

using namespace vecmat;

namespace {

/// The places, ascending, of each label still to come, updated as the labels change.
class LabelPlaces
{
public:
    static constexpr int none = -1;

    /// Only labels inside the table: those beyond are all empty and are not written.
    LabelPlaces(const std::wstring* labels, int n) : labels_(labels), next_(static_cast<std::size_t>(n), none)
    {
        for (int place = 0; place < n; ++place)
            append(place);
    }

    /// Removes the repeats of the label at `place` from the list, and returns the first of them. They are no longer
    /// found.
    int takeRepeatsOf(int place)
    {
        Chain& chain = chains_.value(chains_.find(labels_[place]));
        int first = chain.first;
        while (first != none && first <= place)
            first = after(first);
        chain = {};
        return first;
    }
    int after(int place) const { return next_[static_cast<std::size_t>(place)]; }

    bool occursAfter(int place, const std::wstring& label) const
    {
        const int number = chains_.find(label);
        return number != Chains::none && chains_.value(number).last > place;
    }

    /// Records the label now at `place`, which occurs nowhere later.
    void append(int place)
    {
        next_[static_cast<std::size_t>(place)] = none;
        // The label that opens a chain is never rewritten, so the view of it stays valid.
        Chain& chain = chains_.value(chains_.add(labels_[place], {}).first);
        (chain.first == none ? chain.first : next_[static_cast<std::size_t>(chain.last)]) = place;
        chain.last = place;
    }

private:
    struct Chain
    {
        int first = none;
        int last = none;
    };
    using Chains = TextTable<Chain>;

    const std::wstring* labels_;
    std::vector<int> next_;
    Chains chains_;
};

} // namespace

void V_ReplaceDoubles(Smatrix* x, int n)
{
    if (n < 2)
        return;
    const int inside = static_cast<int>(std::min(static_cast<unsigned>(n), x->nElems));
    LabelPlaces places(x->X, inside);
    for (int i = 0; i < inside; ++i) {
        int counter = 1;
        for (int repeat = places.takeRepeatsOf(i); repeat != LabelPlaces::none;) {
            std::wstring numbered;
            do
                numbered = x->X[i] + std::to_wstring(++counter);
            while (places.occursAfter(repeat, numbered));
            x->X[repeat] = std::move(numbered);
            const int next = places.after(repeat);
            places.append(repeat);
            repeat = next;
        }
    }
}

void M_MergeStringsByRow(Smatrix* table, int nRows, int nCols, std::wstring separator, Smatrix* out)
{
    for (int i = 0; i < nRows; ++i) {
        std::wstring joined;
        for (int j = 0; j < nCols; ++j) {
            if (j > 0)
                joined += separator;
            joined += cells(table).get(i, j);
        }
        linear(out).set(i, joined);
    }
}
