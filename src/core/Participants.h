#pragma once

#include "core/Store.h"

// From a row of the participant table to the records behind it.

/// Makes the athlete of a participant the current one; false, without reading, for a free row, and false for an athlete
/// without a name.
bool readAthlete(Store &store, const TeilnehmerZeile &participant);

/// The sum of both runs' status, which decides whether a participant counts. A file may hold any two numbers.
qint64 statusSum(const TeilnehmerZeile &participant);

/// Record number of the club that the participant starts for, one of the current athlete's; 0 if none is chosen.
int startClub(const Store &store, const TeilnehmerZeile &participant);
/// Makes that club the current one; false, without reading, if there is none.
bool readClub(Store &store, const TeilnehmerZeile &participant);
