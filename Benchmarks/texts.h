// Tables of strings as the library has them, and as a macro caller has them.
#pragma once

#include "contest.h"

#include "CompanionRuntime/CompanionRuntime.h"
#include "Smatrix.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace vecmat::bench {

inline Texts categoryNames(int categories)
{
    Texts names;
    for (int k = 0; k < categories; ++k)
        names.push_back(L"category " + std::to_wstring(k));
    return names;
}

/// Cells drawn from the given number of categories.
inline Texts drawnTexts(std::size_t cells, int categories, std::uint64_t seed)
{
    const Texts names = categoryNames(categories);
    RandomData random(seed);
    Texts texts(cells);
    for (std::wstring& text : texts)
        text = names[count(random.integer(0, categories - 1))];
    return texts;
}

inline std::unique_ptr<Smatrix> tableOf(const Texts& texts, int rows, int cols)
{
    auto table = std::make_unique<Smatrix>(rows, cols);
    std::copy(texts.begin(), texts.end(), table->X);
    return table;
}

/// An array of BSTRs, which it frees.
class BstrArray
{
public:
    explicit BstrArray(const Texts& texts)
    {
        for (const std::wstring& text : texts)
            strings_.push_back(SysAllocString2(text.c_str()));
    }
    explicit BstrArray(std::size_t cells) : strings_(cells, nullptr) {}
    BstrArray(const BstrArray&) = delete;
    BstrArray& operator=(const BstrArray&) = delete;
    ~BstrArray() { clear(); }

    wchar_t** data() { return strings_.data(); }
    void clear()
    {
        for (wchar_t*& string : strings_) {
            if (string != nullptr)
                SysFreeString2(string);
            string = nullptr;
        }
    }

private:
    std::vector<wchar_t*> strings_;
};

} // namespace vecmat::bench
