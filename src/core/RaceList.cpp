#include "core/RaceList.h"

#include "core/RaceFiles.h"
#include "core/RecordFiles.h"
#include "platform/Numbers.h"

namespace {

constexpr int NumberWidth = 6; // a blank and five digits

// Leaves the record of race 1, the last one read.
QStringList readAllRaces(Store &store) {
  QStringList lines;
  for (store.RennenIdx = store.RennenAnzahl; store.RennenIdx >= 1; --store.RennenIdx) {
    RennenLesen(store);
    if (!store.Rennen.RennenName.isEmpty())
      lines << spacedText(store.RennenIdx) + QStringLiteral("    ") + store.Rennen.RennenName;
  }
  return lines;
}

} // namespace

QStringList rennenZeilen(Store &store) {
  const int index = store.RennenIdx;
  const RennenSatz record = store.Rennen;
  const QStringList lines = readAllRaces(store);
  store.RennenIdx = index;
  store.Rennen = record;
  return lines;
}

// Race 0 has no record, so that it takes over the criteria of the race read last; this is meant.
QStringList RennenListeFuellen(Store &store) {
  const QStringList lines = readAllRaces(store);
  rennsatzLesen(store);
  RennDatenLaden(store);
  return lines;
}

int rennenNummer(QStringView line) {
  return int(wholeNumber(line.left(NumberWidth)));
}
