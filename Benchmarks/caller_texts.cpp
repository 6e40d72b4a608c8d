// Some of the flat forms that take strings at growing sizes; and a sort by all columns against one sort after another.
#include "text_forms.h"

#include "sorting/sort.h"

#include <string_view>

namespace vecmat::bench {

namespace {

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
    constexpr std::pair<const char*, std::string_view> growing[] = {{"texts-frequency", "VB_V_FreqStr"},
                                                                    {"texts-mode", "VB_V_Mode"},
                                                                    {"texts-distinct", "Cpp_V_NbDistinctStr"},
                                                                    {"texts-empty", "VB_V_NbMissingStr"}};
    for (const TextForm& form : formsThatCompare())
        for (const auto& [workload, name] : growing)
            if (form.name == name)
                suite.add(workload, {10'000, 100'000, 1'000'000},
                          [form](int cells) { return stageOf(form, cells / TextData::cols); });
    suite.add<SortByAll>("sort-columns", {1'000, 10'000, 100'000});
}

} // namespace vecmat::bench
