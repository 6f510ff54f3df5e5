#include "core/Classes.h"
#include "core/RaceFiles.h"
#include "hints/Hints.h"
#include "support/TestStore.h"

#include <benchmark/benchmark.h>

#include <set>

// The hints of each screen with 1000 participants out of 30,000 athletes; wanted at most 8 ms.

namespace {

constexpr int Athletes = 30'000, People = 1000;

struct Event : TestStore {
  Event() {
    addRace(QStringLiteral("Messung"));
    store.Rennen.ZweiDurchgaenge = 1;
    const auto letter = [](int n) { return QChar(int('A') + n % 26); };
    for (int n = 1; n <= Athletes; ++n)
      addAthlete(QStringLiteral("M%1%2%3ÖLLER Elisabeth").arg(letter(n)).arg(letter(n / 26)).arg(letter(n / 676)),
                 1950 + n % 70, n % 2);
    for (int row = 1; row <= People; ++row)
      addParticipant(row);
    KlassenZuordnen(store);
    RennDatenSpeichern(store);
  }

  void addParticipant(int row) {
    auto &participant = store.Teilnehmer[row];
    participant.LaeuferNr = 30 * row;
    participant.StartNr = row;
    participant.Zeit1 = 60 + row % 40;
    participant.Zeit2 = row % 3 == 0 ? 0 : 60 + row % 40;
  }
};

/// What the screens show where their hints have the most to do.
const ShownValues &shown() {
  static const ShownValues values{{QStringLiteral("Text1"), QStringLiteral("ZWEIG Karoline")},
                                  {QStringLiteral("Text2"), QStringLiteral("ZWEIG Karoline")},
                                  {QStringLiteral("Command5"), QStringLiteral("1")},
                                  {QStringLiteral("List1"), QStringLiteral(" 1    Messung")},
                                  {QStringLiteral("Label11"), QStringLiteral("500")}};
  return values;
}

void hints(benchmark::State &state, const QString &screen) {
  static Event event;
  HintBook book(event.store);
  book.of(screen, shown()); // reads the other races
  for ([[maybe_unused]] auto _ : state)
    benchmark::DoNotOptimize(book.of(screen, shown()));
}

std::set<QString> screens() {
  std::set<QString> all;
  for (const HintRule &rule : hintRules())
    for (const QString &screen : QString::fromLatin1(rule.screens).split(QLatin1Char(' ')))
      all.insert(screen);
  return all;
}

const bool registered = [] {
  for (const QString &screen : screens())
    benchmark::RegisterBenchmark(qPrintable(screen), hints, screen)->Unit(benchmark::kMillisecond);
  return true;
}();

} // namespace
