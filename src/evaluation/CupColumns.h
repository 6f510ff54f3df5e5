#pragma once

#include "core/Store.h"
#include "printing/Druckschicht.h"

/// The columns of the rounds and of the total on the list of a cup. Up to five rounds have 28 mm each, with the points
/// behind the time. More share the width that is there: a person then takes two lines, the points under the times, all
/// in the largest size at which the longest time of this cup fits.
class CupColumns {
public:
  /// From the first line of a person to the second, millimetres.
  static constexpr double SecondLine = 3.7;

  /// `persons` are those that will be printed.
  CupColumns(const Store &store, Druckschicht &druck, const QList<int> &persons);

  /// Lines that a person takes.
  int lines() const { return narrow() ? 2 : 1; }
  void printHeads(double y) const;
  /// Time, or what stands for it, and points of a person in all rounds, then the total. Leaves font size 9.
  void printRounds(int person, double y) const;

private:
  bool narrow() const;
  void fitSize(const QList<int> &persons);
  double widestCell(const QList<int> &persons) const;
  double pitch() const;
  void printNarrowHeads(double y) const;
  void printWide(int person, int round, double y) const;
  void printNarrow(int person, double y) const;
  /// So that the text ends at `right`.
  void printRightAligned(double right, double y, const QString &text) const;
  /// The time, the status or "-".
  QString timeText(int person, int round) const;
  bool isStruck(int person, int round) const { return m_store.CupStreich(person, round) == 1; }

  const Store &m_store;
  Druckschicht &m_druck;
  /// Points.
  double m_size;
};
