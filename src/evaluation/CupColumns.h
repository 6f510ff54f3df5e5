#pragma once

#include "core/Store.h"
#include "printing/Column.h"

/// A person on the list of a cup.
struct CupLine {
  int person, place;
  LaeuferSatz athlete;
};
using CupListColumns = QList<Column<CupLine>>;

/// Place, name, club and year of birth of a person.
CupListColumns cupPersonColumns(const Store &store);
/// Time and points of each round in turn, then the total.
CupListColumns cupRoundColumns(const Store &store);

/// The columns of the rounds and of the total on paper. Up to five rounds have 28 mm each, with the points behind the
/// time. More share the width that is there: a person then takes two lines, the points under the times, all in the
/// largest size at which the longest time of this cup fits.
class CupColumns {
public:
  /// From the first line of a person to the second, millimetres.
  static constexpr double SecondLine = 3.7;

  /// `persons` are those that will be printed.
  CupColumns(const Store &store, Druckschicht &druck, const QList<int> &persons);

  const CupListColumns &columns() const { return m_columns; }
  /// Lines that a person takes.
  int lines() const { return narrow() ? 2 : 1; }
  void printHeads(double y) const;
  /// Time, or what stands for it, and points of a person in all rounds, then the total. Leaves font size 9.
  void printRounds(const CupLine &line, double y) const;

private:
  const Column<CupLine> &time(int round) const { return m_columns[2 * round - 2]; }
  const Column<CupLine> &points(int round) const { return m_columns[2 * round - 1]; }
  bool narrow() const;
  void fitSize(const QList<int> &persons);
  double widestCell(const QList<int> &persons) const;
  double pitch() const;
  /// Where the columns of a round end.
  double rightOf(int round) const;
  void printNarrowHeads(double y) const;
  void printWideTime(const CupLine &line, int round, double y) const;
  void printNarrow(const CupLine &line, double y) const;
  /// So that the text ends at `right`.
  void printRightAligned(double right, double y, const QString &text) const;

  const Store &m_store;
  Druckschicht &m_druck;
  CupListColumns m_columns;
  /// Points.
  double m_size;
};
