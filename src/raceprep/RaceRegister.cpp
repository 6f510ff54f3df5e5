#include "raceprep/RaceRegister.h"

#include "core/RaceFiles.h"
#include "core/RecordFiles.h"
#include "platform/Files.h"
#include "platform/Numbers.h"

#include <algorithm>

namespace {

void makeRace(Store &store) {
  RennenLeeren(store); // leaves the criteria alone: the new race inherits them
  store.RennenIdx = store.RennenAnzahl + 1;
  RennenSchreiben(store);
}

} // namespace

int raceToOpenFirst(const Store &store) {
  if (store.AktRennen != 0)
    return store.AktRennen;
  return std::max(store.RennenAnzahl, 1);
}

void openRaceNumbered(Store &store, const QString &number) {
  const qint64 wanted = std::max<qint64>(wholeNumber(number), 1);
  store.RennenIdx = store.AktRennen = int(std::min<qint64>(wanted, store.RennenAnzahl));
  RennenLesen(store);
  RennDatenLaden(store);
}

QString previousRaceText(const Store &store, const QString &number) {
  const qint64 before = wholeNumber(number) - 1;
  if (before < 1)
    store.umgebung.beep();
  return QString::number(std::max<qint64>(before, 1));
}

std::optional<QString> nextRaceText(Store &store, const QString &number, const QString &name) {
  const qint64 next = wholeNumber(number) + 1;
  if (next > store.RennenAnzahl) {
    if (trimmedBlanks(name).isEmpty())
      return {};
    makeRace(store);
  }
  return QString::number(next);
}

// Quirk: first race is race 0. The first name goes into record 1, but the open race stays number 0 until another one
// is opened.
void enterRaceName(Store &store, const QString &name) {
  RennenLesen(store);
  store.Rennen.RennenName = trimmedBlanks(name);
  if (store.RennenIdx == 0)
    store.RennenIdx = 1;
  RennenSchreiben(store);
}

void eraseRace(Store &store) {
  RennenLeeren(store);
  RennenSchreiben(store);
  QStringList paths;
  {
    const std::scoped_lock lock(store.umgebung.writing);
    for (const char letter : {'R', 'K', 'G', 'M', 'Z'}) {
      paths << raceFileName(store, letter, store.AktRennen);
      removeFile(paths.last());
    }
  }
  store.umgebung.syncSoon(paths);
}
