#include "safety/RaceImage.h"

#include "core/RecordFiles.h"
#include "core/Start.h"
#include "core/StateFiles.h"
#include "platform/Numbers.h"

#include <algorithm>

namespace {

bool isSilent(const QByteArray &bytes) {
  return std::all_of(bytes.begin(), bytes.end(), [](char c) { return c == '\r' || c == '\n'; });
}

bool isNeeded(const RaceFile &file, const QString &path) {
  const bool names = file.letter == 'M' || file.letter == 'G';
  return !names || !isSilent(file.bytes) || fileExists(path);
}

QString stateName() {
  return QStringLiteral("Vext.dat");
}

QString nameInFolder(const Store &store, char letter, int race) {
  return raceFileName(store, letter, race).mid(store.DatenOrdner.size());
}

void put(QList<SavedFile> &files, const SavedFile &file) {
  for (auto &other : files)
    if (other.name == file.name) {
      other = file;
      return;
    }
  files.append(file);
}

bool isRecord(const RaceImage &image, const SavedFile &file) {
  return file.name == recordCopyName(image.race);
}

bool isTable(const RaceImage &image, const SavedFile &file, const Store &store) {
  const QString letters = QStringLiteral("RMGK");
  return std::any_of(letters.begin(), letters.end(), [&](QChar letter) {
    return file.name == nameInFolder(store, char(letter.unicode()), image.race);
  });
}

QString recordFile(const Store &store, const char *name) {
  return store.DatenOrdner + QLatin1String(name);
}

QByteArray allRecords(const Store &store, const char *name) {
  return readIfThere(recordFile(store, name), LargestRecordFile).value_or(QByteArray());
}

/// The record of the race on the disk; nothing if there is none.
std::optional<QByteArray> recordOnDisk(const Store &store, int race) {
  const QByteArray all = allRecords(store, "Rennen.rec");
  if (!holdsRecord(all, race, RennenLaenge))
    return {};
  return recordIn(all, race, RennenLaenge);
}

std::optional<QByteArray> onDisk(const RaceImage &image, const SavedFile &file, const Store &store) {
  return isRecord(image, file) ? recordOnDisk(store, image.race)
                               : readIfThere(store.DatenOrdner + file.name, LargestRecordFile);
}

QByteArray trimmedRecord(const QByteArray &record) {
  return toBytes(trimmedRace(record));
}

// A race without a name in the copy is a new one, not one that was deleted since.
bool hadName(const RaceImage &image) {
  return std::any_of(image.files.begin(), image.files.end(), [&](const SavedFile &file) {
    return isRecord(image, file) && !trimmedRace(file.bytes).RennenName.isEmpty();
  });
}

bool isDeleted(const RaceImage &image, const Store &store) {
  const auto record = recordOnDisk(store, image.race);
  return hadName(image) && record && trimmedRace(*record).RennenName.isEmpty() &&
         !fileExists(raceFileName(store, 'R', image.race)) && !fileExists(raceFileName(store, 'K', image.race));
}

// A record that differs only in what reading takes off is no news; where none was ever written there is no place for
// it.
bool recordIsNews(const RaceImage &image, const SavedFile &file, const Store &store) {
  const auto record = recordOnDisk(store, image.race);
  return record && *record != file.bytes && trimmedRecord(*record) != trimmedRecord(file.bytes);
}

bool isNews(const RaceImage &image, const SavedFile &file, const Store &store) {
  if (file.name == noteName())
    return false;
  if (file.name == stateName())
    return raisedCounts(store, stateFrom(file.bytes, file.name)) != countsOnDisk(store);
  return isRecord(image, file) ? recordIsNews(image, file, store) : onDisk(image, file, store) != file.bytes;
}

// Both are loaded into one scratch store, the copy first: what a load leaves alone then is the same on both sides.
bool tablesDiffer(int race, const QString &folder, const Store &store) {
  Store scratch(store.umgebung);
  scratch.DatenOrdner = store.DatenOrdner;
  startStore(scratch);
  scratch.AktRennen = race;
  scratch.DatenOrdner = folder + QLatin1Char('/');
  RennDatenLaden(scratch);
  const auto copied = wholeRace(scratch);
  scratch.DatenOrdner = store.DatenOrdner;
  RennDatenLaden(scratch);
  return wholeRace(scratch) != copied;
}

void writeRecord(const Store &store, int race, const QByteArray &record) {
  RecordFile records(RennenLaenge);
  records.open(recordFile(store, "Rennen.rec"));
  records.write(race, record);
}

// A save that died left the beginning of what it wrote. Even if that fills the tables alike, it must not stay so.
bool isCutOff(const RaceImage &image, const SavedFile &file, const Store &store) {
  const auto now = onDisk(image, file, store);
  return now && now->size() < file.bytes.size() && file.bytes.startsWith(*now);
}

// In place, as a save writes it; state files are replaced.
void putBack(const RaceImage &image, const SavedFile &file, const Store &store) {
  const QString path = store.DatenOrdner + file.name;
  if (file.name == stateName())
    return replaceFile(path, toBytes(raisedCounts(store, stateFrom(file.bytes, file.name))));
  if (isRecord(image, file)) {
    writeRecord(store, image.race, file.bytes);
    return syncFile(recordFile(store, "Rennen.rec"));
  }
  if (!isTable(image, file, store))
    return replaceFile(path, file.bytes);
  writeFile(path, file.bytes);
  syncFile(path);
}

void keepBefore(const RaceImage &image, const SavedFile &file, const QString &folder, const Store &store) {
  const QString before = folder + QLatin1Char('/') + file.name + QStringLiteral(" vorher");
  const auto bytes = onDisk(image, file, store);
  if (bytes && !bytes->isEmpty() && !fileExists(before))
    replaceFile(before, *bytes, Access::Private);
}

void keepOld(RaceImage &image, const Store &store) {
  for (const auto &file : std::as_const(image.files))
    if (const auto before = onDisk(image, file, store))
      image.before->append({file.name, *before});
}

const SavedFile *fileBefore(const RaceImage &image, const QString &name) {
  const auto found = std::find_if(image.before->begin(), image.before->end(),
                                  [&](const SavedFile &file) { return file.name == name; });
  return found == image.before->end() ? nullptr : &*found;
}

std::optional<QByteArray> bytesBefore(const RaceImage &image, const SavedFile &file) {
  const SavedFile *before = fileBefore(image, file.name);
  return before ? std::optional(before->bytes) : std::nullopt;
}

// A record cannot be taken away: one that did not exist becomes a deleted race.
void takeAway(const RaceImage &image, const SavedFile &file, const Store &store) {
  if (!isRecord(image, file))
    removeFile(store.DatenOrdner + file.name);
  else if (recordOnDisk(store, image.race))
    putBack(image, {file.name, toBytes(RennenSatz())}, store);
}

} // namespace

QString recordCopyName(int race) {
  return QStringLiteral("Rennen") + spacedText(race) + QStringLiteral(".rec");
}

QString noteName() {
  return QStringLiteral("Nicht eingetragen.txt");
}

QString noteIn(const RaceImage &image) {
  for (const auto &file : image.files)
    if (file.name == noteName())
      return QString::fromUtf8(file.bytes);
  return {};
}

RaceImage workImage(const Store &store, const QList<SavedFile> &screens) {
  RaceImage image;
  if (store.TabellenRennen == store.AktRennen) {
    image.race = store.AktRennen;
    for (const auto &file : wholeRace(store))
      if (isNeeded(file, raceFileName(store, file.letter, image.race)))
        image.files.append({nameInFolder(store, file.letter, image.race), file.bytes});
    if (image.race >= 1 && store.RennenIdx == image.race)
      image.files.append({recordCopyName(image.race), toBytes(store.Rennen)});
  }
  image.files.append({stateName(), toBytes(stateOf(store))});
  for (const auto &file : screens)
    put(image.files, file);
  return image;
}

RaceImage replacingImage(const Store &store, int race, const QList<RaceFile> &files, const RennenSatz &record) {
  RaceImage image{race, {{recordCopyName(race), toBytes(record)}}, QList<SavedFile>()};
  for (const auto &file : files)
    image.files.append({nameInFolder(store, file.letter, race), file.bytes});
  keepOld(image, store);
  return image;
}

RaceImage replacingRegisters(const Store &store, const QList<SavedFile> &files) {
  RaceImage image{RaceImage::NoRace, files, QList<SavedFile>()};
  keepOld(image, store);
  return image;
}

void writeImage(const RaceImage &image, const QString &folder) {
  makeFolder(folder, Access::Private);
  for (const auto &file : image.files) {
    const QString path = folder + QLatin1Char('/') + file.name;
    writeFile(path, file.bytes, Access::Private);
    syncFile(path);
  }
  syncFile(folder);
}

QList<SavedFile> newsIn(const RaceImage &image, const QString &folder, const Store &store, bool whole) {
  QList<SavedFile> tables, others;
  const bool deleted = isDeleted(image, store);
  for (const auto &file : image.files) {
    const bool table = isTable(image, file, store);
    if (!(deleted && (table || isRecord(image, file))) && isNews(image, file, store))
      (table ? tables : others).append(file);
  }
  const bool cutOff =
      std::any_of(tables.begin(), tables.end(), [&](const SavedFile &file) { return isCutOff(image, file, store); });
  const bool differ = !tables.isEmpty() && (cutOff || !whole || tablesDiffer(image.race, folder, store));
  return differ ? tables + others : others;
}

void takeOver(const RaceImage &image, const QList<SavedFile> &files, const QString &folder, const Store &store) {
  for (const auto &file : files)
    keepBefore(image, file, folder, store);
  for (const auto &file : files)
    putBack(image, file, store);
  syncFile(folderOf(recordFile(store, "Rennen.rec")));
}

Progress progressOf(const RaceImage &replacing, const Store &store) {
  bool asBefore = true, asAfter = countsOnDisk(store).RennenAnzahl >= replacing.race;
  for (const auto &file : replacing.files) {
    const auto now = onDisk(replacing, file, store);
    asBefore = asBefore && now == bytesBefore(replacing, file);
    asAfter = asAfter && now == file.bytes;
  }
  return asAfter ? Progress::Done : asBefore ? Progress::NotBegun : Progress::Half;
}

void finishReplacing(const RaceImage &replacing, const Store &store) {
  for (const auto &file : replacing.files)
    putBack(replacing, file, store);
  putBack(replacing, {stateName(), toBytes(Zustand{0, 0, replacing.race, 0})}, store);
}

void takeBackReplacing(const RaceImage &replacing, const Store &store) {
  for (const auto &file : replacing.files)
    if (const SavedFile *before = fileBefore(replacing, file.name))
      putBack(replacing, *before, store);
    else
      takeAway(replacing, file, store);
}
