#include "masterdata/AthleteRegister.h"

#include "core/RecordFiles.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"

#include <algorithm>

namespace {

void openAthlete(Store &store, qint64 n) {
  LaeuferLeeren(store);
  store.LaeuferIdx = int(n);
  LaeuferLesen(store);
}

} // namespace

void openLastAthlete(Store &store) {
  store.LaeuferAnzahl = std::max(store.LaeuferAnzahl, 1);
  openAthlete(store, store.LaeuferAnzahl);
}

void goToAthlete(Store &store, qint64 n) {
  openAthlete(store, std::min<qint64>(std::max<qint64>(n, 1), store.LaeuferAnzahl));
}

bool goToAthleteBefore(Store &store, qint64 shown) {
  LaeuferLeeren(store);
  if (shown - 1 < 1) {
    store.umgebung.piep();
    return false;
  }
  goToAthlete(store, shown - 1);
  return true;
}

bool goToAthleteBehind(Store &store, qint64 shown, const QString &name, const QString &birthDate) {
  if (looksUndated(birthDate))
    return false;
  LaeuferLeeren(store);
  if (shown + 1 <= store.LaeuferAnzahl) {
    goToAthlete(store, shown + 1);
    return true;
  }
  if (trimmedBlanks(name).isEmpty())
    return false;
  store.LaeuferIdx = ++store.LaeuferAnzahl;
  LaeuferSchreiben(store);
  return true;
}

bool looksUndated(const QString &birthDate) {
  return birthDate == QStringLiteral("1.1.1900");
}

void changeAthlete(Store &store, int n, const std::function<void(LaeuferSatz &)> &change) {
  store.LaeuferIdx = n;
  LaeuferLesen(store);
  change(store.Laeufer);
  LaeuferSchreiben(store);
}

QString storeBirthDate(Store &store, int n, const QString &typed) {
  QString text = trimmedBlanks(typed);
  if (text.size() == 2)
    text.prepend(leadingNumber(text) <= 9 ? QStringLiteral("01.01.20") : QStringLiteral("01.01.19"));
  const auto date = typedDate(text);
  if (!date)
    return {};
  changeAthlete(store, n, [&](LaeuferSatz &athlete) { athlete.Geburtsdatum = toDays(*date); });
  return text;
}

int firstFreeAthlete(Store &store) {
  for (store.LaeuferIdx = 1; store.LaeuferIdx <= store.LaeuferAnzahl; ++store.LaeuferIdx) {
    LaeuferLesen(store);
    if (store.Laeufer.Name.isEmpty())
      break;
  }
  return store.LaeuferIdx;
}
