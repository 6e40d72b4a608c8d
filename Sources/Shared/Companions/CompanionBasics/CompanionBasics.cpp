#include "CompanionBasics.h"

#include "../utf16.h"

#include "base/detail/mathematics/mathematics.h"

#include <cmath>

double sqr(double x)
{
    return std::sqrt(x);
}

double FSign(double a, double b)
{
    return b >= 0.0 ? std::fabs(a) : -std::fabs(a);
}

short IsLong(double x)
{
    return std::isfinite(x) && x == std::floor(x) ? -1 : 0;
}

double Log10(double x)
{
    return vecmat::log10(x);
}

int Mod(int a, int b)
{
    if (b == 0)
        return a;
    if (b == -1) // the quotient of the lowest int would overflow
        return 0;
    return a % b;
}

int cChrCount(const std::wstring& text, const std::wstring& part)
{
    if (part.empty())
        return 0;
    int count = 0;
    for (auto found = text.find(part); found != std::wstring::npos; found = text.find(part, found + part.size()))
        ++count;
    return count;
}

std::wstring cStrBetweenChrAndChr(const std::wstring& text, const std::wstring& left, const std::wstring& right)
{
    const auto delimiter = text.find(left);
    if (delimiter == std::wstring::npos)
        return {};
    const auto start = delimiter + left.size();
    const auto end = text.find(right, start);
    return end == std::wstring::npos ? text.substr(start) : text.substr(start, end - start);
}

std::wstring convToWstring(const void* bstr)
{
    std::wstring text;
    companions::appendUtf16(bstr, text);
    return text;
}
