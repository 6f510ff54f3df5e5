#pragma once

#include "core/Store.h"

#include <functional>
#include <optional>

// The rules of the athlete register. `shown` is the number that the screen's index field tells.

/// The last athlete; an empty register starts with record 1.
int lastAthlete(Store &store);
/// A number held to the register.
int heldAthlete(const Store &store, qint64 n);
/// The athlete before; nothing and a beep if there is none.
std::optional<int> previousAthlete(const Store &store, qint64 shown);
/// The athlete behind, at the end a new one if the last has a name and a birth date; nothing if there is none.
std::optional<int> nextAthlete(Store &store, qint64 shown, const QString &name, const QString &birthDate);
/// Whether the text is exactly "1.1.1900".
/// Quirk: undated by its text. "01.01.1900" is something else.
bool looksUndated(const QString &birthDate);
/// Reads athlete n anew, changes him and writes him; gives him as he is now.
LaeuferSatz changeAthlete(Store &store, int n, const std::function<void(LaeuferSatz &)> &change);
/// Stores a typed birth date and gives the text that its field shows then. What is no date gives the empty text and
/// stores nothing.
/// Quirk: year of two digits. 00 to 09 are of 20xx and all others of 19xx, however young the athlete may be.
QString storeBirthDate(Store &store, int n, const QString &typed);
/// All athletes with a name, a line of heads first: name, birth date, sex, clubs, federation number, points.
QList<QStringList> athleteTable(const Store &store);
/// The first record without a name; the count plus 1 if all have one.
int firstFreeAthlete(const Store &store);
