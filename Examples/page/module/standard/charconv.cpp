#include <charconv>

#include <emscripten.h>

#include <algorithm>
#include <string>

using std::string;

namespace {

/// The shortest digits are those of JavaScript's numbers: "d.ddde+x".
EM_JS(void, writeShortest, (double value, char* text, int room), { stringToUTF8(value.toExponential(), text, room); });

/// Whether the digits, the first one at this power of ten, are written without a power of ten: where that is as short.
bool isWrittenOut(int count, int power)
{
    const int unit = power - (count - 1);   // the power of ten of the last digit
    const int shorter = count == 1 ? 1 : 0; // with a power of ten, which then has no point ahead of it
    return unit >= -(count + 3) + shorter && unit <= 5 - shorter;
}

string withPoint(const string& digits, int power)
{
    if (power < 0)
        return "0." + string(static_cast<size_t>(-power - 1), '0') + digits;
    const auto whole = static_cast<size_t>(power) + 1;
    return digits.substr(0, whole) + "." + digits.substr(whole);
}

string withPower(const string& digits, int power)
{
    char exponent[8];
    snprintf(exponent, sizeof exponent, "e%+03d", power);
    return digits.substr(0, 1) + (digits.size() > 1 ? "." + digits.substr(1) : "") + exponent;
}

/// All digits of a whole number, not only those that tell it from others.
string wholeNumber(double value)
{
    char text[40];
    snprintf(text, sizeof text, "%.0f", value);
    return text;
}

/// Above 0, and finite.
string shortest(double value)
{
    char text[40];
    writeShortest(value, text, sizeof text);
    const string written = text;
    const size_t e = written.find('e');
    string digits = written.substr(0, e);
    digits.erase(remove(digits.begin(), digits.end(), '.'), digits.end());
    const int power = stoi(written.substr(e + 1));
    const int count = static_cast<int>(digits.size());
    if (!isWrittenOut(count, power))
        return withPower(digits, power);
    return power < count - 1 ? withPoint(digits, power) : wholeNumber(value);
}

} // namespace

namespace std {

to_chars_result to_chars(char* first, char* last, double value)
{
    string text = signbit(value) ? "-" : "";
    text += isnan(value) ? "nan" : isinf(value) ? "inf" : value == 0.0 ? "0" : shortest(fabs(value));
    if (static_cast<ptrdiff_t>(text.size()) > last - first)
        return {last, errc::value_too_large};
    memcpy(first, text.data(), text.size());
    return {first + text.size(), errc()};
}

} // namespace std
