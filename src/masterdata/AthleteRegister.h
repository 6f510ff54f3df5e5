#pragma once

#include "core/Store.h"

#include <functional>

// The rules of the athlete register. `shown` is the number that the screen's index field tells.

/// The last athlete becomes the current one; an empty register starts with record 1.
void openLastAthlete(Store &store);
/// Athlete n, held to the register, becomes the current one.
void goToAthlete(Store &store, qint64 n);
/// The athlete before; false and a beep if there is none: the buffer is empty then, the index stays.
bool goToAthleteBefore(Store &store, qint64 shown);
/// The athlete behind, at the end a new one if the last has a name and a birth date; false if there is none.
bool goToAthleteBehind(Store &store, qint64 shown, const QString &name, const QString &birthDate);
/// Whether the text is exactly "1.1.1900". A comparison of texts on purpose: "01.01.1900" is something else.
bool looksUndated(const QString &birthDate);
/// Reads athlete n anew, changes him and writes him, so that the buffer is never the only copy.
void changeAthlete(Store &store, int n, const std::function<void(LaeuferSatz &)> &change);
/// Stores a typed birth date and gives the text that its field shows then. Two characters are a year, 00 to 09 of 20xx
/// and all others of 19xx, however young the athlete may be. What is no date gives the empty text and stores nothing.
QString storeBirthDate(Store &store, int n, const QString &typed);
/// The first record without a name; the count plus 1 if all have one. Leaves the index there.
int firstFreeAthlete(Store &store);
