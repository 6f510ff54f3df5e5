#include "core/Classes.h"
#include "core/RaceFiles.h"
#include "person/Person.h"
#include "platform/SortedLines.h"
#include "platform/qt/Desk.h"
#include "platform/qt/LineList.h"
#include "support/TestStore.h"
#include "timing/Form7.h"
#include "timing/Ranking.h"

#include <QLineEdit>
#include <QRadioButton>

#include <benchmark/benchmark.h>

// The largest event: 1000 participants, two runs, 20 classes. Wanted on an office computer: ranking 4 ms and first-run
// ranking 3 ms, each below four times the bare work; loading 5 ms, saving 15 ms; a refilled list painted, and the next
// participant ready after Enter, in 16 ms.

namespace {

constexpr int People = 1000;

struct Event : TestStore {
  Event() {
    umgebung.generator.seed(7);
    addRace(QStringLiteral("Messung"));
    store.Rennen.ZweiDurchgaenge = 1;
    makeClasses();
    for (int row = 1; row <= People; ++row)
      addParticipant(row);
    KlassenZuordnen(store);
    RennDatenSpeichern(store);
  }

  void makeClasses() {
    for (int k = 1; k <= 20; ++k) {
      store.KlasseName[k] = QStringLiteral("Klasse %1").arg(k);
      store.KlasseVon[k] = store.KlasseBis[k] = 2020 - k;
      store.KlasseReihenfolge(k, 0, 0, 0) = qint16(k);
      store.KlasseGenauName[exactClass(k, 0, 0, 0)] = store.KlasseName[k];
    }
  }

  void addParticipant(int row) {
    const auto letter = [this] { return QChar(int('A') + int(26 * umgebung.randomNumber())); };
    addAthlete(
        QStringLiteral("%1%2%3ÖLLER-STEINHUBER %4lisabeth").arg(letter()).arg(letter()).arg(letter()).arg(letter()),
        2000 + row % 20, row % 2);
    auto &participant = store.Teilnehmer[row];
    participant.LaeuferNr = row;
    participant.StartNr = People + 1 - row;
    participant.Zeit1 = 60 + 40 * umgebung.randomNumber();
    participant.Zeit2 = 60 + 40 * umgebung.randomNumber();
  }
};

Store &eventStore() {
  static Event event;
  return event.store;
}

/// What no ranking can do without: each record read once, keys like its own sorted once.
void bareWork(benchmark::State &state) {
  auto &store = eventStore();
  QStringList names;
  for ([[maybe_unused]] auto _ : state) {
    SortedLines keys;
    for (int row = 1; row <= People; ++row)
      keys.add(QStringLiteral("00%1").arg(row % 20) + QStringLiteral("00123,45") + LaeuferLesen(store, row).Name);
    benchmark::DoNotOptimize(keys.take());
  }
}
BENCHMARK(bareWork)->Unit(benchmark::kMillisecond);

void ergebnisRechnen(benchmark::State &state) {
  for ([[maybe_unused]] auto _ : state)
    ErgebnisRechnen(eventStore());
}
BENCHMARK(ergebnisRechnen)->Unit(benchmark::kMillisecond);

void rangfolge1(benchmark::State &state) {
  for ([[maybe_unused]] auto _ : state)
    Rangfolge1(eventStore());
}
BENCHMARK(rangfolge1)->Unit(benchmark::kMillisecond);

void rennDatenLaden(benchmark::State &state) {
  for ([[maybe_unused]] auto _ : state)
    RennDatenLaden(eventStore());
  KlassenZuordnen(eventStore());
}
BENCHMARK(rennDatenLaden)->Unit(benchmark::kMillisecond);

void rennDatenSpeichern(benchmark::State &state) {
  for ([[maybe_unused]] auto _ : state)
    RennDatenSpeichern(eventStore());
}
BENCHMARK(rennDatenSpeichern)->Unit(benchmark::kMillisecond);

/// The timing screen of the event, visible.
class Shown {
public:
  Shown() {
    desk.show(form);
    QCoreApplication::processEvents();
  }
  template <typename Control> Control *find(const QString &name) { return Person::find<Control>(&form, name); }

  Desk desk{eventStore().Fenster, [] {}};
  Form7 form{desk, eventStore()};
};

/// Argument: the option button.
void refillUntilPainted(benchmark::State &state) {
  Shown shown;
  auto *option = shown.find<QRadioButton>(QStringLiteral("Option%1").arg(state.range(0)));
  auto *list = shown.find<LineList>(QStringLiteral("List2"));
  for ([[maybe_unused]] auto _ : state) {
    option->click();
    list->viewport()->repaint();
  }
}
BENCHMARK(refillUntilPainted)->DenseRange(1, 5)->Unit(benchmark::kMillisecond);

/// Enter in the time box, then the arrow key: the next participant stands on the painted screen.
void enterUntilNextLine(benchmark::State &state) {
  Shown shown;
  auto *list = shown.find<LineList>(QStringLiteral("List2"));
  auto *box = shown.find<QLineEdit>(QStringLiteral("Text1"));
  list->choose(0);
  box->setFocus();
  for ([[maybe_unused]] auto _ : state) {
    QTest::keyClick(box, Qt::Key_Return);
    QTest::keyClick(list, list->chosenLine() + 1 < People ? Qt::Key_Down : Qt::Key_Home);
    shown.form.repaint();
    QCoreApplication::processEvents();
  }
}
BENCHMARK(enterUntilNextLine)->Unit(benchmark::kMillisecond);

} // namespace
