// Whatever bits a caller could hold: the cells, characters and numbers of Style::any.
#pragma once

#include "support/flat_calls/calls.h"
#include "support/flat_calls/steps.h"

#include <string>

namespace vecmat::flat {

/// Any double: all bits, limits, missing values, small numbers.
double anyNumber(Steps& steps);

/// Any int: all bits, limits, small numbers.
int anyInteger(Steps& steps);

/// Any characters, also NUL, lone surrogates and what is none; among them those of column addresses.
std::wstring anyText(Steps& steps);

/// A number outside of a range, as far away as there are ints.
int strangerTo(Steps& steps, int first, int last);

} // namespace vecmat::flat
