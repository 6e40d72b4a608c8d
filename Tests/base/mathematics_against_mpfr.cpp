// mathematics_against_mpfr COUNT SEED: compares exp, log, log10 and pow, cubes and fourth powers at so many drawn
// arguments each with MPFR, which rounds correctly. Prints what was compared; the exit status is 1 if a result differs.
#include "base/mathematics_arguments.h"

#include "base/detail/mathematics/exact_phase.h"
#include "base/detail/mathematics/quick_exponential.h"
#include "base/detail/mathematics/quick_logarithm.h"

#include <mpfr.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

using vecmat::test::MathematicsArguments;

/// One number of MPFR.
class Number
{
public:
    explicit Number(mpfr_prec_t bits = 53) { mpfr_init2(number_, bits); }
    Number(const Number&) = delete;
    Number& operator=(const Number&) = delete;
    ~Number() { mpfr_clear(number_); }
    mpfr_ptr get() { return number_; }

    mpfr_ptr set(double x)
    {
        mpfr_set_d(number_, x, MPFR_RNDN);
        return number_;
    }

    /// After an operation with 53 bits that returned `ternary`.
    double rounded(int ternary)
    {
        mpfr_subnormalize(number_, ternary, MPFR_RNDN);
        return mpfr_get_d(number_, MPFR_RNDN);
    }

private:
    mpfr_t number_;
};

Number first, second, result;

double reference(int (*function)(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t), double x)
{
    return result.rounded(function(result.get(), first.set(x), MPFR_RNDN));
}

double referencePow(double x, double y)
{
    return result.rounded(mpfr_pow(result.get(), first.set(x), second.set(y), MPFR_RNDN));
}

double referencePower(double x, unsigned long y)
{
    return result.rounded(mpfr_pow_ui(result.get(), first.set(x), y, MPFR_RNDN));
}

bool sameBits(double x, double y)
{
    return std::bit_cast<std::uint64_t>(x) == std::bit_cast<std::uint64_t>(y) || (std::isnan(x) && std::isnan(y));
}

/// What was compared under one name, and how much of it was wrong.
class Comparison
{
public:
    explicit Comparison(const char* name) : name_(name) {}

    void compare(double ours, double mpfr, double x, double y = 0.0)
    {
        ++compared_;
        if (sameBits(ours, mpfr))
            return;
        if (++wrong_ <= 10)
            std::printf("WRONG: %s(%a, %a) = %a, MPFR has %a\n", name_, x, y, ours, mpfr);
    }

    /// Prints the line, and tells if nothing was wrong.
    bool report() const
    {
        std::printf("%-22s %11ld compared, %ld misrounded\n", name_, compared_, wrong_);
        std::fflush(stdout);
        return wrong_ == 0 && compared_ > 0;
    }

private:
    const char* name_;
    long compared_ = 0;
    long wrong_ = 0;
};

template <class Compare>
bool compareMany(const char* name, long count, std::uint64_t seed, Compare compare)
{
    Comparison comparison(name);
    MathematicsArguments arguments(seed);
    for (long i = 0; i < count; ++i)
        compare(arguments, comparison);
    return comparison.report();
}

/// The functions as they are called.
bool compareFunctions(long count, std::uint64_t seed)
{
    bool right = compareMany("exp", count, seed, [](auto& arguments, auto& comparison) {
        const double x = arguments.forExp();
        comparison.compare(vecmat::exp(x), reference(mpfr_exp, x), x);
    });
    right &= compareMany("log", count, seed, [](auto& arguments, auto& comparison) {
        const double x = arguments.forLog();
        comparison.compare(vecmat::log(x), reference(mpfr_log, x), x);
    });
    right &= compareMany("log10", count, seed, [](auto& arguments, auto& comparison) {
        const double x = arguments.forLog10();
        comparison.compare(vecmat::log10(x), reference(mpfr_log10, x), x);
    });
    right &= compareMany("pow", count, seed, [](auto& arguments, auto& comparison) {
        const auto [x, y] = arguments.forPow();
        comparison.compare(vecmat::pow(x, y), referencePow(x, y), x, y);
    });
    right &= compareMany("cube", count, seed, [](auto& arguments, auto& comparison) {
        const double x = arguments.forPow().x;
        comparison.compare(vecmat::cube(x), referencePower(x, 3), x);
    });
    right &= compareMany("fourthPower", count, seed, [](auto& arguments, auto& comparison) {
        const double x = arguments.forPow().x;
        comparison.compare(vecmat::fourthPower(x), referencePower(x, 4), x);
    });
    return right;
}

/// The exact phase by itself, which a call of a function seldom comes to.
bool compareExactPhase(const char* name, vecmat::mathematics::Places places, long count, std::uint64_t seed)
{
    using namespace vecmat::mathematics;
    const auto isPositive = [](double x) { return x > 0.0 && std::isfinite(x) && x != 1.0; };
    return compareMany(name, count, seed, [&](auto& arguments, auto& comparison) {
        const double x = arguments.forExp();
        if (x >= -746.0 && x <= 710.0)
            comparison.compare(exactExp(x, places), reference(mpfr_exp, x), x);
        const double u = arguments.forLog();
        if (isPositive(u))
            comparison.compare(exactLog(u, places), reference(mpfr_log, u), u);
        const double v = arguments.forLog10();
        if (isPositive(v))
            comparison.compare(exactLog10(v, places), reference(mpfr_log10, v), v);
        const auto [base, y] = arguments.forPow();
        if (isPositive(base) && std::fabs(y) >= 0x1p-65 && std::fabs(y) < 0x1p65 &&
            std::fabs(y * vecmat::log(base) + 18.0) <= 728.0)
            comparison.compare(exactPow(base, y, places), referencePow(base, y), base, y);
    });
}

/// The quick phase stays within its error bounds. Prints how much of a bound was used up at most.
class Bound
{
public:
    explicit Bound(const char* name) : name_(name) {}

    /// `exact` loses the parts of the approximation; what remains is its error.
    void check(Number& exact, double high, double low, double bound, double x)
    {
        mpfr_sub_d(exact.get(), exact.get(), high, MPFR_RNDN);
        mpfr_sub_d(exact.get(), exact.get(), low, MPFR_RNDN);
        const double error = std::fabs(mpfr_get_d(exact.get(), MPFR_RNDN));
        if (error == 0.0)
            return;
        greatest_ = std::fmax(greatest_, error / bound);
        if (!(error <= bound) && ++wrong_ <= 10)
            std::printf("WRONG: %s(%a) is off by %a, more than %a\n", name_, x, error, bound);
    }

    bool report() const
    {
        std::printf("%-22s at most %.3f of the bound\n", name_, greatest_);
        return wrong_ == 0 && greatest_ > 0.0;
    }

private:
    const char* name_;
    double greatest_ = 0.0;
    long wrong_ = 0;
};

bool checkBounds(long count, std::uint64_t seed)
{
    using namespace vecmat::mathematics;
    Number exact(240);
    MathematicsArguments arguments(seed);
    Bound exponentialBound("exp, quick phase");
    Bound logarithmBound("log, quick phase");
    for (long i = 0; i < count; ++i) {
        const double x = arguments.forExp();
        if (x > leastQuickExponent && x < greatestQuickExponent) {
            const ScaledSum sum = quickExponential(x, 0.0);
            mpfr_exp(exact.get(), first.set(x), MPFR_RNDN);
            mpfr_div_d(exact.get(), exact.get(), sum.scale, MPFR_RNDN);
            exponentialBound.check(exact, sum.high, sum.low, quickExponentialError, x);
        }
        const double y = arguments.forLog();
        if (y > 0.0 && std::isfinite(y)) {
            const BoundedSum sum = quickLogarithm(y);
            mpfr_log(exact.get(), first.set(y), MPFR_RNDN);
            logarithmBound.check(exact, sum.high, sum.low, sum.error, y);
        }
    }
    const bool right = exponentialBound.report();
    return logarithmBound.report() && right;
}

} // namespace

int main(int argc, char** argv)
{
    const long count = argc > 1 ? std::atol(argv[1]) : 100000;
    const std::uint64_t seed = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 1;
    mpfr_set_emin(-1073);
    mpfr_set_emax(1024);
    const auto start = std::chrono::steady_clock::now();
    using vecmat::mathematics::Places;
    bool right = compareExactPhase("exact phase", Places::few, count / 10 + 1, seed);
    right &= compareExactPhase("exact phase, wide", Places::many, count / 500 + 1, seed);
    right &= checkBounds(count / 4 + 1, seed);
    right &= compareFunctions(count, seed);
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    std::printf("seed %llu, %.0f seconds: %s\n", static_cast<unsigned long long>(seed), seconds.count(),
                right ? "all right" : "NOT right");
    return right ? 0 : 1;
}
