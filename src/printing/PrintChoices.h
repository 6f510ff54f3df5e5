#pragma once

#include "core/Store.h"

// What the print screen offers to choose from.

/// The ranked participants of the last ErgebnisRechnen: place, name, exact class; a line ends in the participant row.
QStringList rankingLines(const Store &store);
/// The names of the classes 1 to 20, blank ones included.
QStringList classNames(const Store &store);
