#include "masterdata/ClubRegister.h"

#include "core/RecordFiles.h"
#include "platform/Numbers.h"

#include <algorithm>

int lastClub(Store &store) {
  store.VereinAnzahl = std::max(store.VereinAnzahl, 1);
  return store.VereinAnzahl;
}

int heldClub(const Store &store, qint64 n) {
  return int(std::min<qint64>(std::max<qint64>(n, 1), store.VereinAnzahl));
}

std::optional<int> previousClub(const Store &store, qint64 shown) {
  if (shown - 1 >= 1)
    return heldClub(store, shown - 1);
  store.umgebung.beep();
  return {};
}

std::optional<int> nextClub(Store &store, qint64 shown, const QString &name) {
  if (shown + 1 <= store.VereinAnzahl)
    return heldClub(store, shown + 1);
  if (trimmedBlanks(name).isEmpty())
    return {};
  const int added = ++store.VereinAnzahl;
  VereinSchreiben(store, added, VereinLeeren(store));
  return added;
}

void storeClubField(Store &store, int n, QString VereinSatz::*field, const QString &text) {
  VereinSatz club = VereinLesen(store, n);
  club.*field = trimmedBlanks(text);
  VereinSchreiben(store, n, club);
}

QString shortNameOfClub(const Store &store, int n) {
  return trimmedBlanks(VereinLesen(store, n).VereinKurz);
}

QStringList shortNamesOfClubs(const Store &store) {
  QStringList names;
  for (int n = 1; n <= store.VereinAnzahl; ++n)
    names.append(trimmedBlanks(shownText(VereinLesen(store, n).VereinKurz)));
  return names;
}

QStringList clubChoices(const Store &store) {
  return QStringList{QStringLiteral("?")} + shortNamesOfClubs(store);
}

bool isClub(const Store &store, int n) {
  return n >= 1 && n <= store.VereinAnzahl;
}
