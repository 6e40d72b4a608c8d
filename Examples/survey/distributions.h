// Sections: the distribution of each numeric column, in every group and in all rows.
#pragma once

#include "document.h"
#include "subject.h"

namespace survey {

void addMoments(Document& document, const Subject& subject);
void addQuartiles(Document& document, const Subject& subject);
void addThirteenQuantiles(Document& document, const Subject& subject);

} // namespace survey
