#include "core/Classes.h"
#include "core/RaceFiles.h"
#include "evaluation/Cup.h"
#include "evaluation/TeamEvaluation.h"
#include "evaluation/TimeSum.h"
#include "support/TestStore.h"
#include "timing/Ranking.h"

#include <benchmark/benchmark.h>

// Ten races of the same 1000 persons in 100 teams. Wanted on an office computer: the cup 150 ms, the time sum 200 ms,
// each below twice the bare work of loading and ranking every race once; the sum of the best of 100 teams 20 ms.

namespace {

constexpr int People = 1000, Races = 10;

struct Event : TestStore {
  Event() {
    for (int person = 1; person <= People; ++person)
      addAthlete(QStringLiteral("MÖLLER-STEINHUBER Lisa %1").arg(person * 7919 % 10007), 2000 + person % 20,
                 person % 2);
    for (int race = 1; race <= Races; ++race)
      fillRace(race);
  }

  void fillRace(int race) {
    addRace(QStringLiteral("Rennen %1").arg(race));
    for (int row = 1; row <= People; ++row) {
      auto &participant = store.Teilnehmer[row];
      participant.LaeuferNr = row;
      participant.MannschaftNr = qint16(row % 100 + 1);
      participant.Zeit1 = 60 + row * 7919 % 3989 / 100.0;
      store.MannschaftName[participant.MannschaftNr] = QStringLiteral("Team %1").arg(participant.MannschaftNr);
    }
    KlassenZuordnen(store);
    RennDatenSpeichern(store);
  }

  QList<int> races{10, 9, 8, 7, 6, 5, 4, 3, 2, 1};
};

Event &event() {
  static Event made;
  return made;
}

void bareWork(benchmark::State &state) {
  auto &store = event().store;
  for ([[maybe_unused]] auto _ : state)
    for (store.AktRennen = 1; store.AktRennen <= Races; ++store.AktRennen) {
      RennDatenLaden(store);
      KlassenZuordnen(store);
      ErgebnisRechnen(store);
    }
}
BENCHMARK(bareWork)->Unit(benchmark::kMillisecond);

void cup(benchmark::State &state) {
  for ([[maybe_unused]] auto _ : state)
    benchmark::DoNotOptimize(evaluateCup(event().store, event().races, 2));
}
BENCHMARK(cup)->Unit(benchmark::kMillisecond);

void timeSum(benchmark::State &state) {
  for ([[maybe_unused]] auto _ : state)
    generateTimeSum(event().store, event().races, Races + 1);
}
BENCHMARK(timeSum)->Unit(benchmark::kMillisecond);

void sumOfTheBest(benchmark::State &state) {
  auto &store = event().store;
  store.AktRennen = 1;
  RennDatenLaden(store);
  prepareUnits(store);
  for ([[maybe_unused]] auto _ : state)
    benchmark::DoNotOptimize(
        evaluateUnits(store, {Einheit::Mannschaft, WertungsArt::ZeitsummeDerBesten, WertungsFilter::Gemischt, 5}));
}
BENCHMARK(sumOfTheBest)->Unit(benchmark::kMillisecond);

} // namespace
