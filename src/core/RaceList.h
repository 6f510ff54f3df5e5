#pragma once

#include "core/Store.h"

/// Lines of the list of races: number with a leading blank, four blanks, name; the highest number first, races without
/// a name left out.
QStringList raceLines(const Store &store);
/// The same, for the race register; the open race is read anew from record and files, so tables not saved are lost.
QStringList RennenListeFuellen(Store &store);
/// Race number at the head of such a line, up to five digits.
int raceOfLine(QStringView line);
