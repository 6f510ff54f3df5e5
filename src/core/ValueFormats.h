#pragma once

#include <QString>

/// Hours and minutes, whole, and seconds to the thousandth. A time has no limit, so hours may outgrow every whole type.
struct ZeitTeile {
  double ZeitStd = 0, ZeitMin = 0, ZeitSek = 0;
};

/// Splits seconds; the last fraction of a thousandth is cut, not rounded.
ZeitTeile ZeitZerlegen(double seconds);
/// A time as printed, not yet right-aligned: 1:02:05,50, 3,40, ,40 (no digit before the comma, on purpose).
QString ZeitText(double seconds);
/// Text typed as a time: trimmed, empty becomes "0", the first point becomes a comma.
QString KommaEingabe(const QString &text);
/// Two decimals right-aligned in 8 characters (a longer text loses its front); below 1 with a 0 before the comma.
QString WertText8(double value);
/// The same in 10 characters.
QString WertText10(double value);
