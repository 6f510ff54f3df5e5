#pragma once

#include "platform/Tabelle.h"

#include <QStringList>

/// What the ranking of the open race leaves behind, beside the values in the rows; see timing/Ranking.h. Never stored.
struct RangTabellen {
  /// Entry k is the participant row on line k of the ranking.
  Tabelle<int, 1, 1000> RangListe{"RangListe"};
  /// Seconds; 99999 or more if nobody qualifies.
  double BestzeitDamen = 99999, BestzeitHerren = 99999;
  /// The listing of the provisional result, `Form13.List2`.
  QStringList ErgebnisZeilen;
};
