// From the start to the painted menu with 30,000 athletes and 200 races on disk, and beside it an empty window.

#include "Programm.h"
#include "core/RaceFiles.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "safety/Safety.h"
#include "support/TestStore.h"

#include <QApplication>
#include <QTest>

#include <benchmark/benchmark.h>

namespace {

constexpr int Athletes = 30'000, Races = 200, Rows = 300;

/// A data folder as after many seasons.
struct LargeFolder : TestStore {
  LargeFolder() {
    for (int n = 1; n <= Athletes; ++n)
      addAthlete(QStringLiteral("MÜLLER Vorname") + plainText(n), 1990, 2);
    for (int row = 1; row <= Rows; ++row)
      store.Teilnehmer[row].LaeuferNr = row;
    for (store.RennenIdx = 1; store.RennenIdx <= Races; ++store.RennenIdx) {
      store.Rennen.RennenName = QStringLiteral("Rennen ") + plainText(store.RennenIdx);
      RennenSchreiben(store);
      for (const auto &file : raceFiles(store))
        ::writeFile(raceFileName(store, file.letter, store.RennenIdx), file.bytes);
    }
  }
};

void emptyWindow(benchmark::State &state) {
  for ([[maybe_unused]] auto _ : state) {
    QWidget window;
    window.show();
    benchmark::DoNotOptimize(QTest::qWaitForWindowExposed(&window));
    QCoreApplication::processEvents();
  }
}

void startToMenu(benchmark::State &state) {
  static const LargeFolder data;
  for ([[maybe_unused]] auto _ : state) {
    Umgebung umgebung;
    Store store(umgebung);
    store.DatenOrdner = data.store.DatenOrdner;
    DiskWorker worker;
    Safety safety(store, worker);
    safety.claim();
    safety.offerLeftBehind([](const Safety::Offer &) {});
    startStore(store);
    Printers printers([] { return SystemPrinters(); }, {});
    Programm programm(store, printers);
    programm.start();
    benchmark::DoNotOptimize(QTest::qWaitForWindowExposed(QApplication::topLevelWidgets().first()));
    QCoreApplication::processEvents();
  }
}

BENCHMARK(emptyWindow)->Unit(benchmark::kMillisecond);
BENCHMARK(startToMenu)->Unit(benchmark::kMillisecond);

} // namespace
