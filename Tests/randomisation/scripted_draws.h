// A generator whose draws a test lists, and which writes down how it was called.
//
// This header DEFINES the functions of the companion, which then take the place of the real ones for the library too.
// It is included once in a program. It allocates nothing of its own while it is called.
#pragma once

#include "base/api.h"
#include "base/detail/companions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <ostream>
#include <utility>
#include <vector>

namespace vecmat::test {

/// One series: what opened it, how many numbers were drawn from it, what its close stored.
struct Series
{
    int seed;
    int flag;
    int draws;
    int stored;

    friend bool operator==(const Series&, const Series&) = default;
    friend std::ostream& operator<<(std::ostream& stream, const Series& series)
    {
        return stream << "seed " << series.seed << ", flag " << series.flag << ", " << series.draws << " draws, stored "
                      << series.stored;
    }
};

/// What the generator will draw and the calls that it received. Opening a series changes the caller's seed by 5000
/// unless the flag is -1; closing the k-th series stores 1000 k and the number of its draws.
class Script
{
public:
    /// Starts over with a list of draws.
    void begin(std::vector<double> draws)
    {
        draws_ = std::move(draws);
        drawn_ = count_ = 0;
        open_ = false;
    }

    /// The series so far. All are closed, and all draws used up.
    std::vector<Series> series() const
    {
        EXPECT_FALSE(open_) << "a series was left open";
        EXPECT_EQ(drawn_, draws_.size()) << "another number of draws than listed";
        return {series_.begin(), series_.begin() + static_cast<std::ptrdiff_t>(count_)};
    }

    /// The cell that has to hold a value while a series is open, for what is to happen before its close.
    void watch(const double* cell) { watched_ = cell; }
    double seenAtClose() const { return seenAtClose_; }

    void open(int* seed, int flag)
    {
        EXPECT_FALSE(open_) << "a series opened within another";
        ASSERT_LT(count_, series_.size());
        series_[count_++] = {*seed, flag, 0, 0};
        open_ = true;
        if (flag != -1)
            *seed += 5000;
    }
    double draw()
    {
        EXPECT_TRUE(open_) << "a draw outside a series";
        EXPECT_LT(drawn_, draws_.size()) << "more draws than listed";
        if (!open_ || drawn_ >= draws_.size())
            return 0.0;
        ++series_[count_ - 1].draws;
        return draws_[drawn_++];
    }
    void close(int* seedOut)
    {
        EXPECT_TRUE(open_) << "a close without a series";
        open_ = false;
        Series& last = series_[count_ - 1];
        last.stored = *seedOut = 1000 * static_cast<int>(count_) + last.draws;
        if (watched_ != nullptr)
            seenAtClose_ = *watched_;
        watched_ = nullptr;
    }

private:
    std::vector<double> draws_;
    std::array<Series, 64> series_{};
    std::size_t drawn_ = 0;
    std::size_t count_ = 0;
    bool open_ = false;
    const double* watched_ = nullptr;
    double seenAtClose_ = 0.0;
};

inline Script script;

/// The three arguments of a frame, with values of their own, and the series that they give.
struct SeedArguments
{
    int seed = 77;
    short flag = -1;
    int out = 0;

    /// One series from this seed, with this many draws, whose close has reached the caller.
    void expectOneSeries(int draws) const
    {
        EXPECT_THAT(script.series(), testing::ElementsAre(Series{77, flag, draws, 1000 + draws}));
        EXPECT_EQ(out, 1000 + draws);
        EXPECT_EQ(seed, flag == -1 ? 77 : 5077);
    }
};

} // namespace vecmat::test

// NOLINTBEGIN(misc-definitions-in-headers): included once in a program
extern "C" VECMAT_API void GetSeed(int* seed, int seedFlag)
{
    vecmat::test::script.open(seed, seedFlag);
}

extern "C" VECMAT_API double Random01(void)
{
    return vecmat::test::script.draw();
}

extern "C" VECMAT_API void GetSeedUpdate(int* seedOut)
{
    vecmat::test::script.close(seedOut);
}
// NOLINTEND(misc-definitions-in-headers)
