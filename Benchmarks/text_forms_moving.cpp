// Forms that copy, merge, select and sort texts.
#include "text_forms.h"

#include "decompositions/correlation_order.h"
#include "elementary/array_copies.h"
#include "elementary/blocks.h"
#include "elementary/columns_and_rows.h"
#include "elementary/extraction.h"
#include "elementary/filling.h"
#include "elementary/horizontal_merges.h"
#include "elementary/removal.h"
#include "elementary/transposition.h"
#include "elementary/vertical_merges.h"
#include "sorting/copy_block.h"
#include "sorting/sort.h"
#include "sorting/sort_apply.h"

namespace vecmat::bench {

namespace {

constexpr int p = TextData::cols;

/// The rows of half the table.
struct Half
{
    int first;
    int last;
    int count;

    explicit Half(const TextData& d) : first(d.rows / 4 + 1), last(first + d.rows / 2 - 1), count(d.rows / 2) {}
};

} // namespace

std::vector<TextForm> formsThatMove()
{
    using D = TextData&;
    return {
        {"VB_V_SetToValueStr", [](D d) { VB_V_SetToValueStr(d.x.data(), d.cells, L"a value"); },
         [](D d) {
             Smatrix table(d.cells, 1);
             V_SetToValueStr(&table, d.cells, L"a value");
             table.copyMatTo(d.x.data());
         }},
        {"VB_V_DuplicateStr", [](D d) { VB_V_DuplicateStr(d.x.data(), d.cells, d.out.data()); },
         [](D d) { askTable(d, d.cells, 1, [&](Smatrix* x) { x->copyMatTo(d.out.data()); }); }},
        {"VB_M_DuplicateStr", [](D d) { VB_M_DuplicateStr(d.x.data(), d.rows, p, d.out.data()); },
         [](D d) { askTable(d, d.rows, p, [&](Smatrix* x) { x->copyMatTo(d.out.data()); }); }},
        {"VB_M_CopyResizeStr", [](D d) { VB_M_CopyResizeStr(d.x.data(), d.rows, p, d.out.data(), d.rows / 2, p); },
         [](D d) {
             fillTable(d, d.rows / 2, p, [&](Smatrix* x, Smatrix*& out) { M_CopyBlock(x, 1, d.rows / 2, 1, p, out); });
         }},
        {"VB_M_CopyBlockStr",
         [](D d) {
             const Half half(d);
             VB_M_CopyBlockStr(d.x.data(), d.rows, p, half.first, half.last, 1, p, d.out.data());
         },
         [](D d) {
             const Half half(d);
             fillTable(d, half.count, p,
                       [&](Smatrix* x, Smatrix*& out) { M_CopyBlock(x, half.first, half.last, 1, p, out); });
         }},
        {"VB_M_ExtractMatToMatStr",
         [](D d) {
             const Half half(d);
             VB_M_ExtractMatToMatStr(d.x.data(), d.rows, p, half.first, half.last, d.out.data());
         },
         [](D d) {
             const Half half(d);
             fillTable(d, half.count, p,
                       [&](Smatrix* x, Smatrix*& out) { M_CopyBlock(x, half.first, half.last, 1, p, out); });
         }},
        {"VB_M_ExtractMatToMatStrSPV",
         [](D d) {
             const Half half(d);
             StringColumns x(d.x.data(), d.rows, p);
             VB_M_ExtractMatToMatStrSPV(x, p, half.first, half.last, d.out.data());
         },
         [](D d) {
             const Half half(d);
             OwnColumns x(d.x.data(), d.rows, p);
             Smatrix table(half.count, p);
             Smatrix* out = &table;
             M_CopyBlock(x.tables, half.first, half.last, 1, p, out);
             table.copyMatTo(d.out.data());
         }},
        {"VB_M_DuplicateStrSPV",
         [](D d) {
             StringColumns x(d.x.data(), d.rows, p);
             StringColumns out(d.out.data(), d.rows, p);
             VB_M_DuplicateStrSPV(x, d.rows, p, out);
         },
         [](D d) {
             OwnColumns x(d.x.data(), d.rows, p);
             OwnColumns out(d.out.data(), d.rows, p);
             M_DuplicateStrSPV(x.tables, d.rows, p, out.tables);
             out.save();
         }},
        {"Cpp_M_ExtractMatNeverySKSPV",
         [](D d) {
             StringColumns x(d.x.data(), d.rows, p);
             StringColumns out(d.out.data(), d.rows / 2, p);
             Cpp_M_ExtractMatNeverySKSPV(x, d.rows, p, d.rows / 2, 5, 5, 1, out, d.counted.data());
         },
         [](D d) {
             OwnColumns x(d.x.data(), d.rows, p);
             OwnColumns out(d.out.data(), d.rows / 2, p);
             matrix positions(d.rows / 2, 1, d.counted.data(), true);
             M_ExtractMatNeverySKSPV(x.tables, d.rows, p, d.rows / 2, 5, 5, 1, out.tables, &positions);
             out.save();
         }},
        {"Cpp_M_CopyPasteBlockStr",
         [](D d) {
             const Half half(d);
             Cpp_M_CopyPasteBlockStr(d.x.data(), d.rows, p, half.first, half.last, 1, p, d.out.data(), d.rows, p, 1, 1);
         },
         [](D d) {
             const Half half(d);
             fillTable(d, d.rows, p, [&](Smatrix* x, Smatrix* out) {
                 M_CopyPasteBlockStr(x, half.first, half.last, 1, p, out, 1, 1);
             });
         }},
        {"Cpp_M_RemoveRowsStr2",
         [](D d) {
             const Half half(d);
             Cpp_M_RemoveRowsStr2(d.x.data(), d.rows, p, half.first, half.last);
         },
         [](D d) {
             const Half half(d);
             changeTable(d, d.rows, p, [&](Smatrix*& x) { M_RemoveRows2(x, d.rows, p, half.first, half.last); });
         }},
        {"VB_CopyMatrixColToOneColMatStr",
         [](D d) { VB_CopyMatrixColToOneColMatStr(d.x.data(), d.rows, p, d.out.data()); },
         [](D d) {
             fillTable(d, d.rows, 1, [&](Smatrix* x, Smatrix* out) { CopyMatrixColToOneColMatStr(x, d.rows, p, out); });
         }},
        {"VB_M_TransposeStr", [](D d) { VB_M_TransposeStr(d.x.data(), d.rows, p, d.out.data()); },
         [](D d) { fillTable(d, p, d.rows, [&](Smatrix*& x, Smatrix*& out) { M_Transpose(x, d.rows, p, out); }); }},
        {"VB_M_Transpose2Str", [](D d) { VB_M_Transpose2Str(d.x.data(), d.rows, p); },
         [](D d) { changeTable(d, d.rows, p, [&](Smatrix*& x) { M_Transpose2(x, d.rows, p); }); }},
        {"VB_HMergeTablesStr",
         [](D d) { VB_HMergeTablesStr(d.x.data(), d.rows, p, d.callers.data(), d.rows, p, d.out.data()); },
         [](D d) {
             Smatrix second(d.rows, p, d.callers.data(), 0, 0);
             fillTable(d, d.rows, 2 * p,
                       [&](Smatrix* x, Smatrix*& out) { HMergeTables(x, d.rows, p, &second, d.rows, p, out); });
         }},
        {"VB_VMergeVectorsStr",
         [](D d) { VB_VMergeVectorsStr(d.x.data(), d.cells, d.callers.data(), d.cells, d.out.data()); },
         [](D d) {
             Smatrix second(d.cells, 1, d.callers.data(), 0, 0);
             fillTable(d, 2 * d.cells, 1,
                       [&](Smatrix* x, Smatrix*& out) { VMergeVectors(x, d.cells, &second, d.cells, out); });
         }},
        {"VB_VMergeVectorsStr2", [](D d) { VB_VMergeVectorsStr2(d.out.data(), d.cells, d.x.data(), d.cells); },
         [](D d) {
             Smatrix first(2 * d.cells, 1, d.out.data(), 0, 0);
             askTable(d, d.cells, 1, [&](Smatrix* x) { VMergeVectors2(&first, d.cells, x, d.cells); });
             first.copyMatTo(d.out.data());
         }},
    };
}

std::vector<TextForm> formsThatSort()
{
    using D = TextData&;
    return {
        {"VB_SortQVectorStr", [](D d) { VB_SortQVectorStr(d.x.data(), d.cells, 1, d.cells, 0); },
         [](D d) { changeTable(d, d.cells, 1, [&](Smatrix* x) { SortQVector(x, 1, d.cells, 0); }); }},
        {"VB_SortQMatrixColStr", [](D d) { VB_SortQMatrixColStr(d.x.data(), d.rows, p, 2, 1, d.rows, 0); },
         [](D d) { changeTable(d, d.rows, p, [&](Smatrix*& x) { SortQMatrixCol(x, d.rows, p, 2, 1, d.rows, 0); }); }},
        {"VB_SortQStr",
         [](D d) { VB_SortQStr(d.x.data(), d.rows, p, 1, d.rows, d.numbers.data(), d.ids.data(), 1, 0, -1); },
         [](D d) {
             matrix keys(d.rows, 1, d.numbers.data(), true), companions(d.rows, 1, d.ids.data(), true);
             matrix* key = &keys;
             matrix* companion = &companions;
             changeTable(d, d.rows, p, [&](Smatrix*& x) { SortQ(x, d.rows, p, 1, d.rows, key, companion, 1, 0, -1); });
         }},
        {"VB_SortQStrSPV",
         [](D d) {
             StringColumns x(d.x.data(), d.rows, p);
             VB_SortQStrSPV(x, d.rows, p, 1, d.rows, d.numbers.data(), d.ids.data(), 1, 0, -1);
         },
         [](D d) {
             matrix keys(d.rows, 1, d.numbers.data(), true), companions(d.rows, 1, d.ids.data(), true);
             matrix* key = &keys;
             matrix* companion = &companions;
             OwnColumns x(d.x.data(), d.rows, p);
             SortQ(x.tables, d.rows, p, 1, d.rows, key, companion, 1, 0, -1);
             x.save();
         }},
        {"VB_SortDataBy01Str", [](D d) { VB_SortDataBy01Str(d.x.data(), d.rows, p, d.key.data()); },
         [](D d) {
             Cells sorted = d.key;
             matrix keys = tableOver(sorted);
             matrix* key = &keys;
             changeTable(d, d.rows, p, [&](Smatrix*& x) { SortDataBy01(x, d.rows, p, key); });
         }},
        {"VB_SortApplyStr", [](D d) { VB_SortApplyStr(d.x.data(), d.rows, p, d.order.data(), d.out.data()); },
         [](D d) {
             matrix order = tableOver(d.order);
             fillTable(d, d.rows, p, [&](Smatrix* x, Smatrix* out) { SortApplyStr(x, d.rows, p, &order, out); });
         }},
        {"VB_SortApply2Str", [](D d) { VB_SortApply2Str(d.x.data(), d.rows, p, d.order.data()); },
         [](D d) {
             matrix order = tableOver(d.order);
             Smatrix sorted(d.rows, p);
             askTable(d, d.rows, p, [&](Smatrix* x) { SortApplyStr(x, d.rows, p, &order, &sorted); });
             sorted.copyMatTo(d.x.data());
         }},
        {"Cpp_ReOrderCorrelations",
         [](D d) {
             Cells R(count(d.rows, d.rows), 0.5), second = R;
             std::vector<int> third(R.size());
             Cpp_ReOrderCorrelations(R.data(), d.rows, 1, d.x.data(), second.data(), third.data());
         },
         [](D d) {
             matrix R(d.rows, d.rows, 0.5), second(d.rows, d.rows, 0.5);
             matrixInt third(d.rows, d.rows, 0);
             changeTable(d, d.rows, 1, [&](Smatrix* x) { ReOrderCorrelations(&R, d.rows, 1, x, &second, &third); });
         },
         100},
    };
}

} // namespace vecmat::bench
