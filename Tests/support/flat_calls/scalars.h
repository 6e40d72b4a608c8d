// The numbers among the arguments of a call.
#pragma once

#include "support/flat_calls/calls.h"
#include "support/flat_calls/plans.h"
#include "support/flat_calls/steps.h"

#include <vector>

namespace vecmat::flat {

/// Fills the slots of all arguments that are numbers.
void drawScalars(const Call& call, const Plan& plan, std::vector<Slot>& slots);

/// What a number may be that leaves its range: a neighbour, -1 or 0, or any int.
enum class Strangers { none, near, any };
Strangers strangersIn(const Plan& plan, Domain domain);

/// A number from `low` to `high`; now and then one outside where there may be strangers.
int drawInRange(Steps& steps, Strangers strangersWanted, long long low, long long high);

} // namespace vecmat::flat
