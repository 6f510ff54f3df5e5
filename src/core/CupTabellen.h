#pragma once

#include "platform/Tabelle.h"

/// What a cup or a time sum leaves behind, see evaluation/Cup.h and evaluation/TimeSum.h: entries are persons of a cup,
/// or participant rows of a time sum; rounds 1 to 10.
struct CupTabellen {
  /// Points for place n.
  Tabelle<qint16, 1, 100> CupPunkteTabelle{"CupPunkteTabelle"};
  /// Record number of the athlete; 0 ends the table.
  Tabelle<int, 1, 1000> CupLaeufer{"CupLaeufer"};
  /// `KlasseGenau` in the first race in which the person was found.
  Tabelle<int, 1, 1000> CupKlasse{"CupKlasse"};
  Tabelle<QString, 0, 159> CupKlasseName{"CupKlasseName"};
  int CupRunden = 0;
  /// Place in the round, 99 = not in that race.
  Tabelle2<int, 1, 1000, 1, 10> CupRang{"CupRang"};
  /// Seconds, 0 = absent. Round 0 of a time sum holds the sum.
  Tabelle2<double, 1, 1000, 0, 10> CupZeit{"CupZeit"};
  /// Status of the run, 1 if absent. Round 0 of a time sum holds the status of the sum.
  Tabelle2<int, 1, 1000, 0, 10> CupStatus{"CupStatus"};
  /// 1 = struck.
  Tabelle2<int, 1, 1000, 1, 10> CupStreich{"CupStreich"};
  /// Points; round 0 holds the total.
  Tabelle2<int, 1, 1000, 0, 10> CupPunkte{"CupPunkte"};
  /// `RennenKurz` of the race of each round of a time sum.
  Tabelle<QString, 1, 10> ZeitsummeRennenKurz{"ZeitsummeRennenKurz"};
};
