// What the tests of the three tables ask of each: its shape, and the arrays that a table of numbers may have.
#pragma once

#include "support/constants.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <vector>

namespace vecmat::test {

template <class Table>
void expectShape(const Table* t, int rows, int cols)
{
    EXPECT_EQ(t->nRows, rows);
    EXPECT_EQ(t->nCols, cols);
    EXPECT_EQ(t->nElems, static_cast<unsigned>(rows * cols));
}
template <class Table>
void expectShape(const Owned<Table>& t, int rows, int cols)
{
    expectShape(t.get(), rows, cols);
}

/// No moments, and no flag for any.
template <class Table>
void expectNoMoments(const Table& t)
{
    EXPECT_EQ(t.norMu, nullptr);
    EXPECT_EQ(t.norSigma, nullptr);
    EXPECT_EQ(t.descMu, nullptr);
    EXPECT_EQ(t.descSigma, nullptr);
    EXPECT_EQ(t.normalized, 0);
    EXPECT_EQ(t.descDone, 0);
    EXPECT_EQ(t.descMode, 0);
}

template <class Table>
void expectNoCounts(const Table& t)
{
    EXPECT_EQ(t.weightcorr, nullptr);
    EXPECT_EQ(t.nCol, nullptr);
}

/// 2 by 2, with every optional array, so that releasing and copying have something to do.
template <class Table>
std::unique_ptr<Table> withEveryArray()
{
    auto t = std::make_unique<Table>(2, 2, 5);
    t->norMu = new double[2]{10, 11};
    t->norSigma = new double[2]{20, 21};
    t->descMu = new double[2]{30, 31};
    t->descSigma = new double[2]{40, 41};
    t->weights = new double[2]{50, M};
    t->weightcorr = new double[2]{60, 61};
    t->nCol = new int[2]{70, 71};
    t->normalized = 1;
    t->descDone = 1;
    t->descMode = -1;
    return t;
}

inline std::vector<double> listOf(const double* cells, std::size_t n)
{
    return std::vector<double>(cells, cells + n);
}

} // namespace vecmat::test
