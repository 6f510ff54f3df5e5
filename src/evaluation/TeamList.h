#pragma once

#include "evaluation/TeamEvaluation.h"
#include "printing/ListColumns.h"

/// What the list of units shows: how they were ranked, and the lines of the units in order.
struct TeamPrint {
  Wertung wertung;
  QStringList units;
};

/// A unit on the list.
struct UnitLine {
  int place, unit;
  /// Seconds, without what missing members cost.
  double value;
};
/// From a line of the units.
UnitLine unitFromLine(int place, const QString &line);
QList<Column<UnitLine>> unitColumns(const Store &store, const Wertung &wertung);
ListColumns memberColumns(const Store &store);

/// Prints the units of the open race, each a grey band with place, name and value, and its members beneath.
/// `members` chooses line i of the units (from 0) on the screen and gives the lines of its members. A participant
/// whose time made a "Zeitsumme der besten" is set bold.
void Mannschaftsliste(const Store &store, Druckschicht &druck, const TeamPrint &print,
                      const std::function<QStringList(int line)> &members);
