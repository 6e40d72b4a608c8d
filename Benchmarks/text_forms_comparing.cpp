// Forms that compare, count and recode texts, and those that fill the empty ones.
#include "text_forms.h"

#include "missing/complete_rows.h"
#include "missing/missing_counts.h"
#include "missing/missing_masks.h"
#include "missing/mode_imputation.h"
#include "missing/nearest_neighbour.h"
#include "missing/observation_labels.h"
#include "missing/replacement.h"
#include "qualitative/categories.h"
#include "qualitative/disjunctive_tables.h"
#include "qualitative/distinct.h"
#include "qualitative/frequencies.h"
#include "qualitative/labels.h"
#include "qualitative/modes.h"
#include "qualitative/recoding.h"
#include "sorting/copy_block.h"

namespace vecmat::bench {

namespace {

constexpr int p = TextData::cols;
constexpr int categories = TextData::categories;
constexpr int few = 10; // of them

/// Tables in which results over tables of strings lie; a function makes them.
template <class Table>
struct Made
{
    Table* table = nullptr;

    Made() = default;
    Made(const Made&) = delete;
    Made& operator=(const Made&) = delete;
    ~Made() { delete table; }
};

const wchar_t* const value = L"category 7";

/// Some rows are flagged, and have gaps in the numbers, too.
struct Blocks
{
    matrix first, second, weights;
    matrix* x = &first;
    matrix* y = &second;

    explicit Blocks(TextData& d)
        : first(d.rows, 1, d.numbers.data(), true), second(d.rows, 1, d.numbers.data() + d.rows, true),
          weights(d.rows, 1, d.weights.data(), true)
    {
    }
};

constexpr int neighbours = 1000; // rows: the time grows with their square

/// Two columns of strings in the primary block, the other two in the third.
wchar_t** laterColumns(TextData& d)
{
    return d.x.data() + 2 * static_cast<std::ptrdiff_t>(d.rows);
}

} // namespace

std::vector<TextForm> formsThatCompare()
{
    using D = TextData&;
    return {
        {"VB_V_FreqStr", [](D d) { d.answer = {VB_V_FreqStr(d.x.data(), d.cells, d.weights.data(), value)}; },
         [](D d) {
             matrix weights = tableOver(d.weights);
             d.answer = {askTable(d, d.cells, 1, [&](Smatrix* x) { return V_FreqStr(x, d.cells, &weights, value); })};
         }},
        {"VB_V_Mode", [](D d) { d.out[0] = VB_V_Mode(d.x.data(), d.cells, 0, d.weights.data()); },
         [](D d) {
             matrix weights = tableOver(d.weights);
             askTable(d, d.cells, 1,
                      [&](Smatrix* x) { d.out[0] = SysAllocString2(V_Mode(x, d.cells, &weights).c_str()); });
         }},
        {"Cpp_V_NbDistinctStr", [](D d) { d.answer = {static_cast<double>(Cpp_V_NbDistinctStr(d.x.data(), d.cells))}; },
         [](D d) {
             d.answer = {
                 askTable(d, d.cells, 1, [&](Smatrix* x) { return static_cast<double>(V_NbDistinct(x, d.cells)); })};
         }},
        {"Cpp_V_RecodeToBinary", [](D d) { Cpp_V_RecodeToBinary(d.x.data(), d.cells, value, 0, d.counted.data()); },
         [](D d) {
             matrix out = tableOver(d.counted);
             askTable(d, d.cells, 1, [&](Smatrix* x) { V_RecodeToBinary(x, d.cells, value, &out); });
         }},
        {"VB_V_NbMissingStr", [](D d) { d.answer = {static_cast<double>(VB_V_NbMissingStr(d.x.data(), d.cells))}; },
         [](D d) {
             d.answer = {
                 askTable(d, d.cells, 1, [&](Smatrix* x) { return static_cast<double>(V_NbMissing(x, d.cells)); })};
         }},
        {"VB_M_NbMissingStr", [](D d) { VB_M_NbMissingStr(d.x.data(), d.rows, p, d.counts.data()); },
         [](D d) { askTable(d, d.rows, p, [&](Smatrix* x) { M_NbMissing(x, d.rows, p, d.counts.data()); }); }},
        {"VB_M_NbMissing2Str", [](D d) { d.answer = {static_cast<double>(VB_M_NbMissing2Str(d.x.data(), d.rows, p))}; },
         [](D d) {
             d.answer = {
                 askTable(d, d.rows, p, [&](Smatrix* x) { return static_cast<double>(M_NbMissing2(x, d.rows, p)); })};
         }},
        {"VB_V_GetMissingStr", [](D d) { VB_V_GetMissingStr(d.x.data(), d.rows, d.mask.data(), d.flags.data()); },
         [](D d) {
             askTable(d, d.rows, 1, [&](Smatrix* x) { V_GetMissingStr(x, d.rows, d.mask.data(), d.flags.data()); });
         }},
        {"VB_M_InfoQuali",
         [](D d) {
             int total = 0;
             d.answer = {0.0};
             VB_M_InfoQuali(d.x.data(), d.cells, 1, &d.out[count(d.cells)], d.answer.data(), &total, d.counts.data(),
                            d.out.data(), d.counted.data(), 0, d.weights.data(), 0);
         },
         [](D d) {
             Made<Smatrix> modes, names;
             Made<matrix> modeWeights, sums;
             Made<matrixInt> counts;
             matrix weights = tableOver(d.weights);
             int total = 0;
             askTable(d, d.cells, 1, [&](Smatrix* x) {
                 M_InfoQuali(x, d.cells, 1, modes.table, modeWeights.table, counts.table, names.table, sums.table,
                             &weights, &total, 0);
             });
             modes.table->copyMatTo(&d.out[count(d.cells)]);
             names.table->copyMatTo(d.out.data());
             sums.table->copyMatTo(d.counted.data());
             counts.table->copyMatTo(d.counts.data());
             d.answer = {modeWeights.table->X[0]};
         }},
        {"VB_M_InfoQuali2",
         [](D d) {
             int total = 0;
             Cells modeWeights(p);
             VB_M_InfoQuali2(d.x.data(), d.rows, p, categories, d.counts.data(), &d.out[count(d.cells)],
                             modeWeights.data(), &total, d.out.data(), d.counted.data(), 0, d.weights.data(), 0);
             d.answer = modeWeights;
         },
         [](D d) {
             Made<Smatrix> modes, names;
             Made<matrix> modeWeights, sums;
             matrixInt counts(p, 1, d.counts.data(), true);
             matrix weights = tableOver(d.weights);
             int total = 0;
             askTable(d, d.rows, p, [&](Smatrix* x) {
                 M_InfoQuali2(x, d.rows, p, categories, &counts, modes.table, modeWeights.table, names.table,
                              sums.table, &weights, &total, 0);
             });
             modes.table->copyMatTo(&d.out[count(d.cells)]);
             names.table->copyMatTo(d.out.data());
             sums.table->copyMatTo(d.counted.data());
             d.answer = Cells(modeWeights.table->X, modeWeights.table->X + p);
         }},
        {"VB_M_InfoQualiValid",
         [](D d) {
             VB_M_InfoQualiValid(d.x.data(), d.rows, p, categories, 0, d.counts.data(), d.namesByColumn.data(),
                                 d.counted.data(), d.flags.data(), 0, d.weights.data());
         },
         [](D d) {
             Smatrix names(p, categories, d.namesByColumn.data(), 0, 0);
             Made<matrix> sums;
             matrixInt counts(p, 1, d.counts.data(), true);
             matrix weights = tableOver(d.weights);
             askTable(d, d.rows, p, [&](Smatrix* x) {
                 M_InfoQualiValid(x, d.rows, p, categories, &counts, &names, sums.table, d.flags.data(), &weights);
             });
             sums.table->copyMatTo(d.counted.data());
         }},
        {"Cpp_GetMaxCat",
         [](D d) { d.answer = {static_cast<double>(Cpp_GetMaxCat(d.x.data(), d.rows, p, d.counts.data()))}; },
         [](D d) {
             matrixInt counts(p, 1, d.counts.data(), true);
             d.answer = {askTable(d, d.rows, p,
                                  [&](Smatrix* x) { return static_cast<double>(GetMaxCat(x, d.rows, p, &counts)); })};
         }},
        {"VB_BuildDisjunctiveTable",
         [](D d) {
             d.answer.resize(count(d.rows, few * p));
             d.counts.assign(p, few);
             VB_BuildDisjunctiveTable(d.x.data(), d.rows, p, few * p, d.counts.data(), d.namesByColumn.data(), nullptr,
                                      few, d.answer.data(), 0, 0);
         },
         [](D d) {
             Smatrix names(p, few, d.namesByColumn.data(), 0, 0);
             d.answer.resize(count(d.rows, few * p));
             d.counts.assign(p, few);
             matrixInt counts(p, 1, d.counts.data(), true);
             matrix view(d.rows, few * p, d.answer.data(), true);
             matrix* out = &view;
             askTable(d, d.rows, p, [&](Smatrix* x) {
                 BuildDisjunctiveTable(x, d.rows, p, few * p, &counts, &names, nullptr, out, 0, 0);
             });
         }},
        {"VB_M_ReplaceCatByCodes",
         [](D d) {
             VB_M_ReplaceCatByCodes(d.x.data(), d.rows, p, d.counts.data(), d.namesByColumn.data(), d.counted.data());
         },
         [](D d) {
             Smatrix names(p, categories, d.namesByColumn.data(), 0, 0);
             matrix out(d.rows, p, d.counted.data(), true);
             matrix* codes = &out;
             askTable(d, d.rows, p,
                      [&](Smatrix* x) { M_ReplaceCatByCodes(x, d.rows, p, d.counts.data(), &names, codes); });
         }},
        {"VB_M_ReplaceStrByCodes",
         [](D d) {
             VB_M_ReplaceStrByCodes(d.x.data(), d.rows, p, d.counts.data(), d.namesByColumn.data(), d.mask.data(), 1,
                                    d.counted.data());
         },
         [](D d) {
             Smatrix names(p, categories, d.namesByColumn.data(), 0, 0);
             matrix out(d.rows, p, d.counted.data(), true);
             matrix* codes = &out;
             askTable(d, d.rows, p, [&](Smatrix* x) {
                 M_ReplaceStrByCodes(x, d.rows, p, d.counts.data(), &names, d.mask.data(), 1, codes);
             });
         }},
    };
}

std::vector<TextForm> formsThatFill()
{
    using D = TextData&;
    return {
        {"VB_M_ReplaceMissingByStr", [](D d) { VB_M_ReplaceMissingByStr(d.x.data(), d.rows, p, value); },
         [](D d) { changeTable(d, d.rows, p, [&](Smatrix* x) { M_ReplaceMissingByStr(x, d.rows, p, value); }); }},
        {"VB_ReplaceMissingObsLabels",
         [](D d) {
             d.flags = d.mask;
             VB_ReplaceMissingObsLabels(d.x.data(), d.rows, d.flags.data(), L"row ");
         },
         [](D d) {
             d.flags = d.mask;
             changeTable(d, d.rows, 1,
                         [&](Smatrix*& x) { ReplaceMissingObsLabels(x, d.rows, d.flags.data(), L"row "); });
         }},
        {"VB_V_ReplaceDoubles", [](D d) { VB_V_ReplaceDoubles(d.x.data(), d.cells); },
         [](D d) { changeTable(d, d.cells, 1, [&](Smatrix* x) { V_ReplaceDoubles(x, d.cells); }); }},
        {"Cpp_M_MergeStringsByRow",
         [](D d) { Cpp_M_MergeStringsByRow(d.x.data(), d.rows, p, d.names.data()[0], d.out.data()); },
         [](D d) {
             fillTable(d, d.rows, 1, [&](Smatrix* x, Smatrix* out) {
                 M_MergeStringsByRow(x, d.rows, p, CW162W32(d.names.data()[0]), out);
             });
         }},
        {"VB_RemoveRowsWithMissingStr",
         [](D d) { VB_RemoveRowsWithMissingStr(d.x.data(), d.rows, p, d.rows / 2, d.flags.data(), d.out.data()); },
         [](D d) {
             changeTable(d, d.rows, p, [&](Smatrix*& x) {
                 RemoveRowsWithMissing(x, d.rows, p, d.flags.data());
                 Smatrix top(d.rows - d.rows / 2, p);
                 Smatrix* out = &top;
                 M_CopyBlock(x, 1, top.nRows, 1, p, out);
                 top.copyMatTo(d.out.data());
             });
         }},
        {"VB_EstimateRowsWithMissingMode",
         [](D d) { VB_EstimateRowsWithMissingMode(d.x.data(), d.rows, p, nullptr, d.weights.data()); },
         [](D d) {
             matrix weights = tableOver(d.weights);
             changeTable(d, d.rows, p,
                         [&](Smatrix*& x) { EstimateRowsWithMissingMode(x, d.rows, x, d.rows, p, &weights); });
         }},
        {"VB_EstimateRowsWithMissingModePred",
         [](D d) {
             VB_EstimateRowsWithMissingModePred(d.callers.data(), d.rows, d.x.data(), d.rows, p, nullptr,
                                                d.weights.data());
         },
         [](D d) {
             matrix weights = tableOver(d.weights);
             Smatrix statistics(d.rows, p, d.callers.data(), 0, 0);
             changeTable(d, d.rows, p, [&](Smatrix*& x) {
                 EstimateRowsWithMissingMode(&statistics, d.rows, x, d.rows, p, &weights);
             });
         }},
        {"VB_EstimateRowsWithMissingNN",
         [](D d) {
             VB_EstimateRowsWithMissingNN(d.numbers.data(), d.rows, 1, d.mask.data(), d.numbers.data() + d.rows, 1,
                                          d.x.data(), p, d.weights.data());
         },
         [](D d) {
             Blocks b(d);
             changeTable(d, d.rows, p, [&](Smatrix*& x) {
                 EstimateRowsWithMissingNN(b.x, d.rows, b.x, d.rows, 1, d.mask.data(), b.y, b.y, 1, x, x, p,
                                           &b.weights);
             });
         },
         neighbours},
        {"VB_EstimateRowsWithMissingNNPred",
         [](D d) {
             Cells statistics = d.drawn;
             VB_EstimateRowsWithMissingNNPred(statistics.data(), d.rows, d.numbers.data(), d.rows, 1, d.mask.data(),
                                              statistics.data() + d.rows, d.numbers.data() + d.rows, 1,
                                              d.callers.data(), d.x.data(), p, d.weights.data());
         },
         [](D d) {
             Blocks b(d);
             Cells drawn = d.drawn;
             matrix statX(d.rows, 1, drawn.data(), true), statY(d.rows, 1, drawn.data() + d.rows, true);
             Smatrix statS(d.rows, p, d.callers.data(), 0, 0);
             changeTable(d, d.rows, p, [&](Smatrix*& x) {
                 EstimateRowsWithMissingNN(&statX, d.rows, b.x, d.rows, 1, d.mask.data(), &statY, b.y, 1, &statS, x, p,
                                           &b.weights);
             });
         },
         neighbours},
        {"VB_EstimateRowsWithMissingNNStr",
         [](D d) {
             VB_EstimateRowsWithMissingNNStr(d.x.data(), d.rows, 2, d.mask.data(), d.numbers.data(), 1, laterColumns(d),
                                             2, d.weights.data());
         },
         [](D d) {
             Blocks b(d);
             Smatrix later(d.rows, 2, laterColumns(d), 0, 0);
             Smatrix* s = &later;
             changeTable(d, d.rows, 2, [&](Smatrix*& x) {
                 EstimateRowsWithMissingNNStr(x, d.rows, x, d.rows, 2, d.mask.data(), b.x, b.x, 1, s, s, 2, &b.weights);
             });
             later.copyMatTo(laterColumns(d));
         },
         neighbours},
        {"VB_EstimateRowsWithMissingNNStrPred",
         [](D d) {
             Cells statistics = d.drawn;
             VB_EstimateRowsWithMissingNNStrPred(d.callers.data(), d.rows, d.x.data(), d.rows, 2, d.mask.data(),
                                                 statistics.data(), d.numbers.data(), 1, d.callers.data() + 2 * d.rows,
                                                 laterColumns(d), 2, d.weights.data());
         },
         [](D d) {
             Blocks b(d);
             Cells drawn = d.drawn;
             matrix statY(d.rows, 1, drawn.data(), true);
             Smatrix statX(d.rows, 2, d.callers.data(), 0, 0), statS(d.rows, 2, d.callers.data() + 2 * d.rows, 0, 0);
             Smatrix later(d.rows, 2, laterColumns(d), 0, 0);
             Smatrix* s = &later;
             changeTable(d, d.rows, 2, [&](Smatrix*& x) {
                 EstimateRowsWithMissingNNStr(&statX, d.rows, x, d.rows, 2, d.mask.data(), &statY, b.x, 1, &statS, s, 2,
                                              &b.weights);
             });
             later.copyMatTo(laterColumns(d));
         },
         neighbours},
    };
}

} // namespace vecmat::bench
