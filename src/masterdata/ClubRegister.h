#pragma once

#include "core/Store.h"

// The rules of the club register. `shown` is the number that the screen's index field tells.

/// The last club becomes the current one; an empty register starts with record 1.
void openLastClub(Store &store);
/// Club n, held to the register, becomes the current one.
void goToClub(Store &store, qint64 n);
/// The club before; false and a beep if there is none: the buffer is empty then, the index stays.
bool goToClubBefore(Store &store, qint64 shown);
/// The club behind, at the end a new one if the last has a name; false if there is none: the buffer is empty then, the
/// index stays.
bool goToClubBehind(Store &store, qint64 shown, const QString &name);
/// Reads club n anew, changes one field to the trimmed text and writes it.
void storeClubField(Store &store, int n, QString VereinSatz::*field, const QString &text);
/// `VereinKurz` of club n, trimmed; the club becomes the current one.
QString shortNameOfClub(Store &store, int n);
/// "?" for no club, then `VereinKurz` of each record, also when it is empty: the position is the record number. The
/// index is restored, the buffer is left at the last record.
QStringList clubChoices(Store &store);
/// Whether a club of this number exists.
bool isClub(const Store &store, int n);
