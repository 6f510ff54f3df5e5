#include "core/RecordFiles.h"
#include "hints/Rules.h"
#include "platform/Numbers.h"
#include "raceprep/RaceCopy.h"

#include <QDir>

// The hub of the races (Form4), its question (Form9) and the copy (CupKopie).

namespace {

constexpr int HighestOfSeries = 999; // cup and time sum read three digits

QString openRaceName(const Situation &now) {
  return shownText(now.store.Rennen.RennenName);
}

// The first name goes into record 1 while race 0 stays open.
QString enteredName(const Situation &now) {
  return now.store.AktRennen == 0 ? shownText(raceRecord(now.store, 1).RennenName) : openRaceName(now);
}

} // namespace

Hint Hints::firstRaceNotOpen(const Situation &now) {
  if (now.store.AktRennen != 0)
    return {};
  return {now.store.RennenAnzahl == 0
              ? QStringLiteral("Erstes Rennen im leeren Ordner: Namen tippen, „eintragen“, „fertig“ und wieder herein.")
              : QStringLiteral("Das erste Rennen ist erst offen, wenn man mit „fertig“ hinausgeht und wiederkommt."),
          QStringLiteral("Command1")};
}

// All that is made there goes into files of race 0, which is never opened again.
Hint Hints::noRaceOpen(const Situation &now) {
  if (now.store.AktRennen != 0)
    return {};
  return {QStringLiteral(
      "Noch ist kein Rennen offen, alles hier ginge verloren: mit „fertig“ bis ins Hauptmenü und wieder herein.")};
}

Hint Hints::emptyFolder(const Situation &now) {
  if (now.store.LaeuferAnzahl + now.store.VereinAnzahl + now.store.RennenAnzahl > 0)
    return {};
  const QString folder = QDir(now.store.DatenOrdner).absolutePath();
  return {QStringLiteral("Der Ordner „%1“ ist leer: mit „Vereine“ und „Läufer“ beginnen, dann „Veranstaltungen“.")
              .arg(QDir(folder).dirName())};
}

Hint Hints::raceNameNotEntered(const Situation &now) {
  const QString typed = trimmedBlanks(now.text("Text2")), stored = enteredName(now);
  if (typed == stored || (stored.isEmpty() && typed == QStringLiteral("leer")))
    return {};
  return {QStringLiteral(
              "Der Name ist noch nicht eingetragen: Er gilt erst nach „eintragen“, auch die Knöpfe warten darauf."),
          QStringLiteral("Command7")};
}

Hint Hints::functionsLocked(const Situation &now) {
  if (now.isOn("Command4") || trimmedBlanks(now.text("Text2")) != enteredName(now))
    return {};
  return {QStringLiteral("Ein Klick in den Namen macht die Knöpfe grau: „eintragen“ macht sie wieder frei."),
          QStringLiteral("Command7")};
}

Hint Hints::raceWithoutName(const Situation &now) {
  if (now.store.AktRennen == 0 || !openRaceName(now).isEmpty() || !trimmedBlanks(now.text("Text2")).isEmpty())
    return {};
  return {QStringLiteral("Ohne Namen öffnet kein Knopf etwas: Namen tippen und „eintragen“."), QStringLiteral("Text2")};
}

Hint Hints::deletionLosesTimes(const Situation &now) {
  const RaceGlance race = now.race(now.store.AktRennen);
  if (race.participants == 0)
    return {};
  return {QStringLiteral("„%1“ verliert endgültig %2 und %3.")
              .arg(openRaceName(now), counted(race.participants, "Teilnehmer", "Teilnehmer"),
                   counted(race.times + race.secondTimes, "Zeit", "Zeiten"))};
}

Hint Hints::deletionLeavesCup(const Situation &now) {
  if (!racesOfCup(now.store).contains(now.store.AktRennen))
    return {};
  return {QStringLiteral("Dieses Rennen ist im Cup markiert: Er wird danach ohne es gewertet.")};
}

Hint Hints::copyOverwrites(const Situation &now) {
  const auto number = copyNumber(now.text("Text2"));
  if (!number || *number == now.store.AktRennen)
    return {};
  const RaceGlance race = now.race(*number);
  if (race.name.isEmpty() && race.participants == 0)
    return {};
  return {QStringLiteral("Rennen %1 „%2“ mit %3 wird ohne Rückfrage überschrieben.")
              .arg(QString::number(*number), race.name, counted(race.participants, "Teilnehmer", "Teilnehmern")),
          QStringLiteral("Text2")};
}

Hint Hints::copyOntoItself(const Situation &now) {
  if (copyNumber(now.text("Text2")) != now.store.AktRennen || now.isOn("Check1"))
    return {};
  return {QStringLiteral("Das ist das offene Rennen selbst: Es verliert alle Nummern und Zeiten."),
          QStringLiteral("Text2")};
}

Hint Hints::copyWithoutNumber(const Situation &now) {
  if (copyNumber(now.text("Text2")))
    return {};
  return {QStringLiteral("Keine Nummer von 1 bis 30000: Der Schirm schließt, ohne zu kopieren."),
          QStringLiteral("Text2")};
}

Hint Hints::copyOfAnotherRace(const Situation &now) {
  const int race = now.store.AktRennen;
  if (now.text("Label1").contains(QStringLiteral(" %1 ").arg(race)))
    return {};
  return {
      QStringLiteral("Kopiert wird jetzt Rennen %1 „%2“, nicht das oben genannte.").arg(race).arg(openRaceName(now)),
      QStringLiteral("Label1")};
}

Hint Hints::copyTooHighForCup(const Situation &now) {
  const auto number = copyNumber(now.text("Text2"));
  if (!number || *number <= HighestOfSeries)
    return {};
  return {QStringLiteral("Über 999 liest die Cupwertung nur drei Ziffern: Rennen %1 würde zu %2.")
              .arg(QString::number(*number), QString::number(*number).left(3)),
          QStringLiteral("Text2")};
}
