#pragma once

#include "platform/Files.h"

#include <QDate>
#include <QStringList>

#include <functional>
#include <mutex>
#include <random>

/// What the logic takes from outside, in one place that a test can set.
struct Umgebung {
  /// Today's date.
  std::function<QDate()> today = [] { return QDate::currentDate(); };
  /// The system's beep.
  std::function<void()> beep = [] {};
  /// Shows the reminder of athletes without sex or birth date; an empty list takes it away.
  std::function<void(const QStringList &)> remind = [](const QStringList &) {};
  /// Replaces a state file. The program hands it to its disk worker, which does it whole and soon; a failure is a
  /// fault.
  std::function<void(const QString &, const QByteArray &)> replaceSoon =
      [](const QString &path, const QByteArray &bytes) { writeFile(path, bytes); };
  /// Brings files that were written in place to the disk, likewise.
  std::function<void(const QStringList &)> syncSoon = [](const QStringList &) {};
  /// Held while files of the data folder are written in place, so that nobody copies half a save.
  std::mutex writing;
  /// The one generator of the program, seeded from the clock at the start.
  std::mt19937 generator;
  /// A random number in [0, 1).
  double randomNumber() { return std::generate_canonical<double, 53>(generator); }
};
