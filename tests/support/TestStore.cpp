#include "support/TestStore.h"

#include "core/RaceFiles.h"
#include "platform/Dates.h"
#include "platform/Files.h"

#include <QDir>
#include <QFile>

void TestStore::takeOver(const QString &from) {
  const QDir source(from);
  for (const QString &name : source.entryList(QDir::Files))
    writeFile(name, readFile(source.filePath(name)));
  startStore(store);
  openRecordFiles(store);
}

int TestStore::addClub(const QString &name) {
  VereinSatz club;
  club.VereinName = club.VereinKurz = name;
  VereinSchreiben(store, store.VereinAnzahl + 1, club);
  return store.VereinAnzahl;
}

int TestStore::addAthlete(const QString &name, int year, int sex, int club) {
  LaeuferSatz athlete;
  athlete.Name = name;
  athlete.Geburtsdatum = toDays(QDate(year, 7, 1));
  athlete.Geschlecht = qint16(sex);
  athlete.Verein1 = qint16(club);
  LaeuferSchreiben(store, store.LaeuferAnzahl + 1, athlete);
  return store.LaeuferAnzahl;
}

int TestStore::addRace(const QString &name) {
  store.Rennen = RennenSatz();
  store.Rennen.RennenName = name;
  store.Rennen.WertKlassen = store.Rennen.WertZeit = 1;
  store.RennenIdx = store.RennenAnzahl + 1;
  RennenSchreiben(store);
  store.AktRennen = store.RennenIdx;
  RennDatenLaden(store);
  return store.RennenIdx;
}

int TestStore::enter(int athlete, int startNr) {
  int row = 1;
  while (store.Teilnehmer[row].LaeuferNr != 0)
    ++row;
  store.Teilnehmer[row].LaeuferNr = athlete;
  store.Teilnehmer[row].StartNr = startNr;
  store.Teilnehmer[row].VereinNr = 1;
  return row;
}

QByteArray TestStore::file(const QString &name) const {
  return readFile(store.DatenOrdner + name);
}

bool TestStore::hasFile(const QString &name) const {
  return QFile::exists(store.DatenOrdner + name);
}

void TestStore::writeFile(const QString &name, const QByteArray &bytes) const {
  ::writeFile(store.DatenOrdner + name, bytes);
}
