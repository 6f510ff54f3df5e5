#pragma once

#include "core/Store.h"

#include <optional>

// What the race register does with races. Rennen.rec must be open. Texts that tell a number are those of `Form4.Text1`:
// they may be out of range or no number at all.

/// The race to open first: the one that is open, else the highest, else 1.
int raceToOpenFirst(const Store &store);
/// Opens the race of that number, held to 1 to `RennenAnzahl` (0 in a store without races): its record and its files
/// are read, what was not saved is lost.
void openRaceNumbered(Store &store, const QString &number);

/// Text of the number before, at least 1; a beep if there is none.
QString previousRaceText(const Store &store, const QString &number);
/// Text of the number behind. Beyond the last race that race is made, without a name and with the criteria of the race
/// before it; but nothing is made or given behind a race whose `name` is blank.
std::optional<QString> nextRaceText(Store &store, const QString &number, const QString &name);

/// Stores the name in the open race's record; in a store without races that is record 1, while race 0 stays open.
void enterRaceName(Store &store, const QString &name);
/// Empties the name of the open race and deletes its files; its number is not given out again.
void eraseRace(Store &store);
