#include "raceprep/RaceList.h"

#include "core/RaceFiles.h"
#include "core/RecordFiles.h"
#include "platform/Numbers.h"

namespace {

constexpr int NumberWidth = 6; // a blank and five digits

} // namespace

QStringList rennenZeilen(Store &store) {
  const int index = store.RennenIdx;
  const RennenSatz record = store.Rennen;
  QStringList lines;
  for (store.RennenIdx = store.RennenAnzahl; store.RennenIdx >= 1; --store.RennenIdx) {
    RennenLesen(store);
    if (!store.Rennen.RennenName.isEmpty())
      lines << spacedText(store.RennenIdx) + QStringLiteral("    ") + store.Rennen.RennenName;
  }
  store.RennenIdx = index;
  store.Rennen = record;
  return lines;
}

QStringList RennenListeFuellen(Store &store) {
  const QStringList lines = rennenZeilen(store);
  store.RennenIdx = store.AktRennen;
  RennenLesen(store);
  RennDatenLaden(store);
  return lines;
}

int rennenNummer(QStringView line) {
  return int(wholeNumber(line.left(NumberWidth)));
}
