#pragma once

#include "core/Store.h"

/// Number of the race to be generated: behind the highest that the evaluations read in the race list, and none that a
/// listed race has. 1 without any race.
int timeSumNumber(const QStringList &races);

/// Generates the race `number`, "Kombilauf", out of the first runs of `races`, which stand as in the list of races: the
/// first is the base race, whose participants, classes and criteria the new race gets; round 1 is the last. Who is
/// missing in a race, or has a status or no time in it, gets "dis". The new race is stored with its single times and is
/// the open one. More than ten races are a RangeFault.
void generateTimeSum(Store &store, const QList<int> &races, int number);
