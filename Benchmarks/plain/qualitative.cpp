#include "plain.h"
#include "table.h"

#include "qualitative/group_reference.h"

#include <algorithm>
#include <cstddef>

namespace vecmat::bench::plain {

int groupMeans(const double* data, int n, int cols, double* out)
{
    constexpr int mean = 1;
    const std::ptrdiff_t cells = std::ptrdiff_t{n} * cols;
    const test::PlainTable source{n, Cells(data, data + cells)};
    test::PlainTable result{n, Cells(source.cells.size())};
    const int groups = test::plainGroups(source, n, cols, std::vector<int>(static_cast<std::size_t>(cols), 0), 1, mean,
                                         result, nullptr);
    std::copy(result.cells.begin(), result.cells.end(), out);
    return groups;
}

void categories(const std::wstring* column, int n, const double* weights, Texts& texts, Cells& sums)
{
    texts.clear();
    sums.clear();
    for (int i = 0; i < n; ++i) {
        if (column[i].empty())
            continue;
        std::size_t place = 0;
        while (place < texts.size() && texts[place] != column[i])
            ++place;
        if (place == texts.size()) {
            texts.push_back(column[i]);
            sums.push_back(0.0);
        }
        sums[place] += weights[i];
    }
}

void disjunctiveTable(const std::wstring* table, int n, int cols, const Texts& categories, double* out)
{
    const int each = static_cast<int>(categories.size());
    const Table result{out, n};
    std::fill(out, out + std::ptrdiff_t{n} * cols * each, 0.0);
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < cols; ++j) {
            const std::wstring& text = table[i + std::ptrdiff_t{n} * j];
            for (int place = 0; place < each; ++place) {
                if (text.empty())
                    result(i, j * each + place) = test::M;
                else if (text == categories[static_cast<std::size_t>(place)])
                    result(i, j * each + place) = 1.0;
            }
        }
}

} // namespace vecmat::bench::plain
