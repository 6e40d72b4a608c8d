// Aggregates of groups of rows.
#include "contest.h"
#include "plain/plain.h"

#include "qualitative/group_by.h"

#include <unordered_map>

namespace vecmat::bench {

namespace {

constexpr int keyAndValue = 2;
constexpr int groups = 1000;

struct GroupMeans
{
    int n;
    Cells data, out;
    std::vector<int> numeric;
    int found = 0;

    explicit GroupMeans(int rows)
        : n(rows), data(RandomData(90).wholes(count(n), 0, groups - 1)), numeric(count(keyAndValue), 0)
    {
        const Cells values = RandomData(91).normals(count(n));
        data.insert(data.end(), values.begin(), values.end());
        out.resize(data.size());
    }
    /// The group means, in the order of the keys.
    Cells means() const
    {
        const auto start = out.begin() + n;
        return Cells(start, start + found);
    }
    void enter(Contest& contest)
    {
        constexpr int keyColumn = 1;
        constexpr int mean = 1;
        contest.outputs({&out});
        contest.share("data", data);
        contest.ours(
            [this] { VB_M_GroupBy(data.data(), n, keyAndValue, numeric.data(), keyColumn, mean, &found, out.data()); },
            [this] { return means(); });
        contest.plain([this] { found = plain::groupMeans(data.data(), n, keyAndValue, out.data()); },
                      [this] { return agreement(); });
        contest.peer(
            "std::unordered_map", 1e-12, [this] { byHash(); }, [this] { return means(); });
    }

private:
    /// The means, provided the whole result is bit-identical to the library's.
    Cells agreement()
    {
        const Cells itsOut = out;
        VB_M_GroupBy(data.data(), n, keyAndValue, numeric.data(), 1, 1, &found, out.data());
        return out == itsOut ? means() : Cells{};
    }
    void byHash()
    {
        struct Sum
        {
            double sum = 0.0;
            int rows = 0;
        };
        std::unordered_map<double, Sum> sums;
        for (int i = 0; i < n; ++i) {
            Sum& sum = sums[data[count(i)]];
            sum.sum += data[count(n) + count(i)];
            ++sum.rows;
        }
        found = 0;
        for (int key = 0; key < groups; ++key)
            if (const auto entry = sums.find(key); entry != sums.end())
                out[count(n) + count(found++)] = entry->second.sum / entry->second.rows;
    }
};

} // namespace

void addGrouping(Suite& suite)
{
    suite.add<GroupMeans>("group-means", {10'000, 100'000, 1'000'000});
}

} // namespace vecmat::bench
