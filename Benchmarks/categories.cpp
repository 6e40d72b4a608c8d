// Category lists and disjunctive tables, over tables of strings: without converting the caller's strings. The flat
// exports beside them show the cost including the conversion.
#include "contest.h"
#include "plain/plain.h"
#include "texts.h"

#include "matrix.h"
#include "matrixInt.h"
#include "qualitative/categories.h"
#include "qualitative/disjunctive_tables.h"

#include <memory>
#include <unordered_map>

namespace vecmat::bench {

namespace {

template <int categories>
struct CategoryList
{
    int n;
    Texts texts;
    std::unique_ptr<Smatrix> table;
    matrix weights;
    Smatrix* modes = nullptr;
    matrix* modeWeights = nullptr;
    matrixInt* counts = nullptr;
    Smatrix* names = nullptr;
    matrix* sums = nullptr;
    int total = 0;
    Texts plainNames;
    Cells plainSums;
    BstrArray bstrs, flatModes, flatNames;
    Cells flatModeWeights, flatSums;
    std::vector<int> flatCounts;

    explicit CategoryList(int rows)
        : n(rows), texts(drawnTexts(count(n), categories, 100)), table(tableOf(texts, n, 1)), weights(n, 1, 1.0),
          bstrs(texts), flatModes(1), flatNames(count(n)), flatModeWeights(1), flatSums(count(n)), flatCounts(1)
    {
    }
    ~CategoryList()
    {
        delete modes;
        delete modeWeights;
        delete counts;
        delete names;
        delete sums;
    }
    void enter(Contest& contest)
    {
        contest.share("x", texts);
        contest.reset([this] {
            flatModes.clear();
            flatNames.clear();
        });
        contest.ours(
            [this] { M_InfoQuali(table.get(), n, 1, modes, modeWeights, counts, names, sums, &weights, &total, 0); },
            [this] { return Cells(sums->X, sums->X + counts->X[0]); });
        // One comparison for each category and row: too slow to wait for beyond this many.
        if (categories <= 1000)
            contest.plain([this] { plain::categories(table->X, n, weights.X, plainNames, plainSums); },
                          [this] { return agreement(); });
        contest.peer(
            "std::unordered_map", sameBits, [this] { byHash(); }, [this] { return plainSums; });
        contest.oursToo(
            "VB_M_InfoQuali, strings converted",
            [this] {
                VB_M_InfoQuali(bstrs.data(), n, 1, flatModes.data(), flatModeWeights.data(), &total, flatCounts.data(),
                               flatNames.data(), flatSums.data(), 0, weights.X, 0);
            },
            [this] { return Cells(flatSums.begin(), flatSums.begin() + flatCounts[0]); });
    }

private:
    Cells agreement() const { return std::equal(plainNames.begin(), plainNames.end(), names->X) ? plainSums : Cells{}; }
    void byHash()
    {
        std::unordered_map<std::wstring, std::size_t> places;
        plainSums.clear();
        for (int i = 0; i < n; ++i) {
            const auto [entry, isNew] = places.try_emplace(table->X[i], plainSums.size());
            if (isNew)
                plainSums.push_back(0.0);
            plainSums[entry->second] += weights.X[i];
        }
    }
};

struct DisjunctiveTable
{
    static constexpr int cols = 5;
    static constexpr int each = 10;
    int n;
    Texts texts, names;
    std::unique_ptr<Smatrix> table, categories;
    matrixInt counts;
    matrix* coded = nullptr;
    Cells out;
    BstrArray bstrs, flatCategories;

    explicit DisjunctiveTable(int rows)
        : n(rows), texts(drawnTexts(count(n, cols), each, 101)), names(categoryNames(each)),
          table(tableOf(texts, n, cols)), categories(std::make_unique<Smatrix>(cols, each)), counts(cols, 1, each),
          out(count(n, cols * each)), bstrs(texts), flatCategories(repeated())
    {
        const Texts all = repeated();
        std::copy(all.begin(), all.end(), categories->X);
    }
    ~DisjunctiveTable() { delete coded; }

    /// The categories of each variable: row j of a table.
    Texts repeated() const
    {
        Texts all;
        for (const std::wstring& name : names)
            all.insert(all.end(), cols, name);
        return all;
    }
    void enter(Contest& contest)
    {
        contest.outputs({&out});
        contest.share("x", texts);
        contest.ours(
            [this] {
                BuildDisjunctiveTable(table.get(), n, cols, cols * each, &counts, categories.get(), nullptr, coded, 0,
                                      0);
            },
            [this] { return Cells(coded->X, coded->X + coded->nElems); });
        contest.plain([this] { plain::disjunctiveTable(table->X, n, cols, names, out.data()); });
        contest.oursToo("VB_BuildDisjunctiveTable, strings converted", [this] {
            VB_BuildDisjunctiveTable(bstrs.data(), n, cols, cols * each, counts.X, flatCategories.data(), nullptr, each,
                                     out.data(), 0, 0);
        });
    }
};

} // namespace

void addCategories(Suite& suite)
{
    suite.add<CategoryList<10>>("categories-10", {10'000, 100'000, 1'000'000});
    suite.add<CategoryList<1000>>("categories-1000", {10'000, 100'000, 1'000'000});
    suite.add<CategoryList<100'000>>("categories-100000", {10'000, 100'000, 1'000'000});
    suite.add<DisjunctiveTable>("disjunctive-table", {1'000, 10'000, 100'000});
}

} // namespace vecmat::bench
