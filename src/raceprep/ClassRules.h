#pragma once

#include "core/Store.h"

// The class table of the open race as it is edited: its normal form, its lines, and the limits of what is typed.

/// Last row that the editor names, of the 20 there are.
/// Quirk: classes 17 to 20. They are filled by the built-in table alone, can be looked at and get years.
inline constexpr int LastEditableClass = 16;

/// Brings the class table to normal form in one pass: the youngest class ends with the current year, the oldest begins
/// with 1900, each class ends the year before the next younger one begins; rows behind the last name are emptied. Then
/// runs KlassenZuordnen. Gives the lines of `Form10.List1`: one for each named row, with its years and counts.
QStringList KlassenAktualisieren(Store &store);

/// Takes a row (1 to 20) out of the table; the rows behind it close up, their order numbers and exact names do not.
void deleteClass(Store &store, int klasse);

/// The class number that a typed text stands for, held to 1 to LastEditableClass.
int heldClassNumber(const QString &text);
/// The year that a typed text stands for, held to 1900 to the current year.
int heldYear(const Store &store, const QString &text);
