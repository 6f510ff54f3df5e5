#include "masterdata/AthleteRegister.h"

#include "core/RecordFiles.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"

#include <algorithm>

int lastAthlete(Store &store) {
  store.LaeuferAnzahl = std::max(store.LaeuferAnzahl, 1);
  return store.LaeuferAnzahl;
}

int heldAthlete(const Store &store, qint64 n) {
  return int(std::min<qint64>(std::max<qint64>(n, 1), store.LaeuferAnzahl));
}

std::optional<int> previousAthlete(const Store &store, qint64 shown) {
  LaeuferLeeren(store);
  if (shown - 1 >= 1)
    return heldAthlete(store, shown - 1);
  store.umgebung.piep();
  return {};
}

std::optional<int> nextAthlete(Store &store, qint64 shown, const QString &name, const QString &birthDate) {
  if (looksUndated(birthDate))
    return {};
  const LaeuferSatz unknown = LaeuferLeeren(store);
  if (shown + 1 <= store.LaeuferAnzahl)
    return heldAthlete(store, shown + 1);
  if (trimmedBlanks(name).isEmpty())
    return {};
  const int added = ++store.LaeuferAnzahl;
  LaeuferSchreiben(store, added, unknown);
  return added;
}

bool looksUndated(const QString &birthDate) {
  return birthDate == QStringLiteral("1.1.1900");
}

LaeuferSatz changeAthlete(Store &store, int n, const std::function<void(LaeuferSatz &)> &change) {
  LaeuferSatz athlete = LaeuferLesen(store, n);
  change(athlete);
  LaeuferSchreiben(store, n, athlete);
  return athlete;
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

int firstFreeAthlete(const Store &store) {
  int n = 1;
  while (n <= store.LaeuferAnzahl && !LaeuferLesen(store, n).Name.isEmpty())
    ++n;
  return n;
}
