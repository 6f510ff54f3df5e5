#include "core/Participants.h"
#include "hints/RegisterNames.h"
#include "hints/Rules.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"

// The registers of clubs (Form2) and athletes (Form3).

namespace {

constexpr int OldestYear = 1930;

LaeuferSatz storedAthlete(const Situation &now) {
  return athleteOf(now.store, int(now.number("Text1")));
}

QString birthYear(const LaeuferSatz &athlete) {
  return plainText(yearOf(athlete.Geburtsdatum));
}

// As the register takes it: two digits stand for a year.
QString wholeDate(const QString &typed) {
  const QString text = trimmedBlanks(typed);
  if (text.size() != 2)
    return text;
  return (leadingNumber(text) <= 9 ? QStringLiteral("01.01.20") : QStringLiteral("01.01.19")) + text;
}

bool startsInOpenRace(const Situation &now, qint64 athlete) {
  for (const Starter &starter : now.starters())
    if (starter.participant.LaeuferNr == athlete)
      return true;
  return false;
}

QString raceOf(const Situation &now) {
  return startsInOpenRace(now, now.number("Text1"))
             ? QStringLiteral(" (Start in „%1“)").arg(shownText(now.store.Rennen.RennenName))
             : QString();
}

QString described(const Situation &now, int athlete) {
  const LaeuferSatz record = athleteOf(now.store, athlete);
  QStringList about{QStringLiteral("Nr. %1").arg(athlete), birthYear(record)};
  for (const int club : clubsOf(now.store, record).mid(0, 1))
    about << trimmedBlanks(shownText(clubOf(now.store, club).VereinKurz));
  return QStringLiteral("%1 (%2)").arg(nameOf(record), about.join(QStringLiteral(", ")));
}

} // namespace

Hint Hints::phoneTakesContact(const Situation &now) {
  if (!now.hasFocus("Text8") || trimmedBlanks(now.text("Text8")) == trimmedBlanks(now.text("Text6")))
    return {};
  return {
      QStringLiteral("Beim Verlassen von „Telefon“ steht dort der Ansprechpartner. Nummern unter „Handy“ schreiben."),
      QStringLiteral("Text8")};
}

Hint Hints::clubWithoutShortName(const Situation &now) {
  if (trimmedBlanks(now.text("Text2")).isEmpty() || !trimmedBlanks(now.text("Text3")).isEmpty())
    return {};
  return {QStringLiteral("Ohne Kurzbezeichnung ist der Verein in der Auswahl und auf Listen unsichtbar."),
          QStringLiteral("Text3")};
}

Hint Hints::sameShortName(const Situation &now) {
  const QString own = trimmedBlanks(now.text("Text3"));
  for (int n = 1; n <= now.store.VereinAnzahl && !own.isEmpty(); ++n) {
    const VereinSatz club = clubOf(now.store, n);
    if (n != now.number("Text1") && own.compare(trimmedBlanks(club.VereinKurz), Qt::CaseInsensitive) == 0)
      return {QStringLiteral("Dieselbe Kurzbezeichnung hat Verein %1, „%2“: In der Auswahl sehen beide gleich aus.")
                  .arg(plainText(n), trimmedBlanks(shownText(club.VereinName))),
              QStringLiteral("Text3")};
  }
  return {};
}

Hint Hints::nameTaken(const Situation &now) {
  const auto similar = similarName(now.store, trimmedBlanks(now.text("Text2")), int(now.number("Text1")));
  if (!similar)
    return {};
  const QString other = described(now, similar->athlete);
  return {similar->same
              ? QStringLiteral("Gibt es schon: %1. Zwei gleiche Namen zählen im Cup als eine Person.").arg(other)
              : QStringLiteral("Fast gleich heißt %1: dieselbe Person?").arg(other),
          QStringLiteral("Text2")};
}

// Also a new entry for which no record was free.
Hint Hints::renaming(const Situation &now) {
  const QString stored = nameOf(storedAthlete(now)), typed = trimmedBlanks(now.text("Text2"));
  if (stored.isEmpty() || typed == stored)
    return {};
  const QString what = typed.isEmpty() ? QStringLiteral("Das ist %1 (Nr. %2): Leer fehlt der Name in allen Rennen.")
                                       : QStringLiteral("Beim Verlassen wird %1 (Nr. %2) umbenannt, in allen Rennen.");
  return {what.arg(stored, now.text("Text1")) + QStringLiteral(" Neu? „neu“, dann „+“."), QStringLiteral("Text2")};
}

Hint Hints::twoDigitYear(const Situation &now) {
  const QString typed = trimmedBlanks(now.text("Text4"));
  if (typed.size() != 2 || !typedDate(wholeDate(typed)))
    return {};
  return {QStringLiteral("Aus „%1“ wird beim Verlassen der %2. Besser ganz schreiben, etwa 13.04.2014.")
              .arg(typed, wholeDate(typed)),
          QStringLiteral("Text4")};
}

Hint Hints::unlikelyYear(const Situation &now) {
  const auto date = typedDate(wholeDate(now.text("Text4")));
  if (!date || toDays(*date) == 2 || (date->year() >= OldestYear && *date <= now.store.umgebung.today()))
    return {};
  return {QStringLiteral("Jahrgang %1: Stimmt das? Zwei Ziffern werden ab 10 immer zu 19…").arg(date->year()),
          QStringLiteral("Text4")};
}

Hint Hints::invalidDate(const Situation &now) {
  const LaeuferSatz stored = storedAthlete(now);
  if (stored.Name.isEmpty() || typedDate(wholeDate(now.text("Text4"))))
    return {};
  return {QStringLiteral("Das ist kein Datum: Gespeichert bleibt %1.").arg(shortDate(fromDays(stored.Geburtsdatum))),
          QStringLiteral("Text4")};
}

Hint Hints::athleteWithoutSex(const Situation &now) {
  const LaeuferSatz stored = storedAthlete(now);
  if (stored.Name.isEmpty() || stored.Geschlecht != Sex::NotSet)
    return {};
  return {QStringLiteral("Das Geschlecht fehlt%1: In einem Rennen nach m/w endet damit das Programm.").arg(raceOf(now)),
          QStringLiteral("Option1")};
}

Hint Hints::athleteWithoutDate(const Situation &now) {
  const LaeuferSatz stored = storedAthlete(now);
  if (stored.Name.isEmpty() || stored.Geburtsdatum != 2)
    return {};
  return {QStringLiteral("Das Geburtsdatum fehlt%1: Die Klasse wird falsch.").arg(raceOf(now)),
          QStringLiteral("Text4")};
}

Hint Hints::athletePointsCut(const Situation &now) {
  QString points = now.text("Text5");
  points.replace(QLatin1Char('.'), QLatin1Char(','));
  if (!points.contains(QLatin1Char(',')))
    return {};
  return {QStringLiteral("Punkte verlieren ihre Bruchteile, sobald man das Feld durchläuft: aus %1 wird %2.")
              .arg(points, plainText(leadingNumber(points))),
          QStringLiteral("Text5")};
}
