// What takes neither tables nor the arrays of macros: labels, positions, pointers.
#include "tables/case.h"

#include "support/flat_calls/column_arrays.h"

#include <vector>

namespace vecmat::digest {

namespace {

std::wstring columnName(Case& c, const char* name)
{
    static const std::wstring names[] = {L"A", L"B", L"Z", L"AA", L"AZ", L"ZZ", L"", L"BC"};
    return names[c.pick(name, 0, 7)];
}

std::wstring range(Case& c)
{
    static const std::wstring ranges[] = {L"'S'!$A:$A,'S'!$B:$B", L"'S'!$D:$D,'S'!$A:$A,'S'!$B:$B", L"'S'!$A:$A",
                                          L"'S'!$AZ:$AZ,'T'!$BA:$BA,'T'!$C:$C", L"'S'!$A:$A,'S'!$1:$5"};
    return ranges[c.pick("range", 0, 4)];
}

void summarized(Case& c)
{
    short* a = c.mask("a", c.n);
    short* b = c.mask("b", c.n);
    short* third = c.pick("third", 0, 1) == 1 ? c.mask("c", c.n) : nullptr;
    short* out = c.mask("out", c.n);
    int* total = &c.whole1("total", 123);
    SummarizeMissing(c.n, total, out, a, b, third);
}

/// The first number of a column that is looked for by its descriptor.
void firstNumber(Case& c)
{
    flat::ColumnArray array({{c.number("first"), 2.0}}, flat::Placement::plain, "columns");
    auto** const columns = static_cast<SAFEARRAY**>(array.data());
    const auto* const elements = static_cast<SAFEARRAYColumn*>(ExtractBSTR(columns));
    void* data = nullptr;
    c.gives(MySafeArrayAccessData(elements[0].numbers, &data));
    c.gives(*static_cast<const double*>(data));
    c.gives(MySafeArrayAccessData(nullptr, &data));
}

void prepared(Case& c)
{
    std::vector<void*> none;
    c.gives(PrepareTest(c.pick("a", -2, 2), c.n, none));
}

} // namespace

std::span<const TableCall> serviceCalls()
{
    static const TableCall calls[] = {
        {"ChrSp", [](Case& c) { c.gives(ChrSp(c.pick("code", 60, 800))); }},
        {"PrepareTest", prepared},
        {"MySafeArrayAccessData", firstNumber},
        {"ExtractBSTR", firstNumber},
        {"GetIJForSymMat", [](Case& c) { GetIJForSymMat(c.pick("k", 1, 5000), c.whole1("i", 0), c.whole1("j", 0)); }},
        {"GetKForVectFromIJSymMat",
         [](Case& c) { GetKForVectFromIJSymMat(c.pick("i", 1, 99), c.pick("j", 1, 99), c.whole1("k", 0)); }},
        {"IsMissingValueStr", [](Case& c) { c.gives(IsMissingValueStr(c.text("s"))); }},
        {"SummarizeMissing", summarized},
        {"cSimplifyRange",
         [](Case& c) {
             std::wstring input = range(c);
             c.gives(cSimplifyRange(input));
             c.gives(input);
         }},
        {"cIncrease1Col",
         [](Case& c) {
             std::wstring letters = columnName(c, "letters");
             c.gives(cIncrease1Col(letters));
         }},
        {"AreContiguous", [](Case& c) { c.gives(AreContiguous(columnName(c, "a"), columnName(c, "b"))); }},
    };
    return calls;
}

} // namespace vecmat::digest
