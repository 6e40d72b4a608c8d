// The numbers among the arguments of a call.
#pragma once

#include "support/flat_calls/calls.h"
#include "support/flat_calls/plans.h"
#include "support/flat_calls/steps.h"

#include <vector>

namespace vecmat::flat {

/// Fills the slots of all arguments that are numbers.
void drawScalars(const Call& call, const Plan& plan, std::vector<Slot>& slots);

/// A number from `low` to `high`; now and then one outside where it may leave the range.
int drawInRange(Steps& steps, bool mayLeave, long long low, long long high);

} // namespace vecmat::flat
