#pragma once

#include <QDate>
#include <QStringList>

#include <functional>
#include <random>

/// What the logic takes from outside, in one place that a test can set.
struct Umgebung {
  /// Today's date.
  std::function<QDate()> heute = [] { return QDate::currentDate(); };
  /// The system's beep.
  std::function<void()> piep = [] {};
  /// Shows the reminder of athletes without sex or birth date; an empty list takes it away.
  std::function<void(const QStringList &)> erinnern = [](const QStringList &) {};
  /// The one generator of the program, seeded from the clock at the start.
  std::mt19937 zufall;
  /// A random number in [0, 1).
  double zufallszahl() { return std::generate_canonical<double, 53>(zufall); }
};
