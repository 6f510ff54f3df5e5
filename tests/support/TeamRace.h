#pragma once

#include "support/StoreTest.h"

/// A race with two clubs and the teams 3 and 7; times, clubs and teams:
///
///   1 ADAM Ada    w  40,00   SC Alm  7      4 DORN Uwe    m  42,00   TV Berg  3
///   2 BERG Bo     m  80,00   SC Alm  7      5 EDER Max    m  dis     TV Berg  3
///   3 CERNY Ida   -  40,00   TV Berg 3      6 FUCHS Lea   w  39,00   none     0
struct TeamRace {
  explicit TeamRace(TestStore &into) : test(into), store(into.store) {
    const int alm = test.addClub("SC Alm"), berg = test.addClub("TV Berg");
    test.addRace("Vereinslauf");
    add("ADAM Ada", 0, alm, 7, 40);
    add("BERG Bo", 1, alm, 7, 80);
    add("CERNY Ida", 2, berg, 3, 40);
    add("DORN Uwe", 1, berg, 3, 42);
    store.Teilnehmer[add("EDER Max", 1, berg, 3, 43)].Status1 = 3;
    store.Teilnehmer[add("FUCHS Lea", 0, berg, 0, 39)].VereinNr = 0;
    store.MannschaftName[3] = "Die Schnellen";
    store.MannschaftName[7] = "Älter";
    store.MannschaftName[8] = "niemand";
    store.GruppeName[2] = "Gruppe";
  }

  int add(const char *name, int sex, int club, int team, double seconds) {
    const int row = test.enter(test.addAthlete(name, 1990, sex, club));
    store.Teilnehmer[row].MannschaftNr = qint16(team);
    store.Teilnehmer[row].Zeit1 = seconds;
    return row;
  }

  TestStore &test;
  Store &store;
};
