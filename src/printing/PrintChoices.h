#pragma once

#include "core/Store.h"

// What the print screen offers to choose from.

/// The ranked participants of the last ErgebnisRechnen: place, name, exact class; a line ends in the participant row.
/// `LaeuferIdx` is left at the last one's athlete.
QStringList ranglisteZeilen(Store &store);
/// The abbreviations of all clubs in the order of their records.
QStringList vereinKurznamen(Store &store);
/// The names of the classes 1 to 20, blank ones included.
QStringList klassenNamen(const Store &store);
