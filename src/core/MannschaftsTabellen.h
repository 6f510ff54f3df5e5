#pragma once

#include "platform/Tabelle.h"

/// What the evaluation of clubs, teams and groups leaves behind, see evaluation/TeamEvaluation.h. A unit is one of
/// them, numbered 1 to 100. Never stored.
struct MannschaftsTabellen {
  /// Record number of the club a row starts for; rows without a club keep what they had.
  Tabelle<int, 1, 1000> VereinRecNr{"VereinRecNr"};
  /// Record number of the club with unit number k; 0 = free.
  Tabelle<int, 1, 100> WertVerein{"WertVerein"};
  /// Unit number of the row's club; 0 = none.
  Tabelle<int, 1, 1000> WertVereinIdx{"WertVereinIdx"};
  /// `Geschlecht`, copied for the filter.
  Tabelle<qint16, 1, 1000> TnGeschlecht{"TnGeschlecht"};
  /// Value of unit k in seconds, the lower the better.
  Tabelle<double, 1, 100> WertErgebnis{"WertErgebnis"};
  /// 1 = the time of this row went into a "Zeitsumme der besten".
  Tabelle<qint16, 1, 1000> WertGezaehlt{"WertGezaehlt"};
};
