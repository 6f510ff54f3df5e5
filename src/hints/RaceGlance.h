#pragma once

#include "core/Store.h"

#include <QDateTime>
#include <QHash>
#include <QSet>

/// What the files of a race tell about it at a glance.
struct RaceGlance {
  QString name;
  /// Athletes that take part, and how many rows have a time of the first and of the second run.
  QSet<int> athletes;
  int participants = 0, times = 0, secondTimes = 0;
  /// Names and years of the classes, and the criteria, as texts to be compared.
  QString classes, criteria;
};

/// Reads the files of races beside the open one, and again only when they have changed.
class RaceGlances {
public:
  /// An empty one where there is no such race or its files cannot be read.
  RaceGlance of(const Store &store, int number);

private:
  struct Known {
    QList<QDateTime> stamps;
    RaceGlance glance;
  };
  QHash<int, Known> m_known;
};

/// The numbers that Cup.dat marks; none if it cannot be read.
QList<int> racesOfCup(const Store &store);
