#pragma once

#include "core/CupTabellen.h"

#include <QStringList>

// The scoring rules of a cup, on the tables of persons and rounds: places, times and statuses must stand there.
// `persons` is the number of persons, `names` their names, the first of person 1.

/// Strikes `count` results of each person: first what was not finished or not started, the last round first, then the
/// worst place, of equal places the slowest run. A result without a time is not struck for its place, so that a stroke
/// may come to nothing.
void strikeResults(CupTabellen &cup, int persons, int count);

/// Points of each result that is not struck, by the table, and the total of each person.
void awardPoints(CupTabellen &cup, int persons);

/// One sorted line for each person: class, highest total first, name; ends in the person.
QStringList cupKeys(const CupTabellen &cup, const QStringList &names);

/// Counts the places of a list of persons that comes class by class. Equal totals share a place, and the next different
/// total has its running place.
class CupPlaces {
public:
  /// Starts counting anew for a class.
  void beginClass() { m_running = 0; }
  /// The place to be shown for the next person.
  int next(int total);

private:
  int m_running = 0, m_shown = 0, m_lastTotal = 0;
};

/// The result: a head line for each class, then its persons with place, points of each round and total.
QStringList cupLines(const CupTabellen &cup, const QStringList &keys, const QStringList &names);
