#pragma once

#include <QString>

#include <optional>

/// Hours and minutes, whole, and seconds to the thousandth. A time has no limit, so hours may outgrow every whole type.
struct ZeitTeile {
  double ZeitStd = 0, ZeitMin = 0, ZeitSek = 0;
};

/// Splits seconds; the last fraction of a thousandth is cut, not rounded.
ZeitTeile ZeitZerlegen(double seconds);
/// Seconds out of hours, minutes and seconds as typed; nothing if one of them is no number.
std::optional<double> joinedTime(const QString &hours, const QString &minutes, const QString &seconds);
/// A time as printed, not yet right-aligned: 1:02:05,50, 3,40, ,40.
/// Quirk: time below a second. No digit stands before the comma.
QString ZeitText(double seconds);
/// Text typed as a time: trimmed, empty becomes "0", the first point becomes a comma.
QString KommaEingabe(const QString &text);
/// The same for the seconds beside hours and minutes: a text without a point stays as it is.
QString secondsEntry(const QString &text);
/// Two decimals right-aligned in 8 characters (a longer text loses its front); below 1 with a 0 before the comma.
QString WertText8(double value);
/// The same in 10 characters.
QString WertText10(double value);
