#pragma once

#include <QStringList>

#include <vector>

/// What an operator does at the screens (see support/Operator.cpp).
struct Step {
  QString text;
  /// The fact (see factsOf) that is in the event once the step is done; empty for a step on the way.
  QString fact;
  /// Whether all that was done before is in the files once the step is done.
  bool saves = false;
};

struct Session {
  const char *name;
  std::vector<Step> steps;
  /// The race that the session writes as a whole: all of it is old or all of it is new, 0 for none.
  int replacedRace = 0;
  /// Facts that come together: all of them or none. What the disk refuses meanwhile is told in a window that no step
  /// knows, so that such a session meets deaths alone.
  std::vector<const char *> together = {};
};

/// Each begins at the menu and ends the program.
const std::vector<Session> &sessions();

/// Makes the event on which the sessions work: two races with teams, groups and times, a cup.
void makeEvent(const QString &folder);

/// What an event holds, in lines: "Läufer 1 ADAM", "2/1 Zeit 63.45" for row 1 of race 2, "2 Reihe 3 1" for the
/// order number of its class 3. A file that cannot be read is a Fault.
QStringList factsOf(const QString &folder);
