// Lists of categories, and finding a text in one without scanning it. Internal to the library.
//
// In a table of categories row j is the list of variable j, and its places are the columns. Places are 0-based here.
#pragma once

#include "../../Smatrix.h"
#include "../../access/cells.h"
#include "../../elementary/detail/texts.h"
#include "../../frame/detail/text_table.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <vector>

namespace vecmat {

/// Which place counts for a text that a list contains more than once.
enum class Repeated { firstCounts, lastCounts };

/// The place of each text of a list. Only views are kept: the texts must stay in place.
template <class Text>
class TextPlaces
{
public:
    static constexpr int none = -1;

    int find(const Text& text) const
    {
        const int number = places_.find(text);
        return number == Places::none ? none : places_.value(number);
    }
    void add(const Text& text, int place, Repeated repeated)
    {
        const auto [number, isNew] = places_.add(text, place);
        if (!isNew && repeated == Repeated::lastCounts)
            places_.value(number) = place;
    }

    const auto& table() const { return places_; }

private:
    using Places = TextTable<int, Text>;

    Places places_;
};

/// How many of `count` places a loop over a list has to visit: those beyond the table all read alike, so the first of
/// them represents the rest. A table may be null if there is no place.
template <class Table>
int placesToVisit(Table* table, int count)
{
    return count < 1 ? 0 : std::min(count, std::max(table->nCols, 0) + 1);
}
template <class Texts>
int placesToVisit(const Texts& categories, int count)
{
    return count < 1 ? 0 : std::min(count, std::max(categories.columns(), 0) + 1);
}

/// The places of the first `count` categories of a variable, read with checks.
template <class Texts>
auto placesOf(const Texts& categories, int variable, int count, Repeated repeated)
{
    TextPlaces<typename Texts::Text> places;
    const int visited = placesToVisit(categories, count);
    for (int place = 0; place < visited; ++place)
        places.add(categories.at(variable, place), place, repeated);
    return places;
}

/// Categories in order of first appearance, each with the sum of its weights. Keeps views of the texts it is given.
template <class Text>
class WeightedCategories
{
    using Known = TextTable<double, Text>;
    using View = typename Known::View;

public:
    static constexpr int unlimited = std::numeric_limits<int>::max();

    /// Once the list has reached its capacity, a new text is appended afresh each time it occurs, since it cannot be
    /// found again there.
    explicit WeightedCategories(int capacity) : capacity_(capacity) {}

    void add(const Text& text, double weight)
    {
        if (known_.size() < capacity_) {
            const auto [place, isNew] = known_.add(text, weight);
            if (!isNew)
                known_.value(place) += weight;
        } else if (const int place = known_.find(text); place != Known::none) {
            known_.value(place) += weight;
        } else {
            beyond_.push_back({text.text(), weight});
        }
    }
    void clear()
    {
        known_.clear();
        beyond_.clear();
    }

    int size() const { return known_.size() + static_cast<int>(beyond_.size()); }
    View text(int place) const { return place < known_.size() ? known_.text(place) : beyondAt(place).text; }
    const auto& table() const { return known_; }
    double weight(int place) const { return place < known_.size() ? known_.value(place) : beyondAt(place).weight; }

private:
    struct Entry
    {
        View text;
        double weight;
    };

    const Entry& beyondAt(int place) const { return beyond_[static_cast<std::size_t>(place - known_.size())]; }

    int capacity_;
    Known known_;
    std::vector<Entry> beyond_; // the capacity
};

/// The place of the largest weight. A later one must exceed it, so the first of equals wins, as does a NaN that comes
/// first.
template <class WeightAt>
int heaviest(int count, WeightAt weightAt)
{
    int best = 0;
    for (int place = 1; place < count; ++place)
        if (weightAt(place) > weightAt(best))
            best = place;
    return best;
}

} // namespace vecmat
