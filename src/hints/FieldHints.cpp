#include "core/Participants.h"
#include "core/SingleTimes.h"
#include "hints/RegisterNames.h"
#include "hints/Rules.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"
#include "raceprep/StartNumbers.h"

#include <QHash>

#include <algorithm>
#include <limits>
#include <memory>

// The field of a race: list of participants (Form5) and start numbers (Form6).

namespace {

constexpr int Rows = decltype(Store::Teilnehmer)::last(), RowsNearlyAll = Rows - 10;

int usedRows(const Store &store) {
  int used = 0;
  for (const int row : store.Teilnehmer.rows())
    used += store.Teilnehmer[row].LaeuferNr != 0;
  return used;
}

bool hasResult(const TeilnehmerZeile &participant) {
  return participant.Zeit1 != 0 || participant.Zeit2 != 0 || participant.StartNr != 0;
}

/// Names of the starters that share a value, one list for each value.
template <typename Value> QList<QStringList> sharing(const Situation &now, Value value) {
  QHash<int, QStringList> groups;
  for (const Starter &starter : now.starters())
    if (const int key = value(starter); key != 0)
      groups[key] << nameOf(starter.athlete);
  QList<QStringList> shared;
  auto keys = groups.keys();
  std::sort(keys.begin(), keys.end());
  for (const int key : keys)
    if (groups[key].size() > 1)
      shared << (QStringList{QString::number(key)} + groups[key]);
  return shared;
}

// The Z file holds the athletes of the rows as they were when the race was made.
bool rowsHaveMoved(const Store &store) {
  const auto before = std::make_unique<Store>(store.umgebung);
  before->DatenOrdner = store.DatenOrdner;
  before->AktRennen = store.AktRennen;
  loadSingleTimes(*before);
  for (const int row : store.Teilnehmer.rows())
    if (const int athlete = store.Teilnehmer[row].LaeuferNr; athlete != 0 && athlete != before->cup.CupLaeufer[row])
      return true;
  return false;
}

const Starter *shownStarter(const Situation &now) {
  return now.text("Label6").isEmpty() ? nullptr : now.starterOf(now.number("Label6"));
}

} // namespace

// The list is filled anew only where it is filtered.
Hint Hints::athletesNotListed(const Situation &now) {
  if (!trimmedBlanks(now.text("Text1")).isEmpty())
    return {};
  const int athletes = namedAthletes(now.store);
  if (now.number("List1.Zeilen") == athletes)
    return {};
  return {QStringLiteral("Die Liste der Sportler ist nicht auf dem neuen Stand: „alle zeigen“ zeigt alle %1.")
              .arg(athletes),
          QStringLiteral("Command4")};
}

Hint Hints::filterHidesParticipants(const Situation &now) {
  const QString beginning = trimmedBlanks(upperCase(now.text("Text2")));
  if (beginning.isEmpty())
    return {};
  const QStringList hidden = namesOf(
      now, [&](const Starter &starter) { return upperCase(starter.athlete.Name.left(beginning.size())) != beginning; });
  if (hidden.isEmpty())
    return {};
  return {
      QStringLiteral("„Anfang mit %1“ blendet %2 von %3 aus: „alle zeigen“ zeigt sie wieder.")
          .arg(beginning, QString::number(hidden.size()), counted(now.starters().size(), "Teilnehmer", "Teilnehmern")),
      QStringLiteral("Text2")};
}

Hint Hints::clubNotChosen(const Situation &now) {
  return {aboutStarters(namesOf(now,
                                [&](const Starter &starter) {
                                  return starter.participant.VereinNr == 0 &&
                                         clubsOf(now.store, starter.athlete).size() > 1;
                                }),
                        "Teilnehmer hat mehrere Vereine und keinen", "Teilnehmer haben mehrere Vereine und keinen",
                        "%1 gewählt, das geht bei den Startnummern (%2).")};
}

Hint Hints::twiceInField(const Situation &now) {
  const auto twice = sharing(now, [](const Starter &starter) { return starter.participant.LaeuferNr; });
  if (twice.isEmpty())
    return {};
  return {QStringLiteral("%1 steht %2-mal in der Teilnehmerliste.").arg(twice[0][1]).arg(twice[0].size() - 1)};
}

Hint Hints::tableNearlyFull(const Situation &now) {
  const int used = usedRows(now.store);
  if (used < RowsNearlyAll)
    return {};
  return {used == Rows ? QStringLiteral("Alle 1000 Zeilen sind belegt: Niemand kann mehr dazu.")
                       : QStringLiteral("%1 von 1000 Zeilen sind belegt: Platz für noch %2.")
                             .arg(used)
                             .arg(counted(Rows - used, "Teilnehmer", "Teilnehmer"))};
}

Hint Hints::combinedRaceMoved(const Situation &now) {
  try {
    if (!hasSingleTimes(now.store) || now.store.TabellenRennen < 0)
      return {};
    if (rowsHaveMoved(now.store))
      return {QStringLiteral(
          "Kombilauf: Das Feld ist verändert, die Einzelzeiten stehen bei falschen Personen. Neu erzeugen.")};
  } catch (const Fault &) { // told when the list is printed
    return {};
  }
  return {QStringLiteral("Kombilauf: Teilnehmer nicht ändern, die Einzelzeiten hängen an ihrer Reihenfolge.")};
}

Hint Hints::removalLosesResult(const Situation &now) {
  const Starter *starter = now.text("Label5").isEmpty() ? nullptr : now.starterOf(now.number("Label7"));
  if (!starter || !hasResult(starter->participant))
    return {};
  return {QStringLiteral("„aus Liste löschen“ fragt nicht nach und nimmt Nummer und Zeit von %1 mit.")
              .arg(nameOf(starter->athlete)),
          QStringLiteral("Command3")};
}

Hint Hints::newEntryRenames(const Situation &now) {
  const QString typed = trimmedBlanks(now.text("Text1"));
  if (typed.isEmpty() || !now.isOn("Command5") || hasFreeRecord(now.store) || anyNameBegins(now.store, typed))
    return {};
  return {QStringLiteral("„Neuaufnahme“ würde %1 umbenennen, kein Datensatz ist frei: im Register „neu“, dann „+“.")
              .arg(nameOf(athleteOf(now.store, now.store.LaeuferAnzahl))),
          QStringLiteral("Command5")};
}

Hint Hints::participantsWithoutName(const Situation &now) {
  const int missing = usedRows(now.store) - int(now.starters().size());
  if (now.store.TabellenRennen < 0 || missing <= 0)
    return {};
  return {
      QStringLiteral("%1 Teilnehmer ohne Namen im Register: unsichtbar in Nummern, Zeiten und Listen.").arg(missing)};
}

Hint Hints::participantsWithoutSex(const Situation &now) {
  if (now.store.Rennen.WertGeschlecht == 0)
    return {};
  return {aboutStarters(namesOf(now, [](const Starter &starter) { return starter.athlete.Geschlecht == Sex::NotSet; }),
                        "Teilnehmer hat", "Teilnehmer haben",
                        "%1 kein Geschlecht: bei „Läufer“ eintragen, sonst endet beim Bilden der Klassen das Programm "
                        "(%2).")};
}

Hint Hints::participantsWithoutDate(const Situation &now) {
  return {aboutStarters(namesOf(now, [](const Starter &starter) { return starter.athlete.Geburtsdatum == 2; }),
                        "Teilnehmer hat", "Teilnehmer haben", "%1 kein Geburtsdatum, die Klasse wird falsch (%2).")};
}

Hint Hints::numbersTwice(const Situation &now) {
  const auto twice = sharing(now, [](const Starter &starter) { return starter.participant.StartNr; });
  if (twice.isEmpty())
    return {};
  const QString more =
      twice.size() > 1 ? QStringLiteral(" Insgesamt %1 Nummern sind doppelt.").arg(twice.size()) : QString();
  return {QStringLiteral("Startnummer %1 haben %2.").arg(twice[0][0], names(twice[0].mid(1))) + more};
}

Hint Hints::numbersMissing(const Situation &now) {
  const QStringList without = namesOf(now, [](const Starter &starter) { return starter.participant.StartNr == 0; });
  return {aboutStarters(without, "Teilnehmer hat", "Teilnehmer haben",
                        "%1 keine Startnummer, dort enden gedruckte Listen (%2).")};
}

// The boxes go to the row in work, which a numbering run leaves behind its last line.
Hint Hints::boxHitsAnother(const Situation &now) {
  if (now.text("Label6").isEmpty() || now.number("Label6") == now.store.TnIdx)
    return {};
  const Starter *hit = now.starterOf(now.store.TnIdx);
  return {QStringLiteral("Erst wieder eine Person anklicken: Häkchen träfen jetzt %1.")
              .arg(hit ? nameOf(hit->athlete) : QStringLiteral("niemanden oder jemand anderen")),
          QStringLiteral("Check1")};
}

Hint Hints::reserveOutOfRange(const Situation &now) {
  const auto reserve = shortNumber(now.text("Text2"));
  if (reserve && *reserve >= 0)
    return {};
  return {reserve
              ? QStringLiteral("Eine negative Reserve zählt zurück: Nummern kämen doppelt.")
              : QStringLiteral("Reserve zu groß: Es würde nicht gelost, und „automatisch“ ginge nicht noch einmal."),
          QStringLiteral("Text2")};
}

Hint Hints::drawReplacesNumbers(const Situation &now) {
  if (!now.isOn("Command3") || std::none_of(now.starters().begin(), now.starters().end(),
                                            [](const Starter &starter) { return starter.participant.StartNr != 0; }))
    return {};
  return {QStringLiteral("„LOS !“ gibt allen eine neue Nummer, auch denen, die schon eine haben."),
          QStringLiteral("Command3")};
}

Hint Hints::groupRunTakesClass(const Situation &now) {
  if (now.store.Rennen.WertKlassen == 1 || !now.isOn("Command11"))
    return {};
  const qint64 number = now.number("Combo2") + 1;
  return {QStringLiteral("„LOS !“ gibt die Nummern nicht dieser Gruppe, sondern der Klasse %1, „%2“.")
              .arg(number)
              .arg(nameIn(now.store.KlasseName, int(number))),
          QStringLiteral("Command11")};
}

Hint Hints::classRunRepeatsNumbers(const Situation &now) {
  if (!now.isOn("Command11"))
    return {};
  const qint64 klasse = now.number("Combo2") + 1, first = firstNumber(now.text("Text3"));
  const auto &all = now.starters();
  const auto inClass = [&](const Starter &starter) { return starter.participant.KlasseNr == klasse; };
  const qint64 last = first + std::count_if(all.begin(), all.end(), inClass) - 1;
  const auto taken = std::count_if(all.begin(), all.end(), [&](const Starter &starter) {
    const int number = starter.participant.StartNr;
    return number != 0 && number >= first && number <= last && !inClass(starter);
  });
  if (taken == 0)
    return {};
  return {QStringLiteral("Zwischen %1 und %2 gibt es %3 schon: „LOS !“ gäbe sie noch einmal.")
              .arg(first)
              .arg(last)
              .arg(counted(taken, "Nummer", "Nummern")),
          QStringLiteral("Text3")};
}

Hint Hints::numberNotStored(const Situation &now) {
  const Starter *shown = shownStarter(now);
  const auto typed = shortNumber(now.text("Text1"));
  if (!shown || (typed && *typed == shown->participant.StartNr))
    return {};
  const QString kept = QStringLiteral(" Gespeichert bleibt %1.").arg(shown->participant.StartNr);
  if (!typed)
    return {QStringLiteral("Keine Nummer von −32768 bis 32767.") + kept, QStringLiteral("Text1")};
  if (!isNumberTaken(now.store, *typed))
    return {};
  const QStringList owners =
      namesOf(now, [&](const Starter &starter) { return starter.participant.StartNr == *typed; });
  return {(owners.isEmpty() ? QStringLiteral("Nummer %1 ist vergeben.").arg(*typed)
                            : QStringLiteral("Nummer %1 hat %2.").arg(*typed).arg(names(owners))) +
              kept,
          QStringLiteral("Text1")};
}
