#include "histogram.h"

#include "number_format.h"

#include "VecMat.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <string>
#include <utility>

namespace survey {

namespace {

constexpr std::size_t mostColumns = 30; // that have pictures
constexpr std::size_t mostGroups = 12;  // in a picture
constexpr std::size_t mostOutside = 100;

/// The share of the weight of a group's cells that falls to each bar.
std::vector<double> sharesOf(const std::vector<double>& cells, const std::vector<double>& weights, const Bars& bars)
{
    std::vector<double> shares(static_cast<std::size_t>(bars.count));
    double sum = 0.0;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (cells[i] == vecmat::missingValue)
            continue;
        const double weight = weights.empty() ? 1.0 : weights[i];
        const int bar = static_cast<int>((cells[i] - bars.first) / bars.width);
        shares[static_cast<std::size_t>(std::clamp(bar, 0, bars.count - 1))] += weight;
        sum += weight;
    }
    for (double& share : shares)
        share /= sum > 0.0 ? sum : 1.0;
    return shares;
}

/// The groups that a picture shows, by their places.
std::vector<std::size_t> groupsShown(const Subject& subject)
{
    std::vector<std::size_t> shown(subject.groupsOfColumn().size());
    if (shown.empty() || shown.size() > mostGroups)
        return {subject.groups.size() - 1};
    std::iota(shown.begin(), shown.end(), std::size_t{0});
    return shown;
}

Picture pictureOf(const std::string& name, const Subject& subject, const Column& column, const Bars& bars,
                  const std::vector<Quantiles>& quantiles)
{
    DataTable boxes{name + "_boxes",
                    {{column.name, "lower whisker", "lower quartile", "median", "upper quartile", "upper whisker"}}};
    DataTable shares{name + "_bars", {{"group", "from", "to", "share"}}};
    DataTable outside{name + "_outside", {{"group", "cell"}}};
    for (const std::size_t k : groupsShown(subject)) {
        const Group& group = subject.groups[k];
        const std::vector<double> cells = cellsOf(column, group);
        const Quantiles& q = quantiles[k];
        if (q.median() == vecmat::missingValue)
            continue;
        const Box box = boxOf(cells, q);
        boxes.records.push_back({group.name, withAllDigits(box.lowerWhisker), withAllDigits(q.lowerQuartile()),
                                 withAllDigits(q.median()), withAllDigits(q.upperQuartile()),
                                 withAllDigits(box.upperWhisker)});
        const std::string number = std::to_string(boxes.records.size() - 1);
        const std::vector<double> ofGroup = sharesOf(cells, weightsOf(subject.table, group), bars);
        for (int i = 0; i < bars.count; ++i)
            shares.records.push_back({number, withAllDigits(bars.first + i * bars.width),
                                      withAllDigits(bars.first + (i + 1) * bars.width),
                                      withAllDigits(ofGroup[static_cast<std::size_t>(i)])});
        for (const double cell : box.outside)
            outside.records.push_back({number, withAllDigits(cell)});
    }
    return {name, {std::move(boxes), std::move(shares), std::move(outside)}};
}

} // namespace

Box boxOf(std::vector<double> cells, const Quantiles& quantiles)
{
    std::erase(cells, vecmat::missingValue);
    std::sort(cells.begin(), cells.end());
    const double reach = 1.5 * (quantiles.upperQuartile() - quantiles.lowerQuartile());
    const auto first = std::lower_bound(cells.begin(), cells.end(), quantiles.lowerQuartile() - reach);
    const auto last = std::upper_bound(first, cells.end(), quantiles.upperQuartile() + reach);
    Box box{*first, *(last - 1), {}};
    const auto below = std::min<std::ptrdiff_t>(first - cells.begin(), mostOutside);
    const auto above = std::min<std::ptrdiff_t>(cells.end() - last, mostOutside);
    box.outside.assign(cells.begin(), cells.begin() + below);
    box.outside.insert(box.outside.end(), cells.end() - above, cells.end());
    return box;
}

Bars barsOf(double minimum, double maximum, double quartileDistance, int cells, int decimals)
{
    const double range = maximum - minimum;
    const double asked = 2.0 * quartileDistance / std::cbrt(static_cast<double>(cells));
    const double rough = std::clamp(asked, range / 40.0, range / 5.0);
    const double power = std::pow(10.0, std::floor(std::log10(rough)));
    double width = power;
    for (const double multiple : {2.0, 5.0, 10.0})
        if (multiple * power <= rough * 1.001)
            width = multiple * power;
    if (decimals < 9)
        width = std::max(width, std::pow(10.0, -decimals));
    const double first = std::floor(minimum / width) * width;
    return {first, width, 1 + static_cast<int>(std::floor((maximum - first) / width))};
}

std::vector<Picture> picturesOf(const Subject& subject, const QuantileTable& quantiles)
{
    std::vector<Picture> pictures;
    const std::vector<const Column*> columns = subject.table.ofKind(Kind::numeric);
    for (std::size_t j = 0; j < columns.size() && j < mostColumns; ++j) {
        std::vector<double> cells = columns[j]->numbers;
        const int n = static_cast<int>(cells.size());
        const double minimum = VB_V_Min2(cells.data(), n);
        const double maximum = VB_V_Max2(cells.data(), n);
        const double range = maximum - minimum;
        if (!(range > 1e-9 * std::max(std::fabs(minimum), std::fabs(maximum)) && range < 1e300))
            continue; // nothing to tell apart
        const Quantiles& all = quantiles[j].back();
        const Bars bars = barsOf(minimum, maximum, all.upperQuartile() - all.lowerQuartile(), n, columns[j]->decimals);
        pictures.push_back(
            pictureOf("distribution_" + std::to_string(j + 1), subject, *columns[j], bars, quantiles[j]));
    }
    return pictures;
}

} // namespace survey
