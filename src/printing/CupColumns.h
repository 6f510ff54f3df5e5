#pragma once

#include "core/Store.h"
#include "printing/Druckschicht.h"

/// The columns of the rounds on the list of a cup. Up to five rounds have 28 mm each; more share the width that is
/// there, in the largest size at which the longest time and the longest points of this cup fit side by side.
class CupColumns {
public:
  /// `persons` are those that will be printed.
  CupColumns(const Store &store, Druckschicht &druck, const QList<int> &persons);

  void printHeads(double y) const;
  /// Time, or what stands for it, and points of a person in all rounds. Leaves font size 9.
  void printRounds(int person, double y) const;

private:
  bool narrow() const;
  void fitSize(const QList<int> &persons);
  double widthOfCells(const QList<int> &persons) const;
  /// Where the times of a round end and its points begin, in narrow columns.
  double edge(int round) const;
  double sameBaseline(double y) const;
  void printWide(int person, int round, double y) const;
  void printNarrow(int person, int round, double y) const;
  /// So that the text ends at the edge of the round.
  void printRightAligned(int round, double y, const QString &text) const;
  /// The time, the status or "-".
  QString timeText(int person, int round) const;
  PrintItem points(int person, int round) const;

  const Store &m_store;
  Druckschicht &m_druck;
  /// Points, and millimetres of the column of the points and of the gap before it.
  double m_size, m_pointsWidth = 0, m_gap = 0;
};
