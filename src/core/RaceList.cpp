#include "core/RaceList.h"

#include "core/RaceFiles.h"
#include "core/RecordFiles.h"
#include "platform/Numbers.h"

namespace {

constexpr int NumberWidth = 6; // a blank and five digits

} // namespace

QStringList raceLines(const Store &store) {
  QStringList lines;
  for (int n = store.RennenAnzahl; n >= 1; --n)
    if (const QString name = raceRecord(store, n).RennenName; !name.isEmpty())
      lines << spacedText(n) + QStringLiteral("    ") + name;
  return lines;
}

// Quirk: criteria of race 0. It has no record and takes over those of race 1, the last that was listed.
QStringList RennenListeFuellen(Store &store) {
  if (store.RennenAnzahl >= 1) {
    store.RennenIdx = 1;
    RennenLesen(store);
  }
  readOpenRace(store);
  RennDatenLaden(store);
  return raceLines(store);
}

int raceOfLine(QStringView line) {
  return int(wholeNumber(line.left(NumberWidth)));
}
