#pragma once

#include "core/Store.h"

// What has changed between two looks at the work, value by value.

/// One value, and whom it is about.
struct Change {
  /// 0 = none.
  int race = 0, startNr = 0;
  QString name, what, before, after;
};

/// A value and what it is called.
struct NamedValue {
  QString what, value;
};

/// The record files, as bytes.
struct Registers {
  QByteArray athletes, clubs, races;

  QString athlete(int n) const;
  /// The short name of the club that an athlete starts for by his choice 0 to 4 (see `VereinNr`).
  QString clubOf(int athlete, int choice) const;
  QString club(int n) const;
};

/// What the operator has typed into the tables of the open race.
struct RaceTables {
  int race = 0;
  QList<TeilnehmerZeile> participants;
  QStringList teams, groups;
  /// Names of teams and groups, classes and their order.
  QList<NamedValue> settings;
};

RaceTables tablesOf(const Store &store);

/// Participants are known by their athlete, since the rows move up when one is deleted. `registers` gives the names.
QList<Change> changesOf(const RaceTables &before, const RaceTables &after, const Registers &registers);
QList<Change> changesOf(const Registers &before, const Registers &after);
