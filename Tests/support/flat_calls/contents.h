// The cells of the arrays of a call.
#pragma once

#include "support/flat_calls/bstrs.h"
#include "support/flat_calls/calls.h"
#include "support/flat_calls/plans.h"
#include "support/flat_calls/steps.h"

#include <string>
#include <vector>

namespace vecmat::flat {

/// What an array is filled with: `rows` by `cols` cells, column after column. `slots` has the numbers of the call.
struct Filling
{
    const Argument& argument;
    const Plan& plan;
    const Slot* slots;
    long long rows;
    long long cols;
};

std::vector<double> drawNumbers(Steps& steps, const Filling& filling);
std::vector<int> drawIntegers(Steps& steps, const Filling& filling);
std::vector<Text> drawTexts(Steps& steps, const Filling& filling);

/// One string for a list, a separator or a value.
std::wstring drawText(Steps& steps);
std::wstring repeated(const std::wstring& text, int times);

/// What stands in a result before the call: each cell another number.
double prefilledNumber(Steps& steps, long long cell);
int prefilledInteger(Steps& steps, long long cell);

} // namespace vecmat::flat
