#pragma once

#include "core/Store.h"

#include <QHash>

// What cup and time sum share: one race after another is loaded into the tables and ranked under the criteria of one of
// them. Only the tables change, no file.

/// The criteria of one race that hold for all.
struct Kriterien {
  quint8 WertKlassen, WertGeschlecht, WertGaeste, WertBoarder, WertZeit;
};
Kriterien criteriaInForce(const Store &store);

/// Loads the tables of a race; the race record stays.
void loadRaceTables(Store &store, int race);

/// Leaves only the first run to be ranked.
void dropSecondRun(Store &store);
/// Puts the second run in the place of the first.
void promoteSecondRun(Store &store);
/// Assigns the classes and ranks under the criteria. The surcharges are those of the current race record.
void rankUnder(Store &store, const Kriterien &kriterien);

/// The exact designations of the loaded race become those of the series.
void keepClassNames(Store &store);
/// Row of each athlete; of an athlete in several rows the last.
QHash<int, int> rowsOfAthletes(const Store &store);

/// Number that the evaluations read at the head of a line of the race list.
/// Quirk: race numbers above 999. Three digits are read at most.
int scoredRaceOfLine(const QString &line);
/// The races of the marked lines.
QList<int> markedRaces(const QStringList &lines, const QList<int> &marked);
