#pragma once

#include "core/Store.h"

// The rules of the participant list: which athletes of the register start in the open race.

/// What is searched for by a text typed for the register, and how the text is shown after it.
QString athleteSearch(const QString &typed);
QString athleteSearchShown(const QString &typed);
/// The text typed for the participants as it is shown and searched for.
QString participantSearch(const QString &typed);

/// Lines of `Form5.List1`: the athletes whose name begins with `beginning` (upper case; empty = all), sorted; ends in
/// the record number.
QStringList athleteLines(const Store &store, const QString &beginning);

/// The orders of `Form5.Combo1`, by position.
enum ListOrder { ByName = 0, ByEntry = 1, LatestFirst = 2 };
/// Lines of `Form5.List2`: the participants whose name in upper case begins with `beginning` as it stands, sorted; ends
/// in four digits of the table row and six of the record number.
/// Quirk: order by entry. It sorts unpadded digits as text: 1, 10, 100, 2.
QStringList TeilnehmerlisteFuellen(const Store &store, const QString &beginning, int order);
/// The table row in a line of `Form5.List2`; the record number is the number at its end.
int rowOfLine(QStringView line);

/// The clubs of an athlete as they are shown, how many they are, and the last of his slots (1 to 3) that holds
/// one, 0 = none.
struct AthleteClubs {
  QString text;
  int count = 0, lastSlot = 0;
};
AthleteClubs clubsOfAthlete(const Store &store, const LaeuferSatz &athlete);

/// Whether an athlete has a row in the open race; the whole protection against entering him twice.
bool isParticipant(const Store &store, int athlete);
/// Takes an athlete into the first free row; with exactly one club he starts for that one, in slot `lastSlot`. Nothing
/// but a beep if all 1000 rows are in use.
void addParticipant(Store &store, int athlete, int clubCount, int lastSlot);
/// All rows behind `row` move up by one, times included.
/// Quirk: rows move up in part. `ZeitReserve`, `KlasseGenau` and what the ranking left stay with their rows, and row
/// 1000 is not cleared.
void removeParticipant(Store &store, int row);
