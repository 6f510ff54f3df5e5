#include "hints/RaceGlance.h"

#include "core/Classes.h"
#include "core/RaceFiles.h"
#include "core/RecordFiles.h"
#include "evaluation/Cup.h"
#include "platform/Faults.h"
#include "platform/Numbers.h"

#include <QFileInfo>

#include <memory>

namespace {

QList<QDateTime> stampsOf(const Store &store, int number) {
  QList<QDateTime> stamps{QFileInfo(store.RennenDatei.path()).lastModified()};
  for (const char letter : {'R', 'K'})
    stamps << QFileInfo(raceFileName(store, letter, number)).lastModified();
  return stamps;
}

void takeParticipants(const Store &race, RaceGlance &glance) {
  for (const int row : race.Teilnehmer.rows()) {
    const TeilnehmerZeile &participant = race.Teilnehmer[row];
    if (participant.LaeuferNr == 0)
      continue;
    glance.athletes << participant.LaeuferNr;
    ++glance.participants;
    glance.times += participant.Zeit1 != 0;
    glance.secondTimes += participant.Zeit2 > 0;
  }
}

QString classesOf(const Store &race) {
  QString classes;
  for (const int k : ClassRows)
    classes += QStringLiteral("%1 %2 %3\n").arg(race.KlasseName[k]).arg(race.KlasseVon[k]).arg(race.KlasseBis[k]);
  return classes;
}

QString criteriaOf(const RennenSatz &race) {
  QString criteria;
  for (const int criterion : {race.WertKlassen, race.WertGeschlecht, race.WertGaeste, race.WertZeit, race.WertBoarder})
    criteria += QString::number(criterion) + QLatin1Char(' ');
  return criteria;
}

// A store of its own takes the race, so that nothing of the open one is touched.
RaceGlance read(const Store &store, int number) {
  RaceGlance glance;
  const RennenSatz record = trimmedRace(store.RennenDatei.read(number));
  glance.name = shownText(record.RennenName);
  glance.criteria = criteriaOf(record);
  const auto race = std::make_unique<Store>(store.umgebung);
  race->DatenOrdner = store.DatenOrdner;
  race->AktRennen = number;
  RennDatenLaden(*race);
  takeParticipants(*race, glance);
  glance.classes = classesOf(*race);
  return glance;
}

} // namespace

RaceGlance RaceGlances::of(const Store &store, int number) {
  if (number < 1 || number > store.RennenAnzahl || !store.RennenDatei.isOpen() || !store.RennenDatei.holds(number))
    return {};
  Known &known = m_known[number];
  const auto stamps = stampsOf(store, number);
  if (known.stamps == stamps)
    return known.glance;
  known = {stamps, {}};
  try {
    known.glance = read(store, number);
  } catch (const Fault &) { // told when the race is opened
  }
  return known.glance;
}

QList<int> racesOfCup(const Store &store) {
  const auto cup = std::make_unique<Store>(store.umgebung);
  cup->DatenOrdner = store.DatenOrdner;
  try {
    return loadCup(*cup).races;
  } catch (const Fault &) {
    return {};
  }
}
