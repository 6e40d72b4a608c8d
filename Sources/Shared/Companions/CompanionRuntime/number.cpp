#include "CompanionRuntime.h"

#include <charconv>
#include <cstdlib>
#include <limits>
#include <string>

namespace {

// Longer exponents are capped at this: no text that fits into memory has enough digits to balance it.
constexpr long long exponentLimit = std::numeric_limits<long long>::max() / 4;

struct DecimalText
{
    bool negative = false;
    std::string digits;      // as written, including the point, without the sign
    long long magnitude = 0; // the power of ten just above the first non-zero digit
    long long exponent = 0;  // as written
    bool isNumber = false;   // a digit was found
    bool isZero = true;      // no non-zero digit was found
};

bool isDigit(wchar_t character)
{
    return character >= L'0' && character <= L'9';
}

bool isBlank(wchar_t character)
{
    return character == L' ' || (character >= L'\t' && character <= L'\r');
}

// Reads the sign, if any, and moves past it; true for a minus.
bool readSign(const wchar_t*& text)
{
    const bool negative = *text == L'-';
    if (negative || *text == L'+')
        ++text;
    return negative;
}

void readDigits(const wchar_t*& text, DecimalText& number)
{
    bool behindPoint = false;
    for (; isDigit(*text) || (*text == L'.' && !behindPoint); ++text) {
        number.digits.push_back(static_cast<char>(*text));
        if (*text == L'.') {
            behindPoint = true;
            continue;
        }
        number.isNumber = true;
        if (!behindPoint && (!number.isZero || *text != L'0'))
            ++number.magnitude;
        if (behindPoint && number.isZero && *text == L'0')
            --number.magnitude;
        if (*text != L'0')
            number.isZero = false;
    }
}

long long readExponent(const wchar_t* text)
{
    if (*text != L'e' && *text != L'E')
        return 0;
    ++text;
    const bool negative = readSign(text);
    long long exponent = 0;
    for (; isDigit(*text); ++text)
        exponent = exponent < exponentLimit / 10 ? exponent * 10 + (*text - L'0') : exponentLimit;
    return negative ? -exponent : exponent;
}

DecimalText readDecimal(const wchar_t* text)
{
    DecimalText number;
    while (isBlank(*text))
        ++text;
    number.negative = readSign(text);
    readDigits(text, number);
    number.exponent = readExponent(text);
    return number;
}

// The nearest double of a number whose magnitude, as a power of ten, is roughly that of a double.
double nearestDouble(const std::string& text, [[maybe_unused]] long long magnitude)
{
#ifdef __EMSCRIPTEN__
    // Its standard library reads no doubles by from_chars. Its strtod rounds correctly and knows no locale.
    return std::strtod(text.c_str(), nullptr);
#else
    double value = 0.0;
    const auto outcome = std::from_chars(text.data(), text.data() + text.size(), value);
    if (outcome.ec == std::errc::result_out_of_range)
        return magnitude > 0 ? std::numeric_limits<double>::infinity() : 0.0;
    return value;
#endif
}

double absoluteValue(const DecimalText& number)
{
    if (number.isZero)
        return 0.0;
    // Doubles lie between 1e-324 and 1e309. The range is tested here, since implementations of from_chars
    // differ in what they store for a number outside it.
    const long long magnitude = number.magnitude + number.exponent;
    if (magnitude > 310)
        return std::numeric_limits<double>::infinity();
    if (magnitude < -330)
        return 0.0;
    return nearestDouble(number.digits + "e" + std::to_string(number.exponent), magnitude);
}

} // namespace

double _wtof(const wchar_t* text)
{
    if (text == nullptr)
        return 0.0;
    const DecimalText number = readDecimal(text);
    if (!number.isNumber)
        return 0.0;
    const double value = absoluteValue(number);
    return number.negative ? -value : value;
}
