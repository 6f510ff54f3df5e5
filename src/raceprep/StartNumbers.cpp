#include "raceprep/StartNumbers.h"

#include "core/Classes.h"
#include "core/Participants.h"
#include "platform/Numbers.h"
#include "platform/SortedLines.h"

#include <limits>

namespace {

constexpr int NumberWidth = 5;
constexpr int KeyWidth = 3;
constexpr int RowsOfDeletion = 50;

// The lines of the draw for all participants that `wanted` takes: order key, draw, name, row. `draw` is asked once for
// each of them.
template <typename Wanted, typename Draw> QStringList numberingLines(const Store &store, Wanted wanted, Draw draw) {
  SortedLines lines;
  for (const int row : store.Teilnehmer.rows()) {
    const auto &participant = store.Teilnehmer[row];
    if (!wanted(participant))
      continue;
    if (const auto athlete = athleteOf(store, participant))
      lines.add(Reihungsschluessel(store, participant) + draw() + QStringLiteral("   ") + athlete->Name +
                QStringLiteral("     ") + plainText(row));
  }
  return lines.take();
}

bool fitsColumn(qint64 number) {
  return number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max();
}

// Counts on from `number` over the lines, and on by `reserve` where the key changes.
// Quirk: flag after the draw. The counter of the loop is the row in work of the whole program, so a flag left before
// the next participant is chosen goes to that row.
void handOut(Store &store, const QStringList &lines, qint64 number, qint64 reserve) {
  QString key;
  for (store.TnIdx = 0; store.TnIdx < lines.size(); ++store.TnIdx, ++number) {
    const QString &line = lines[store.TnIdx];
    if (!key.isEmpty() && line.left(KeyWidth) != key)
      number += reserve;
    key = line.left(KeyWidth);
    if (!fitsColumn(number))
      return store.umgebung.beep();
    store.Teilnehmer[numberAtEnd(line)].StartNr = int(number);
  }
}

} // namespace

QStringList NummernlisteFuellen(const Store &store) {
  SortedLines lines;
  for (const int row : store.Teilnehmer.rows())
    if (const auto athlete = athleteOf(store, store.Teilnehmer[row]))
      lines.add(rightAligned(plainText(store.Teilnehmer[row].StartNr), NumberWidth) + QStringLiteral("  ") +
                athlete->Name + QStringLiteral("          ") + plainText(row));
  return lines.take();
}

// Quirk: draw of two digits. Equal draws are common and then go by name.
QStringList drawNumbersForAll(Store &store, int reserve) {
  const auto everybody = [](const TeilnehmerZeile &) { return true; };
  const auto draw = [&store] { return masked(int(store.umgebung.randomNumber() * 100), "0#"); };
  const QStringList lines = numberingLines(store, everybody, draw);
  handOut(store, lines, 1, reserve);
  return lines;
}

// Quirk: numbers for a group. The class number is compared also where the race goes by groups.
QStringList numbersForClass(Store &store, int klasse, qint64 first, qint64 reserve) {
  const auto ofClass = [klasse](const TeilnehmerZeile &participant) { return participant.KlasseNr == klasse; };
  const auto noDraw = [] { return QString(); };
  const QStringList lines = numberingLines(store, ofClass, noDraw);
  handOut(store, lines, first, reserve);
  return lines;
}

qint64 firstNumber(const QString &text) {
  return text.isEmpty() ? 1 : wholeNumber(text);
}

bool isNumberTaken(const Store &store, int startNr) {
  for (const int row : store.Teilnehmer.rows())
    if (store.Teilnehmer[row].StartNr == startNr)
      return true;
  return false;
}

bool offersDeletion(const Store &store) {
  qint64 sum = 0;
  for (int row = 1; row <= RowsOfDeletion; ++row)
    sum += store.Teilnehmer[row].StartNr;
  return sum > 0;
}

void deleteAllNumbers(Store &store) {
  for (const int row : store.Teilnehmer.rows())
    store.Teilnehmer[row].StartNr = 0;
}
