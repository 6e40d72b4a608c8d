// Converting strings: a caller's cells into a table and back, against copies of the same texts.
#include "contest.h"
#include "texts.h"

#include <memory>
#include <optional>

namespace vecmat::bench {

namespace {

struct StringBorder
{
    int n;
    Texts texts;
    std::optional<Texts> copy;
    std::unique_ptr<Smatrix> table;
    BstrArray bstrs, out;

    explicit StringBorder(int cells) : n(cells), texts(drawnTexts(count(n), 1000, 130)), bstrs(texts), out(count(n)) {}
    Cells lengths(const std::wstring* text) const
    {
        Cells all;
        for (int i = 0; i < n; ++i)
            all.push_back(static_cast<double>(text[i].size()));
        return all;
    }
};

struct StringsIn : StringBorder
{
    using StringBorder::StringBorder;
    void enter(Contest& contest)
    {
        contest.reset([this] {
            table.reset();
            copy.reset();
        });
        contest.ours([this] { table = std::make_unique<Smatrix>(n, 1, bstrs.data(), 0, 0); },
                     [this] { return lengths(table->X); });
        contest.peer(
            "copies in std::wstring", sameBits, [this] { copy.emplace(texts); },
            [this] { return lengths(copy->data()); });
    }
};

struct StringsOut : StringBorder
{
    using StringBorder::StringBorder;
    void enter(Contest& contest)
    {
        table = tableOf(texts, n, 1);
        contest.reset([this] {
            out.clear();
            copy.reset();
        });
        contest.ours([this] { table->copyMatTo(out.data()); },
                     [this] {
                         const Smatrix readBack(n, 1, out.data(), 0, 0);
                         return lengths(readBack.X);
                     });
        contest.peer(
            "copies in std::wstring", sameBits, [this] { copy.emplace(texts); },
            [this] { return lengths(copy->data()); });
    }
};

} // namespace

void addStrings(Suite& suite)
{
    suite.add<StringsIn>("strings-in", {10'000, 100'000, 1'000'000});
    suite.add<StringsOut>("strings-out", {10'000, 100'000, 1'000'000});
}

} // namespace vecmat::bench
