// How long a table of 5,000 entries takes beside a register of 30,000 athletes: read, recognised and compared; shown,
// wanted under 300 ms; taken over, wanted under a second.

#include "core/RecordFiles.h"
#include "core/Start.h"
#include "exchange/TakeOver.h"
#include "exchange/qt/EntryScreen.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"
#include "platform/qt/Desk.h"
#include "safety/Safety.h"

#include <QApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

constexpr int Athletes = 30'000, Lines = 5'000, Clubs = 20;

QString nameOfPerson(int n) {
  const auto letter = [n](int place) { return QChar(int('A') + n / place % 26); };
  return QStringLiteral("M%1%2%3ÖLLER Elisabeth").arg(letter(1)).arg(letter(26)).arg(letter(676));
}

QDate birthOf(int n) {
  return {1950 + n % 70, 1 + n % 12, 1 + n % 28};
}

/// Every second record of the first 10,000 is free.
struct Event {
  Event() {
    store.DatenOrdner = folder.path() + QLatin1Char('/');
    startStore(store);
    openRecordFiles(store);
    store.LaeuferAnzahl = Athletes; // the state file once, not with each record
    for (int n = 1; n <= Athletes; ++n) {
      LaeuferSatz athlete;
      athlete.Name = n < 10'000 && n % 2 == 0 ? QString() : nameOfPerson(n);
      athlete.Geburtsdatum = toDays(birthOf(n));
      LaeuferSchreiben(store, n, athlete);
    }
  }

  QTemporaryDir folder;
  Umgebung umgebung;
  Store store{umgebung};
  Desk desk{store.Fenster, [] {}};
};

/// Half of them are in the register, the others similar to nobody or to somebody.
QByteArray bytes() {
  QString csv = QStringLiteral("Name;Geburtsdatum;m/w;Verein\n");
  for (int line = 0; line < Lines; ++line) {
    const QString name = line % 2 == 0 ? nameOfPerson(2 * line + 1) : QStringLiteral("NEU%1 Person").arg(line * 7919);
    csv += QStringLiteral("%1;%2;w;SC %3\n").arg(name, shortDate(birthOf(2 * line + 1))).arg(line % Clubs);
  }
  return csv.toUtf8();
}

EntryPlan planOf(const Store &store) {
  const Table table = tableFrom(bytes(), QStringLiteral("M.csv"));
  EntryPlan plan = planFor(store, entriesOf(table, recognisedColumns(table), QDate(2026, 1, 15)));
  for (auto &club : plan.unknownClubs)
    club.club = ClubAnswer::MakeNew;
  return plan;
}

void recognise(benchmark::State &state) {
  const Event event;
  for ([[maybe_unused]] auto _ : state)
    benchmark::DoNotOptimize(planOf(event.store));
}

void show(benchmark::State &state) {
  Event event;
  for ([[maybe_unused]] auto _ : state) {
    EntryScreen screen(event.desk, event.store, tableFrom(bytes(), QStringLiteral("M.csv")), false);
    event.desk.show(screen);
    QCoreApplication::processEvents();
  }
}

// With all that is kept safe, as in the program.
void take(benchmark::State &state) {
  for ([[maybe_unused]] auto _ : state) {
    state.PauseTiming();
    Event event;
    DiskWorker worker;
    Safety safety(event.store, worker);
    safety.claim();
    safety.start();
    safety.copyAll();
    safety.wait();
    const EntryPlan plan = planOf(event.store);
    state.counters["neu"] = count(plan).newPersons;
    state.ResumeTiming();
    takeOver(event.store, plan, false);
    state.PauseTiming();
    safety.finish();
    state.ResumeTiming();
  }
}

BENCHMARK(recognise)->Unit(benchmark::kMillisecond);
BENCHMARK(show)->Unit(benchmark::kMillisecond);
BENCHMARK(take)->Unit(benchmark::kMillisecond)->Iterations(5)->MeasureProcessCPUTime()->UseRealTime();

} // namespace
