#include "masterdata/AthleteRegister.h"

#include "core/RecordFiles.h"
#include "masterdata/ClubRegister.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"

#include <algorithm>

namespace {

constexpr double UnknownBirthDate = 2;

QString clubText(const Store &store, int club) {
  return isClub(store, club) ? shownText(shortNameOfClub(store, club)) : QString();
}

QStringList tableLine(const Store &store, const LaeuferSatz &athlete) {
  const bool dated = athlete.Geburtsdatum != UnknownBirthDate;
  return {shownText(athlete.Name),
          dated ? shortDate(fromDays(athlete.Geburtsdatum)) : QString(),
          QStringList{QStringLiteral("w"), QStringLiteral("m")}.value(athlete.Geschlecht),
          clubText(store, athlete.Verein1),
          clubText(store, athlete.Verein2),
          clubText(store, athlete.Verein3),
          trimmedBlanks(shownText(athlete.OesvNr)),
          athlete.LaeuferPunkte == 0 ? QString() : plainText(athlete.LaeuferPunkte)};
}

} // namespace

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
  store.umgebung.beep();
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

QList<QStringList> athleteTable(const Store &store) {
  QList<QStringList> table{{QStringLiteral("Name"), QStringLiteral("Geburtsdatum"), QStringLiteral("Geschlecht"),
                            QStringLiteral("Verein"), QStringLiteral("Verein 2"), QStringLiteral("Verein 3"),
                            QStringLiteral("ÖSV-Nummer"), QStringLiteral("Punkte")}};
  for (int n = 1; n <= store.LaeuferAnzahl; ++n)
    if (const LaeuferSatz athlete = LaeuferLesen(store, n); !athlete.Name.isEmpty())
      table << tableLine(store, athlete);
  return table;
}

int firstFreeAthlete(const Store &store) {
  int n = 1;
  while (n <= store.LaeuferAnzahl && !LaeuferLesen(store, n).Name.isEmpty())
    ++n;
  return n;
}
