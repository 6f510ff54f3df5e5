#include "safety/Changes.h"

#include "core/Classes.h"
#include "core/ValueFormats.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>

namespace {

constexpr double UnknownBirthDate = 2;
constexpr int NoClub = 4;

QString yes(bool is) {
  return is ? QStringLiteral("ja") : QString();
}

QString unlessZero(auto value) {
  return value == 0 ? QString() : plainText(value);
}

// As it is printed; a difference that does not show there is told in full.
QString timeText(double seconds) {
  const QString printed = seconds == 0 ? QString() : ZeitText(seconds);
  return std::fabs(seconds * 100 - std::round(seconds * 100)) < 1e-6
             ? printed
             : QStringLiteral("%1 (%2)").arg(printed, plainText(seconds));
}

QString statusText(int status) {
  const char *const texts[] = {"ok", "naS", "niZ", "dis"};
  return status >= 0 && status < 4 ? QLatin1String(texts[status]) : plainText(status);
}

QString dateText(double days) {
  return days == UnknownBirthDate ? QString() : shortDate(fromDays(days));
}

QString text(const QString &field) {
  return trimmedBlanks(shownText(field));
}

template <typename Satz>
Satz recordOr(const QByteArray &file, int n, int length, Satz (*fromBytes)(const QByteArray &)) {
  return holdsRecord(file, n, length) ? fromBytes(recordIn(file, n, length)) : Satz();
}

LaeuferSatz athleteIn(const Registers &registers, int n) {
  return recordOr(registers.athletes, n, LaeuferLaenge, laeuferFromBytes);
}

// Collecting.

void addNames(RaceTables &tables, const char *what, const Tabelle<QString, 0, 100> &names, QStringList &list) {
  for (int row = 0; row <= names.last(); ++row) {
    list << names[row];
    tables.settings.append({QString::fromUtf8(what) + spacedText(row), names[row]});
  }
}

QString classText(const Store &store, int k) {
  return store.KlasseName[k].isEmpty()
             ? QString()
             : QStringLiteral("%1, %2 bis %3").arg(store.KlasseName[k]).arg(store.KlasseVon[k]).arg(store.KlasseBis[k]);
}

void addClass(RaceTables &tables, const Store &store, int k) {
  const QString number = spacedText(k);
  tables.settings.append({QStringLiteral("Klasse") + number, classText(store, k)});
  forEachExactClass([&](int a, int b, int f) {
    const int exact = exactClass(k, a, b, f);
    const QString which = number + QLatin1Char('.') + plainText(exact % 8 + 1);
    tables.settings.append({QStringLiteral("Bezeichnung der Klasse") + which, store.KlasseGenauName[exact]});
    tables.settings.append(
        {QStringLiteral("Reihe der Klasse") + which, unlessZero(int(store.KlasseReihenfolge(k, a, b, f)))});
  });
}

// Comparing.

QList<NamedValue> valuesOf(const TeilnehmerZeile &row, const RaceTables &tables, const Registers &registers) {
  return {{QStringLiteral("Teilnehmer"), yes(row.LaeuferNr != 0)},
          {QStringLiteral("Startnummer"), unlessZero(row.StartNr)},
          {QStringLiteral("Verein"), registers.clubOf(row.LaeuferNr, row.VereinNr)},
          {QStringLiteral("Gruppe"), tables.groups.value(row.GruppeNr)},
          {QStringLiteral("Mannschaft"), tables.teams.value(row.MannschaftNr)},
          {QStringLiteral("bezahlt"), yes(row.Bezahlt != 0)},
          {QStringLiteral("Gast"), yes(row.Gast != 0)},
          {QStringLiteral("Boarder"), yes(row.Boarder != 0)},
          {QStringLiteral("Punkte"), unlessZero(row.Punkte)},
          {QStringLiteral("Zeit 1"), timeText(row.Zeit1)},
          {QStringLiteral("Status 1"), statusText(row.Status1)},
          {QStringLiteral("Zeit 2"), timeText(row.Zeit2)},
          {QStringLiteral("Status 2"), statusText(row.Status2)}};
}

QList<NamedValue> valuesOf(const LaeuferSatz &athlete, const Registers &registers) {
  return {
      {QStringLiteral("Name"), text(athlete.Name)},
      {QStringLiteral("Geburtsdatum"), dateText(athlete.Geburtsdatum)},
      {QStringLiteral("Geschlecht"), QStringList{QStringLiteral("w"), QStringLiteral("m")}.value(athlete.Geschlecht)},
      {QStringLiteral("Verein 1"), registers.club(athlete.Verein1)},
      {QStringLiteral("Verein 2"), registers.club(athlete.Verein2)},
      {QStringLiteral("Verein 3"), registers.club(athlete.Verein3)},
      {QStringLiteral("ÖSV-Nummer"), text(athlete.OesvNr)},
      {QStringLiteral("Punkte"), unlessZero(athlete.LaeuferPunkte)}};
}

QList<NamedValue> valuesOf(const VereinSatz &club, const Registers &) {
  return {{QStringLiteral("Vereinsname"), text(club.VereinName)},
          {QStringLiteral("Kurzname"), text(club.VereinKurz)},
          {QStringLiteral("ÖSV-Nummer des Vereins"), text(club.VereinOesvNr)},
          {QStringLiteral("Ort"), text(club.VereinOrt)},
          {QStringLiteral("Ansprechpartner"), text(club.Ansprechpartner)},
          {QStringLiteral("Adresse"), text(club.Adresse)},
          {QStringLiteral("Telefon"), text(club.Telefon)},
          {QStringLiteral("E-Mail"), text(club.EMail)},
          {QStringLiteral("Handy"), text(club.Handy)},
          {QStringLiteral("Homepage"), text(club.Homepage)}};
}

QList<NamedValue> criteriaOf(const RennenSatz &race) {
  return {{QStringLiteral("Zuschlag Gäste"), unlessZero(race.ZuschlagGast)},
          {QStringLiteral("Zuschlag Mannschaft"), unlessZero(race.ZuschlagMann)},
          {QStringLiteral("Wertung nach Klassen"), yes(race.WertKlassen != 0)},
          {QStringLiteral("Wertung m/w"), yes(race.WertGeschlecht != 0)},
          {QStringLiteral("Wertung Gäste"), yes(race.WertGaeste != 0)},
          {QStringLiteral("Wertung nach Zeit"), yes(race.WertZeit != 0)},
          {QStringLiteral("zwei Durchgänge"), yes(race.ZweiDurchgaenge != 0)},
          {QStringLiteral("Wertung Boarder"), yes(race.WertBoarder != 0)},
          {QStringLiteral("Urkunde"), plainText(race.UrkundeBild)},
          {QStringLiteral("Bestzeit"), plainText(race.BestzeitText)},
          {QStringLiteral("Bestzeit ab Klasse"), plainText(race.BestzeitAbKlasse)}};
}

QList<NamedValue> valuesOf(const RennenSatz &race, const Registers &) {
  return QList<NamedValue>{{QStringLiteral("Veranstaltung"), text(race.RennenName)},
                           {QStringLiteral("Kurzname"), text(race.RennenKurz)},
                           {QStringLiteral("Rennnummer"), text(race.RennenNrText)},
                           {QStringLiteral("Ort"), text(race.RennenOrt)},
                           {QStringLiteral("Datum"), dateText(race.RennenDatum)},
                           {QStringLiteral("Veranstalter"), text(race.Veranstalter)},
                           {QStringLiteral("durchführender Verein"), text(race.DurchfVerein)},
                           {QStringLiteral("Startzeit"), text(race.Startzeit)},
                           {QStringLiteral("Rennleiter"), text(race.Rennleiter)},
                           {QStringLiteral("Kurssetzung"), text(race.Kurssetzung)},
                           {QStringLiteral("Tore"), text(race.Tore)},
                           {QStringLiteral("Startrichter"), text(race.Startrichter)},
                           {QStringLiteral("Zielrichter"), text(race.Zielrichter)},
                           {QStringLiteral("Zeitnehmung"), text(race.Zeitnehmung)},
                           {QStringLiteral("Chefkampfrichter"), text(race.Chefkampfrichter)},
                           {QStringLiteral("Sponsor 1"), text(race.Sponsor1)},
                           {QStringLiteral("Sponsor 2"), text(race.Sponsor2)},
                           {QStringLiteral("Sponsor 3"), text(race.Sponsor3)},
                           {QStringLiteral("Sponsor 4"), text(race.Sponsor4)},
                           {QStringLiteral("Sponsor 5"), text(race.Sponsor5)},
                           {QStringLiteral("Sponsor 6"), text(race.Sponsor6)}} +
         criteriaOf(race);
}

void compare(QList<Change> &changes, const Change &who, const QList<NamedValue> &before,
             const QList<NamedValue> &after) {
  for (qsizetype i = 0; i < after.size(); ++i)
    if (before[i].value != after[i].value)
      changes.append({who.race, who.startNr, who.name, after[i].what, before[i].value, after[i].value});
}

// An athlete who stands in two rows is two participants.
using Participants = std::map<std::pair<int, int>, TeilnehmerZeile>;

Participants byAthlete(const RaceTables &tables) {
  Participants all;
  std::map<int, int> seen;
  for (const auto &row : tables.participants)
    all[{row.LaeuferNr, seen[row.LaeuferNr]++}] = row;
  return all;
}

auto typedColumns(const TeilnehmerZeile &row) {
  return std::tie(row.LaeuferNr, row.StartNr, row.VereinNr, row.GruppeNr, row.MannschaftNr, row.Bezahlt, row.Gast,
                  row.Boarder, row.Punkte, row.Zeit1, row.Status1, row.Zeit2, row.Status2);
}

bool isAsBefore(const RaceTables &before, const RaceTables &after) {
  return std::equal(
      before.participants.begin(), before.participants.end(), after.participants.begin(), after.participants.end(),
      [](const TeilnehmerZeile &a, const TeilnehmerZeile &b) { return typedColumns(a) == typedColumns(b); });
}

QByteArrayView bytesOf(QByteArrayView file, int n, qsizetype length) {
  const QByteArrayView behind = file.sliced(std::min((n - 1) * length, file.size()));
  return behind.first(std::min(length, behind.size()));
}

template <typename Satz>
void compareRecords(QList<Change> &changes, QByteArray Registers::*file, int length,
                    Satz (*fromBytes)(const QByteArray &), const Registers &before, const Registers &after,
                    auto whose) {
  const auto &old = before.*file, &now = after.*file;
  for (int n = 1; holdsRecord(now, n, length); ++n)
    if (bytesOf(old, n, length) != bytesOf(now, n, length)) {
      const Satz from = recordOr(old, n, length, fromBytes), to = recordOr(now, n, length, fromBytes);
      compare(changes, whose(n, from, to), valuesOf(from, before), valuesOf(to, after));
    }
}

Change named(const QString &before, const QString &after, int race = 0) {
  return {race, 0, text(after).isEmpty() ? text(before) : text(after), {}, {}, {}};
}

} // namespace

QString Registers::athlete(int n) const {
  return text(athleteIn(*this, n).Name);
}

QString Registers::club(int n) const {
  return text(recordOr(clubs, n, VereinLaenge, vereinFromBytes).VereinKurz);
}

QString Registers::clubOf(int athlete, int choice) const {
  const LaeuferSatz record = athleteIn(*this, athlete);
  switch (choice) {
  case 1:
    return club(record.Verein1);
  case 2:
    return club(record.Verein2);
  case 3:
    return club(record.Verein3);
  case NoClub:
    return QStringLiteral("ohne");
  default:
    return {};
  }
}

RaceTables tablesOf(const Store &store) {
  RaceTables tables;
  tables.race = store.AktRennen;
  for (const int row : store.Teilnehmer.rows())
    if (store.Teilnehmer[row].LaeuferNr != 0)
      tables.participants.append(store.Teilnehmer[row]);
  addNames(tables, "Mannschaft", store.MannschaftName, tables.teams);
  addNames(tables, "Gruppe", store.GruppeName, tables.groups);
  for (const int k : ClassRows)
    addClass(tables, store, k);
  return tables;
}

QList<Change> changesOf(const RaceTables &before, const RaceTables &after, const Registers &registers) {
  QList<Change> changes;
  compare(changes, {after.race, 0, {}, {}, {}, {}}, before.settings, after.settings);
  if (isAsBefore(before, after))
    return changes;
  Participants left = byAthlete(before);
  const auto tell = [&](const TeilnehmerZeile &from, const TeilnehmerZeile &to, const TeilnehmerZeile &who) {
    compare(changes, {after.race, who.StartNr, registers.athlete(who.LaeuferNr), {}, {}, {}},
            valuesOf(from, before, registers), valuesOf(to, after, registers));
  };
  for (const auto &[athlete, row] : byAthlete(after)) {
    const auto node = left.extract(athlete);
    tell(node ? node.mapped() : TeilnehmerZeile(), row, row);
  }
  for (const auto &[athlete, row] : left)
    tell(row, {}, row);
  return changes;
}

QList<Change> changesOf(const Registers &before, const Registers &after) {
  QList<Change> changes;
  compareRecords(
      changes, &Registers::clubs, VereinLaenge, vereinFromBytes, before, after,
      [](int, const VereinSatz &from, const VereinSatz &to) { return named(from.VereinKurz, to.VereinKurz); });
  compareRecords(changes, &Registers::athletes, LaeuferLaenge, laeuferFromBytes, before, after,
                 [](int, const LaeuferSatz &from, const LaeuferSatz &to) { return named(from.Name, to.Name); });
  compareRecords(
      changes, &Registers::races, RennenLaenge, rennenFromBytes, before, after,
      [](int n, const RennenSatz &from, const RennenSatz &to) { return named(from.RennenName, to.RennenName, n); });
  return changes;
}
