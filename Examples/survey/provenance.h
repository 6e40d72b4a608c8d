// Section: which functions of the library have made the numbers.
#pragma once

#include "document.h"

#include <set>
#include <string>

namespace survey {

/// A line for each function behind the sections of these names. `weighted` tells of those that take weights where
/// another one doesn't.
void addProvenance(Document& document, const std::set<std::string>& sections, bool weighted);

} // namespace survey
