#include "survey.h"

#include "biplot.h"
#include "categories.h"
#include "completion.h"
#include "components.h"
#include "correlations.h"
#include "distributions.h"
#include "group_means.h"
#include "letter_groups.h"
#include "missing_cells.h"
#include "regression.h"
#include "sample.h"

#include <filesystem>
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
    return document;
}

} // namespace

Document surveyOf(const Subject& subject)
{
    const Table& table = subject.table;
    const MissingCells missing = missingCellsOf(table);
    const Completion completion = completed(table, missing);
    Document document = overviewOf(subject);
    addMissingCells(document, table, missing);
    addMoments(document, subject);
    addQuartiles(document, subject);
    addThirteenQuantiles(document, subject);
    addCategories(document, table);
    addGroupMeans(document, table);
    addCorrelations(document, table);
    addCompletion(document, table, completion);
    if (const auto components = componentsOf(completion.table)) {
        addComponents(document, *components);
        addBiplot(document, *components, subject);
    }
    if (const auto regression = regressionOf(completion.table))
        addRegression(document, *regression);
    addLetterGroups(document, subject);
    addSample(document, subject);
    return document;
}

} // namespace survey
