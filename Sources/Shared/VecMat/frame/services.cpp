#include "services.h"

#include "../base/detail/mathematics/mathematics.h"
#include "../base/detail/numbers.h"
#include "detail/resident_size.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

using vecmat::countOf;
using vecmat::truncated;

void Cpp_V_CopyDoubleToLong(double* src, int n, int* dst)
{
    std::transform(src, src + countOf(n), dst, truncated);
}

void Cpp_V_CopyLongToDouble(int* src, int n, double* dst)
{
    std::copy_n(src, countOf(n), dst);
}

void Cpp_WriteMatrixDbl() {}

void Cpp_WriteMatrixLng() {}

int TestMemory()
{
    return 0;
}

short Cpp_TestMemory()
{
    return -1;
}

int PrepareTest(int a, int /*b*/, std::vector<void*>& /*v*/)
{
    return a <= 0 ? 1 : 0;
}

int TestAllocMatrix(int, int, int, int, int, int, int, int, int, int, int, int, int, int, int, int, int, int, int, int)
{
    return 1;
}

int GetStatusMemory(int bytes)
{
    const double resident = vecmat::residentSize();
    if (resident < 0.0)
        return 0;
    return bytes * 1.2 > resident ? 0 : 1;
}

short Cpp_GetStatusMemory(int bytes)
{
    return GetStatusMemory(bytes) == 1 ? -1 : 0;
}

void dprint(double value, const char* label)
{
    std::array<char, 1000> line{};
    std::snprintf(line.data(), line.size(), "%s %36.16f\n", label, value);
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-security"
    std::printf(line.data()); // NOLINT: the line is the format, as the header says
#pragma GCC diagnostic pop
}

std::wstring ChrSp(int code)
{
    constexpr double logarithmOf26 = 3.258096538021482;
    long long rest = static_cast<long long>(code) - 65;
    if (rest < 26)
        return std::wstring(1, static_cast<wchar_t>(code));
    const int length = truncated(std::floor(vecmat::log(static_cast<double>(rest) + 1e-12) / logarithmOf26) + 1.0);
    std::wstring label;
    for (int place = length - 1; place >= 1; --place) {
        long long power = 1;
        for (int k = 0; k < place; ++k)
            power *= 26;
        // Counting from the character before A: the third place starts again with a zero digit after it, hence A@A.
        label += static_cast<wchar_t>(rest / power + 64);
        rest %= power;
    }
    label += static_cast<wchar_t>(rest + 65);
    return label;
}
