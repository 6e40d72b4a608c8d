#include "provenance.h"

namespace survey {

namespace {

enum class When { always, unweighted, weighted };

/// Where a function's treatment of missing cells, weights and divisors stands: a heading of a page in Docs/contracts.
struct Source
{
    const char* section;
    const char* numbers;
    const char* function;
    const char* contract;
    When when = When::always;
};

constexpr Source sources[] = {
    {"missing", "missing numbers", "VB_M_NbMissing", "missing/missing_counts"},
    {"missing", "missing texts", "VB_M_NbMissingStr", "missing/missing_counts"},
    {"moments", "counts", "VB_V_NbIf", "elementary/conditional_aggregates"},
    {"moments", "minima", "VB_V_Min2", "elementary/extremes"},
    {"moments", "maxima", "VB_V_Max2", "elementary/extremes"},
    {"moments", "means, deviations", "VB_M_MeanStDev", "descriptive/moments"},
    {"moments", "skewness, kurtosis", "VB_V_MeanVarSkewPKurtP", "descriptive/shape_moments"},
    {"quartiles", "all quantiles", "VB_V_QuantileM", "descriptive/quantiles", When::unweighted},
    {"quartiles", "all quantiles", "VB_V_QuantileMW", "descriptive/quantiles", When::weighted},
    {"categories", "categories", "VB_M_InfoQuali", "qualitative/categories"},
    {"means", "means by category", "VB_M_GroupBy", "qualitative/group_by", When::unweighted},
    {"means", "means by category", "VB_V_Mean", "descriptive/means", When::weighted},
    {"correlations", "correlations", "VB_M_CovCorr", "descriptive/covariance"},
    {"letter_groups", "letters", "Cpp_GetCompMatrices", "randomisation/letter_groups"},
    {"sample", "rows drawn", "Cpp_M_SamplingRandomStratifiedByStr", "randomisation/stratified_sampling"},
    {"filled_cells", "filled cells", "VB_EstimateRowsWithMissingNN", "missing/nearest_neighbour"},
    {"filled_cells", "filled, of many rows", "VB_EstimateRowsWithMissingNNPred", "missing/nearest_neighbour"},
    {"components", "standardised columns", "VB_M_CovCorrAndMeanStDevVar", "descriptive/covariance_with_moments"},
    {"components", "components", "VB_M_Eigen", "decompositions/eigen"},
    {"components", "shares, components kept", "VB_FilterEigen", "decompositions/axis_selection"},
    {"components", "scores", "VB_M_ProductAB", "elementary/matrix_products"},
    {"biplot", "points", "VB_BiplotTransData", "fitting/biplots"},
    {"biplot", "row farthest out", "Cpp_M_GetMaxDistToOrigin", "fitting/biplots"},
    {"regression", "coefficients, errors", "RunOLSBasic3", "fitting/least_squares"},
    {"regression", "squares of residuals", "VB_V_DiffSq", "elementary/vector_sums"},
    {"regression", "squares of the response", "VB_V_Var", "descriptive/moments"},
};

bool isMeant(When when, bool weighted)
{
    return when == When::always || (when == When::weighted) == weighted;
}

} // namespace

void addProvenance(Document& document, const std::set<std::string>& sections, bool weighted)
{
    TextTable text({{"numbers", Align::left}, {"function", Align::left}, {"contract", Align::left}}, 1);
    for (const Source& source : sources)
        if (sections.contains(source.section) && isMeant(source.when, weighted))
            text.addRow({source.numbers, source.function, source.contract});
    Section& section =
        document.add("provenance", "How each number was made",
                     "The function of the library behind each number. Its contract tells what becomes of "
                     "missing cells, weights and divisors.");
    section.addTable(std::move(text));
    section.note = "By VecMat " SURVEY_VECMAT_VERSION
                   "; the contracts stand in its Docs/contracts. p values and intervals take the distributions of "
                   "Boost.Math, and sums of a few numbers are the survey's own: the standard errors of differences, F, "
                   "the corrections for many comparisons, the bars of histograms.";
}

} // namespace survey
