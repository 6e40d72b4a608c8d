// What the survey tells about a table.
#pragma once

#include "document.h"
#include "inference.h"
#include "progress.h"
#include "subject.h"

#include <functional>

namespace survey {

struct SurveySettings
{
    Correction correction = Correction::holm;
    int seed = 1;
};

/// Takes what is told, part by part as it is ready: first the names, without sections, then sections.
using Tell = std::function<void(const Document& part)>;

/// All sections, in their order. What the table has nothing to say about is left out.
void survey(const Subject& subject, const SurveySettings& settings, const Tell& take, const Progress& progress = {});

} // namespace survey
