#include "core/RaceFiles.h"

#include "core/Classes.h"
#include "core/ParticipantFile.h"
#include "core/RecordFiles.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/TextFile.h"

#include <algorithm>
#include <concepts>

namespace {

constexpr double UnknownBirthDate = 2;
using Names = Tabelle<QString, 0, 100>;

// Everything but `KlasseGenau` and the results of the ranking.
void clearParticipants(Store &store) {
  for (const int row : store.Teilnehmer.rows()) {
    const TeilnehmerZeile before = store.Teilnehmer[row];
    auto &participant = store.Teilnehmer[row];
    participant = TeilnehmerZeile();
    participant.KlasseGenau = before.KlasseGenau;
    participant.WertZeit1 = before.WertZeit1;
    participant.WertZeit2 = before.WertZeit2;
    participant.WertSumme = before.WertSumme;
    participant.Rang = before.Rang;
    participant.KlasseKopf = before.KlasseKopf;
  }
  for (const int exact : ExactClasses)
    store.KlasseGenauName[exact].clear();
}

void readColumn(TextReader &file, int &column) {
  file.numberInto(column);
}
void readColumn(TextReader &file, qint16 &column) {
  file.numberInto(column);
}
void readColumn(TextReader &file, float &column) {
  file.leadingInto(column);
}
void readColumn(TextReader &file, double &column) {
  file.regionalLineInto(column);
}

void readParticipant(TextReader &file, TeilnehmerZeile &row) {
  forEachColumn([&](auto column) { readColumn(file, row.*column); });
  if (row.Status1 > Status::Dis)
    row.Status1 = Status::Ok;
  row.MannschaftNr = std::max<qint16>(row.MannschaftNr, 0);
  for (int i = 0; i < ReserveLines && !file.atEnd(); ++i)
    file.field();
}

void readParticipants(Store &store) {
  auto file = TextReader::ifThere(raceFileName(store, 'R', store.AktRennen));
  for (int row = 1; file && row <= store.Teilnehmer.last() && !file->atEnd(); ++row)
    readParticipant(*file, store.Teilnehmer[row]);
}

void readNames(const QString &path, Names &names) {
  names.fill({});
  auto file = TextReader::ifThere(path);
  for (int row = 1; file && row <= names.last(); ++row)
    file->lineInto(names[row]);
}

void readClasses(Store &store, TextReader &file) {
  for (const int k : ClassRows) {
    file.lineInto(store.KlasseName[k]);
    file.numberInto(store.KlasseVon[k]);
    file.numberInto(store.KlasseBis[k]);
    forEachExactClass([&](int a, int b, int f) { file.numberInto(store.KlasseReihenfolge(k, a, b, f)); });
  }
  for (const int exact : ExactClasses)
    file.lineInto(store.KlasseGenauName[exact]);
}

void loadClasses(Store &store) {
  store.KlasseName.fill({});
  store.KlasseVon.fill(0);
  store.KlasseBis.fill(0);
  if (auto file = TextReader::ifThere(raceFileName(store, 'K', store.AktRennen)))
    readClasses(store, *file);
  else
    takeStandardClasses(store);
}

QStringList missingAthleteData(const Store &store) {
  QStringList lines;
  for (const int row : store.Teilnehmer.rows()) {
    const int record = store.Teilnehmer[row].LaeuferNr;
    if (record == 0)
      continue;
    const LaeuferSatz athlete = LaeuferLesen(store, record);
    const QString who = plainText(record) + QStringLiteral("   ") + athlete.Name;
    if (athlete.Geschlecht == Sex::NotSet)
      lines << who + QStringLiteral(" m/w ?");
    if (athlete.Geburtsdatum == UnknownBirthDate)
      lines << who + QStringLiteral(" Geburtsdatum ?");
  }
  return lines;
}

void writeColumn(TextWriter &file, int value) {
  file.number(value);
}
void writeColumn(TextWriter &file, std::floating_point auto value) {
  file.decimal(value);
}

void writeParticipant(TextWriter &file, const TeilnehmerZeile &row) {
  forEachColumn([&](auto column) { writeColumn(file, row.*column); });
  for (int i = 0; i < ReserveLines; ++i)
    file.text({});
}

QByteArray nameFile(const Names &names) {
  TextWriter file;
  for (const int row : names.rows())
    file.text(names[row]);
  return file.bytes();
}

// Quirk: names behind the second alone. They are not written.
bool isWorthWriting(const Names &names) {
  return !names[1].isEmpty() || !names[2].isEmpty();
}

} // namespace

QString raceFileName(const Store &store, char letter, int race) {
  const QString extension = letter == 'R' || letter == 'Z' ? QStringLiteral(".dat") : QStringLiteral(".lst");
  return store.DatenOrdner + QLatin1Char(letter) + spacedText(race) + extension;
}

void RennDatenLaden(Store &store) {
  store.TabellenRennen = -1;
  clearParticipants(store);
  readParticipants(store);
  readNames(raceFileName(store, 'M', store.AktRennen), store.MannschaftName);
  readNames(raceFileName(store, 'G', store.AktRennen), store.GruppeName);
  loadClasses(store);
  store.TabellenRennen = store.AktRennen;
}

void RennDatenSpeichern(Store &store) {
  store.TabellenRennen = store.AktRennen;
  store.umgebung.remind(missingAthleteData(store));
  store.beforeSaving();
  writeRaceFiles(store, store.AktRennen, raceFiles(store));
  store.afterSaving();
}

void writeRaceFiles(const Store &store, int race, const QList<RaceFile> &files) {
  QStringList paths;
  {
    const std::scoped_lock lock(store.umgebung.writing);
    for (const auto &file : files) {
      paths << raceFileName(store, file.letter, race);
      writeFile(paths.last(), file.bytes);
    }
  }
  store.umgebung.syncSoon(paths);
}

QList<RaceFile> raceFiles(const Store &store) {
  QList<RaceFile> files{{'R', participantFile(store)}};
  if (isWorthWriting(store.MannschaftName))
    files.append({'M', nameFile(store.MannschaftName)});
  if (isWorthWriting(store.GruppeName))
    files.append({'G', nameFile(store.GruppeName)});
  files.append({'K', classFile(store, store.KlasseReihenfolge)});
  return files;
}

QList<RaceFile> wholeRace(const Store &store) {
  return {{'R', participantFile(store)},
          {'M', nameFile(store.MannschaftName)},
          {'G', nameFile(store.GruppeName)},
          {'K', classFile(store, store.KlasseReihenfolge)}};
}

QByteArray participantFile(const Store &store) {
  TextWriter file;
  for (const int row : store.Teilnehmer.rows())
    if (store.Teilnehmer[row].LaeuferNr != 0)
      writeParticipant(file, store.Teilnehmer[row]);
  return file.bytes();
}

QByteArray classFile(const Store &store, const KlassenReihenfolge &reihenfolge) {
  TextWriter file;
  for (const int k : ClassRows) {
    file.text(store.KlasseName[k]);
    file.number(store.KlasseVon[k]);
    file.number(store.KlasseBis[k]);
    forEachExactClass([&](int a, int b, int f) { file.number(reihenfolge(k, a, b, f)); });
  }
  for (const int exact : ExactClasses)
    file.text(store.KlasseGenauName[exact]);
  return file.bytes();
}
