// What the survey tells about a table.
#pragma once

#include "document.h"
#include "subject.h"

namespace survey {

/// All sections, in their order. What the table has nothing to say about is left out.
Document surveyOf(const Subject& subject);

} // namespace survey
