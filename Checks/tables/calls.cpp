// Each function over tables, called with tables of many sizes.
#include "tables/case.h"

namespace vecmat::digest {

namespace {

struct Size
{
    int rows;
    int cols;
    int third;
};

/// Small ones, tall and wide ones, and some around the widths of vectors and panels.
constexpr Size sizes[] = {{1, 1, 1}, {2, 3, 1},   {3, 2, 4},   {5, 5, 5},  {7, 4, 3},
                          {4, 9, 2}, {16, 16, 3}, {17, 17, 5}, {33, 5, 4}, {70, 13, 9}};

std::uint64_t digestOf(const TableCall& call)
{
    Hash hash;
    std::uint64_t seed = 0;
    for (const Size& size : sizes)
        for (const Style style : {Style::plain, Style::gaps, Style::ties, Style::special})
            for (int repeat = 0; repeat < 2; ++repeat) {
                Case one(size.rows, size.cols, size.third, style, ++seed);
                call.call(one);
                hash.addBits(one.digest(), 8);
            }
    return hash.value();
}

} // namespace

std::vector<Subject> tableSubjects()
{
    std::vector<Subject> subjects;
    for (const auto calls : {memberCalls(), operationCalls(), frameCalls(), serviceCalls(), elementaryCalls(),
                             shapeCalls(), sortingCalls(), missingCalls(), qualitativeCalls(), descriptiveCalls(),
                             randomisationCalls(), decompositionCalls(), fittingCalls()})
        for (const TableCall& call : calls)
            subjects.push_back({call.name, [&call] { return digestOf(call); }});
    return subjects;
}

} // namespace vecmat::digest
