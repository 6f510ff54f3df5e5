#pragma once

#include "core/Store.h"
#include "hints/RaceGlance.h"
#include "platform/Hint.h"

#include <optional>

// What a hint may look at. Nothing here changes the store, a file or the screen, and nothing of a broken file is a
// fault: a hint never ends the program.

/// A row in use whose athlete has a name.
struct Starter {
  int row = 0;
  TeilnehmerZeile participant;
  LaeuferSatz athlete;
};

class Situation {
public:
  Situation(const Store &theStore, ShownValues shown, RaceGlances &races)
      : store(theStore), m_shown(std::move(shown)), m_races(races) {}

  const Store &store;

  /// What a control of the screen shows; empty if it has none of this name.
  QString text(const char *control) const { return m_shown.value(QLatin1String(control)); }
  qint64 number(const char *control) const;
  /// Whether a box is ticked, or a button can be pressed.
  bool isOn(const char *control) const { return text(control) == QStringLiteral("1"); }
  bool hasFocus(const char *control) const { return text("Fokus") == QLatin1String(control); }

  /// The named participants of the open race, by rows; none while the tables are not whole.
  const QList<Starter> &starters() const;
  /// The starter of a row.
  const Starter *starterOf(qint64 row) const;
  /// A race of the data folder as its files tell it.
  RaceGlance race(int number) const { return m_races.of(store, number); }

private:
  ShownValues m_shown;
  RaceGlances &m_races;
  mutable std::optional<QList<Starter>> m_starters;
};

/// The record as LaeuferLesen takes it, an empty one where there is none.
LaeuferSatz athleteOf(const Store &store, int number);
/// The record, an empty one where there is none.
VereinSatz clubOf(const Store &store, int number);
/// The clubs of an athlete that exist.
QList<int> clubsOf(const Store &store, const LaeuferSatz &athlete);

/// The name as screens show it.
QString nameOf(const LaeuferSatz &athlete);
/// At most three names: "A, B und C", "A, B, C und 9 weitere".
QString names(const QStringList &all);
/// The name in a row of a table of names; empty where a file holds a row outside it.
template <int First, int Last> QString nameIn(const Tabelle<QString, First, Last> &table, int row) {
  return row < First || row > Last ? QString() : table[row];
}
/// "1 Teilnehmer hat", "3 Teilnehmer haben".
QString counted(qsizetype count, const char *one, const char *more);
/// The starters that a rule is about, by their names; nothing if there are none. In `sentence` %1 stands for the count
/// with its words, %2 for the names.
QString aboutStarters(const QStringList &who, const char *one, const char *more, const char *sentence);
/// The names of all starters that fit.
template <typename Fits> QStringList namesOf(const Situation &now, Fits fits) {
  QStringList all;
  for (const Starter &starter : now.starters())
    if (fits(starter))
      all << nameOf(starter.athlete);
  return all;
}
