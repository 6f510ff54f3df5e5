#pragma once

#include "core/RaceFiles.h"
#include "core/Store.h"
#include "platform/Files.h"

#include <optional>

/// What lives in memory, as the files that would keep it: those of the open race under their ordinary names, its record
/// as "Rennen 7.rec", Vext.dat, what open screens would write when they close, and a note of what was typed and not yet
/// entered.
struct RaceImage {
  static constexpr int NoRace = -1;

  /// The race to which R, M, G, K, Z files and record belong.
  int race = NoRace;
  QList<SavedFile> files;
  /// Only of files that are written all or none: what they held before; a file that is not in it did not exist.
  std::optional<QList<SavedFile>> before;

  /// Whether these are registers, so that the work on the open race stands in another image.
  bool ofRegisters() const { return before && race == NoRace; }

  bool operator==(const RaceImage &) const = default;
};

/// Name of the race record in a copy.
QString recordCopyName(int race);
/// Name of the note of what was typed and not yet entered: UTF-8, a line for each field.
QString noteName();
/// That note; empty if there is none.
QString noteIn(const RaceImage &image);

/// The work as it stands in memory; `screens` takes the place of files of the same name. Without race files if the
/// tables of the open race are not whole. Unlike a save it never passes over team and group names: an M or G file
/// belongs to it if there is a name, or an old file to contradict. The race record belongs to it if the buffer holds
/// the open race.
RaceImage workImage(const Store &store, const QList<SavedFile> &screens);

/// A race that is about to be written as a whole new one, with what stands in its place now.
RaceImage replacingImage(const Store &store, int race, const QList<RaceFile> &files, const RennenSatz &record);

/// The same of record files and Vext.dat, whole, as they will be.
RaceImage replacingRegisters(const Store &store, const QList<SavedFile> &files);

/// Writes all files into a new folder of the user's own; they are on the disk, or a FileFault.
void writeImage(const RaceImage &image, const QString &folder);

/// The files of a copy, read from its folder, that hold more or other things than the data folder of `store` would give
/// when it is opened. Race files count only together, as what they fill the tables with; if the copy is not `whole`,
/// each by its bytes. Of a deleted race nothing counts. What cannot be compared is a Fault.
QList<SavedFile> newsIn(const RaceImage &image, const QString &folder, const Store &store, bool whole = true);
/// Puts files of the copy over those in the data folder of `store`. What is there now is kept beside the copy in
/// `folder` first, with " vorher" behind its name; what an earlier try has kept stays.
void takeOver(const RaceImage &image, const QList<SavedFile> &files, const QString &folder, const Store &store);

/// How far the writing of a replacing image came.
enum class Progress { NotBegun, Half, Done };
Progress progressOf(const RaceImage &replacing, const Store &store);
/// Writes the rest of a replacing image, or what was there before.
void finishReplacing(const RaceImage &replacing, const Store &store);
void takeBackReplacing(const RaceImage &replacing, const Store &store);
