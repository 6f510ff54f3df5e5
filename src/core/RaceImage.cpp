#include "core/RaceImage.h"

#include "core/RaceFiles.h"
#include "core/RecordFiles.h"
#include "core/Start.h"
#include "platform/Faults.h"
#include "platform/Files.h"
#include "platform/Numbers.h"

#include <QDir>

#include <algorithm>

namespace {

bool isSilent(const QByteArray &bytes) {
  return std::all_of(bytes.begin(), bytes.end(), [](char c) { return c == '\r' || c == '\n'; });
}

bool isNeeded(const RaceFile &file, const QString &path) {
  const bool names = file.letter == 'M' || file.letter == 'G';
  return !names || !isSilent(file.bytes) || QFile::exists(path);
}

QString recordFile(const Store &store) {
  return store.DatenOrdner + QStringLiteral("Rennen.rec");
}

/// The record of the race on the disk; empty if there is none. Opens the file by itself, so it serves before the menu.
QByteArray recordOnDisk(const Store &store, int race) {
  RecordFile file(RennenLaenge);
  if (race < 1 || !QFile::exists(recordFile(store)))
    return {};
  file.open(recordFile(store));
  return file.holds(race) ? file.read(race) : QByteArray();
}

QByteArray fileOnDisk(const Store &store, const QString &name) {
  const QString path = store.DatenOrdner + name;
  return QFile::exists(path) ? readFile(path) : QByteArray();
}

bool isDeleted(const RaceImage &image, const Store &store) {
  const QByteArray record = recordOnDisk(store, image.race);
  return !record.isEmpty() && trimmedRace(record).RennenName.isEmpty() &&
         !QFile::exists(raceFileName(store, 'R', image.race)) && !QFile::exists(raceFileName(store, 'K', image.race));
}

bool isRecord(const RaceImage &image, const SavedFile &file) {
  return file.name == recordCopyName(image.race);
}

// A record that differs only in what reading takes off is no news; where none was ever written there is no place for
// it.
bool recordIsNews(const RaceImage &image, const SavedFile &file, const Store &store) {
  const QByteArray record = recordOnDisk(store, image.race);
  return !record.isEmpty() && record != file.bytes && toBytes(trimmedRace(record)) != toBytes(trimmedRace(file.bytes));
}

bool fileIsNews(const RaceImage &image, const SavedFile &file, const Store &store) {
  return isRecord(image, file) ? recordIsNews(image, file, store) : fileOnDisk(store, file.name) != file.bytes;
}

// Both are loaded into one scratch store, the copy first: what a load leaves alone then is the same on both sides.
bool tablesDiffer(int race, const QString &folder, const Store &store) {
  Store scratch(store.umgebung);
  scratch.DatenOrdner = store.DatenOrdner;
  storeStarten(scratch);
  scratch.AktRennen = race;
  scratch.DatenOrdner = folder + QLatin1Char('/');
  RennDatenLaden(scratch);
  const auto copied = wholeRace(scratch);
  scratch.DatenOrdner = store.DatenOrdner;
  RennDatenLaden(scratch);
  return wholeRace(scratch) != copied;
}

void keepBefore(const RaceImage &image, const SavedFile &file, const QString &folder, const Store &store) {
  const QString before = folder + QLatin1Char('/') + file.name + QStringLiteral(" vorher");
  const QByteArray bytes = isRecord(image, file) ? recordOnDisk(store, image.race) : fileOnDisk(store, file.name);
  if (!bytes.isEmpty() && !QFile::exists(before))
    replaceFile(before, bytes);
}

void putBack(const RaceImage &image, const SavedFile &file, const Store &store) {
  if (!isRecord(image, file))
    return writeFile(store.DatenOrdner + file.name, file.bytes);
  RecordFile records(RennenLaenge);
  records.open(recordFile(store));
  records.write(image.race, file.bytes);
}

} // namespace

QString recordCopyName(int race) {
  return QStringLiteral("Rennen") + spacedText(race) + QStringLiteral(".rec");
}

std::optional<RaceImage> raceImage(const Store &store) {
  if (store.TabellenRennen != store.AktRennen)
    return {};
  RaceImage image{store.AktRennen, {}};
  for (const auto &file : wholeRace(store)) {
    const QString path = raceFileName(store, file.letter, image.race);
    if (isNeeded(file, path))
      image.files.append({path.mid(store.DatenOrdner.size()), file.bytes});
  }
  if (image.race >= 1 && store.RennenIdx == image.race)
    image.files.append({recordCopyName(image.race), toBytes(store.Rennen)});
  return image;
}

void writeImage(const RaceImage &image, const QString &folder) {
  if (!QDir().mkpath(folder))
    throw FileFault(folder, QStringLiteral("angelegt"));
  for (const auto &file : image.files)
    replaceFile(folder + QLatin1Char('/') + file.name, file.bytes);
}

bool holdsNews(const RaceImage &image, const QString &folder, const Store &store) {
  try {
    if (isDeleted(image, store))
      return false;
    bool tables = false;
    for (const auto &file : image.files)
      if (fileIsNews(image, file, store)) {
        if (isRecord(image, file))
          return true;
        tables = true;
      }
    return tables && tablesDiffer(image.race, folder, store);
  } catch (const Fault &) {
    return true;
  }
}

void takeOver(const RaceImage &image, const QString &folder, const Store &store) {
  QList<SavedFile> news;
  for (const auto &file : image.files)
    if (fileIsNews(image, file, store))
      news.append(file);
  for (const auto &file : news)
    keepBefore(image, file, folder, store);
  for (const auto &file : news)
    putBack(image, file, store);
}
