#pragma once

#include "core/Store.h"

#include <optional>

// The rules of the club register. `shown` is the number that the screen's index field tells.

/// The last club; an empty register starts with record 1.
int lastClub(Store &store);
/// A number held to the register.
int heldClub(const Store &store, qint64 n);
/// The club before; nothing and a beep if there is none.
std::optional<int> previousClub(const Store &store, qint64 shown);
/// The club behind, at the end a new one if the last has a name; nothing if there is none.
std::optional<int> nextClub(Store &store, qint64 shown, const QString &name);
/// Reads club n anew, changes one field to the trimmed text and writes it.
void storeClubField(Store &store, int n, QString VereinSatz::*field, const QString &text);
/// `VereinKurz` of club n, trimmed.
QString shortNameOfClub(const Store &store, int n);
/// `VereinKurz` of each record as it is shown, also when it is empty, in the order of the records.
QStringList shortNamesOfClubs(const Store &store);
/// "?" for no club, then the short names: the position is the record number.
QStringList clubChoices(const Store &store);
/// Whether a club of this number exists.
bool isClub(const Store &store, int n);
