#pragma once

#include "core/Store.h"

#include <optional>

/// A file of a copy, by its name without a folder.
struct SavedFile {
  QString name;
  QByteArray bytes;
  bool operator==(const SavedFile &) const = default;
};

/// What of a race lives in memory, as the files that would keep it: its race files under their ordinary names, and the
/// race record as "Rennen 7.rec".
struct RaceImage {
  int race = 0;
  QList<SavedFile> files;
  bool operator==(const RaceImage &) const = default;
};

/// Name of the race record in a copy.
QString recordCopyName(int race);

/// The open race as it stands in memory; nothing if its tables are not whole. Unlike a save it never passes over team
/// and group names: an M or G file belongs to it if there is a name, or an old file to contradict. The race record
/// belongs to it if the buffer holds the open race.
std::optional<RaceImage> raceImage(const Store &store);

/// Writes all files into a folder, which comes into being; each is whole on the disk or a FileFault.
void writeImage(const RaceImage &image, const QString &folder);

/// Whether a copy of a race, read from its folder, holds more or other things than its files in the data folder of
/// `store` would give when the race is opened. A file that cannot be read gives nothing. Of a deleted race nothing
/// counts.
bool holdsNews(const RaceImage &image, const QString &folder, const Store &store);

/// Puts the files of the copy over those in the data folder of `store`. What differs from it there is kept beside the
/// copy first, with " vorher" behind its name; what an earlier try has kept stays.
void takeOver(const RaceImage &image, const QString &folder, const Store &store);
