// The elementary functions, one value after the other, beside those of the C library. The time of a call is that of a
// run divided by its size.
#include "contest.h"

#include "base/detail/mathematics/mathematics.h"

#include <cmath>

namespace vecmat::bench {

namespace {

/// Correct rounding and an error in the last bit agree to within this.
constexpr double lastBits = 1e-15;

struct Values
{
    Cells x, y, out;
    Values(int n, double low, double high)
        : x(RandomData(150).uniforms(count(n), low, high)), y(RandomData(151).uniforms(count(n), -10.0, 10.0)), out(x)
    {
    }

    template <class Ours, class Theirs>
    void compete(Contest& contest, Ours ours, Theirs theirs)
    {
        contest.outputs({&out});
        contest.ours([this, ours] { apply(ours); });
        contest.peer("C library", lastBits, [this, theirs] { apply(theirs); });
    }

private:
    template <class Function>
    void apply(Function function)
    {
        for (std::size_t i = 0; i < x.size(); ++i)
            out[i] = function(x[i], y[i]);
    }
};

struct Exponential : Values
{
    explicit Exponential(int n) : Values(n, -10.0, 10.0) {}
    void enter(Contest& contest)
    {
        compete(
            contest, [](double x, double) { return vecmat::exp(x); }, [](double x, double) { return std::exp(x); });
    }
};

struct Logarithm : Values
{
    explicit Logarithm(int n) : Values(n, 0.0, 20.0) {}
    void enter(Contest& contest)
    {
        compete(
            contest, [](double x, double) { return vecmat::log(x); }, [](double x, double) { return std::log(x); });
    }
};

struct DecimalLogarithm : Values
{
    explicit DecimalLogarithm(int n) : Values(n, 0.0, 20.0) {}
    void enter(Contest& contest)
    {
        compete(
            contest, [](double x, double) { return vecmat::log10(x); }, [](double x, double) { return std::log10(x); });
    }
};

struct Power : Values
{
    explicit Power(int n) : Values(n, 0.0, 20.0) {}
    void enter(Contest& contest)
    {
        compete(
            contest, [](double x, double y) { return vecmat::pow(x, y); },
            [](double x, double y) { return std::pow(x, y); });
    }
};

} // namespace

void addMathematics(Suite& suite)
{
    constexpr int values = 10000;
    suite.add<Exponential>("mathematics-exp", {values});
    suite.add<Logarithm>("mathematics-log", {values});
    suite.add<DecimalLogarithm>("mathematics-log10", {values});
    suite.add<Power>("mathematics-pow", {values});
}

} // namespace vecmat::bench
