#pragma once

#include "core/Store.h"

#include <optional>

/// The number of a copy that a typed text stands for: its integer part; nothing outside 1 to 30000.
std::optional<int> copyNumber(const QString &text);

/// Writes the open race, as it stands in memory, as race `number` (1 to 30000): its files and its record, which gets
/// "Kopie v. " and `name` as its name.
/// Quirk: copy asks nothing. Whatever race had that number is overwritten; its Z file, and M and G files that
/// the open race does not have, stay and belong to the copy. Without `withResults` start numbers, fees, points, times
/// and statuses are left out. The open race stays open, its record is read again; its tables are not touched.
void copyRace(Store &store, int number, const QString &name, bool withResults);
