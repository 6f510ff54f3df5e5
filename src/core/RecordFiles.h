#pragma once

#include "core/Store.h"

// The routines of the three record files over the store's buffers; each takes its record number from the index. A
// failing file operation is a FileFault.

void VereinOeffnen(Store &store);
void LaeuferOeffnen(Store &store);
void RennenOeffnen(Store &store);
void VereinSchliessen(Store &store);
void LaeuferSchliessen(Store &store);
void RennenSchliessen(Store &store);

/// Texts keep their padding. Outside the range: a beep and an empty `VereinName` (below 1 an empty `VereinKurz` too).
void VereinLesen(Store &store);
/// `Name` is trimmed, clubs beyond the count become 0, the sex is held to 0 to 2. Outside the range: a beep and an
/// empty `Name`, the other fields stay.
void LaeuferLesen(Store &store);
/// RennenLeeren first, whatever comes next; texts are trimmed but for `RennenNrText`. Outside the range: a beep.
void RennenLesen(Store &store);
/// The same for the open race.
void rennsatzLesen(Store &store);

/// A race from its record as RennenLesen takes it.
RennenSatz trimmedRace(const QByteArray &record);

/// The count is raised if needed; Vext.dat is replaced whenever the index is not below the count.
void VereinSchreiben(Store &store);
/// Does nothing at an index below 1; VereinSchreiben and RennenSchreiben have no such guard and fault there, on
/// purpose.
void LaeuferSchreiben(Store &store);
void RennenSchreiben(Store &store);

void VereinLeeren(Store &store);
void LaeuferLeeren(Store &store);
/// Leaves the eight criteria and choices (`WertKlassen` … `BestzeitText`) alone, so that a new race inherits those of
/// the race before it.
void RennenLeeren(Store &store);

/// Lines of `Form2.List1`: all clubs with a name, sorted; ends in the record number. The index is restored.
QStringList VereinListeFuellen(Store &store);
/// Lines of `Form3.List1`: all athletes with a name, sorted; ends in the record number. The index is restored.
QStringList LaeuferListeFuellen(Store &store);

/// Opens all three files, as the buttons of the menu do.
void alleDateienOeffnen(Store &store);
