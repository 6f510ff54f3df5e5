#pragma once

#include <QFile>
#include <QString>

// What neither Qt nor the standard library asks of the operating system; each difference between systems stands here.

namespace System {

/// Waits until what was written to an open file is on the disk; a FileFault if the system says that it is not.
void sync(QFile &file);
/// Waits until the names in a folder are on the disk. A disk that knows no such thing is taken at its word.
void syncFolder(const QString &path);

/// What stays the same when a folder is renamed or moved on its disk and differs from every other folder there; empty
/// if it cannot be told.
QString identityOf(const QString &folder);

/// Where a file or folder lies that is installed beside the program (example event, handbook).
QString sharedPath(const QString &name);

/// A lock that lives exactly as long as the process that holds it, whatever its file contains.
class Lock {
public:
  enum class State { Held, Taken, Unknown };

  /// Takes the lock at `path`, whose folder exists. `Unknown` if the file cannot be opened or the disk knows no locks.
  State take(const QString &path);
  void release() { m_file.close(); }

private:
  QFile m_file;
};

} // namespace System
