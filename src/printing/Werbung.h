#pragma once

#include "core/Store.h"

#include <array>

/// One sponsor banner on the foot of the title page. The numbers are kept as typed; leading numbers are read from them.
struct Werbebanner {
  bool gewaehlt = false;
  /// Relative to the data folder.
  QString datei;
  /// Millimetres on the page, and percent of the picture's natural size.
  QString rechts, runter, groesse;
};
using Werbung = std::array<Werbebanner, 8>;

/// The banners as werbung.dat has them, within their ranges; without the file the built-in ones.
Werbung WerbungLesen(const Store &store);
/// Writes werbung.dat anew.
void WerbungSchreiben(const Store &store, const Werbung &werbung);
