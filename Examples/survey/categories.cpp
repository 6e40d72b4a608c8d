#include "categories.h"

#include "bstr_array.h"
#include "flat_call.h"
#include "groups.h"
#include "number_format.h"

namespace survey {

Categories categoriesOf(const Column& column, const std::vector<double>& rowWeights)
{
    const int rows = static_cast<int>(column.texts.size());
    BstrArray texts = textsOf({&column});
    Categories result{{}, {}, {}, VB_V_NbMissingStr(texts.data(), rows), std::vector<double>(column.texts.size())};
    if (result.missing == rows) { // of a column without texts the library makes a category of what follows it
        result.codes.assign(result.codes.size(), vecmat::missingValue);
        return result;
    }
    BstrArray names(column.texts.size());
    BstrArray mode(1);
    std::vector<double> counts(column.texts.size());
    std::vector<double> weights = unitWeights(rows);
    double modeCount;
    int total, count;
    VB_M_InfoQuali(texts.data(), rows, 1, mode.data(), &modeCount, &total, &count, names.data(), counts.data(), 0,
                   weights.data(), no);
    for (int i = 0; i < count; ++i) {
        result.names.push_back(names.text(static_cast<std::size_t>(i)));
        result.counts.push_back(static_cast<int>(counts[static_cast<std::size_t>(i)]));
    }
    if (!rowWeights.empty()) {
        weights = rowWeights;
        BstrArray again(column.texts.size());
        BstrArray modeByWeight(1);
        VB_M_InfoQuali(texts.data(), rows, 1, modeByWeight.data(), &modeCount, &total, &count, again.data(),
                       counts.data(), 0, weights.data(), no);
    }
    result.weights.assign(counts.begin(), counts.begin() + count);
    BstrArray known(result.names);
    VB_M_ReplaceStrByCodes(texts.data(), rows, 1, &count, known.data(), noMask, 1, result.codes.data());
    return result;
}

void addCategories(Document& document, const Table& table)
{
    const std::vector<const Column*> columns = table.ofKind(Kind::text);
    if (columns.empty())
        return;
    TextTable text({{"column", Align::left},
                    {"category", Align::left},
                    {"rows", Align::right},
                    {table.isWeighted() ? "weighted share" : "share", Align::right}},
                   2);
    std::vector<std::vector<std::string>> all = {{"column", "category", "rows"}};
    bool isCut = false;
    for (const Column* column : columns) {
        text.addGap();
        const Categories categories = categoriesOf(*column, table.weights);
        double weightSum = 0.0;
        const auto add = [&](const std::string& category, int count, double weight) {
            text.addRow({column->name, category, std::to_string(count), percentage(weight, table.rows)});
        };
        const bool isLong = categories.names.size() > mostListed;
        for (std::size_t i = 0; i < categories.names.size(); ++i) {
            weightSum += categories.weights[i];
            if (!isLong)
                add(categories.names[i], categories.counts[i], categories.weights[i]);
            all.push_back({column->name, categories.names[i], std::to_string(categories.counts[i])});
        }
        if (isLong)
            add(std::to_string(categories.names.size()) + " categories", table.rows - categories.missing, weightSum);
        isCut = isCut || isLong;
        if (categories.missing > 0)
            add(noText, categories.missing, table.rows - weightSum);
    }
    Section& section = document.add("categories", "Categories",
                                    "The texts of each text column, in the order in which they first appear.");
    if (isCut)
        section.addTable(section.name, std::move(text), std::move(all));
    else
        section.addTable(std::move(text));
}

} // namespace survey
