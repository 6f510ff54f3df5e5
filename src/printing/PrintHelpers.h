#pragma once

#include "core/Store.h"
#include "printing/Druckschicht.h"

// What all documents share beyond the operations themselves. The present font, line width and `CurrentY` are the
// caller's.

/// Begins a document of the open race; `person` is whose it is, if it is somebody's.
void beginDocument(const Store &store, Druckschicht &druck, const QString &name, const QString &person = {});

/// A rectangle as four black lines.
void Rahmen(Druckschicht &druck, double x1, double y1, double x2, double y2);

/// Prints with line end, centred on the page.
void MitteDrucken(Druckschicht &druck, const QString &text);
/// Centred on the left half; 7 mm to the right of its middle, where the signature line of the title page lies.
void ViertelDrucken(Druckschicht &druck, const QString &text);
/// Centred on the right half; 3 mm to the right of its middle.
void DreiviertelDrucken(Druckschicht &druck, const QString &text);
/// Prints the item so that it ends at `CurrentX`, which stays; the line ends.
void RechtsDrucken(Druckschicht &druck, const PrintItem &item);

/// A text for the column of a time: blanks in front until it is 14 mm wide in the present font.
QString inTimeColumn(const Druckschicht &druck, const QString &time);
/// A time for its column.
QString ZeitDruckText(const Druckschicht &druck, double seconds);

/// Sets size 24, or the largest whole size below at which the title is no wider than `limit` millimetres; 1 at least.
void fitTitle(Druckschicht &druck, const QString &title, double limit);

/// The organiser's own picture "Logo.jpg" in the working folder, 35 by 18 mm, if there is one.
void printLogo(Druckschicht &druck, double x, double y);
