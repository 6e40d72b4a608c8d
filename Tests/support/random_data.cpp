#include "support/random_data.h"

#include <cmath>
#include <limits>

namespace vecmat::test {

namespace {

const double specials[] = {
    0.0,
    -0.0,
    M,
    std::nextafter(M, 0.0),
    std::nextafter(M, -std::numeric_limits<double>::infinity()),
    positiveTwin,
    -1.0,
    std::numeric_limits<double>::quiet_NaN(),
    std::numeric_limits<double>::infinity(),
    -std::numeric_limits<double>::infinity(),
    std::numeric_limits<double>::max(),
    std::numeric_limits<double>::lowest(),
    std::numeric_limits<double>::min(),
    std::numeric_limits<double>::denorm_min(),
};

} // namespace

// The distributions of the standard library differ from one implementation to the next; these do not.
double RandomData::uniform(double low, double high)
{
    const double unit = static_cast<double>(generator_() >> 11) * 0x1p-53;
    return low + unit * (high - low);
}

double RandomData::normal()
{
    double sum = 0.0;
    for (int term = 0; term < 12; ++term)
        sum += uniform();
    // The sum lies on a grid, on which few numbers add up without a rounding, in any order. A factor takes them off it.
    constexpr double offTheGrid = 1.0 - 0x1.23456789abcdfp-20;
    return (sum - 6.0) * offTheGrid;
}

int RandomData::integer(int low, int high)
{
    const double span = static_cast<double>(high) - low + 1.0;
    return static_cast<int>(low + std::floor(uniform() * span));
}

template <class T, class Draw>
std::vector<T> RandomData::drawn(std::size_t count, Draw draw)
{
    std::vector<T> values(count);
    for (T& value : values)
        value = static_cast<T>(draw());
    return values;
}

std::vector<double> RandomData::uniforms(std::size_t count, double low, double high)
{
    return drawn<double>(count, [&] { return uniform(low, high); });
}

std::vector<double> RandomData::normals(std::size_t count)
{
    return drawn<double>(count, [&] { return normal(); });
}

std::vector<double> RandomData::ofManySizes(std::size_t count)
{
    return drawn<double>(count, [&] {
        const double number = normal();
        return number * uniform(0.01, 3.0);
    });
}

std::vector<double> RandomData::wholes(std::size_t count, int low, int high)
{
    return drawn<double>(count, [&] { return integer(low, high); });
}

std::vector<int> RandomData::integers(std::size_t count, int low, int high)
{
    return drawn<int>(count, [&] { return integer(low, high); });
}

std::vector<double> RandomData::weights(std::size_t count, double zeroShare)
{
    return drawn<double>(count, [&] { return chance(zeroShare) ? 0.0 : uniform(0.1, 3.0); });
}

std::vector<short> RandomData::mask(std::size_t count, double share)
{
    return drawn<short>(count, [&] { return chance(share) ? -1 : 0; });
}

std::vector<double> RandomData::withMissing(std::vector<double> cells, double share)
{
    for (double& cell : cells)
        if (chance(share))
            cell = M;
    return cells;
}

std::vector<double> RandomData::withSpecials(std::vector<double> cells, double share)
{
    for (double& cell : cells)
        if (chance(share))
            cell = specials[integer(0, static_cast<int>(std::size(specials)) - 1)];
    return cells;
}

std::vector<double> RandomData::leftovers(std::size_t count)
{
    return wholes(count, 700000000, 800000000);
}

std::vector<int> RandomData::intLeftovers(std::size_t count)
{
    return integers(count, 700000000, 800000000);
}

std::vector<short> RandomData::shortLeftovers(std::size_t count)
{
    return drawn<short>(count, [&] { return integer(20000, 30000); });
}

std::ostream& operator<<(std::ostream& stream, const RandomData& data)
{
    return stream << "random data from seed " << data.seed();
}

} // namespace vecmat::test
