#include "core/Participants.h"
#include "core/RaceList.h"
#include "evaluation/Series.h"
#include "evaluation/TeamEvaluation.h"
#include "hints/Rules.h"
#include "platform/Numbers.h"

#include <QHash>
#include <QSet>

#include <algorithm>

// Clubs, teams and groups (Form12), time sum (Form19) and cup (Form20).

namespace {

constexpr int MostUnits = 100, MostRounds = 10, SecondTimesOfARound = 5;

/// A marked race of the list, the highest number first.
struct Marked {
  QString line;
  int number;
  RaceGlance glance;
};

QList<Marked> markedRaces(const Situation &now) {
  QList<Marked> races;
  for (const QString &line : now.text("List1").split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
    const int number = raceOfLine(line);
    races.append({line, number, now.race(number)});
  }
  return races;
}

QString raceText(const Marked &race) {
  return QStringLiteral("Rennen %1 „%2“").arg(race.number).arg(race.glance.name);
}

// In a cup a second run counts as a round of its own.
int roundsOf(const QList<Marked> &races, bool secondRuns) {
  int rounds = 0;
  for (const Marked &race : races)
    rounds += secondRuns && race.glance.secondTimes >= SecondTimesOfARound ? 2 : 1;
  return rounds;
}

Hint tooManyRounds(const Situation &now, bool secondRuns, const char *button) {
  const int rounds = roundsOf(markedRaces(now), secondRuns);
  if (rounds <= MostRounds)
    return {};
  return {QStringLiteral("Das sind %1 Läufe: Mehr als zehn beenden das Programm.").arg(rounds), QLatin1String(button)};
}

Einheit unitOf(const Situation &now) {
  if (now.isOn("Check1"))
    return Einheit::Verein;
  return now.isOn("Check2") ? Einheit::Mannschaft : now.isOn("Check3") ? Einheit::Gruppe : Einheit::Keine;
}

int unitOfStarter(const Situation &now, const Starter &starter) {
  switch (unitOf(now)) {
  case Einheit::Verein:
    return now.store.mannschaften.WertVereinIdx[starter.row];
  case Einheit::Mannschaft:
    return starter.participant.MannschaftNr;
  case Einheit::Gruppe:
    return starter.participant.GruppeNr;
  case Einheit::Keine:
    break;
  }
  return 0;
}

QString nameOfUnit(const Situation &now, int unit) {
  switch (unitOf(now)) {
  case Einheit::Verein:
    return unit >= 1 && unit <= MostUnits
               ? trimmedBlanks(shownText(clubOf(now.store, now.store.mannschaften.WertVerein[unit]).VereinKurz))
               : QString();
  case Einheit::Mannschaft:
    return nameIn(now.store.MannschaftName, unit);
  default:
    return nameIn(now.store.GruppeName, unit);
  }
}

// A club that the row keeps although its participant starts for none.
bool keepsClub(const Store &store, int row) {
  const int slot = store.Teilnehmer[row].VereinNr;
  return (slot < 1 || slot > 3) && store.mannschaften.VereinRecNr[row] != 0;
}

} // namespace

Hint Hints::teamsIncomplete(const Situation &now) {
  const qint64 wanted = now.number("Combo2") + 2;
  if (!now.isOn("Option3") || unitOf(now) == Einheit::Keine)
    return {};
  QHash<int, int> ranked;
  for (const Starter &starter : now.starters())
    if (const int unit = unitOfStarter(now, starter); unit != 0)
      ranked[unit] += starter.participant.WertSumme != 0 && statusSum(starter.participant) <= 0;
  QStringList incomplete;
  for (auto unit = ranked.cbegin(); unit != ranked.cend(); ++unit)
    if (unit.value() < wanted)
      incomplete << nameOfUnit(now, unit.key());
  if (incomplete.isEmpty())
    return {};
  incomplete.sort(Qt::CaseInsensitive);
  return {QStringLiteral("Weniger als %1 Gewertete: %2. Je fehlendem kommen 100000 Sekunden dazu.")
              .arg(QString::number(wanted), names(incomplete)),
          QStringLiteral("Combo2")};
}

Hint Hints::clubsLeftOver(const Situation &now) {
  int rows = 0;
  for (const int row : now.store.Teilnehmer.rows())
    rows += keepsClub(now.store, row);
  if (rows == 0)
    return {};
  return {QStringLiteral("%1 ohne eigenen Verein noch den eines früheren Rennens: VEXT einmal beenden und neu starten.")
              .arg(counted(rows, "Zeile hat", "Zeilen haben")),
          QStringLiteral("List1")};
}

Hint Hints::nothingToRank(const Situation &now) {
  if (unitOf(now) != Einheit::Keine)
    return {};
  return {
      QStringLiteral("Nichts ist angekreuzt: Verein, Mannschaft oder Gruppe wählen, sonst bleibt die Wertung leer."),
      QStringLiteral("Command2")};
}

Hint Hints::tooManyClubs(const Situation &now) {
  QSet<int> clubs;
  for (const int row : now.store.Teilnehmer.rows())
    clubs << now.store.mannschaften.VereinRecNr[row];
  clubs.remove(0);
  if (clubs.size() <= MostUnits)
    return {};
  return {QStringLiteral("%1 Vereine: Nur die ersten 99 werden richtig gewertet.").arg(clubs.size())};
}

Hint Hints::classesNotAssigned(const Situation &now) {
  const auto &all = now.starters();
  if (all.isEmpty() ||
      std::any_of(all.begin(), all.end(), [](const Starter &s) { return s.participant.KlasseReihe != 0; }))
    return {};
  return {QStringLiteral("Die Klassen sind noch nicht zugeteilt: einmal „Zeitnehmung“ oder „Startnummern“ öffnen."),
          QStringLiteral("Combo1")};
}

Hint Hints::tooManyRacesInSum(const Situation &now) {
  return tooManyRounds(now, false, "Command2");
}

Hint Hints::tooManyRoundsInCup(const Situation &now) {
  return tooManyRounds(now, true, "Command1");
}

Hint Hints::racesDiffer(const Situation &now) {
  const auto races = markedRaces(now);
  if (races.isEmpty())
    return {};
  const Marked &base = races.last();
  for (const Marked &race : races) {
    const bool classes = race.glance.classes != base.glance.classes;
    if (classes || race.glance.criteria != base.glance.criteria)
      return {
          QStringLiteral("%1 hat andere %2 als %3, das für alle gilt.")
              .arg(raceText(race), classes ? QStringLiteral("Klassen") : QStringLiteral("Kriterien"), raceText(base))};
  }
  return {};
}

Hint Hints::raceNumberCut(const Situation &now) {
  for (const Marked &race : markedRaces(now))
    if (const int read = scoredRaceOfLine(race.line); read != race.number)
      return {QStringLiteral("%1 wird als Rennen %2 gelesen: Nur drei Ziffern gelten.").arg(raceText(race)).arg(read)};
  return {};
}

Hint Hints::raceWithoutTimes(const Situation &now) {
  for (const Marked &race : markedRaces(now))
    if (race.glance.times == 0)
      return {QStringLiteral("%1 hat keine Zeiten.").arg(raceText(race))};
  return {};
}

Hint Hints::missingBecomesDis(const Situation &now) {
  const auto races = markedRaces(now);
  if (races.size() < 2)
    return {};
  QSet<int> everywhere = races.first().glance.athletes;
  for (const Marked &race : races)
    everywhere.intersect(race.glance.athletes);
  const auto missing = races.first().glance.athletes.size() - everywhere.size();
  if (missing == 0)
    return {};
  return {QStringLiteral("%1 aus %2 in einem der anderen und damit „dis“.")
              .arg(counted(missing, "Teilnehmer fehlt", "Teilnehmer fehlen"), raceText(races.first()))};
}

Hint Hints::strikesLeaveNothing(const Situation &now) {
  const int rounds = roundsOf(markedRaces(now), true);
  const qint64 strikes = std::abs(now.number("Text3"));
  if (rounds == 0 || strikes < rounds)
    return {};
  return {QStringLiteral("%1 bei %2: Es bliebe kein Ergebnis übrig.")
              .arg(counted(strikes, "Streichresultat", "Streichresultate"), counted(rounds, "Lauf", "Läufen")),
          QStringLiteral("Text3")};
}

Hint Hints::sameNameInCup(const Situation &now) {
  QSet<int> athletes;
  for (const Marked &race : markedRaces(now))
    athletes.unite(race.glance.athletes);
  QHash<QString, int> known;
  for (const int athlete : athletes) {
    const QString name = nameOf(athleteOf(now.store, athlete));
    if (const int other = known.value(name); other != 0 && !name.isEmpty())
      return {QStringLiteral("%1 gibt es zweimal (Nr. %2 und %3): Im Cup zählt nur eine Person.")
                  .arg(name)
                  .arg(std::min(athlete, other))
                  .arg(std::max(athlete, other))};
    known[name] = athlete;
  }
  return {};
}
