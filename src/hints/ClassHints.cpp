#include "core/Classes.h"
#include "hints/Rules.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"
#include "raceprep/ClassOrder.h"

#include <QHash>
#include <QSet>

#include <algorithm>

// Classes (Form10), their order (Form15), criteria (Form14), teams and groups (Form11).

namespace {

constexpr int FirstYear = 1900, Classes = 20, HighestExactClass = 159;

QList<int> classesOf(const Store &store, int year) {
  QList<int> classes;
  for (int k = 1; k <= Classes; ++k)
    if (!store.KlasseName[k].isEmpty() && store.KlasseVon[k] <= year && store.KlasseBis[k] >= year)
      classes << k;
  return classes;
}

QString span(int first, int last) {
  return first == last ? plainText(first) : QStringLiteral("%1 bis %2").arg(first).arg(last);
}

/// The latest run of years up to this one that `fits`; nothing where none does.
template <typename Fits> std::optional<std::pair<int, int>> latestRun(int youngest, Fits fits) {
  int last = youngest;
  while (last >= FirstYear && !fits(last))
    --last;
  if (last < FirstYear)
    return {};
  int first = last;
  while (first > FirstYear && fits(first - 1))
    --first;
  return std::pair(first, last);
}

int thisYear(const Situation &now) {
  return now.store.umgebung.today().year();
}

bool anyClass(const Store &store) {
  return std::any_of(&store.KlasseName[1], &store.KlasseName[Classes] + 1,
                     [](const QString &name) { return !name.isEmpty(); });
}

/// A cell of the grid that counts: its position, its number and how many start there.
struct Cell {
  int position = 0;
  qint64 number = 0;
  qsizetype starters = 0;
  QString name;
};

QList<Cell> cellsOf(const Situation &now) {
  QHash<int, int> starters;
  for (const Starter &starter : now.starters())
    ++starters[starter.participant.KlasseGenau];
  QList<Cell> cells;
  int position = 0;
  for (const GridCell &cell : gridCells(now.store)) {
    const int at = position++;
    if (applies(now.store.Rennen, cell))
      cells.append({at, now.number(qPrintable(QStringLiteral("Label3_%1").arg(at))),
                    starters.value(exactClass(cell.klasse, cell.a, cell.b, cell.f)),
                    nameIn(now.store.KlasseGenauName, at)});
  }
  return cells;
}

/// The number of a starter's class in the order of the race, whether or not the classes have been assigned since;
/// nothing without a class.
std::optional<int> orderNumber(const Situation &now, const Starter &starter) {
  const RennenSatz &race = now.store.Rennen;
  const TeilnehmerZeile &participant = starter.participant;
  if (participant.KlasseNr < 1 || participant.KlasseNr > Classes)
    return {};
  const auto half = [](int criterion, int value) { return criterion == 1 && value == 1 ? 1 : 0; };
  return now.store.KlasseReihenfolge(participant.KlasseNr, half(race.WertGeschlecht, starter.athlete.Geschlecht),
                                     half(race.WertGaeste, participant.Gast),
                                     half(race.WertBoarder, participant.Boarder));
}

Hint aboutCell(const QString &text, const Cell &cell) {
  return {text, QStringLiteral("Label3_%1").arg(cell.position)};
}

bool hasTwoRunTimes(const Situation &now) {
  return std::any_of(now.starters().begin(), now.starters().end(),
                     [](const Starter &starter) { return starter.participant.Zeit2 > 0; });
}

/// Whether there are starters, and none of them has it.
template <typename Has> bool nobody(const Situation &now, Has has) {
  const auto &all = now.starters();
  return !all.isEmpty() &&
         std::none_of(all.begin(), all.end(), [has](const Starter &starter) { return has(starter.participant); });
}

Hint fractionCut(const Situation &now, const char *field) {
  const QString shown = now.text(field);
  if (!shown.contains(QLatin1Char(',')))
    return {};
  return {
      QStringLiteral("Das Feld liest nur bis zum Komma, beim Verlassen wird aus %1 %2: Bruchteile mit Punkt tippen.")
          .arg(shown, plainText(leadingNumber(shown))),
      QLatin1String(field)};
}

using Names = Tabelle<QString, 0, 100>;

Hint namesNotSaved(const Names &names, const char *units, const char *field) {
  int used = 0;
  for (int n = 3; n <= names.last(); ++n)
    used += !names[n].isEmpty();
  if (used == 0 || !names[1].isEmpty() || !names[2].isEmpty())
    return {};
  return {QStringLiteral("Nummer 1 und 2 sind leer: Die %1 werden nicht gespeichert.").arg(QString::fromUtf8(units)),
          QLatin1String(field)};
}

template <typename Unit>
Hint unitsWithoutMembers(const Situation &now, const Names &names, Unit unitOf, const char *units) {
  QSet<int> used;
  for (const Starter &starter : now.starters())
    used << unitOf(starter.participant);
  QStringList empty;
  for (int n = 1; n <= names.last(); ++n)
    if (!names[n].isEmpty() && !used.contains(n))
      empty << names[n];
  if (empty.isEmpty())
    return {};
  return {QStringLiteral("%1 ohne Teilnehmer: %2. Zugeteilt wird bei den Startnummern.")
              .arg(QString::fromUtf8(units), ::names(empty))};
}

template <typename Unit>
Hint membersWithoutUnit(const Situation &now, const Names &names, Unit unitOf, const char *unit) {
  const QStringList who = namesOf(now, [&](const Starter &starter) {
    const int n = unitOf(starter.participant);
    return n != 0 && nameIn(names, n).isEmpty();
  });
  if (who.isEmpty())
    return {};
  return {QStringLiteral("%1 in einer %2 ohne Namen (%3): Sie fehlt in der Wertung.")
              .arg(counted(who.size(), "Teilnehmer ist", "Teilnehmer sind"), QString::fromUtf8(unit), ::names(who))};
}

constexpr auto teamOf = [](const TeilnehmerZeile &participant) { return int(participant.MannschaftNr); };
constexpr auto groupOf = [](const TeilnehmerZeile &participant) { return participant.GruppeNr; };

} // namespace

Hint Hints::gapBetweenClasses(const Situation &now) {
  if (!anyClass(now.store))
    return {};
  const auto gap = latestRun(thisYear(now), [&](int year) { return classesOf(now.store, year).isEmpty(); });
  if (!gap)
    return {};
  return {QStringLiteral("Jahrgang %1 fällt in keine Klasse.").arg(span(gap->first, gap->second))};
}

Hint Hints::classesOverlap(const Situation &now) {
  const auto both = latestRun(thisYear(now), [&](int year) { return classesOf(now.store, year).size() > 1; });
  if (!both)
    return {};
  const auto classes = classesOf(now.store, both->second);
  return {QStringLiteral("Jahrgang %1 gehört zu „%2“ und „%3“: Es gilt „%3“, gezählt wird in beiden.")
              .arg(span(both->first, both->second), now.store.KlasseName[classes.first()],
                   now.store.KlasseName[classes.last()])};
}

Hint Hints::participantsWithoutClass(const Situation &now) {
  if (!anyClass(now.store))
    return {QStringLiteral("Es gibt keine Klassen: „20 - Klassen Standard laden“ in den Klassen-Bildungs-Regeln.")};
  QStringList who;
  for (const Starter &starter : now.starters())
    if (const int year = yearOf(starter.athlete.Geburtsdatum); classesOf(now.store, year).isEmpty())
      who << QStringLiteral("%1 %2").arg(nameOf(starter.athlete)).arg(year);
  return {aboutStarters(who, "Teilnehmer fällt", "Teilnehmer fallen", "%1 in keine Klasse, es bleibt die alte (%2).")};
}

Hint Hints::yearPutBack(const Situation &now) {
  const qint64 row = now.number("Text5");
  if (row < 1 || row > Classes || now.hasFocus("Text1") || now.hasFocus("Text2"))
    return {};
  const auto putBack = [&](const char *field, const char *caption, int year) -> Hint {
    if (now.number(field) == year)
      return {};
    return {QStringLiteral("„%1“ ist wieder %2 und nicht %3: Die Klassen schließen lückenlos aneinander.")
                .arg(QLatin1String(caption), plainText(year), now.text(field)),
            QLatin1String(field)};
  };
  const Hint last = putBack("Text2", "bis", now.store.KlasseBis[int(row)]);
  return last.text.isEmpty() ? putBack("Text1", "von", now.store.KlasseVon[int(row)]) : last;
}

Hint Hints::classWithoutNumber(const Situation &now) {
  for (const Cell &cell : cellsOf(now))
    if (cell.number == 0 && cell.starters > 0)
      return aboutCell(QStringLiteral("„%1“ hat keine Nummer: %2 dort vor allen anderen, in einer gemeinsamen Klasse.")
                           .arg(cell.name, counted(cell.starters, "Teilnehmer startet", "Teilnehmer starten")),
                       cell);
  return {};
}

Hint Hints::sameNumberOtherName(const Situation &now) {
  QHash<qint64, QString> nameOfNumber;
  for (const Cell &cell : cellsOf(now)) {
    if (cell.number == 0)
      continue;
    if (nameOfNumber.contains(cell.number) && nameOfNumber[cell.number] != cell.name)
      return aboutCell(QStringLiteral("Nummer %1 legt „%2“ und „%3“ zusammen: beiden denselben Namen geben.")
                           .arg(QString::number(cell.number), nameOfNumber[cell.number], cell.name),
                       cell);
    nameOfNumber[cell.number] = cell.name;
  }
  return {};
}

Hint Hints::rankedTogether(const Situation &now) {
  if (now.store.Rennen.WertKlassen != 1)
    return {};
  const QStringList who = namesOf(now, [&](const Starter &starter) { return orderNumber(now, starter) == 0; });
  return {aboutStarters(who, "Teilnehmer hat", "Teilnehmer haben",
                        "%1 keine Klassennummer, alle zusammen gewertet: „Klassen-Start-Reihenfolge“ öffnen (%2).")};
}

Hint Hints::classWithoutName(const Situation &now) {
  const QStringList who = namesOf(now, [&](const Starter &starter) {
    return nameIn(now.store.KlasseGenauName, starter.participant.KlasseGenau).isEmpty();
  });
  if (now.store.Rennen.WertKlassen != 1)
    return {};
  return {aboutStarters(who, "Teilnehmer startet", "Teilnehmer starten",
                        "%1 in einer Klasse ohne Bezeichnung, „Klassen-Start-Reihenfolge“ öffnen (%2).")};
}

Hint Hints::orderNumberTooHigh(const Situation &now) {
  for (const Cell &cell : cellsOf(now))
    if (cell.number > HighestExactClass)
      return aboutCell(
          QStringLiteral("Nummer %1: Über 159 geraten Kopien für den Cup in falsche Klassen.").arg(cell.number), cell);
  return {};
}

Hint Hints::emptyClassRow(const Situation &now) {
  int last = Classes;
  while (last > 0 && now.store.KlasseName[last].isEmpty())
    --last;
  for (int k = 1; k < last; ++k)
    if (now.store.KlasseName[k].isEmpty())
      return {
          QStringLiteral("Klasse %1 ist leer: Die Bezeichnungen dahinter gehören zur jeweils nächsten Klasse.").arg(k)};
  return {};
}

Hint Hints::guestSurchargeCut(const Situation &now) {
  return fractionCut(now, "Text1");
}

Hint Hints::menSurchargeCut(const Situation &now) {
  return fractionCut(now, "Text2");
}

Hint Hints::lowestPointsWin(const Situation &now) {
  if (now.store.Rennen.WertZeit == 1)
    return {};
  return {QStringLiteral("Bei Punkten gewinnt die niedrigste Zahl, und jeder braucht eine Zeit im 1. Durchgang."),
          QStringLiteral("Check5")};
}

Hint Hints::pointsWithoutPoints(const Situation &now) {
  if (now.store.Rennen.WertZeit == 1 ||
      !nobody(now, [](const TeilnehmerZeile &participant) { return participant.Punkte != 0; }))
    return {};
  return {QStringLiteral("Gewertet wird nach Punkten, und niemand hat welche: „Zeit“ in den Auswertungskriterien?")};
}

Hint Hints::groupsWithoutAny(const Situation &now) {
  if (now.store.Rennen.WertKlassen == 1 || !nobody(now, groupOf))
    return {};
  return {
      QStringLiteral("Gewertet wird nach Gruppen, und niemand ist in einer: „Klassen“ in den Auswertungskriterien?")};
}

Hint Hints::secondTimesLeft(const Situation &now) {
  if (now.store.Rennen.ZweiDurchgaenge == 1 || !hasTwoRunTimes(now))
    return {};
  return {
      QStringLiteral("Es gibt Zeiten im 2. Durchgang: Wer keine hat, fehlt in der Wertung, auch bei einem Durchgang."),
      QStringLiteral("Check7")};
}

Hint Hints::teamsNotSaved(const Situation &now) {
  return namesNotSaved(now.store.MannschaftName, "Mannschaften", "Text1");
}

Hint Hints::groupsNotSaved(const Situation &now) {
  return namesNotSaved(now.store.GruppeName, "Gruppen", "Text4");
}

Hint Hints::teamsWithoutMembers(const Situation &now) {
  return unitsWithoutMembers(now, now.store.MannschaftName, teamOf, "Mannschaften");
}

Hint Hints::groupsWithoutMembers(const Situation &now) {
  return unitsWithoutMembers(now, now.store.GruppeName, groupOf, "Gruppen");
}

Hint Hints::membersWithoutTeam(const Situation &now) {
  return membersWithoutUnit(now, now.store.MannschaftName, teamOf, "Mannschaft");
}

Hint Hints::membersWithoutGroup(const Situation &now) {
  return membersWithoutUnit(now, now.store.GruppeName, groupOf, "Gruppe");
}
