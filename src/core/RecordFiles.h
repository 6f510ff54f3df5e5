#pragma once

#include "core/Store.h"

// The routines of the three record files. Clubs and athletes are read and written by their number, the race in work at
// `RennenIdx`. A record that was never written reads as an empty one. A failing file operation is a FileFault.

void VereinOeffnen(Store &store);
void LaeuferOeffnen(Store &store);
void RennenOeffnen(Store &store);
void VereinSchliessen(Store &store);
void LaeuferSchliessen(Store &store);
void RennenSchliessen(Store &store);

/// Club n; texts keep their padding. Outside the register: a beep and the club of the last call with an empty
/// `VereinName` (for n below 1 an empty `VereinKurz` too).
VereinSatz VereinLesen(const Store &store, int n);
/// Athlete n; `Name` is trimmed, clubs beyond the count become 0, the sex is held to 0 to 2. Outside the register: a
/// beep and the athlete of the last call with an empty `Name`.
LaeuferSatz LaeuferLesen(const Store &store, int n);
/// RennenLeeren first, whatever comes next; texts are trimmed but for `RennenNrText`. Outside the range: a beep.
void RennenLesen(Store &store);
/// The same for the open race.
void readOpenRace(Store &store);

/// The record of race n, trimmed like the race in work, which stays; an empty one if there is none.
RennenSatz raceRecord(const Store &store, int n);
/// A race from its record as RennenLesen takes it.
RennenSatz trimmedRace(const QByteArray &record);

/// Club n is written; n below 1 is a FileFault. The count is raised if needed; Vext.dat is replaced whenever n is not
/// below the count.
void VereinSchreiben(Store &store, int n, const VereinSatz &verein);
/// The same for athlete n, but for n below 1 nothing is done.
void LaeuferSchreiben(Store &store, int n, const LaeuferSatz &laeufer);
/// The same for the race in work, at `RennenIdx`; below 1 it is a FileFault.
void RennenSchreiben(Store &store);
/// The race in work becomes the record of the open race. The first race may be open as number 0, which has none.
void writeOpenRace(Store &store);

/// A club without texts. The four unnamed bytes are those of the club of the last call.
VereinSatz VereinLeeren(const Store &store);
/// An athlete of whom nothing is known.
LaeuferSatz LaeuferLeeren(const Store &store);
/// Quirk: criteria are inherited. The eight criteria and choices (`WertKlassen` … `BestzeitText`) stay, so a new race
/// has those of the race before it.
void RennenLeeren(Store &store);

/// Lines of `Form2.List1`: all clubs with a name, sorted; ends in the record number.
QStringList VereinListeFuellen(const Store &store);
/// Lines of `Form3.List1`: all athletes with a name, sorted; ends in the record number.
QStringList LaeuferListeFuellen(const Store &store);

/// Opens all three files, as the buttons of the menu do.
void openRecordFiles(Store &store);
