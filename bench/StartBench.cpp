// From the start to the painted menu with 30,000 athletes and 200 races on disk, and beside it an empty window.

#include "Programm.h"
#include "core/RaceFiles.h"
#include "core/RecordFiles.h"
#include "core/Start.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "safety/Safety.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>

#include <benchmark/benchmark.h>

namespace {

constexpr int Athletes = 30'000, Races = 200, Rows = 300;

/// A data folder as after many seasons.
struct LargeFolder {
  LargeFolder() {
    Umgebung umgebung;
    Store store(umgebung);
    store.DatenOrdner = path();
    storeStarten(store);
    alleDateienOeffnen(store);
    for (int n = 1; n <= Athletes; ++n) {
      LaeuferSatz athlete;
      athlete.Name = QStringLiteral("MÜLLER Vorname") + plainText(n);
      LaeuferSchreiben(store, n, athlete);
    }
    for (int row = 1; row <= Rows; ++row)
      store.Teilnehmer[row].LaeuferNr = row;
    for (store.RennenIdx = 1; store.RennenIdx <= Races; ++store.RennenIdx) {
      store.Rennen.RennenName = QStringLiteral("Rennen ") + plainText(store.RennenIdx);
      RennenSchreiben(store);
      for (const auto &file : raceFiles(store))
        writeFile(raceFileName(store, file.letter, store.RennenIdx), file.bytes);
    }
  }
  QString path() const { return folder.path() + QLatin1Char('/'); }

  QTemporaryDir folder;
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
    store.DatenOrdner = data.path();
    DiskWorker worker;
    Safety safety(store, worker);
    safety.claim();
    benchmark::DoNotOptimize(safety.leftBehind());
    storeStarten(store);
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
