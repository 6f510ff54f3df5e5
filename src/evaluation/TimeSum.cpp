#include "evaluation/TimeSum.h"

#include "core/RaceFiles.h"
#include "core/RaceList.h"
#include "core/RecordFiles.h"
#include "core/SingleTimes.h"
#include "evaluation/Series.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"
#include "safety/RaceImage.h"

#include <QSet>

#include <algorithm>

namespace {

// Quirk: persons left over. The table is not emptied first: entries behind the last row keep what an earlier cup or
// time sum left.
void takeBaseRace(Store &store, int race) {
  loadRaceTables(store, race);
  readOpenRace(store);
  keepClassNames(store);
  for (const int row : store.Teilnehmer.rows()) {
    const auto &participant = store.Teilnehmer[row];
    if (participant.LaeuferNr == 0)
      continue;
    store.cup.CupLaeufer[row] = participant.LaeuferNr;
    store.cup.CupKlasse[row] = participant.KlasseGenau;
  }
}

void addTime(Store &store, int entry, const TeilnehmerZeile &participant) {
  store.cup.CupZeit(entry, 0) += participant.WertZeit1;
  store.cup.CupZeit(entry, store.cup.CupRunden) = participant.WertZeit1;
  if (participant.Status1 > Status::Ok || participant.Zeit1 == 0)
    store.cup.CupStatus(entry, 0) = Status::Dis;
}

void addTimes(Store &store) {
  const QHash<int, int> rows = rowsOfAthletes(store);
  for (int entry = 1; entry <= store.cup.CupLaeufer.last() && store.cup.CupLaeufer[entry] != 0; ++entry) {
    const auto row = rows.constFind(store.cup.CupLaeufer[entry]);
    if (row == rows.constEnd())
      store.cup.CupStatus(entry, 0) = Status::Dis;
    else
      addTime(store, entry, store.Teilnehmer[*row]);
  }
}

// Quirk: surcharges one round late. The race record is read behind the ranking, so each round is ranked with those of
// the round before it, and the first one with those of the base race.
void addRound(Store &store, int race, const Kriterien &kriterien) {
  loadRaceTables(store, race);
  dropSecondRun(store);
  rankUnder(store, kriterien);
  ++store.cup.CupRunden;
  addTimes(store);
  readOpenRace(store);
  store.cup.ZeitsummeRennenKurz[store.cup.CupRunden] = store.Rennen.RennenKurz;
}

// The tables hold the base race, which was loaded last.
void putSums(Store &store) {
  dropSecondRun(store);
  for (const int row : store.Teilnehmer.rows()) {
    auto &participant = store.Teilnehmer[row];
    participant.Status1 = store.cup.CupStatus(row, 0);
    participant.Zeit1 = store.cup.CupZeit(row, 0);
    participant.ZeitReserve = 0;
  }
}

// The surcharges are in the sums already.
void writeRace(Store &store, int number) {
  auto &race = store.Rennen;
  race.RennenName = race.RennenKurz = QStringLiteral("Kombilauf");
  race.RennenNrText = plainText(number);
  race.RennenOrt.clear();
  race.RennenDatum = toDays(store.umgebung.today());
  race.Veranstalter.clear();
  race.ZuschlagGast = race.ZuschlagMann = 0;
  race.ZweiDurchgaenge = 0;
  store.RennenIdx = store.AktRennen = number;
  auto files = raceFiles(store);
  files.append({'Z', singleTimesBytes(store.cup)});
  store.beforeReplacing(replacingImage(store, number, files, race));
  RennenSchreiben(store);
  RennDatenSpeichern(store);
  saveSingleTimes(store);
  store.afterReplacing();
}

} // namespace

int timeSumNumber(const QStringList &races) {
  QSet<int> taken;
  int highest = 0;
  for (const QString &line : races) {
    taken.insert(raceOfLine(line));
    highest = std::max(highest, scoredRaceOfLine(line));
  }
  int number = highest + 1;
  while (taken.contains(number))
    ++number;
  return number;
}

void generateTimeSum(Store &store, const QList<int> &races, int number) {
  store.cup.CupZeit.fill(0);
  store.cup.CupStatus.fill(0);
  store.cup.ZeitsummeRennenKurz.fill({});
  store.cup.CupRunden = 0;
  takeBaseRace(store, races.first());
  const Kriterien kriterien = criteriaInForce(store);
  for (qsizetype line = races.size(); line-- > 0;)
    addRound(store, races[line], kriterien);
  putSums(store);
  writeRace(store, number);
}
