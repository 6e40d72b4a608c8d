// What the survey prints.
#pragma once

#include "subject.h"

#include <iosfwd>

namespace survey {

/// All sections, in the order in which they stand here.
void printSurvey(std::ostream& out, const Subject& subject);

void printOverview(std::ostream& out, const Subject& subject);
void printMoments(std::ostream& out, const Subject& subject);
void printQuartiles(std::ostream& out, const Subject& subject);
void printThirteenQuantiles(std::ostream& out, const Subject& subject);

} // namespace survey
