#pragma once

#include "core/Store.h"

/// Gives each participant his class from the birth year, the flags, the criteria and the class order; counts the
/// classes. Of overlapping classes the last that fits holds, and all that fit count; a row that fits none keeps what it
/// had. An athlete without sex in a race split by sex is a RangeFault that names him.
void KlassenZuordnen(Store &store);

/// The three characters of a sort line that keep a class or group together.
QString Reihungsschluessel(const Store &store, const TeilnehmerZeile &participant);

/// The classes that the class table holds, and the rows of `KlasseGenauName`.
inline constexpr Numbered ClassRows{1, 20}, ExactClasses{0, 159};

/// Row of `KlasseGenauName` for a class (1 to 20) and its switches, each 0 or 1.
constexpr int exactClass(int klasse, int a, int b, int f) {
  return (klasse - 1) * 8 + a + 2 * b + 4 * f;
}

/// Calls `action(a, b, f)` for the eight exact classes of a class in the order of the K file and of the columns on the
/// screen: boarder outermost, then guest, sex innermost.
template <typename Action> void forEachExactClass(Action action) {
  for (int f = 0; f <= 1; ++f)
    for (int b = 0; b <= 1; ++b)
      for (int a = 0; a <= 1; ++a)
        action(a, b, f);
}

/// Names and years of the built-in classes into the class table, as they stand.
void takeStandardClasses(Store &store);
