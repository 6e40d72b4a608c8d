// Arrays of numbers: the caller's own memory where it is only read and its type fits, a copy elsewhere.
#include "call.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace vecmat::r {

namespace {

const char* typeName(Kind kind)
{
    return kind == Kind::doubles ? "numbers" : kind == Kind::ints ? "whole numbers" : "logical values";
}

std::size_t cellBytes(Kind kind)
{
    return kind == Kind::doubles ? sizeof(double) : kind == Kind::ints ? sizeof(int) : sizeof(short);
}

SEXP dimensions(SEXP given)
{
    return Rf_getAttrib(given, R_DimSymbol);
}

void checkType(const Call& call, const Wanted& wanted, SEXP given, Kind kind)
{
    const bool isPlain = TYPEOF(given) == REALSXP || TYPEOF(given) == INTSXP || TYPEOF(given) == LGLSXP;
    if (!isPlain || isFactor(given))
        call.fail(wanted.parameter, "%sexpected a vector of %s, got %s", wanted.which.c_str(), typeName(kind),
                  described(given).c_str());
}

[[noreturn]] void refuseSize(const Call& call, const Wanted& wanted, SEXP given)
{
    const char* const least = wanted.parameter.atLeast ? "at least " : "";
    if (wanted.cols == 1)
        call.fail(wanted.parameter, "%sexpected %s%lld elements (%s), got %s", wanted.which.c_str(), least,
                  static_cast<long long>(wanted.rows), wanted.parameter.shape, described(given).c_str());
    call.fail(wanted.parameter, "%sexpected %s%lld rows and %lld columns (%s), got %s", wanted.which.c_str(), least,
              static_cast<long long>(wanted.rows), static_cast<long long>(wanted.cols), wanted.parameter.shape,
              described(given).c_str());
}

void checkSize(const Call& call, const Wanted& wanted, SEXP given)
{
    const std::int64_t size = XLENGTH(given);
    if (wanted.parameter.atLeast ? size < wanted.cells() : size != wanted.cells())
        refuseSize(call, wanted, given);
    SEXP dim = dimensions(given);
    if (dim == R_NilValue || XLENGTH(dim) < 2 || wanted.cells() == 0)
        return;
    if (XLENGTH(dim) > 2 || INTEGER(dim)[0] != wanted.rows)
        refuseSize(call, wanted, given);
}

// A cell as a double; NA_integer_ and NA are NaN.
double numberAt(SEXP given, std::int64_t i)
{
    if (TYPEOF(given) == REALSXP)
        return REAL_ELT(given, i);
    const int whole = TYPEOF(given) == INTSXP ? INTEGER_ELT(given, i) : LOGICAL_ELT(given, i);
    return whole == NA_INTEGER ? NA_REAL : whole;
}

double missingAt(SEXP given, std::int64_t i)
{
    const double number = numberAt(given, i);
    return std::isnan(number) ? missingValue : number;
}

double wholeAt(const Call& call, const Wanted& wanted, SEXP given, std::int64_t i, double low, double high)
{
    // An integer vector holds its smallest value as NA; whoever wants ints wants these bits.
    if (TYPEOF(given) == INTSXP && low < -1e9)
        return INTEGER_ELT(given, i);
    const double number = numberAt(given, i);
    if (std::isnan(number) || number != std::floor(number) || number < low || number > high)
        call.fail(wanted.parameter, "%selement %lld: expected a whole number from %.0f to %.0f, got %.15g",
                  wanted.which.c_str(), static_cast<long long>(i + 1), low, high, number);
    return number;
}

template <class Whole>
void fillWhole(const Call& call, const Wanted& wanted, SEXP given, Whole* to)
{
    constexpr double low = std::numeric_limits<Whole>::min();
    constexpr double high = std::numeric_limits<Whole>::max();
    // TRUE is -1 where flags are meant, as it is for the library's other callers.
    const int sign = TYPEOF(given) == LGLSXP && sizeof(Whole) == sizeof(short) ? -1 : 1;
    for (std::int64_t i = 0; i < XLENGTH(given); ++i)
        to[i] = static_cast<Whole>(sign * wholeAt(call, wanted, given, i, low, high));
}

void fill(const Call& call, const Wanted& wanted, SEXP given, Kind kind, void* to)
{
    if (kind == Kind::ints)
        return fillWhole(call, wanted, given, static_cast<int*>(to));
    if (kind == Kind::flags)
        return fillWhole(call, wanted, given, static_cast<short*>(to));
    for (std::int64_t i = 0; i < XLENGTH(given); ++i)
        static_cast<double*>(to)[i] = missingAt(given, i);
}

bool typeFits(SEXP given, Kind kind)
{
    return (kind == Kind::doubles && TYPEOF(given) == REALSXP) || (kind == Kind::ints && TYPEOF(given) == INTSXP);
}

void* dataOf(SEXP object, Kind kind)
{
    if (XLENGTH(object) == 0)
        return noCells;
    return kind == Kind::doubles ? static_cast<void*>(REAL(object)) : static_cast<void*>(INTEGER(object));
}

// R may have to write an abstract sequence out first, and may have no memory for it.
void* readableData(SEXP object, Kind kind)
{
    if (!ALTREP(object))
        return dataOf(object, kind);
    void* data = nullptr;
    guarded([&] {
        data = dataOf(object, kind);
        return R_NilValue;
    });
    return data;
}

// A result as R sees it: a vector, or a table where the function writes one.
SEXP made(const Call& call, const Wanted& wanted, Kind kind)
{
    const std::int64_t cells = wanted.cells();
    if (cells > (std::int64_t{1} << 48) || wanted.rows > 2147483647 || wanted.cols > 2147483647)
        call.fail(wanted.parameter, "%lld rows and %lld columns are more than fit in memory",
                  static_cast<long long>(wanted.rows), static_cast<long long>(wanted.cols));
    return guarded([&] {
        SEXP object = PROTECT(Rf_allocVector(kind == Kind::doubles ? REALSXP : INTSXP, cells));
        if (kind == Kind::doubles)
            std::fill_n(REAL(object), cells, missingValue);
        else
            std::fill_n(INTEGER(object), cells, 0);
        if (wanted.parameter.isTable && wanted.which.empty()) {
            SEXP dim = PROTECT(Rf_allocVector(INTSXP, 2));
            INTEGER(dim)[0] = static_cast<int>(wanted.rows);
            INTEGER(dim)[1] = static_cast<int>(wanted.cols);
            Rf_setAttrib(object, R_DimSymbol, dim);
            UNPROTECT(1);
        }
        UNPROTECT(1);
        return object;
    });
}

SEXP converted(Call& call, const Wanted& wanted, SEXP given, Kind kind)
{
    SEXP object = call.keep(guarded([&] {
        SEXP fresh = PROTECT(Rf_allocVector(kind == Kind::doubles ? REALSXP : INTSXP, XLENGTH(given)));
        Rf_setAttrib(fresh, R_DimSymbol, dimensions(given));
        Rf_setAttrib(fresh, R_DimNamesSymbol, Rf_getAttrib(given, R_DimNamesSymbol));
        UNPROTECT(1);
        return fresh;
    }));
    if (kind != Kind::flags)
        fill(call, wanted, given, kind, dataOf(object, kind));
    return object;
}

} // namespace

bool isFactor(SEXP given)
{
    return TYPEOF(given) == INTSXP && OBJECT(given) && Rf_inherits(given, "factor");
}

namespace {

bool isFrame(SEXP given)
{
    return TYPEOF(given) == VECSXP && Rf_inherits(given, "data.frame");
}

} // namespace

std::string described(SEXP given)
{
    if (given == R_NilValue)
        return "NULL";
    if (isFactor(given))
        return "a factor";
    const std::string type = isFrame(given) ? "data frame" : Rf_type2char(TYPEOF(given));
    const bool isVector = Rf_isVectorAtomic(given) || TYPEOF(given) == VECSXP;
    if (!isVector)
        return "a " + type;
    SEXP dim = Rf_getAttrib(given, R_DimSymbol);
    if (dim == R_NilValue)
        return "a " + type + (isFrame(given) ? "" : " vector") + " of length " + std::to_string(XLENGTH(given));
    std::string sizes;
    for (R_xlen_t k = 0; k < XLENGTH(dim); ++k)
        sizes += (k ? " by " : "") + std::to_string(INTEGER(dim)[k]);
    return "a " + type + " array of " + sizes;
}

Cells Call::arrayCells(const Wanted& wanted, SEXP given, Kind kind)
{
    const Parameter& parameter = wanted.parameter;
    if (given != R_NilValue) {
        checkType(*this, wanted, given, kind);
        checkSize(*this, wanted, given);
    }
    if (!parameter.isHandedBack() && parameter.role != Role::scratch && typeFits(given, kind))
        return {readableData(given, kind), given, XLENGTH(given)};
    SEXP object = R_NilValue;
    if (given == R_NilValue)
        object = keep(made(*this, wanted, kind));
    else if (parameter.isHandedBack() && typeFits(given, kind))
        object = keep(guarded([&] { return Rf_shallow_duplicate(given); }));
    else if (parameter.isHandedBack())
        object = converted(*this, wanted, given, kind);
    if (object != R_NilValue && kind != Kind::flags)
        return {dataOf(object, kind), object, XLENGTH(object)};

    const std::int64_t count = given == R_NilValue ? wanted.cells() : XLENGTH(given);
    void* data = hold(static_cast<std::size_t>(count) * cellBytes(kind));
    if (given != R_NilValue)
        fill(*this, wanted, given, kind, data);
    if (object != R_NilValue)
        flags_.push_back({static_cast<const short*>(data), object});
    return {data, object, count};
}

// R has no 16-bit integers: flags come back as integers.
void Call::handBackFlags() const
{
    for (const auto& [cells, object] : flags_)
        std::copy_n(cells, XLENGTH(object), INTEGER(object));
}

} // namespace vecmat::r
