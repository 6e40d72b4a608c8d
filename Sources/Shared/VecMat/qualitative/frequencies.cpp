#include "frequencies.h"

#include "../access/cells.h"
#include "../elementary/detail/texts.h"
#include "detail/text_calls.h"

#include <cmath>
#include <string_view>

using namespace vecmat;

namespace {

template <class Vector, class Matches>
double weightOfMatches(Vector x, int n, matrix* weights, Matches matches)
{
    return onBlocks(
        [=](auto cell, auto weight) {
            double sum = 0.0;
            for (int i = 0; i < n; ++i)
                if (matches(cell.get(i)))
                    sum += weight.get(i);
            return sum;
        },
        block(x, n), block(linear(weights), n));
}

template <class Table>
double weightNear(Table* x, int n, matrix* weights, double value, double tolerance)
{
    return weightOfMatches(linear(x), n, weights, [=](double cell) { return std::fabs(cell - value) < tolerance; });
}

} // namespace

double V_Freq(matrix* x, int n, matrix* weights, double value, double tolerance)
{
    return weightNear(x, n, weights, value, tolerance);
}

double V_Freq(matrixInt* x, int n, matrix* weights, double value, double tolerance)
{
    return weightNear(x, n, weights, value, tolerance);
}

double vecmat::freqStr(const CallerTexts& x, int n, matrix* weights, const std::wstring& value)
{
    return weightOfMatches(x, n, weights, [&value](std::wstring_view text) { return text == value; });
}

double V_FreqStr(Smatrix* x, int n, matrix* weights, std::wstring value)
{
    return weightOfMatches(linear(x), n, weights, [&value](const std::wstring& text) { return text == value; });
}
