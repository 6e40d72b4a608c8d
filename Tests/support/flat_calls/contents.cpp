#include "support/flat_calls/contents.h"

#include "support/flat_calls/anything.h"

#include "support/flat_calls/scalars.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <limits>

namespace vecmat::flat {

namespace {

constexpr double missing = -0x1.fffffffffffe2p+1023;

double special(Steps& steps)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double numbers[] = {-0.0,     0.0,        infinity, -infinity, std::numeric_limits<double>::quiet_NaN(),
                                  0x1p1000, -0x1p-1040, missing,  -missing};
    return numbers[steps.below(std::size(numbers))];
}

double dataCell(Steps& steps, Style style)
{
    switch (style) {
    case Style::gaps:
        return steps.onceIn(5) ? missing : steps.between(-200, 200) / 8.0;
    case Style::ties:
        return steps.between(-2, 2) / 2.0;
    case Style::constant:
        return steps.onceIn(12) ? missing : 2.5;
    case Style::special:
        return steps.onceIn(4) ? special(steps) : steps.between(-40, 40) / 8.0;
    case Style::any:
        return anyNumber(steps);
    case Style::digits:
        return steps.onceIn(12) ? missing : 30.0 * steps.withAllDigits();
    default:
        return steps.between(-4000, 4000) / 64.0;
    }
}

double weight(Steps& steps, Style style)
{
    if (style == Style::constant)
        return 1.0;
    if (style == Style::digits)
        return 1.5 + steps.withAllDigits();
    if (style == Style::special && steps.onceIn(5))
        return special(steps);
    if (style == Style::any && steps.onceIn(3))
        return anyNumber(steps);
    return steps.onceIn(6) ? 0.0 : steps.between(1, 12) / 4.0;
}

/// A symmetric table of whole numbers with a heavy diagonal; other styles take the weight off it, or leave gaps.
std::vector<double> symmetric(Steps& steps, const Filling& filling)
{
    const long long n = filling.rows;
    const bool isHeavy = filling.plan.style == Style::plain || filling.plan.style == Style::digits;
    const double heavy = isHeavy ? static_cast<double>(4 * n) : 1.0;
    std::vector<double> cells(static_cast<std::size_t>(n * filling.cols), 0.0);
    for (long long j = 0; j < filling.cols; ++j)
        for (long long i = j; i < n; ++i) {
            double cell = i == j ? heavy + steps.between(0, 3) : steps.between(-8, 8) / 4.0;
            if (filling.plan.style == Style::digits)
                cell += steps.withAllDigits();
            if (filling.plan.style == Style::gaps && steps.onceIn(40))
                cell = missing;
            if (filling.plan.style == Style::special && steps.onceIn(20))
                cell = special(steps);
            if (filling.plan.style == Style::any && steps.onceIn(8))
                cell = anyNumber(steps);
            cells[static_cast<std::size_t>(i + n * j)] = cell;
            if (i < filling.cols)
                cells[static_cast<std::size_t>(j + n * i)] = cell;
        }
    return cells;
}

int ranged(Steps& steps, const Filling& filling)
{
    return drawInRange(steps, strangersIn(filling.plan, filling.argument.domain), filling.argument.low(filling.slots),
                       filling.argument.high(filling.slots));
}

bool isRange(Domain domain)
{
    return domain == Domain::positions || domain == Domain::codes || domain == Domain::counts;
}

/// Whether a cell that stands for something may hold whatever there is. Counts are what cost and memory follow.
bool isAnything(Steps& steps, const Filling& filling)
{
    const Domain domain = filling.argument.domain;
    return filling.plan.style == Style::any && filling.plan.outside && domain != Domain::count &&
           domain != Domain::counts && steps.onceIn(4);
}

double numberCell(Steps& steps, const Filling& filling)
{
    const Argument& argument = filling.argument;
    if (isAnything(steps, filling))
        return anyNumber(steps);
    if (isRange(argument.domain))
        return ranged(steps, filling);
    switch (argument.domain) {
    case Domain::weights:
        return weight(steps, filling.plan.style);
    case Domain::flags:
        return argument.options[steps.below(argument.options.size())];
    case Domain::missingOrNumber:
        return steps.onceIn(2) ? missing : steps.between(-8, 8) / 4.0;
    default:
        return dataCell(steps, filling.plan.style);
    }
}

int integerCell(Steps& steps, const Filling& filling)
{
    const Argument& argument = filling.argument;
    if (isAnything(steps, filling))
        return anyInteger(steps);
    if (isRange(argument.domain))
        return ranged(steps, filling);
    switch (argument.domain) {
    case Domain::count:
        return steps.between(0, std::max(filling.plan.size.columns, 0));
    case Domain::seed:
        return steps.between(1, 1000000);
    case Domain::mask:
        return steps.onceIn(4) ? (steps.onceIn(3) ? 1 : -1) : 0;
    case Domain::flags:
        return argument.options[steps.below(argument.options.size())];
    default:
        if (filling.plan.style == Style::special && argument.type == Type::integers && steps.onceIn(6))
            return steps.onceIn(2) ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
        return filling.plan.style == Style::constant ? 4 : steps.between(-9, 9);
    }
}

template <class Number, class Cell>
std::vector<Number> drawn(Steps& steps, const Filling& filling, Cell cell)
{
    std::vector<Number> cells(static_cast<std::size_t>(filling.rows * filling.cols));
    for (Number& one : cells)
        one = cell(steps, filling);
    return cells;
}

} // namespace

std::vector<double> drawNumbers(Steps& steps, const Filling& filling)
{
    if (filling.argument.domain == Domain::symmetric)
        return symmetric(steps, filling);
    return drawn<double>(steps, filling, numberCell);
}

std::vector<int> drawIntegers(Steps& steps, const Filling& filling)
{
    return drawn<int>(steps, filling, integerCell);
}

std::vector<Text> drawTexts(Steps& steps, const Filling& filling)
{
    static const std::array<std::wstring, 10> words{L"a",  L"b", L"ab",    L"",           L"10",
                                                    L"9a", L"Ä", L"1.5e2", L"\U0001D11E", L"a long label"};
    const std::size_t known = filling.plan.style == Style::ties ? 3 : words.size();
    std::vector<Text> cells(static_cast<std::size_t>(filling.rows * filling.cols));
    for (Text& cell : cells) {
        if (filling.plan.style == Style::gaps && steps.onceIn(4))
            cell = steps.onceIn(2) ? Text(L"") : std::nullopt;
        else if (filling.plan.style == Style::constant)
            cell = L"same";
        else if (filling.plan.style == Style::any && !steps.onceIn(3))
            cell = steps.onceIn(4) ? std::nullopt : Text(anyText(steps));
        else
            cell = words[steps.below(known)];
        if (cell)
            cell = repeated(*cell, filling.plan.textRepeats);
    }
    return cells;
}

std::wstring repeated(const std::wstring& text, int times)
{
    std::wstring all;
    for (int k = 0; k < times; ++k)
        all += text;
    return all;
}

std::wstring drawText(Steps& steps)
{
    static const std::array<std::wstring, 8> texts{
        L"a", L"", L"AZ", L", ", L"obs", L"'S'!$D:$D,'S'!$A:$A,'S'!$B:$B", L"'S'!$A:$A,'S'!$1:$5", L"b"};
    return texts[steps.below(texts.size())];
}

double prefilledNumber(Steps& steps, long long cell)
{
    return steps.between(1000, 1000000) + static_cast<double>(cell) / 1024.0;
}

int prefilledInteger(Steps& steps, long long cell)
{
    return static_cast<int>(steps.between(1000, 20000) + cell % 1000);
}

} // namespace vecmat::flat
