#pragma once

#include "core/Store.h"

#include <functional>

// Clubs, teams or groups of one race ranked against each other by the results of their members. Nothing of it is
// stored; `WertErgebnis` and `WertGezaehlt` hold for the print until the next evaluation.

/// What is ranked. With none chosen nobody has a unit.
enum class Einheit { Keine, Verein, Mannschaft, Gruppe };
enum class WertungsArt { Bestzeit, Durchschnitt, ZeitsummeDerBesten };
/// In the order of `Form12.Combo3`. A person without a sex passes both.
enum class WertungsFilter { Gemischt, NurMaennlich, NurWeiblich };
/// In the order of `Form12.Combo1`.
enum class MemberOrder { ByTime, ByName, ByClass };

/// What each missing member of a "Zeitsumme der besten" costs, seconds, so that incomplete units stand behind complete
/// ones.
inline constexpr double MissingMember = 100000;

struct Wertung {
  Einheit einheit = Einheit::Verein;
  WertungsArt art = WertungsArt::Bestzeit;
  WertungsFilter filter = WertungsFilter::Gemischt;
  /// Times that make a "Zeitsumme der besten", 2 to 10.
  int bestCount = 2;
};

/// Takes away the marks of an earlier sum, finds the club of each row, ranks the race and numbers the clubs that take
/// part. Rows without a club of their own keep the one that stood there before, and such a club is numbered too.
/// Quirk: hundredth club. Its number is given anew to each further club.
void prepareUnits(Store &store);

/// Short names of the numbered clubs.
QStringList clubLines(const Store &store);
/// Teams that somebody starts for: number of members, name, number of the team.
QStringList teamLines(const Store &store);
QStringList groupLines(const Store &store);

/// Ranks the race and its units; gives the lines of the units with value, name and unit number, the best first. For
/// each unit of a "Zeitsumme der besten" `workList` gets its times in order, each with its row.
QStringList evaluateUnits(
    Store &store, const Wertung &wertung,
    const std::function<void(const QStringList &)> &workList = [](const QStringList &) {});

/// Name of a unit as stored: of a club the short name, with its padding.
QString unitName(const Store &store, Einheit einheit, int unit);
/// The ranked members of a unit in order, each line with its row at the end.
QStringList memberLines(const Store &store, const Wertung &wertung, int unit, MemberOrder order);
