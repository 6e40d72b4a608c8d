// Quotients by weights, many by the same divisor. For kernel sources only.
//
// A division takes as long as some sixteen products. With fused multiply-add, one division gives the reciprocal y of
// the divisor W, and each quotient a/W takes three more steps, each rounded once:
//     q = a y     rest = a - q W     a/W = q + rest y
// That is the quotient as the division rounds it, to the last bit, if no step leaves the range of normal numbers
// (Brisebarre, N., Muller, J.-M. and Raina, S. K. 2004, Accelerating correctly rounded floating-point division when
// the divisor is known in advance, IEEE Trans. Computers 53 (8), 1069-1072). Any that may have left it is detected at
// the end of the sums; the caller then starts again with `Division`.
#pragma once

#include "lanes.h"

namespace vecmat::VECMAT_INSTRUCTION_SET {

/// Divides.
struct Division
{
    /// Nothing to check.
    struct Numerators
    {
        void watch(Lanes /*numerators*/) {}
        bool areModerate() const { return true; }
    };
    static bool admitsWeights(int /*count*/, const double* /*w*/) { return true; }
    static bool admitsResult(Lanes /*quotients*/) { return true; }

    Lanes divisor;

    explicit Division(Lanes by) : divisor(by) {}
    Division(Lanes by, Lanes /*reciprocal*/) : divisor(by) {}
    Lanes of(Lanes numerator) const { return numerator / divisor; }
};

#ifdef VECMAT_FUSES_LANES

/// Divides by sums of weights, with their reciprocals.
class FusedDivision
{
public:
    /// Non-zero numerators must not be so small that digits of q or of the rest fall below the normal numbers.
    class Numerators
    {
    public:
        void watch(Lanes numerators)
        {
            const Bits magnitudes = rankOf(numerators);
            least_ = magnitudes < least_ ? magnitudes : least_;
        }
        bool areModerate() const
        {
            const Bits limit = rankOf(inEachLane(0x1p-600));
            return inAllLanes(least_ >= limit);
        }

    private:
        using Bits [[gnu::vector_size(sizeof(Lanes))]] = unsigned long long;

        /// In order of magnitude, but with 0 above all others.
        static Bits rankOf(Lanes x)
        {
            const Bits bits = reinterpret_cast<Bits>(x);
            return bits + bits - 1;
        }

        Bits least_ = ~Bits{};
    };

    /// Weights of 0 divide nothing. With the others, sums of up to 2^31 are allowed as divisors.
    static bool admitsWeights(int count, const double* w)
    {
        bool admitted = true;
        for (int i = 0; i < count; ++i)
            admitted = admitted & (w[i] == 0.0 || (w[i] >= 0x1p-200 && w[i] <= 0x1p+200));
        return admitted;
    }
    /// For the sums that quotients are added to. A step beyond the largest number makes them infinite or NaN,
    /// permanently.
    static bool admitsResult(Lanes sums) { return inAllLanes(sums - sums == Lanes{}); }

    explicit FusedDivision(Lanes by) : FusedDivision(by, 1.0 / by) {}
    FusedDivision(Lanes by, Lanes reciprocal) : divisor_(by), reciprocal_(reciprocal) {}
    Lanes of(Lanes numerator) const
    {
        const Lanes q = numerator * reciprocal_;
        const Lanes rest = fusedDifference(numerator, q, divisor_);
        return fusedSum(q, rest, reciprocal_);
    }

private:
    template <class Answers>
    static bool inAllLanes(Answers answers)
    {
        bool all = true;
        for (int lane = 0; lane < laneCount; ++lane)
            all = all && answers[lane] != 0;
        return all;
    }

    Lanes divisor_;
    Lanes reciprocal_;
};

using QuickDivision = FusedDivision;

#else

using QuickDivision = Division;

#endif

} // namespace vecmat::VECMAT_INSTRUCTION_SET
