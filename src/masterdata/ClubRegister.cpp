#include "masterdata/ClubRegister.h"

#include "core/RecordFiles.h"
#include "platform/Numbers.h"

#include <algorithm>

namespace {

void openClub(Store &store, qint64 n) {
  store.VereinIdx = int(n);
  VereinLesen(store);
}

} // namespace

void openLastClub(Store &store) {
  VereinLeeren(store);
  store.VereinAnzahl = std::max(store.VereinAnzahl, 1);
  openClub(store, store.VereinAnzahl);
}

void goToClub(Store &store, qint64 n) {
  openClub(store, std::min<qint64>(std::max<qint64>(n, 1), store.VereinAnzahl));
}

bool goToClubBefore(Store &store, qint64 shown) {
  VereinLeeren(store);
  if (shown - 1 < 1) {
    store.umgebung.piep();
    return false;
  }
  goToClub(store, shown - 1);
  return true;
}

bool goToClubBehind(Store &store, qint64 shown, const QString &name) {
  VereinLeeren(store);
  if (shown + 1 <= store.VereinAnzahl) {
    goToClub(store, shown + 1);
    return true;
  }
  if (trimmedBlanks(name).isEmpty())
    return false;
  store.VereinIdx = ++store.VereinAnzahl;
  VereinSchreiben(store);
  return true;
}

void storeClubField(Store &store, int n, QString VereinSatz::*field, const QString &text) {
  openClub(store, n);
  store.Verein.*field = trimmedBlanks(text);
  VereinSchreiben(store);
}

QString shortNameOfClub(Store &store, int n) {
  openClub(store, n);
  return trimmedBlanks(store.Verein.VereinKurz);
}

QStringList clubChoices(Store &store) {
  const int current = store.VereinIdx;
  QStringList choices{QStringLiteral("?")};
  for (int n = 1; n <= store.VereinAnzahl; ++n)
    choices.append(shownText(shortNameOfClub(store, n)));
  store.VereinIdx = current;
  return choices;
}

bool isClub(const Store &store, int n) {
  return n >= 1 && n <= store.VereinAnzahl;
}
