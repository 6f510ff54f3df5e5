#pragma once

#include "core/Store.h"

// The four text files of a race: R (participants), K (classes), M (teams), G (groups).

/// "R 7.dat" and its sisters, with the data folder in front; `letter` is R, K, M, G or Z.
/// Quirk: blank in a file name. Folders of earlier years have it.
QString raceFileName(const Store &store, char letter, int race);

/// Fills all tables from the files of `AktRennen`; a missing file is no error. Without a K file the built-in classes
/// are taken. `KlasseGenau` of rows that the file does not fill, and `KlasseReihenfolge` without a K file, stay as they
/// were.
void RennDatenLaden(Store &store);
/// Reminds of athletes without sex or birth date, then writes the files of `AktRennen`. Laeufer.rec must be open.
void RennDatenSpeichern(Store &store);

/// One file of the open race: letter and content.
struct RaceFile {
  char letter;
  QByteArray bytes;
  bool operator==(const RaceFile &) const = default;
};
/// The files that a save would write now, in its order; M and G only if row 1 or 2 has a name. Reads no record.
QList<RaceFile> raceFiles(const Store &store);
/// All four files, M and G also where a save would pass them over. Reads no record.
QList<RaceFile> wholeRace(const Store &store);
/// Writes files of a race in place, in their order.
void writeRaceFiles(const Store &store, int race, const QList<RaceFile> &files);
/// The R file as a save writes it.
QByteArray participantFile(const Store &store);
/// The K file as a save writes it, with these order numbers.
QByteArray classFile(const Store &store, const KlassenReihenfolge &reihenfolge);
