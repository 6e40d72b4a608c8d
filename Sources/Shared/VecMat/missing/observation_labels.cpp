#include "observation_labels.h"

#include "../access/cells.h"

#include <unordered_map>

using vecmat::linear;

namespace {

/// The labels of rows that a generated one could repeat: those that begin with the prefix.
class TakenLabels
{
public:
    TakenLabels(Smatrix* labels, int n, const std::wstring& prefix) : prefix_(prefix)
    {
        for (int i = 0; i < n; ++i)
            if (const std::wstring& label = linear(labels).get(i); mayBeGenerated(label))
                ++rows_[label];
    }

    /// A row gives up its label. Others may have the same one.
    void release(const std::wstring& label)
    {
        if (mayBeGenerated(label))
            --rows_[label];
    }

    bool contains(const std::wstring& label) const
    {
        const auto found = rows_.find(label);
        return found != rows_.end() && found->second > 0;
    }

private:
    bool mayBeGenerated(const std::wstring& label) const
    {
        return label.size() > prefix_.size() && label.compare(0, prefix_.size(), prefix_) == 0;
    }

    const std::wstring& prefix_;
    std::unordered_map<std::wstring, int> rows_;
};

} // namespace

void ReplaceMissingObsLabels(Smatrix*& labels, int n, short* mask, std::wstring prefix)
{
    TakenLabels taken(labels, n, prefix);
    int number = 0;
    for (int i = 0; i < n; ++i) {
        if (mask[i] == -1) {
            taken.release(linear(labels).get(i));
            // No number comes twice, so labels given here need not be recorded.
            std::wstring label;
            do
                label = prefix + std::to_wstring(++number);
            while (taken.contains(label));
            linear(labels).set(i, label);
        }
        mask[i] = 0;
    }
}
