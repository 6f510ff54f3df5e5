#pragma once

#include "core/Store.h"

#include <optional>

// From a row of the participant table to the records behind it.

/// The athlete of a participant; nothing, without reading, for a free row, and nothing for an athlete without a name.
std::optional<LaeuferSatz> athleteOf(const Store &store, const TeilnehmerZeile &participant);

/// The sum of both runs' status, which decides whether a participant counts. A file may hold any two numbers.
qint64 statusSum(const TeilnehmerZeile &participant);

/// Record number of the club that the athlete of a participant starts for, one of his; 0 if none is chosen.
int startClub(const LaeuferSatz &athlete, const TeilnehmerZeile &participant);
/// That club; nothing, without reading, if there is none.
std::optional<VereinSatz> clubOf(const Store &store, const LaeuferSatz &athlete, const TeilnehmerZeile &participant);
