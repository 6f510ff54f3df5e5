#pragma once

#include "core/Classes.h"
#include "core/RaceFiles.h"
#include "support/StoreTest.h"

struct Result {
  int athlete;
  double zeit1;
  int status1 = 0;
  double zeit2 = 0;
  int status2 = 0;
};

/// A saved race with two classes: "Herren", born 1980 to 1999, and "Jugend", 2000 to 2015. The record may be changed by
/// `change` before it is written.
inline int addResults(
    TestStore &test, const QString &name, const QList<Result> &results,
    const std::function<void(RennenSatz &)> &change = [](RennenSatz &) {}) {
  auto &store = test.store;
  const int race = test.addRace(name);
  store.Rennen.RennenKurz = name.left(3);
  change(store.Rennen);
  RennenSchreiben(store);
  store.KlasseName.fill({});
  for (const auto &[k, klasse, von, bis] : {std::tuple(1, "Herren", 1980, 1999), std::tuple(2, "Jugend", 2000, 2015)}) {
    store.KlasseName[k] = store.KlasseGenauName[exactClass(k, 0, 0, 0)] = klasse;
    store.KlasseVon[k] = von;
    store.KlasseBis[k] = bis;
    store.KlasseReihenfolge(k, 0, 0, 0) = qint16(k);
  }
  for (const Result &result : results) {
    auto &row = store.Teilnehmer[test.enter(result.athlete)];
    row.Zeit1 = result.zeit1;
    row.Status1 = result.status1;
    row.Zeit2 = result.zeit2;
    row.Status2 = result.status2;
  }
  KlassenZuordnen(store);
  RennDatenSpeichern(store);
  return race;
}
