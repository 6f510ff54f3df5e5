// How long the registers take with 30,000 athletes, and beside it the bare work: one pass over the records, one sort.

#include "masterdata/Form3.h"
#include "person/Person.h"
#include "platform/Numbers.h"
#include "platform/SortedLines.h"
#include "platform/qt/Desk.h"
#include "platform/qt/LineList.h"
#include "raceprep/Form5.h"
#include "raceprep/ParticipantList.h"
#include "support/TestStore.h"

#include <QLineEdit>

#include <benchmark/benchmark.h>

namespace {

constexpr int Athletes = 30'000, Clubs = 300, Participants = 1000;

const QStringList Names{QStringLiteral("MÜLLER"), QStringLiteral("Huber"),   QStringLiteral("GROSS-BAUER"),
                        QStringLiteral("ÖLLER"),  QStringLiteral("STEINER"), QStringLiteral("WEIß")};

QString nameOf(int n) {
  return Names[n * 7 % Names.size()] + QStringLiteral(" Vorname") + plainText(n * 7919 % Athletes);
}

/// A large club register and a full race.
struct Event : TestStore {
  Event() {
    for (int n = 1; n <= Clubs; ++n)
      addClub(QStringLiteral("Verein ") + plainText(n));
    for (int n = 1; n <= Athletes; ++n)
      addAthlete(nameOf(n), 1950 + n % 70, 2, 1 + n % Clubs);
    for (int row = 1; row <= Participants; ++row)
      store.Teilnehmer[row].LaeuferNr = row * 7;
  }

  Desk desk{store.Fenster, [] {}};
};

Event &event() {
  static Event large;
  return large;
}

template <typename Form> void openAndPaint(Form &form) {
  event().desk.show(form);
  QCoreApplication::processEvents();
}

void passOverRecords(benchmark::State &state) {
  auto &store = event().store;
  for ([[maybe_unused]] auto _ : state)
    for (int n = 1; n <= store.LaeuferAnzahl; ++n)
      benchmark::DoNotOptimize(LaeuferLesen(store, n));
}

void sortLines(benchmark::State &state) {
  QStringList unsorted;
  for (int n = 1; n <= Athletes; ++n)
    unsorted.append(nameOf(n) + QStringLiteral("        ") + plainText(n));
  for ([[maybe_unused]] auto _ : state) {
    SortedLines lines;
    for (const auto &line : unsorted)
      lines.add(line);
    benchmark::DoNotOptimize(lines.take());
  }
}

void listOfAthletes(benchmark::State &state) {
  for ([[maybe_unused]] auto _ : state)
    benchmark::DoNotOptimize(LaeuferListeFuellen(event().store));
}

void listOfParticipants(benchmark::State &state) {
  for ([[maybe_unused]] auto _ : state)
    benchmark::DoNotOptimize(TeilnehmerlisteFuellen(event().store, {}, ByName));
}

template <typename Form> void opening(benchmark::State &state) {
  for ([[maybe_unused]] auto _ : state) {
    Form form(event().desk, event().store);
    openAndPaint(form);
  }
}

void nameChange(benchmark::State &state) {
  Form3 form(event().desk, event().store);
  openAndPaint(form);
  auto *name = Person::find<QLineEdit>(&form, QLatin1String("Text2"));
  for ([[maybe_unused]] auto _ : state) {
    name->setFocus();
    QTest::keyClick(name, Qt::Key_A);
    QTest::keyClick(name, Qt::Key_Tab);
    QCoreApplication::processEvents();
  }
}

void typedIndex(benchmark::State &state) {
  Form3 form(event().desk, event().store);
  openAndPaint(form);
  auto *index = Person::find<QLineEdit>(&form, QLatin1String("Text1"));
  index->setFocus();
  int digit = 0;
  for ([[maybe_unused]] auto _ : state) {
    if (++digit % 5 == 0)
      index->selectAll();
    QTest::keyClick(index, char('1' + digit % 9));
    QCoreApplication::processEvents();
  }
}

void filter(benchmark::State &state) {
  Form5 form(event().desk, event().store);
  openAndPaint(form);
  auto *beginning = Person::find<QLineEdit>(&form, QLatin1String("Text1"));
  beginning->setFocus();
  QTest::keyClicks(beginning, state.range(0) ? QStringLiteral("hub") : QString());
  for ([[maybe_unused]] auto _ : state) {
    QTest::keyClick(beginning, Qt::Key_Return);
    QCoreApplication::processEvents();
  }
}

void clickOnAthlete(benchmark::State &state) {
  Form5 form(event().desk, event().store);
  openAndPaint(form);
  auto *list = Person::find<LineList>(&form, QLatin1String("List1"));
  for ([[maybe_unused]] auto _ : state) {
    QTest::keyClick(list, Qt::Key_Down);
    QCoreApplication::processEvents();
  }
}

BENCHMARK(passOverRecords)->Unit(benchmark::kMillisecond);
BENCHMARK(sortLines)->Unit(benchmark::kMillisecond);
BENCHMARK(listOfAthletes)->Unit(benchmark::kMillisecond);
BENCHMARK(listOfParticipants)->Unit(benchmark::kMillisecond);
BENCHMARK(opening<Form3>)->Unit(benchmark::kMillisecond);
BENCHMARK(opening<Form5>)->Unit(benchmark::kMillisecond);
BENCHMARK(nameChange)->Unit(benchmark::kMillisecond);
BENCHMARK(typedIndex)->Unit(benchmark::kMillisecond);
BENCHMARK(filter)->Arg(0)->Arg(1)->ArgName("filtered")->Unit(benchmark::kMillisecond);
BENCHMARK(clickOnAthlete)->Unit(benchmark::kMillisecond);

} // namespace
