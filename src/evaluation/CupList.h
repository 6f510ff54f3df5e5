#pragma once

#include "core/Store.h"
#include "printing/Druckschicht.h"

/// What the list of a cup shows beside the cup tables.
struct CupPrint {
  QString name;
  bool classesOnSeparatePages = false;
  /// One line for each person in the order of the result, with the person at its end.
  QStringList keys;
};

/// Prints the cup as the last evaluation left it in the cup tables, in landscape: class by class with time and points
/// of each round and the total; a struck result shows "X" for its points. With more than five rounds a person takes two
/// lines, the club in the second.
void Cupliste(const Store &store, Druckschicht &druck, const CupPrint &print);
