#pragma once

#include "core/Store.h"
#include "printing/Druckschicht.h"

// What the lists of participants share: the grid of their lines and the texts of class and club.

/// Height of a line of a list page, millimetres.
constexpr double gridY(double line) {
  return 40 + line * 4.5;
}

/// A participant as the lists show him: his row and his record.
struct ListLine {
  int row;
  const TeilnehmerZeile &participant;
  LaeuferSatz athlete;
};
ListLine lineForRow(const Store &store, int row);

/// The exact class of a participant, or his group in a race that is evaluated by groups.
QString classOrGroup(const Store &store, const TeilnehmerZeile &participant);
/// Head of the column of class or group.
QString classHead(const Store &store);

/// Short name of the participant's club; with `orLong` the long one if there is no short one.
QString clubShown(const Store &store, const LaeuferSatz &athlete, const TeilnehmerZeile &participant, bool orLong);

/// The class or group that a sort line begins with.
int sectionOfLine(const QString &line);

/// Where a page ends for the head of a section and for a line, millimetres.
constexpr double BandLimit = 240, LineLimit = 265;
/// The break by position: a page that has begun is full when the last print ended below `limit` millimetres.
bool isPageFull(const Druckschicht &druck, int pageLine, double limit);

/// The grey band of a class from `left` to `right` on line `pageLine`, with its text at `textX`; printed without line
/// end.
void Klassenbalken(const Store &store, Druckschicht &druck, const TeilnehmerZeile &participant, int pageLine,
                   double left, double right, double textX);
