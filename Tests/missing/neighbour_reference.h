// Nearest-neighbour imputation in plain form: the searches written out, on 1-based cells. And random
// tables for it.
#pragma once

#include "missing/neighbour_cases.h"
#include "support/random_data.h"

namespace vecmat::test {

inline bool absent(double x)
{
    return M >= x;
}

class PlainImputation
{
public:
    PlainImputation(const NeighbourCase& c, const NeighbourTable& statistics, bool stringPrimary)
        : c_(c), stat_(statistics), out_(c.target), stringPrimary_(stringPrimary)
    {
        for (int j = 1; j <= c.colsX && !stringPrimary; ++j)
            moments(stat_.x, j, true, meanX_, varX_);
        for (int j = 1; j <= c.colsX && stringPrimary; ++j)
            modeP_.push_back(mode(stat_.p, j));
        for (int j = 1; j <= c.colsY; ++j)
            moments(stat_.y, j, false, meanY_, varY_);
        for (int j = 1; j <= c.colsS; ++j)
            modeS_.push_back(mode(stat_.s, j));
    }

    NeighbourTable run()
    {
        for (int t = 1; t <= out_.rows; ++t) {
            if (!flagged(t))
                continue;
            for (int j = 1; j <= c_.colsX; ++j)
                if (primaryAbsent(t, j))
                    fillPrimary(t, j, primarySearch(t, j));
            for (int j = 1; j <= c_.colsY; ++j)
                if (absent(Y(t, j))) {
                    const int best = secondSearch(t, j);
                    Y(t, j) = best > 0 ? Y(best, j) : meanY_[index(j)];
                }
            for (int j = 1; j <= c_.colsS; ++j)
                if (S(t, j).empty()) {
                    const int best = stringSearch(t, j);
                    S(t, j) = best > 0 ? std::wstring(S(best, j)) : modeS_[index(j)];
                }
        }
        return out_;
    }

private:
    static std::size_t index(int number) { return static_cast<std::size_t>(number - 1); }
    static std::size_t at(int i, int j, int rows) { return index(i) + index(j) * static_cast<std::size_t>(rows); }

    bool flagged(int row) const { return c_.mask[index(row)] != 0; }
    double& X(int i, int j) { return out_.x[at(i, j, out_.rows)]; }
    std::wstring& P(int i, int j) { return out_.p[at(i, j, out_.rows)]; }
    double& Y(int i, int j) { return out_.y[at(i, j, out_.rows)]; }
    std::wstring& S(int i, int j) { return out_.s[at(i, j, out_.rows)]; }
    bool primaryAbsent(int i, int j) { return stringPrimary_ ? P(i, j).empty() : absent(X(i, j)); }

    void moments(const Numbers& cells, int j, bool frequencies, Numbers& means, Numbers& variances) const
    {
        double W = 0.0;
        double mean = 0.0;
        double Q = 0.0;
        int m = 0;
        for (int i = 1; i <= stat_.rows; ++i) {
            const double x = cells[at(i, j, stat_.rows)];
            const double w = c_.weights[index(i)];
            if (x == M)
                continue;
            W += w;
            ++m;
            if (w == 0.0)
                continue;
            const double d = x - mean;
            Q += d * d * (w - w * w / W);
            mean += d * w / W;
        }
        const double divisor = frequencies ? W - 1.0 : W - W / m;
        means.push_back(mean);
        variances.push_back(divisor > 0.0 ? Q / divisor : M);
    }

    std::wstring mode(const Texts& cells, int j) const
    {
        Texts seen;
        Numbers sums;
        for (int i = 1; i <= stat_.rows; ++i) {
            const std::wstring& text = cells[at(i, j, stat_.rows)];
            if (text.empty())
                continue;
            std::size_t k = 0;
            while (k < seen.size() && seen[k] != text)
                ++k;
            if (k == seen.size()) {
                seen.push_back(text);
                sums.push_back(0.0);
            }
            sums[k] += c_.weights[index(i)];
        }
        if (seen.empty()) { // the text that follows in storage
            const std::size_t next = at(stat_.rows + 1, j, stat_.rows);
            return next < cells.size() ? cells[next] : std::wstring();
        }
        std::size_t best = 0;
        for (std::size_t k = 1; k < seen.size(); ++k)
            if (sums[k] > sums[best])
                best = k;
        return seen[best];
    }

    void numericTerm(double target, double candidate, double variance)
    {
        if (variance > 0.0 && !absent(target)) {
            distance_ += (target - candidate) * (target - candidate) / variance;
            anyTerm_ = true;
        }
    }
    void stringTerm(const std::wstring& target, const std::wstring& candidate)
    {
        if (!target.empty() && target != candidate) {
            distance_ += 1.0;
            anyTerm_ = true;
        }
    }

    bool primaryRejects(int t, int c, int j)
    {
        for (int k = 1; k <= c_.colsX; ++k) {
            if (k != j && primaryAbsent(c, k))
                return true;
            if (stringPrimary_)
                stringTerm(P(t, k), P(c, k));
            else
                numericTerm(X(t, k), X(c, k), varX_[index(k)]);
        }
        for (int k = 1; k <= c_.colsY; ++k) {
            if (absent(Y(c, k)) || primaryAbsent(c, j))
                return true;
            numericTerm(Y(t, k), Y(c, k), varY_[index(k)]);
        }
        for (int k = 1; k <= c_.colsS; ++k) {
            if (S(c, k).empty() || primaryAbsent(c, j))
                return true;
            stringTerm(S(t, k), S(c, k));
        }
        return false;
    }

    int primarySearch(int t, int j)
    {
        int best = 0;
        double least = positiveTwin;
        for (int c = 1; c <= out_.rows; ++c) {
            anyTerm_ = false;
            if (c == t || flagged(c))
                continue;
            distance_ = 0.0;
            if (!primaryRejects(t, c, j) && distance_ < least && anyTerm_) {
                best = c;
                least = distance_;
            }
        }
        return best;
    }

    int secondSearch(int t, int j)
    {
        return searchInYAndS(t, j, [&](int c) { return absent(Y(c, j)); });
    }

    int stringSearch(int t, int j)
    {
        return searchInYAndS(t, j, [&](int c) { return S(c, j).empty(); });
    }

    /// The two differ in the cell that would be copied alone: also where strings are filled, column number j of Y may
    /// be missing.
    template <class OwnAbsent>
    int searchInYAndS(int t, int j, OwnAbsent ownAbsent)
    {
        int best = 0;
        double least = positiveTwin;
        for (int c = 1; c <= out_.rows; ++c) {
            if (c == j || flagged(c))
                continue;
            distance_ = 0.0;
            bool rejected = false;
            for (int k = 1; k <= c_.colsY && !rejected; ++k) {
                rejected = k != j && absent(Y(c, k));
                if (!rejected)
                    numericTerm(Y(t, k), Y(c, k), varY_[index(k)]);
            }
            for (int k = 1; k <= c_.colsS && !rejected; ++k) {
                rejected = S(c, k).empty() || ownAbsent(c);
                if (!rejected)
                    stringTerm(S(t, k), S(c, k));
            }
            if (!rejected && distance_ < least && anyTerm_) {
                best = c;
                least = distance_;
            }
        }
        return best;
    }

    void fillPrimary(int t, int j, int best)
    {
        if (stringPrimary_)
            P(t, j) = best > 0 ? std::wstring(P(best, j)) : modeP_[index(j)];
        else
            X(t, j) = best > 0 ? X(best, j) : meanX_[index(j)];
    }

    const NeighbourCase& c_;
    const NeighbourTable& stat_;
    NeighbourTable out_;
    bool stringPrimary_;
    Numbers meanX_, varX_, meanY_, varY_;
    Texts modeP_, modeS_;
    double distance_ = 0.0;
    bool anyTerm_ = false;
};

// ---- random tables --------------------------------------------------------------------------------------------------

inline Numbers randomNumbers(RandomData& data, int rows, int cols)
{
    Numbers cells;
    for (int j = 0; j < cols; ++j) {
        // Whole numbers for ties, a constant for a variance of zero, or numbers that round.
        const int kind = data.integer(0, 9);
        for (int i = 0; i < rows; ++i)
            cells.push_back(kind == 0 ? 4.0 : kind < 6 ? data.integer(0, 3) : data.normal());
    }
    cells = data.withMissing(cells, data.chance(0.3) ? 0.5 : 0.15);
    return data.chance(0.2) ? data.withSpecials(cells, 0.1) : cells;
}

inline Texts randomTexts(RandomData& data, int rows, int cols)
{
    const double empty = data.chance(0.3) ? 0.5 : 0.15;
    Texts cells;
    for (int k = 0; k < rows * cols; ++k)
        cells.push_back(data.chance(empty) ? L"" : std::wstring(1, static_cast<wchar_t>(L'a' + data.integer(0, 2))));
    return cells;
}

inline NeighbourTable randomTable(RandomData& data, int rows, const NeighbourCase& c, bool stringPrimary)
{
    NeighbourTable t;
    t.rows = rows;
    if (stringPrimary)
        t.p = randomTexts(data, rows, c.colsX);
    else
        t.x = randomNumbers(data, rows, c.colsX);
    t.y = randomNumbers(data, rows, c.colsY);
    t.s = randomTexts(data, rows, c.colsS);
    return t;
}

inline std::vector<short> randomFlags(RandomData& data, int rows)
{
    const double share = data.uniform(0.1, 0.8);
    std::vector<short> flags;
    for (int i = 0; i < rows; ++i)
        flags.push_back(static_cast<short>(!data.chance(share) ? 0 : data.chance(0.5) ? -1 : data.integer(1, 300)));
    return flags;
}

/// A case without weights.
inline NeighbourCase randomCase(RandomData& data, int rows, bool stringPrimary)
{
    NeighbourCase c;
    c.colsX = data.integer(0, 3);
    c.colsY = data.integer(0, 3);
    c.colsS = data.integer(0, 3);
    c.target = randomTable(data, rows, c, stringPrimary);
    c.mask = randomFlags(data, rows);
    return c;
}

} // namespace vecmat::test
