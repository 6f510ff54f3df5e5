#pragma once

#include "platform/DiskWorker.h"
#include "safety/Changes.h"

#include <QDateTime>

#include <atomic>
#include <optional>

/// The record of the day: a line in "Protokoll/<date>.csv" under the data folder for each value that has changed in the
/// tables of the open race or in a register. Lines that the disk refuses are kept and tried again with the next ones.
class Journal {
public:
  explicit Journal(const Store &store);

  /// To be called when files of the data folder have been written.
  void written(const QStringList &paths);
  /// Work for another thread, which writes what has changed since the look before; a FileFault if the disk refuses. The
  /// jobs must run one after the other. A race that was opened meanwhile is compared with its files.
  std::function<void()> look(const QDateTime &now);

private:
  RaceTables tablesOnDisk() const;
  void write(const std::optional<RaceTables> &base, const std::optional<RaceTables> &now, const QDateTime &when);
  void note(const QList<Change> &changes, const QDateTime &when);
  void readRegisters(const QDateTime &when);
  void flush();

  const Store &m_store;
  const QString m_folder;
  std::atomic<bool> m_registersChanged = true;
  /// Number of the race of the last look; only the thread of the screens knows it.
  int m_lookedAt = -1;

  // What follows belongs to the thread of the jobs.
  std::optional<Registers> m_registers;
  std::optional<RaceTables> m_tables;
  /// Lines not yet on the disk, and the file they belong to.
  QByteArray m_lines;
  QString m_path;
  /// Whether the end of that file is known to be the end of a line.
  bool m_atLineEnd = false;
};
