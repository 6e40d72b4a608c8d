#include "call.h"

#include "calls/domains.h"
#include "column_arrays.h"
#include "string_arrays.h"

#include <algorithm>
#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <exception>
#include <limits>
#include <new>
#include <stdexcept>

namespace vecmat::r {

namespace {

bool isNumber(SEXP given)
{
    const bool isPlain = TYPEOF(given) == REALSXP || TYPEOF(given) == INTSXP || TYPEOF(given) == LGLSXP;
    return isPlain && !isFactor(given) && XLENGTH(given) == 1;
}

double realNumber(const Call& call, const Parameter& parameter, SEXP given)
{
    if (!isNumber(given))
        call.fail(parameter, "expected a number, got %s", described(given).c_str());
    if (TYPEOF(given) == REALSXP)
        return REAL_ELT(given, 0);
    const int whole = TYPEOF(given) == INTSXP ? INTEGER_ELT(given, 0) : LOGICAL_ELT(given, 0);
    return whole == NA_INTEGER ? NA_REAL : whole;
}

int wholeNumber(const Call& call, const Parameter& parameter, SEXP given, double low, double high)
{
    if (!isNumber(given))
        call.fail(parameter, "expected a whole number, got %s", described(given).c_str());
    const double number = realNumber(call, parameter, given);
    if (std::isnan(number))
        call.fail(parameter, "expected a whole number, got NA");
    if (number != std::floor(number))
        call.fail(parameter, "expected a whole number, got %.15g", number);
    if (number < low || number > high)
        call.fail(parameter, "%.15g does not lie from %.15g to %.15g", number, low, high);
    return static_cast<int>(number);
}

SEXP named(const Function& function)
{
    int count = function.result == Result::nothing ? 0 : 1;
    for (int i = 0; i < function.count; ++i)
        count += function.parameters[i].isHandedBack() ? 1 : 0;
    SEXP list = PROTECT(Rf_allocVector(VECSXP, count));
    SEXP names = PROTECT(Rf_allocVector(STRSXP, count));
    int at = 0;
    if (function.result != Result::nothing)
        SET_STRING_ELT(names, at++, Rf_mkChar("result"));
    for (int i = 0; i < function.count; ++i)
        if (function.parameters[i].isHandedBack())
            SET_STRING_ELT(names, at++, Rf_mkChar(function.parameters[i].name));
    Rf_setAttrib(list, R_NamesSymbol, names);
    UNPROTECT(2);
    return list;
}

bool handsBack(const Function& function)
{
    for (int i = 0; i < function.count; ++i)
        if (function.parameters[i].isHandedBack())
            return true;
    return false;
}

SEXP scalar(const Function& function, const Value& result)
{
    switch (function.result) {
    case Result::number:
        return guarded([&] { return Rf_ScalarReal(result.number); });
    case Result::integer:
        return guarded([&] { return Rf_ScalarInteger(result.integer); });
    case Result::flag:
        return guarded([&] { return Rf_ScalarInteger(result.flag); });
    case Result::bstr:
        return takenText(result.resultString);
    case Result::nothing:
        break;
    }
    return R_NilValue;
}

} // namespace

Call::Call(const Function& function, const SEXP* given) : function_(function), given_(given)
{
    std::fill(std::begin(written_), std::end(written_), R_NilValue);
    PROTECT_WITH_INDEX(kept_, &keptPlace_);
}

Call::~Call()
{
    UNPROTECT(1);
}

// In a list, as R's stack of protected objects has room for 50,000: a call may have more columns.
SEXP Call::keep(SEXP object)
{
    REPROTECT(kept_ = guarded([&] { return Rf_cons(object, kept_); }), keptPlace_);
    return object;
}

void* Call::hold(std::size_t bytes)
{
    held_.push_back(std::make_unique<char[]>(std::max<std::size_t>(bytes, sizeof noCells)));
    return held_.back().get();
}

void Call::fail(const Parameter& parameter, const char* format, ...) const
{
    char text[600];
    const int head = std::snprintf(text, sizeof text, "%s(), argument '%s': ", function_.name, parameter.name);
    std::va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text + head, sizeof text - static_cast<std::size_t>(head), format, arguments);
    va_end(arguments);
    throw std::invalid_argument(text);
}

void Call::readNumber(int place)
{
    const Parameter& parameter = function_.parameters[place];
    SEXP given = given_[place];
    if (parameter.kind == Kind::number) {
        values_[place].number = realNumber(*this, parameter, given);
        return;
    }
    const bool isFlag = parameter.kind == Kind::flag;
    int number =
        isFlag
            ? wholeNumber(*this, parameter, given, std::numeric_limits<short>::min(), std::numeric_limits<short>::max())
            : wholeNumber(*this, parameter, given, std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    if (TYPEOF(given) == LGLSXP && number == 1)
        number = numberOfTrue(parameter.domain);
    if (isFlag)
        values_[place].flag = static_cast<short>(number);
    else
        values_[place].integer = number;
}

// Whether NULL stands for no array. A result that is NULL otherwise is made here.
bool Call::readNull(int place)
{
    const Parameter& parameter = function_.parameters[place];
    if (parameter.mayBeNull && parameter.mayBeNull(values_) != 0) {
        values_[place].array = nullptr;
        return true;
    }
    if (parameter.role != Role::out)
        fail(parameter, "NULL may not stand here");
    return false;
}

void Call::readStrings(int place, const Wanted& wanted)
{
    strings_.push_back(std::make_unique<StringArray>(*this, wanted, given_[place]));
    values_[place].strings = strings_.back()->pointers();
    written_[place] = strings_.back()->object();
}

void Call::readArray(int place)
{
    const Parameter& parameter = function_.parameters[place];
    SEXP given = given_[place];
    if (given == R_NilValue && readNull(place))
        return;
    if (parameter.kind == Kind::text || parameter.kind == Kind::bstr) {
        if (TYPEOF(given) != STRSXP || XLENGTH(given) != 1 || STRING_ELT(given, 0) == NA_STRING)
            fail(parameter, "expected a string, got %s", described(given).c_str());
        if (parameter.kind == Kind::text) {
            values_[place].text = wideText(*this, given);
        } else {
            singleStrings_.push_back(lengthPrefixed(STRING_ELT(given, 0)));
            values_[place].bstr = textOf(singleStrings_.back());
        }
        return;
    }
    const Wanted wanted{parameter, std::max<std::int64_t>(parameter.rows(values_), 0),
                        std::max<std::int64_t>(parameter.cols(values_), 0), ""};
    if (parameter.kind == Kind::strings) {
        readStrings(place, wanted);
    } else if (parameter.kind == Kind::columns || parameter.kind == Kind::stringColumns) {
        columns_.push_back(std::make_unique<ColumnArray>(*this, wanted, given));
        values_[place].columns = columns_.back()->address();
        written_[place] = columns_.back()->object();
    } else {
        const Cells cells = arrayCells(wanted, given, parameter.kind);
        values_[place].array = cells.data;
        written_[place] = cells.object;
        if (parameter.domain.kind == DomainKind::range)
            checkCells(*this, parameter, cells.data, wanted.cells());
    }
}

SEXP Call::answer(const Value& result)
{
    SEXP own = keep(scalar(function_, result));
    for (const auto& strings : strings_)
        strings->handBack();
    for (const auto& columns : columns_)
        columns->handBack();
    handBackFlags();
    if (!handsBack(function_))
        return own;
    SEXP list = keep(guarded([&] { return named(function_); }));
    int at = 0;
    if (function_.result != Result::nothing)
        SET_VECTOR_ELT(list, at++, own);
    for (int i = 0; i < function_.count; ++i)
        if (function_.parameters[i].isHandedBack())
            SET_VECTOR_ELT(list, at++, written_[i]);
    return list;
}

SEXP Call::run()
{
    for (int i = 0; i < function_.count; ++i)
        if (function_.parameters[i].isValue())
            readNumber(i);
    for (int i = 0; i < function_.count; ++i) {
        const Parameter& parameter = function_.parameters[i];
        if (parameter.isValue() && parameter.domain.kind != DomainKind::any)
            checkNumber(*this, parameter, parameter.kind == Kind::flag ? values_[i].flag : values_[i].integer);
    }
    // Results come last, so that no memory is asked for before the sizes are known to fit what is read.
    for (const bool results : {false, true})
        for (int i = 0; i < function_.count; ++i) {
            const int place = function_.order[i];
            const Parameter& parameter = function_.parameters[place];
            if (!parameter.isValue() && (parameter.role == Role::out) == results)
                readArray(place);
        }
    Value result{};
    function_.invoke(values_, result);
    return answer(result);
}

namespace {

// The call alone, so that everything it holds is gone before R takes the error.
SEXP attempted(const Function& function, const SEXP* given, std::string& error, SEXP& token)
{
    try {
        Call call(function, given);
        return call.run();
    } catch (const cpp11::unwind_exception& unwinding) {
        token = unwinding.token;
    } catch (const std::invalid_argument& wrong) {
        error = wrong.what();
    } catch (const std::bad_alloc&) {
        error = std::string(function.name) + "(): there is not enough memory";
    } catch (const std::length_error&) {
        error = std::string(function.name) + "(): there is not enough memory";
    } catch (const std::exception& failed) {
        error = std::string(function.name) + "(): " + failed.what();
    }
    return R_NilValue;
}

} // namespace

SEXP callFunction(const Function& function, const SEXP* given)
{
    char text[700] = "";
    SEXP token = nullptr;
    {
        std::string error;
        SEXP answer = attempted(function, given, error, token);
        if (!token && error.empty())
            return answer;
        std::snprintf(text, sizeof text, "%s", error.c_str());
    }
    if (token)
        R_ContinueUnwind(token);
    Rf_errorcall(R_NilValue, "%s", text);
}

} // namespace vecmat::r
