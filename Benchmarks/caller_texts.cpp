// Questions about a caller's texts, asked where they lie, against the same over a table of strings made first; and a
// sort by all columns against one sort after another.
#include "contest.h"
#include "texts.h"

#include "missing/missing_counts.h"
#include "qualitative/distinct.h"
#include "qualitative/frequencies.h"
#include "qualitative/modes.h"
#include "sorting/sort.h"

#include <memory>

namespace vecmat::bench {

namespace {

struct CallersTexts
{
    int n;
    BstrArray bstrs;
    Cells weights, answer;
    matrix weightTable;

    explicit CallersTexts(int cells)
        : n(cells), bstrs(drawnTexts(count(n), 1000, 140)), weights(RandomData(141).uniforms(count(n))), answer(1),
          weightTable(n, 1, weights.data(), true)
    {
    }
    template <class Flat, class OverTable>
    void ask(Contest& contest, Flat flat, OverTable overTable)
    {
        contest.outputs({&answer});
        contest.ours([this, flat] { answer[0] = flat(bstrs.data()); });
        contest.peer("a table first", sameBits, [this, overTable] {
            Smatrix table(n, 1, bstrs.data(), 0, 0);
            answer[0] = overTable(&table);
        });
    }
};

struct Frequency : CallersTexts
{
    using CallersTexts::CallersTexts;
    const std::wstring value = categoryNames(1).front();
    void enter(Contest& contest)
    {
        ask(
            contest, [this](wchar_t** x) { return VB_V_FreqStr(x, n, weights.data(), value.c_str()); },
            [this](Smatrix* x) { return V_FreqStr(x, n, &weightTable, value); });
    }
};

struct Mode : CallersTexts
{
    using CallersTexts::CallersTexts;
    void enter(Contest& contest)
    {
        ask(
            contest,
            [this](wchar_t** x) {
                wchar_t* const mode = VB_V_Mode(x, n, 0, weights.data());
                const std::wstring text = CW162W32(mode);
                SysFreeString2(mode);
                return static_cast<double>(text.back());
            },
            [this](Smatrix* x) { return static_cast<double>(V_Mode(x, n, &weightTable).back()); });
    }
};

struct Distinct : CallersTexts
{
    using CallersTexts::CallersTexts;
    void enter(Contest& contest)
    {
        ask(
            contest, [this](wchar_t** x) { return Cpp_V_NbDistinctStr(x, n); },
            [this](Smatrix* x) { return V_NbDistinct(x, n); });
    }
};

struct Empty : CallersTexts
{
    using CallersTexts::CallersTexts;
    void enter(Contest& contest)
    {
        ask(
            contest, [this](wchar_t** x) { return VB_V_NbMissingStr(x, n); },
            [this](Smatrix* x) { return V_NbMissing(x, n); });
    }
};

struct SortByAll
{
    static constexpr int cols = 10;
    int n;
    Cells drawn, x;

    explicit SortByAll(int rows) : n(rows), drawn(RandomData(142).wholes(count(n, cols), 0, 4)), x(drawn) {}
    void enter(Contest& contest)
    {
        contest.outputs({&x});
        contest.reset([this] { x = drawn; });
        contest.ours([this] { VB_SortMatrixSeqQDbl(x.data(), n, cols, -1); });
        contest.peer("column after column", sameBits, [this] {
            for (int j = cols; j >= 1; --j)
                VB_SortQMatrixCol(x.data(), n, cols, j, 1, n, 0);
        });
    }
};

} // namespace

void addCallersTexts(Suite& suite)
{
    suite.add<Frequency>("texts-frequency", {10'000, 100'000, 1'000'000});
    suite.add<Mode>("texts-mode", {10'000, 100'000, 1'000'000});
    suite.add<Distinct>("texts-distinct", {10'000, 100'000, 1'000'000});
    suite.add<Empty>("texts-empty", {10'000, 100'000, 1'000'000});
    suite.add<SortByAll>("sort-columns", {1'000, 10'000, 100'000});
}

} // namespace vecmat::bench
