#pragma once

#include "core/Store.h"

#include <optional>

// The model of the whole evaluation. A text key for each participant, not a comparison routine, defines the order: the
// keys are sorted once and walked once. What the routines leave is never stored, so every reader runs them anew.

/// Ranks the race by the total. Leaves the valued times, `Rang`, `KlasseKopf`, `RangListe`, the best times and
/// `ErgebnisZeilen`; all columns of all rows are new. Laeufer.rec must be open and the classes assigned.
///
/// With a `clubFilter` only members of the club with that record number are ranked, and nobody if it is below 1.
void ErgebnisRechnen(Store &store, std::optional<int> clubFilter = {});

/// Ranks the first run for the start order of the second: equal times share a place and the next place follows without
/// a gap. Leaves `WertZeit1`, `Rang` (rows left out keep theirs) and `RangListe` up to the last ranked line; empties
/// `ErgebnisZeilen` and resets the best times.
void Rangfolge1(Store &store);

/// Order of start in the second run, after Rangfolge1, as a part of a sort line: the places 1 to 15 in reverse order,
/// then all others as they are placed.
QString secondRunKey(const TeilnehmerZeile &participant);
