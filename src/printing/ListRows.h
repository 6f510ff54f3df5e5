#pragma once

#include "core/Store.h"
#include "printing/Druckschicht.h"

// What the lists of participants share: the grid of their rows and the texts of class and club.

/// Height of row r of a list page, millimetres.
constexpr double gitterY(double row) {
  return 40 + row * 4.5;
}

/// A participant as the lists show him: his row and his record.
struct ListRow {
  int row;
  const TeilnehmerZeile &participant;
  LaeuferSatz athlete;
};
ListRow listRow(const Store &store, int row);

/// The exact class of a participant, or his group in a race that is evaluated by groups.
QString Klassentext(const Store &store, const TeilnehmerZeile &participant);
/// Head of the column of class or group.
QString Klassenspalte(const Store &store);

/// Short name of the participant's club; with `orLong` the long one if there is no short one.
QString Vereinstext(const Store &store, const LaeuferSatz &athlete, const TeilnehmerZeile &participant, bool orLong);

/// The class or group that a sort line begins with.
int abschnittOf(const QString &line);

/// Where a page ends for the head of a section and for a row, millimetres.
constexpr double BandLimit = 240, RowLimit = 265;
/// The break by position: a page that has begun is full when the last print ended below `limit` millimetres.
bool seiteVoll(const Druckschicht &druck, int zeilenNr, double limit);

/// The grey band of a class from `left` to `right` on row `zeilenNr`, with its text at `textX`; printed without line
/// end.
void Klassenbalken(const Store &store, Druckschicht &druck, const TeilnehmerZeile &participant, int zeilenNr,
                   double left, double right, double textX);
