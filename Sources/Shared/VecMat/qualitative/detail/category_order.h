// The order of a sorted list of categories. Internal to the library.
#pragma once

#include "../../Smatrix.h"
#include "../../matrix.h"

namespace vecmat {

/// Sorts the first `count` categories of a variable (its number 0-based) together with their weights.
///
/// The list is numeric if every category, parsed by `_wtof` and rounded to single precision, is not 0, or is not 0 with
/// a "1" appended: so 0 is a number and a word is not. A leading number is enough, and the empty text is a number, 0. A
/// numeric list goes by those values in single precision, any other by the plain comparison of strings.
///
/// The order is that of a selection sort by exchanges: place by place, the smallest of the rest, the first of equals,
/// is exchanged with the current one. That is not stable: an exchanged category may pass its equals. Places beyond the
/// tables read as the checked reads do, and what is exchanged out there is lost.
void sortCategories(Smatrix* categories, matrix* catWeights, int variable, int count);

} // namespace vecmat
