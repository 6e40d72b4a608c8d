// What pictures of the distribution of a column show.
#pragma once

#include "distributions.h"
#include "document.h"

#include <vector>

namespace survey {

/// A box with its whiskers, as Tukey (1977) has them: these end at the last cells that are no farther from the box than
/// one and a half times its length. `outside` are the cells beyond, the outer ones where there are many.
struct Box
{
    double lowerWhisker;
    double upperWhisker;
    std::vector<double> outside;
};

Box boxOf(std::vector<double> cells, const Quantiles& quantiles);

/// Bars of one width that begin at a multiple of it.
struct Bars
{
    double first;
    double width;
    int count;
};

/// As many bars as the rule of Freedman and Diaconis (1981) has, from 5 to 100, of a width that is 1, 2 or 5 times a
/// power of ten and no less than the cells are told apart by.
Bars barsOf(double minimum, double maximum, double quartileDistance, int cells, int decimals);

/// A picture of each column that varies: its boxes and bars in each group, or of all rows where there are many groups.
std::vector<Picture> picturesOf(const Subject& subject, const QuantileTable& quantiles);

} // namespace survey
