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

/// The range of a number field of a banner; the field holds its bound instead of a number outside.
struct WerbeGrenze {
  int lowest, highest;
  /// The text itself, or the bound that its leading number exceeds.
  QString held(const QString &text) const;
};
namespace WerbeGrenzen {
constexpr WerbeGrenze rechts{0, 183}, runter{233, 283}, groesse{10, 800};
} // namespace WerbeGrenzen

/// Where the foot of the title page begins, millimetres: its line, its heading, and the edges of the page's content.
namespace Titelfuss {
constexpr double Links = 20, Rechts = 185, LinieY = 228, TextY = 229;
} // namespace Titelfuss

using Werbung = std::array<Werbebanner, 8>;

/// The banners as werbung.dat has them, within their ranges; without the file the built-in ones.
Werbung WerbungLesen(const Store &store);
/// The content of werbung.dat.
QByteArray werbungBytes(const Werbung &werbung);
/// Replaces werbung.dat whole.
void WerbungSchreiben(const Store &store, const Werbung &werbung);
