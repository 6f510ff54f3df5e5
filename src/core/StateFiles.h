#pragma once

#include "core/Store.h"

// Vext.dat, which makes the content of the record files visible: three counts and a reserved number, a line each; and
// TopLeft.dat, the positions of the screens.

struct Zustand {
  int LaeuferAnzahl = 0, VereinAnzahl = 0, RennenAnzahl = 0, VextReserve = 0;

  bool operator==(const Zustand &) const = default;
};

QString stateFilePath(const Store &store);
/// The values of Vext.dat; those that its content lacks are 0. A number too large is a ConversionFault, so is a count
/// of more records than a file may hold: every list would be filled for ever.
Zustand stateFrom(const QByteArray &bytes, const QString &path);
QByteArray toBytes(const Zustand &state);

/// The counts as the store has them.
Zustand stateOf(const Store &store);
/// Takes the counts from Vext.dat; 0 without the file.
void ZustandLesen(Store &store);
/// The counts as Vext.dat has them now.
Zustand countsOnDisk(const Store &store);
/// These with the higher counts of `wanted`, but only as far as the record files go; a count never falls.
Zustand raisedCounts(const Store &store, const Zustand &wanted);
/// Replaces Vext.dat.
void ZustandSchreiben(const Store &store);

/// Takes the positions of TopLeft.dat; does nothing without the file.
void FensterLesen(Store &store);
/// Replaces TopLeft.dat.
void FensterSpeichern(const Store &store);
