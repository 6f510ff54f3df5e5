#pragma once

#include "evaluation/TeamEvaluation.h"
#include "printing/ListColumns.h"

/// What the list of units shows: how they were ranked, and the lines of the units in order.
struct TeamListe {
  Wertung wertung;
  QStringList einheiten;
};

/// A unit on the list.
struct EinheitRow {
  int place, einheit;
  /// Seconds, without what missing members cost.
  double value;
};
/// From a line of the units.
EinheitRow einheitRow(int place, const QString &line);
QList<Spalte<EinheitRow>> einheitSpalten(const Store &store, const Wertung &wertung);
ListColumns mitgliederSpalten(const Store &store);

/// Prints the units of the open race, each a grey band with place, name and value, and its members beneath.
/// `mitglieder` chooses line i of the units (from 0) on the screen and gives the lines of its members. A participant
/// whose time made a "Zeitsumme der besten" is set bold.
void Mannschaftsliste(const Store &store, Druckschicht &druck, const TeamListe &liste,
                      const std::function<QStringList(int line)> &mitglieder);
