#pragma once

#include "platform/Tabelle.h"

#include <QStringList>

// The two lists of names of a race, teams and groups. A number is a fixed address: participants hold it, lists may have
// holes.

/// The number typed, held to 1 to 100; 1 for what is no number.
int nameNumber(const QString &text);
/// Lines of `Form11.List1` and `List2`: number and name of the rows that have one, unsorted.
QStringList nameLines(const Tabelle<QString, 0, 100> &names);
