#include "survey.h"

#include "biplot.h"
#include "categories.h"
#include "comparisons.h"
#include "completion.h"
#include "components.h"
#include "correlations.h"
#include "distributions.h"
#include "group_means.h"
#include "letter_groups.h"
#include "missing_cells.h"
#include "provenance.h"
#include "regression.h"
#include "sample.h"

#include <filesystem>
#include <set>
#include <span>
#include <string>
#include <utility>

namespace survey {

namespace {

std::vector<std::string> namesOf(const std::vector<const Column*>& columns)
{
    std::vector<std::string> names;
    names.reserve(columns.size());
    for (const Column* column : columns)
        names.push_back(listed(column->name));
    return names;
}

std::vector<std::string> namesAndSizesOf(std::span<const Group> groups)
{
    if (groups.size() > mostListed)
        return {std::to_string(groups.size()) + " groups"};
    std::vector<std::string> names;
    for (const Group& group : groups)
        names.push_back(listed(group.name) + " (" + std::to_string(group.rows.size()) + ")");
    return names;
}

/// Names the table, its columns and its groups.
Document overviewOf(const Subject& subject)
{
    const Table& table = subject.table;
    Document document;
    document.title = onOneLine(std::filesystem::path(table.file).filename().string());
    document.summary =
        counted(static_cast<std::size_t>(table.rows), "row") + ", " + counted(table.columns.size(), "column");
    const auto addList = [&](const std::string& label, std::vector<std::string> items) {
        if (!items.empty())
            document.lists.push_back({label, std::move(items)});
    };
    addList("numeric", namesOf(table.ofKind(Kind::numeric)));
    addList("text", namesOf(table.ofKind(Kind::text)));
    addList("empty", namesOf(table.ofKind(Kind::empty)));
    if (subject.grouping != nullptr) {
        std::vector<std::string> groups = namesAndSizesOf(subject.groupsOfColumn());
        groups.front().insert(0, onOneLine(subject.grouping->name) + ": ");
        addList("grouped by", std::move(groups));
    }
    document.remarks = table.remarks;
    return document;
}

} // namespace

void survey(const Subject& subject, const SurveySettings& settings, const Tell& take, const Progress& progress)
{
    const Table& table = subject.table;
    take(overviewOf(subject));
    double done = 0.0;
    std::set<std::string> told; // the names of sections
    const auto section = [&](const char* what, double share, const auto& add) {
        tell(progress, what, done);
        Document part;
        add(part);
        for (const Section& added : part.sections)
            told.insert(added.name);
        take(part);
        done += share;
    };
    const MissingCells missing = missingCellsOf(table);
    section("counting missing cells", 0.02, [&](Document& part) { addMissingCells(part, table, missing); });
    section("moments", 0.05, [&](Document& part) { addMoments(part, subject); });
    section("quantiles", 0.15, [&](Document& part) {
        const QuantileTable quantiles = quantilesOf(subject);
        addQuartiles(part, subject, quantiles);
        addThirteenQuantiles(part, subject, quantiles);
    });
    section("categories", 0.05, [&](Document& part) { addCategories(part, table); });
    section("means by category", 0.05, [&](Document& part) { addGroupMeans(part, table); });
    section("correlations", 0.1, [&](Document& part) { addCorrelations(part, table); });
    section("comparisons", 0.05, [&](Document& part) {
        addComparisons(part, subject, settings.correction);
        addLetterGroups(part, subject, settings.correction);
    });
    section("sample", 0.02, [&](Document& part) { addSample(part, subject, settings.seed); });
    const Completion completion = completed(subject, missing, settings.seed, progress);
    section("filled cells", 0.4, [&](Document& part) { addCompletion(part, table, completion); });
    section("components", 0.05, [&](Document& part) {
        const auto components = componentsOf(completion.table);
        if (!components)
            return;
        addComponents(part, *components);
        addBiplot(part, *components, subject);
    });
    section("regression", 0.05, [&](Document& part) {
        if (const auto regression = regressionOf(completion.table))
            addRegression(part, *regression);
    });
    section("provenance", 0.0, [&](Document& part) { addProvenance(part, told, table.isWeighted()); });
}

} // namespace survey
