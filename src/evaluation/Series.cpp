#include "evaluation/Series.h"

#include "core/Classes.h"
#include "core/RaceFiles.h"
#include "platform/Numbers.h"
#include "timing/Ranking.h"

namespace {

constexpr int NumberLength = 4; // with the leading blank; a fourth digit is cut off

} // namespace

Kriterien criteriaInForce(const Store &store) {
  const auto &race = store.Rennen;
  return {race.WertKlassen, race.WertGeschlecht, race.WertGaeste, race.WertBoarder, race.WertZeit};
}

void loadRaceTables(Store &store, int race) {
  store.AktRennen = race;
  RennDatenLaden(store);
}

void dropSecondRun(Store &store) {
  for (const int row : store.Teilnehmer.rows()) {
    store.Teilnehmer[row].Zeit2 = 0;
    store.Teilnehmer[row].Status2 = Status::Ok;
  }
  store.TabellenRennen = -1; // no longer what the files of the race keep
}

void promoteSecondRun(Store &store) {
  for (const int row : store.Teilnehmer.rows()) {
    auto &participant = store.Teilnehmer[row];
    participant.Zeit1 = participant.Zeit2;
    participant.Status1 = participant.Status2;
  }
  dropSecondRun(store);
}

void rankUnder(Store &store, const Kriterien &kriterien) {
  auto &race = store.Rennen;
  race.WertKlassen = kriterien.WertKlassen;
  race.WertGeschlecht = kriterien.WertGeschlecht;
  race.WertGaeste = kriterien.WertGaeste;
  race.WertBoarder = kriterien.WertBoarder;
  race.WertZeit = kriterien.WertZeit;
  KlassenZuordnen(store);
  ErgebnisRechnen(store);
}

void keepClassNames(Store &store) {
  for (const int klasse : ExactClasses)
    store.cup.CupKlasseName[klasse] = store.KlasseGenauName[klasse];
}

QHash<int, int> rowsOfAthletes(const Store &store) {
  QHash<int, int> rows;
  for (const int row : store.Teilnehmer.rows())
    if (const int athlete = store.Teilnehmer[row].LaeuferNr; athlete != 0)
      rows[athlete] = row;
  return rows;
}

int scoredRaceOfLine(const QString &line) {
  return int(wholeNumber(QStringView(line).left(NumberLength)));
}

QList<int> markedRaces(const QStringList &lines, const QList<int> &marked) {
  QList<int> races;
  for (const int line : marked)
    races.append(scoredRaceOfLine(lines[line]));
  return races;
}
