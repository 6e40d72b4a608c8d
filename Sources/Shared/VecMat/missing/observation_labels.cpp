#include "observation_labels.h"

#include "../access/cells.h"

#include "../base/detail/numbers.h"
#include "../base/detail/outgoing_texts.h"
#include "../elementary/detail/texts.h"
#include "../frame/detail/caller_text.h"
#include "detail/text_calls.h"

#include <string>
#include <string_view>
#include <unordered_map>

using namespace vecmat;

namespace {

/// The labels of rows that a generated one could repeat: those that begin with the prefix.
class TakenLabels
{
public:
    template <class Texts>
    TakenLabels(const Texts& labels, int n, const std::wstring& prefix) : prefix_(prefix)
    {
        for (int i = 0; i < n; ++i)
            if (const std::wstring_view label = wideText(labels.at(i, 0)); mayBeGenerated(label))
                ++rows_[std::wstring(label)];
    }

    /// A row gives up its label. Others may have the same one.
    void release(std::wstring_view label)
    {
        if (mayBeGenerated(label))
            --rows_[std::wstring(label)];
    }

    bool contains(const std::wstring& label) const
    {
        const auto found = rows_.find(label);
        return found != rows_.end() && found->second > 0;
    }

private:
    bool mayBeGenerated(std::wstring_view label) const
    {
        return label.size() > prefix_.size() && label.substr(0, prefix_.size()) == prefix_;
    }

    const std::wstring& prefix_;
    std::unordered_map<std::wstring, int> rows_;
};

/// Calls put(i, label) for the new labels, row by row.
template <class Texts, class Put>
void replaceLabels(const Texts& labels, int n, short* mask, const std::wstring& prefix, Put put)
{
    TakenLabels taken(labels, n, prefix);
    int number = 0;
    for (int i = 0; i < n; ++i) {
        if (mask[i] == -1) {
            taken.release(wideText(labels.at(i, 0)));
            // No number comes twice, so labels given here need not be recorded.
            std::wstring label;
            do
                label = prefix + std::to_wstring(++number);
            while (taken.contains(label));
            put(i, label);
        }
        mask[i] = 0;
    }
}

} // namespace

void ReplaceMissingObsLabels(Smatrix*& labels, int n, short* mask, std::wstring prefix)
{
    replaceLabels(TableTexts(labels), n, mask, prefix,
                  [labels](int i, const std::wstring& label) { linear(labels).set(i, label); });
}

void vecmat::replaceMissingObsLabels(wchar_t** labels, int n, short* mask, const std::wstring& prefix,
                                     OutgoingTexts& texts)
{
    int next = 0;
    const auto keepUpTo = [&](int end) {
        texts.add(labels + next, countOf(end - next), labels + next);
        next = end;
    };
    replaceLabels(CallerTexts(labels, n, 1), n, mask, prefix, [&](int i, const std::wstring& label) {
        keepUpTo(i);
        texts.add(label, labels + i);
        next = i + 1;
    });
    keepUpTo(n);
}
