#pragma once

#include "core/Store.h"

// Start numbers of the open race. Laeufer.rec must be open. Participants whose athlete has no name are in no list and
// keep the number they have.

/// Lines of `Form6.List1`: all participants, sorted by start number, those without one first by name; ends in the row.
QStringList NummernlisteFuellen(const Store &store);

/// Draws numbers from 1 on for the whole field: class after class (group after group) in the order of start, inside it
/// at random. `reserve` numbers are left free between two of them; below 0 it counts down.
/// Leaves `TnIdx` one behind the last line numbered. Gives the lines of the draw in
/// their order, `Form6.List2`.
QStringList drawNumbersForAll(Store &store, int reserve);

/// Numbers the participants of a class from `first` on, by order number and name, without drawing. Ends
/// with a beep at the first number beyond 32 bits. The rest as for the draw.
/// Quirk: numbers given twice. Those that others have are given again.
QStringList numbersForClass(Store &store, int klasse, qint64 first, qint64 reserve);

/// The first number of such a run from the text typed; an empty text gives 1.
qint64 firstNumber(const QString &text);

/// Whether any row of the table has the number; free rows count, so 0 is in use unless the table is full.
bool isNumberTaken(const Store &store, int startNr);

/// Whether "alle Startnummern löschen" is offered: whether the sum of the numbers in rows 1 to 50 is above 0.
/// Quirk: first fifty rows. Numbers further down do not count.
bool offersDeletion(const Store &store);

void deleteAllNumbers(Store &store);
