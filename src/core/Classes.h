#pragma once

#include "core/Store.h"

/// Gives each participant his class from the birth year, the flags, the criteria and the class order; counts the
/// classes. Of overlapping classes the last that fits holds, and all that fit count; a row that fits none keeps what it
/// had. An athlete without sex in a race split by sex is a RangeFault that names him. Leaves `LaeuferIdx` at the last
/// used row.
void KlassenZuordnen(Store &store);

/// Row of `KlasseGenauName` for a class (1 to 20) and its switches, each 0 or 1.
constexpr int exactClass(int klasse, int a, int b, int f) {
  return (klasse - 1) * 8 + a + 2 * b + 4 * f;
}
