// Forms that shuffle texts and draw samples of them.
#include "text_forms.h"

#include "randomisation/interval_sampling.h"
#include "randomisation/permutations.h"
#include "randomisation/sampling_with_repeats.h"
#include "randomisation/stratified_sampling.h"

#include <algorithm>
#include <numeric>

namespace vecmat::bench {

namespace {

constexpr int p = TextData::cols;
constexpr short fromSeed = -1;

/// A sample of half the rows, over a table or over string columns.
template <class Draw>
void sampleTable(TextData& d, Draw draw)
{
    matrix ids = tableOver(d.ids);
    fillTable(d, d.rows / 2, p, [&](Smatrix* x, Smatrix* out) { draw(x, out, &ids); });
}
template <class Draw>
void sampleColumns(TextData& d, Draw draw)
{
    matrix ids = tableOver(d.ids);
    OwnColumns x(d.x.data(), d.rows, p);
    OwnColumns out(d.out.data(), d.rows / 2, p);
    draw(x.tables, out.tables, &ids);
    out.save();
}

/// A design that draws in one series: its flat form, and the function over tables. Their arguments are alike.
template <class Flat, class OverTable>
TextForm drawnForm(const char* name, Flat flat, OverTable overTable)
{
    return {name,
            [flat](TextData& d) {
                flat(d.x.data(), d.rows, p, d.rows / 2, d.out.data(), d.ids.data(), &d.seed, fromSeed, &d.seedOut);
            },
            [overTable](TextData& d) {
                sampleTable(d, [&](Smatrix* x, Smatrix* out, matrix* ids) {
                    overTable(x, d.rows, p, d.rows / 2, out, ids, &d.seed, fromSeed, &d.seedOut);
                });
            }};
}

/// Each row's stratum, and how large each is and how much of it is drawn.
struct Strata
{
    Cells of, sizes, quota;
    int drawn;

    explicit Strata(const TextData& d) : Strata(d, d.rows / 20) {}

private:
    Strata(const TextData& d, int each)
        : of(RandomData(158).wholes(count(d.rows), 1, TextData::strata)), quota(TextData::strata, each),
          drawn(TextData::strata * each)
    {
        for (int k = 1; k <= TextData::strata; ++k)
            sizes.push_back(static_cast<double>(std::count(of.begin(), of.end(), k)));
    }
};

} // namespace

std::vector<TextForm> formsThatSample()
{
    using D = TextData&;
    return {
        {"Cpp_M_ShuffleStr",
         [](D d) { Cpp_M_ShuffleStr(d.x.data(), d.rows, p, d.out.data(), &d.seed, fromSeed, &d.seedOut); },
         [](D d) {
             fillTable(d, d.rows, p,
                       [&](Smatrix* x, Smatrix* out) { M_Shuffle(x, d.rows, p, out, d.seed, fromSeed, d.seedOut); });
         }},
        {"Cpp_M_ShuffleStr2", [](D d) { Cpp_M_ShuffleStr2(d.x.data(), d.rows, p, &d.seed, fromSeed, &d.seedOut); },
         [](D d) {
             changeTable(d, d.rows, p, [&](Smatrix* x) { M_Shuffle2(x, d.rows, p, d.seed, fromSeed, d.seedOut); });
         }},
        drawnForm("VB_M_SamplingWithReplacement", VB_M_SamplingWithReplacement, M_SamplingWithReplacement),
        {"VB_M_SamplingWithReplacementSPV",
         [](D d) {
             StringColumns x(d.x.data(), d.rows, p), out(d.out.data(), d.rows / 2, p);
             VB_M_SamplingWithReplacementSPV(x, d.rows, p, d.rows / 2, out, d.ids.data(), &d.seed, fromSeed,
                                             &d.seedOut);
         },
         [](D d) {
             sampleColumns(d, [&](Smatrix** x, Smatrix** out, matrix* ids) {
                 M_SamplingWithReplacementSPV(x, d.rows, p, d.rows / 2, out, ids, &d.seed, fromSeed, &d.seedOut);
             });
         }},
        drawnForm("VB_M_SamplingSystematicRdStart", VB_M_SamplingSystematicRdStart, M_SamplingSystematicRdStart),
        {"VB_M_SamplingSystematicCentered",
         [](D d) { VB_M_SamplingSystematicCentered(d.x.data(), d.rows, p, d.rows / 2, d.out.data(), d.ids.data()); },
         [](D d) {
             sampleTable(d, [&](Smatrix* x, Smatrix* out, matrix* ids) {
                 M_SamplingSystematicCentered(x, d.rows, p, d.rows / 2, out, ids);
             });
         }},
        drawnForm("VB_M_SamplingRandomStratified", VB_M_SamplingRandomStratified, M_SamplingRandomStratified),
        {"Cpp_M_SamplingRandomStratifiedByStr",
         [](D d) {
             Strata strata(d);
             Cells outIds(count(strata.drawn));
             Cpp_M_SamplingRandomStratifiedByStr(d.x.data(), d.rows, p, strata.drawn, d.out.data(), d.ids.data(),
                                                 outIds.data(), strata.of.data(), strata.quota.data(),
                                                 strata.sizes.data(), TextData::strata, &d.seed, fromSeed, &d.seedOut);
             d.answer = outIds;
         },
         [](D d) {
             Strata strata(d);
             matrix rowIds = tableOver(d.ids), of = tableOver(strata.of), quota = tableOver(strata.quota),
                    sizes = tableOver(strata.sizes), outIds(strata.drawn, 1, 0.0);
             fillTable(d, strata.drawn, p, [&](Smatrix* x, Smatrix* out) {
                 M_SamplingRandomStratifiedByStr(x, d.rows, p, strata.drawn, out, &rowIds, &outIds, &of, &quota, &sizes,
                                                 TextData::strata, &d.seed, fromSeed, &d.seedOut);
             });
             d.answer = Cells(outIds.X, outIds.X + outIds.nElems);
         }},
        {"VB_M_SampleUserDefined",
         [](D d) {
             Cells ids(2 * count(d.rows));
             VB_M_SampleUserDefined(d.x.data(), d.rows, p, d.out.data(), d.frequencies.data(), ids.data());
             d.answer = ids;
         },
         [](D d) {
             const int n = static_cast<int>(std::accumulate(d.frequencies.begin(), d.frequencies.end(), 0.0));
             matrix frequencies = tableOver(d.frequencies), ids(2 * d.rows, 1, 0.0);
             fillTable(d, n, p,
                       [&](Smatrix* x, Smatrix* out) { M_SampleUserDefined(x, d.rows, p, out, &frequencies, &ids); });
             d.answer = Cells(ids.X, ids.X + ids.nElems);
         }},
    };
}

} // namespace vecmat::bench
