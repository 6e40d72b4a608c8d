#include "text_forms.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <numeric>
#include <string_view>

namespace vecmat::bench {

namespace {

Texts textsWithGaps(int n, bool allDiffer)
{
    Texts texts = allDiffer ? categoryNames(n) : drawnTexts(count(n), TextData::categories, 150);
    RandomData random(151);
    if (allDiffer)
        for (int k = n - 1; k > 0; --k)
            std::swap(texts[count(k)], texts[count(random.integer(0, k))]);
    for (std::wstring& text : texts)
        if (random.chance(0.02))
            text.clear();
    return texts;
}

Texts forEachColumn(const Texts& names)
{
    Texts all;
    for (const std::wstring& name : names)
        all.insert(all.end(), TextData::cols, name);
    return all;
}

/// A number that differs where the text does, for all that a benchmark is likely to see.
double numberOf(const wchar_t* bstr)
{
    std::uint64_t hash = 14695981039346656037U;
    if (bstr != nullptr)
        for (const wchar_t* character = CW162W32(bstr); *character != L'\0'; ++character)
            hash = (hash ^ static_cast<std::uint64_t>(*character)) * 1099511628211U;
    return static_cast<double>(hash >> 11); // 53 bits
}

class TextContest
{
public:
    TextContest(int rows, const TextForm& form) : form_(form), data_(rows, form.allDiffer) {}
    void enter(Contest& contest)
    {
        contest.reset([this] { data_.restore(); });
        contest.ours([this] { form_.flat(data_); }, [this] { return data_.changed(); });
        contest.peer(
            "a table first", sameBits, [this] { form_.overTable(data_); }, [this] { return data_.changed(); });
    }

private:
    TextForm form_;
    TextData data_;
};

} // namespace

TextData::TextData(int n, bool allDiffer)
    : rows(n), cells(n * cols), texts(textsWithGaps(cells, allDiffer)), callers(texts),
      x(callers.data(), callers.data() + cells), out(2 * count(cells), nullptr),
      drawn(RandomData(152).withMissing(RandomData(153).normals(2 * count(n)), 0.05)), numbers(drawn),
      key(RandomData(154).wholes(count(n), 0, 1)), order(count(n)), ids(count(n)),
      weights(RandomData(155).uniforms(count(cells))), frequencies(RandomData(156).wholes(count(n), 0, 2)),
      mask(RandomData(157).mask(count(n), 0.02)), flags(count(n)), allFlags(count(cells)), counts(cols, categories),
      names(categoryNames(categories)), namesByColumn(forEachColumn(categoryNames(categories)))
{
    own_.insert(x.begin(), x.end());
    std::iota(order.rbegin(), order.rend(), 1.0);
    restore();
}

void TextData::restore()
{
    for (wchar_t* const text : x) // the caller's own, in any order, or new ones
        if (own_.count(text) == 0)
            SysFreeString2(text);
    std::copy_n(callers.data(), cells, x.begin());
    for (wchar_t*& text : out)
        SysFreeString2(std::exchange(text, nullptr));
    numbers = drawn;
    std::iota(ids.begin(), ids.end(), 1.0);
    counted.assign(count(cells), 0.0);
    std::fill(flags.begin(), flags.end(), short{0});
    std::fill(allFlags.begin(), allFlags.end(), short{0});
    std::fill(counts.begin(), counts.end(), categories);
    answer.clear();
    seed = 7;
}

Cells TextData::changed() const
{
    Cells all = answer;
    for (const auto* texts : {&x, &out})
        for (const wchar_t* text : *texts)
            all.push_back(numberOf(text));
    for (const Cells* cells : {&numbers, &ids, &counted})
        all.insert(all.end(), cells->begin(), cells->end());
    all.insert(all.end(), flags.begin(), flags.end());
    all.insert(all.end(), allFlags.begin(), allFlags.end());
    all.insert(all.end(), counts.begin(), counts.end());
    return all;
}

std::unique_ptr<Stage> stageOf(const TextForm& form, int rows)
{
    return Stage::of<TextContest>(rows, form);
}

void addTextForms(Suite& suite)
{
    const auto add = [&suite](const TextForm& form, const std::string& name) {
        suite.add("form:" + name, {form.rows}, [form](int rows) { return stageOf(form, rows); }).brief = true;
    };
    constexpr std::string_view alsoDiffering[] = {"VB_SortQVectorStr", "VB_SortQMatrixColStr", "Cpp_V_NbDistinctStr",
                                                  "VB_V_ReplaceDoubles"};
    for (const auto forms : {formsThatMove, formsThatSort, formsThatCompare, formsThatFill, formsThatSample})
        for (TextForm form : forms()) {
            add(form, form.name);
            if (std::find(std::begin(alsoDiffering), std::end(alsoDiffering), form.name) == std::end(alsoDiffering))
                continue;
            form.allDiffer = true;
            add(form, form.name + std::string(", all different"));
        }
}

} // namespace vecmat::bench
