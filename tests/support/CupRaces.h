#pragma once

#include "support/Results.h"

/// Three races of a cup, worked out by hand for one strike. A to E are "Herren", F is "Jugend".
///
///        race 1            race 2                                race 3
///        R1: place, time   R2                 R3 (second run)    R4
///   A    1  40,00          1  30,00           3  33,00           absent  X     50 points, place 1
///   B    2  42,00  X       2  31,00           2  31,00           1  60,00      50         1
///   C    2  42,00          3  32,00           dis     X          2  61,00      40         3
///   D    4  45,00  X       4  33,00           1  30,00           3  62,00      38         4
///   E    dis       X       5  34,00           4  34,00           4  63,00      21         5
///   F    1  50,00          1  40,00           1  39,00           absent  X     60         1
///
/// The four second times of race 1 make no round.
struct CupRaces {
  explicit CupRaces(TestStore &into) : test(into) {
    const int a = add("ADAM Ada", 1990), b = add("BERG Bo", 1990), c = add("CERNY Ida", 1990);
    const int d = add("DORN Uwe", 1990), e = add("EDER Max", 1990), f = add("FUCHS Lea", 2005);
    addResults(test, "Lauf 1", {{a, 40, 0, 41}, {b, 42, 0, 43}, {c, 42, 0, 41}, {d, 45, 0, 44}, {e, 50, 3}, {f, 50}});
    addResults(test, "Lauf 2",
               {{a, 30, 0, 33}, {b, 31, 0, 31}, {c, 32, 0, 0, 3}, {d, 33, 0, 30}, {e, 34, 0, 34}, {f, 40, 0, 39}},
               [](RennenSatz &race) { race.ZweiDurchgaenge = 1; });
    addResults(test, "Lauf 3", {{b, 60}, {c, 61}, {d, 62}, {e, 63}});
  }

  int add(const char *name, int year) { return test.addAthlete(name, year, 1, club); }

  TestStore &test;
  int club = test.addClub("SC Alm");
  const QList<int> all{3, 2, 1};
  const QStringList lines{"Herren------------------------R1----R2----R3----R4-Summe",
                          "   1. ADAM Ada                20    20    10     X    50",
                          "   1. BERG Bo                  X    15    15    20    50",
                          "   3. CERNY Ida               15    10     X    15    40",
                          "   4. DORN Uwe                 X     8    20    10    38",
                          "   5. EDER Max                 X     5     8     8    21",
                          "Jugend------------------------R1----R2----R3----R4-Summe",
                          "   1. FUCHS Lea               20    20    20     X    60"};
};
